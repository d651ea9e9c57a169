#pragma once

#include "HostRoot.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace Tavelo
{

class MainQueue;

/// A child process to run. Standard input is always the program's own, so that a tool can ask the technician.
struct ProcessSetup {
    enum class Output {
        discard,        ///< Both streams are dropped.
        standardOutput, ///< Standard output is taken, standard error dropped.
        merged,         ///< Both streams are taken as one, in the order of writing.
    };

    QString executable; ///< Mac path.
    QStringList arguments;
    QProcessEnvironment environment; ///< The child's whole environment.
    QString currentFolder;           ///< Mac path; empty for the program's own.
    Output output = Output::discard;
    /// Called with each piece of output as it arrives, on the calling thread. When set, the result's `output` stays
    /// empty.
    std::function<void(const QByteArray &)> onOutput;
};

struct ProcessResult {
    /// The most that is taken, in bytes; several times what the most talkative tool says of a full Mac.
    static constexpr qsizetype maximumOutput = qsizetype(32) * 1024 * 1024;

    bool started = false;
    int status = 127;  ///< Exit status, or the number of the signal that ended the child; 127 when it did not start.
    QByteArray output; ///< What was taken of the child's output; nothing of more than `maximumOutput`.
    QString error;     ///< Why it did not start, in the system's words.
};

/// Starts programs of the Mac and waits for them, for as long as they take.
///
/// Output that nobody wants is dropped by the system, so that a child can never block on a full pipe. A grandchild that
/// outlives the child and keeps its pipe open is not waited for. Called on the main thread, it services the main queue
/// while it waits; a background caller needs a `QThread` (a thread pool's will do).
class ProcessLauncher
{
public:
    explicit ProcessLauncher(HostRoot root, std::shared_ptr<MainQueue> mainQueue);
    virtual ~ProcessLauncher();
    Q_DISABLE_COPY_MOVE(ProcessLauncher)

    virtual ProcessResult run(const ProcessSetup &setup) const;

private:
    HostRoot m_root;
    std::shared_ptr<MainQueue> m_mainQueue;
};

} // namespace Tavelo
