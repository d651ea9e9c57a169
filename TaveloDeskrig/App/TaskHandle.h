#pragma once

#include <atomic>
#include <memory>

namespace Tavelo
{

/// A task that may no longer be wanted. Copies stand for the same task, on any thread.
class TaskHandle
{
public:
    /// Asks the task to end. It does so where it next looks.
    void cancel() const { *m_cancelled = true; }
    bool isCancelled() const { return *m_cancelled; }

private:
    std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
};

} // namespace Tavelo
