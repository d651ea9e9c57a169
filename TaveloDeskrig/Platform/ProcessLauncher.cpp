#include "ProcessLauncher.h"

#include "MainQueue.h"

#include <QProcess>

namespace Tavelo
{

namespace
{

/// How long a wait on the main thread may keep a posted call waiting.
constexpr int mainQueuePause = 20; // milliseconds
constexpr int forever = -1;

} // namespace

ProcessLauncher::ProcessLauncher(HostRoot root, std::shared_ptr<MainQueue> mainQueue)
    : m_root(std::move(root)), m_mainQueue(std::move(mainQueue))
{
}

ProcessLauncher::~ProcessLauncher() = default;

ProcessResult ProcessLauncher::run(const ProcessSetup &setup) const
{
    using Output = ProcessSetup::Output;

    QProcess process;
    process.setProgram(m_root.hostPath(setup.executable));
    process.setArguments(setup.arguments);
    process.setProcessEnvironment(setup.environment);
    if (!setup.currentFolder.isEmpty())
        process.setWorkingDirectory(m_root.hostPath(setup.currentFolder));
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    if (setup.output == Output::merged)
        process.setProcessChannelMode(QProcess::MergedChannels);
    else
        process.setStandardErrorFile(QProcess::nullDevice());
    if (setup.output == Output::discard)
        process.setStandardOutputFile(QProcess::nullDevice());

    process.start();
    if (!process.waitForStarted(forever))
        return {.started = false, .status = 127, .output = {}, .error = process.errorString()};

    ProcessResult result{.started = true, .status = 0, .output = {}, .error = {}};
    bool isFlood = false;
    const auto take = [&] {
        if (setup.output == Output::discard)
            return;
        const QByteArray bytes = process.readAllStandardOutput();
        if (bytes.isEmpty())
            return;
        if (setup.onOutput)
            setup.onOutput(bytes);
        else if (!isFlood)
            result.output += bytes;
        isFlood = isFlood || result.output.size() > ProcessResult::maximumOutput;
        if (isFlood)
            result.output.clear();
    };
    const int pause = m_mainQueue->isMainThread() ? mainQueuePause : forever;
    while (process.state() != QProcess::NotRunning) {
        if (setup.output == Output::discard)
            process.waitForFinished(pause);
        else
            process.waitForReadyRead(pause);
        take();
        m_mainQueue->service();
    }
    result.status = process.exitCode();
    if (process.exitStatus() == QProcess::CrashExit && result.status == 0)
        result.status = 1;
    return result;
}

} // namespace Tavelo
