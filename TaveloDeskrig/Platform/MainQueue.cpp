#include "MainQueue.h"

#include <QThread>

#include <utility>

namespace Tavelo
{

MainQueue::~MainQueue()
{
    const std::lock_guard lock(m_calls->mutex);
    m_calls->waiting.clear();
}

void MainQueue::post(std::function<void()> call)
{
    const std::lock_guard lock(m_calls->mutex);
    m_calls->waiting.push_back(std::move(call));
    // One event is enough for all calls. An event for each would stay in the library's list for as long as no event
    // loop runs, and a tool that prints much would fill the memory.
    if (!std::exchange(m_calls->isLoopTold, true))
        QMetaObject::invokeMethod(
            &m_receiver, [calls = m_calls] { calls->runInLoop(); }, Qt::QueuedConnection);
}

bool MainQueue::isMainThread() const
{
    return m_receiver.thread() == QThread::currentThread();
}

void MainQueue::service()
{
    const std::shared_ptr<Calls> calls = m_calls; // a call may be the end of this queue
    if (isMainThread())
        calls->run();
}

/// Those that are waiting now; what they queue waits for its turn.
void MainQueue::Calls::run()
{
    const auto next = [this] {
        const std::lock_guard lock(mutex);
        std::function<void()> call;
        if (!waiting.empty()) {
            call = std::move(waiting.front());
            waiting.pop_front();
        }
        return call;
    };
    std::unique_lock lock(mutex);
    size_t count = waiting.size();
    lock.unlock();
    for (; count > 0; --count) {
        if (const auto call = next())
            call();
    }
}

void MainQueue::Calls::runInLoop()
{
    {
        const std::lock_guard lock(mutex);
        isLoopTold = false;
    }
    run();
}

} // namespace Tavelo
