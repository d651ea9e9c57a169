#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The command line: checks the Mac or installs a preset, and ends. No window ever exists.
///
/// Exit statuses: 0 for help, a check whose report is written, whatever it found, and a plan of which every item is
/// installed; 1 for a report that could not be written, a blocked plan and one with a failed item; 2 for wrong usage;
/// 130 when the technician did not confirm the plan.
namespace Tavelo::TaveloCLI
{

struct Options {
    bool check = false;
    bool noGUI = false; ///< Has done its work once the command line runs.
    bool yes = false;
    bool noShortcuts = false;
    bool noMimeDefaults = false;
    bool help = false;
    std::optional<QString> preset;

    bool operator==(const Options &) const = default;
};

/// Whether these arguments ask for the command line. Takes the whole argument list, program name first.
bool shouldRun(const QStringList &arguments);

/// Reads the arguments without the program name. Unknown ones are ignored; of several presets the last stands.
Options parse(const QStringList &arguments);

/// Does the command line's work on the calling thread and gives the exit status. Takes the whole argument list.
int run(const QStringList &arguments);

} // namespace Tavelo::TaveloCLI
