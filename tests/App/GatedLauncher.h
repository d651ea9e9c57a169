#pragma once

#include "FileManager.h"
#include "MainQueue.h"
#include "PlatformServices.h"
#include "ProcessLauncher.h"

#include <QSemaphore>

#include <atomic>

namespace Tavelo
{

/// The real processes, but one tool waits at a gate until the test lets it pass.
class GatedLauncher : public ProcessLauncher
{
public:
    GatedLauncher(const PlatformServices &services, const QString &tool)
        : ProcessLauncher(services.files->root(), services.mainQueue), m_tool(tool), m_mainQueue(services.mainQueue)
    {
    }

    ProcessResult run(const ProcessSetup &setup) const override
    {
        if (m_mainQueue->isMainThread())
            ++startedOnMainThread;
        if (setup.executable.endsWith(m_tool)) {
            ++arrived;
            m_gate.tryAcquire(1, 20000); // a test that has failed must end
        }
        return ProcessLauncher::run(setup);
    }

    /// Lets as many calls pass, now or when they come.
    void letPass(int calls) const { m_gate.release(calls); }

    mutable std::atomic<int> arrived = 0; ///< Calls of the tool so far.
    mutable std::atomic<int> startedOnMainThread = 0;

private:
    QString m_tool;
    std::shared_ptr<MainQueue> m_mainQueue;
    mutable QSemaphore m_gate;
};

} // namespace Tavelo
