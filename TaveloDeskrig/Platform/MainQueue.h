#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace Tavelo
{

/// The queue of calls that run on the main thread: the thread on which it was made.
///
/// A desktop application's event loop runs them by itself. Whoever occupies the main thread instead (the command line
/// while it waits for a child) calls `service`. Calls that were never run are dropped with the queue.
class MainQueue
{
public:
    MainQueue() = default;
    ~MainQueue();
    Q_DISABLE_COPY_MOVE(MainQueue)

    /// Queues a call, from any thread, and returns at once. Calls run in the order of queuing.
    void post(std::function<void()> call);

    bool isMainThread() const;

    /// Runs what is queued so far. Does nothing on any other thread than the main one.
    void service();

private:
    struct Calls {
        void run();
        void runInLoop();

        std::mutex mutex;
        std::deque<std::function<void()>> waiting;
        bool isLoopTold = false; ///< An event is on its way to the event loop, if there is one.
    };

    QObject m_receiver;
    const std::shared_ptr<Calls> m_calls = std::make_shared<Calls>();
};

} // namespace Tavelo
