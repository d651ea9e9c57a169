#pragma once

#include "AppRuntime.h"
#include "OperationLog.h"
#include "PlatformServices.h"

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <optional>

namespace Tavelo
{

struct ProcessResult;
struct ProcessSetup;

/// Runs the Mac's own tools. Every external command of the program passes through here.
///
/// An argument vector's first entry is the command: a name that is looked up, or a path. No shell line is ever built.
/// Each operation blocks for as long as the child takes; there are no timeouts. A command that is not found or does not
/// start has status 127 and no output.
class CommandRunner
{
public:
    /// `log` must outlive the runner.
    CommandRunner(PlatformServices services, const AppRuntime &runtime, const OperationLog &log);

    /// Runs a step of an operation: logs "$ " and the description, each line of output as it arrives, and the end with
    /// its status. Gives the exit status. `currentDirectory` is a Mac path; empty means the program's own.
    int runCommand(const QStringList &arguments, const QString &description,
                   const QString &currentDirectory = QString()) const;

    /// A query of which only the exit status counts. Logs nothing.
    int runQuiet(const QStringList &arguments) const;

    /// Standard output as text, whatever the status; empty if it is not UTF-8.
    QString runCapture(const QStringList &arguments) const;

    /// As `runCapture`, with standard error in the same text.
    QString runCaptureCombined(const QStringList &arguments) const;

    struct StatusAndOutput {
        int status = 127;
        QString output; ///< Standard output; empty if it is not UTF-8.
    };
    StatusAndOutput runCaptureStatus(const QStringList &arguments) const;

    /// The executable that a command stands for: one with a `/` is taken as a path (a leading `~` expanded), any other
    /// is looked for along the `PATH` of `commandEnvironment`. Nothing if there is none.
    std::optional<QString> commandPath(const QString &command) const;

    /// The program's environment with a `PATH` that begins with Homebrew's and the system's folders, which the user's
    /// own `PATH` can then not shadow.
    QProcessEnvironment commandEnvironment() const;

    /// `HOMEBREW_BREW_FILE`, else the place for Apple silicon, the place for Intel, or wherever `PATH` has it; nothing
    /// if none of them is an executable file.
    std::optional<QString> brewPath() const;

private:
    std::optional<ProcessResult> start(const QStringList &arguments, ProcessSetup setup) const;

    PlatformServices m_services;
    AppRuntime m_runtime;
    const OperationLog &m_log;
};

} // namespace Tavelo
