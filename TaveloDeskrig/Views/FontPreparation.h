#pragma once

#include "AppLanguage.h"

#include <QFont>

#include <future>

namespace Tavelo
{

/// Makes the font of the window's texts ready beside other work, since the first frame would wait for it longer than
/// for anything else.
class FontPreparation
{
public:
    /// Begins, on a thread of its own, with all that threads can share: which fonts there are, which of them help out,
    /// the outlines of the symbols. Needs the GUI application object.
    explicit FontPreparation(AppLanguage language);

    /// Waits for the font, which has no size. Makes the faces that the first frame shows, which each thread needs for
    /// itself, so it is for the main thread. To be called once.
    QFont finish();

private:
    std::promise<QFont> m_font;
    std::future<void> m_work;
};

} // namespace Tavelo
