#pragma once

#include "ProcessLauncher.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace Tavelo::Bench
{

/// Medians of several rounds, which a busy moment of the machine does not move.
struct Pair {
    double measured = 0; ///< Milliseconds.
    double floor = 0;    ///< Milliseconds.
};

/// Measures both in turns, so that both meet the same machine.
Pair compare(const std::function<void()> &work, const std::function<void()> &floor, int rounds);

/// A budget of figures that have none.
inline constexpr double noBudget = 0;

/// Prints a row of the table that all benchmarks make together: a figure beside its floor, both in that unit, their
/// ratio, and whether it stays within the budget.
void print(const QString &what, const Pair &pair, double budget, const char *unit = "ms");
/// Prints a row for a figure without a floor.
void printFigure(const QString &what, double figure, const char *unit);
/// Prints a row for a figure that is to stay below a limit of the same unit.
void printLimit(const QString &what, double figure, double limit, const char *unit);

/// Starts a program of the host the barest way there is, drops or reads its output, and waits for it. Gives its status.
int bareRun(const QString &hostPath, const QStringList &arguments, const QStringList &environment, bool readOutput);

/// Kibibytes of a line such as "VmRSS:" of the process's own status; 0 where the system has none.
qint64 ownMemory(const QByteArray &name);

/// Real processes, which it counts, and of which it keeps a list where it is asked to.
class RecordingLauncher : public ProcessLauncher
{
public:
    using ProcessLauncher::ProcessLauncher;

    ProcessResult run(const ProcessSetup &setup) const override;

    bool keepsSetups = false;
    mutable std::vector<ProcessSetup> setups;
    mutable size_t runs = 0;
};

} // namespace Tavelo::Bench
