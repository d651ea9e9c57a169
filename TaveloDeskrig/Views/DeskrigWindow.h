#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>

class QQuickWindow;

namespace Tavelo
{

class DeskrigViewModel;

/// The one window, over the view model that it shows and that must outlive it.
class DeskrigWindow
{
public:
    /// Makes the window and shows it; needs the GUI application object. `onFirstFrame` is called once, when the first
    /// frame is in sight, or a while later if there is none, as of a window that starts out of sight.
    explicit DeskrigWindow(
        DeskrigViewModel &model, const std::function<void()> &onFirstFrame = [] {});
    ~DeskrigWindow();
    Q_DISABLE_COPY_MOVE(DeskrigWindow)

    /// Nothing where the views could not be made; standard error then says why.
    QQuickWindow *window() const;

private:
    struct Engine;
    std::unique_ptr<Engine> m_engine;
};

} // namespace Tavelo
