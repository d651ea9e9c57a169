#pragma once

#include "InstalledMacApplication.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace Tavelo
{

class FileManager;
class ReceiptSecurity;

/// What the scan asks of the Mac's tools. A command that fails gives an empty text.
struct InventoryTools {
    /// Path of `brew`; nothing without Homebrew.
    std::function<std::optional<QString>()> brewPath;
    /// Standard output of a command.
    std::function<QString(const QStringList &arguments)> runCapture;
    /// Standard output and standard error of a command together.
    std::function<QString(const QStringList &arguments)> runCaptureCombined;
    /// Exit status of a command.
    std::function<int(const QStringList &arguments)> runQuiet;
};

/// Lists the software that was added to the Mac beyond its operating system: applications, the Homebrew formulae that
/// somebody asked for, and installer receipts that no application accounts for.
///
/// Blocks for two `codesign` runs an application. Nothing fails it: what cannot be read is left at its default text.
class InventoryScan
{
public:
    /// Called with the count of finished records and of all, first with 0; on the scanning thread.
    using Progress = std::function<void(qsizetype done, qsizetype total)>;
    using IsCancelled = std::function<bool()>;

    /// `files` and `security` must outlive it. `homeDirectory` is a Mac path.
    InventoryScan(const FileManager &files, const ReceiptSecurity &security, InventoryTools tools,
                  QString homeDirectory);

    /// The records, sorted by name as a reader of the user's language expects. Cancelled while it still collects, the
    /// list is empty; cancelled later, it holds the records finished so far.
    QList<InstalledMacApplication> installedAdditionalApplications(
        const Progress &progress = {}, const IsCancelled &isCancelled = [] { return false; }) const;

private:
    const FileManager &m_files;
    const ReceiptSecurity &m_security;
    InventoryTools m_tools;
    QString m_homeDirectory;
};

} // namespace Tavelo
