#pragma once

#include "TemporaryMac.h"

namespace Tavelo
{

/// The program as a process, on a simulated Mac of its own.
class ProgramOnAMac : public MacFolder
{
public:
    /// `options` are those of `simulated-mac/make-mac`.
    explicit ProgramOnAMac(const QStringList &options = {});

    struct Outcome {
        int status = -1; ///< -1 if it did not start or was killed.
        QString output;
        QString errors;
    };
    /// Runs the program to its end with that standard input. Its arguments have blanks between.
    Outcome run(const QString &arguments, const QByteArray &input = {}) const;

    /// Runs one of the programs that furnish a Mac (`break-tool`, `add-app` …) on this one; a failure ends the test.
    void furnish(const QString &tool, const QStringList &arguments) const;

    QStringList logLines() const;

    /// What vendor downloads have left in their working folders; nothing, after whatever end.
    QStringList leftovers() const;

    /// What the Mac's tools were called with since the last time, a line a call.
    QStringList takeCalls() const;

    static QString program();
};

} // namespace Tavelo
