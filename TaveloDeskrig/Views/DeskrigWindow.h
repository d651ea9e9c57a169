#pragma once

#include <QtGlobal>

#include <memory>

class QQuickWindow;

namespace Tavelo
{

class DeskrigViewModel;

/// The one window, over the view model that it shows and that must outlive it.
class DeskrigWindow
{
public:
    /// Makes the window and shows it. Needs the GUI application object.
    explicit DeskrigWindow(DeskrigViewModel &model);
    ~DeskrigWindow();
    Q_DISABLE_COPY_MOVE(DeskrigWindow)

    /// Nothing where the views could not be made; standard error then says why.
    QQuickWindow *window() const;

private:
    struct Engine;
    std::unique_ptr<Engine> m_engine;
};

} // namespace Tavelo
