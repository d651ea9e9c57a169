#pragma once

#include <QThreadPool>

#include <functional>
#include <vector>

namespace Tavelo
{

/// The threads for work that blocks, one for each piece of work up to `threads`. Work can be held back, so that the
/// first frame has the machine to itself. All calls come from the main thread.
class WorkPool
{
public:
    explicit WorkPool(int threads = 16);

    /// Has the work done on another thread, or keeps it until `letGo`.
    void start(std::function<void()> work);

    void holdBack() { m_holdsBack = true; }
    /// Starts what was held back, in its order, and holds back nothing more.
    void letGo();

    /// Forgets what has not begun yet.
    void clear();
    /// False if some work still ran when that many milliseconds were over; -1 waits without an end.
    bool waitForDone(int milliseconds = -1) { return m_threads.waitForDone(milliseconds); }

private:
    QThreadPool m_threads;
    std::vector<std::function<void()>> m_held;
    bool m_holdsBack = false;
};

} // namespace Tavelo
