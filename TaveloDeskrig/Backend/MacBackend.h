#pragma once

#include "AppItem.h"
#include "AppLanguage.h"
#include "AppRuntime.h"
#include "InstalledMacApplication.h"
#include "InventoryScan.h"
#include "OperationLog.h"
#include "PlatformServices.h"
#include "SystemChecks.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace Tavelo
{

struct FileError;

/// All that the program does to a Mac for the catalog: this is its table of contents, and the collaborators that the
/// comments name do the work.
///
/// Operations block, tell their reasons in the log and never throw. They may be called from any thread of Qt's; the two
/// functions given at construction are always entered on the main queue. The caller keeps the backend alive until an
/// operation has returned.
class MacBackend
{
public:
    /// Makes the log ready, and removes what an earlier process left half-written in the program's own folders when it
    /// died (`FileManager::removeAbandonedTemporaries`).
    MacBackend(const PlatformServices &services, UiLog uiLog, UiProgress uiProgress);
    ~MacBackend();
    Q_DISABLE_COPY_MOVE(MacBackend)

    /// Locations and version of the program.
    const AppRuntime &runtime() const;

    /// The log and the progress channel (`OperationLog`).
    void log(const QString &line) const;
    void progress(const QString &message, std::optional<double> fraction) const;

    /// Readiness (`SystemChecks`, `InstallBlockers`).
    QList<SystemCheck> systemChecks() const;
    QStringList installBlockers(const QList<AppItem> &items) const;

    /// What is on the Mac (`ItemStatus`).
    InstallStatus status(const AppItem &item) const;
    QHash<QString, InstallStatus> statuses(const QList<AppItem> &items) const;
    QList<QMap<QString, QString>> installStatusSnapshot() const;

    /// What was added to the Mac, with its signatures and licence evidence (`InventoryScan`).
    QList<InstalledMacApplication> installedAdditionalApplications(
        const InventoryScan::Progress &progress = {},
        const InventoryScan::IsCancelled &isCancelled = [] { return false; }) const;

    /// The text report of this Mac (`ReportWriter`): its path, or nothing and the reason.
    std::optional<QString> writeReport(const std::optional<QList<SystemCheck>> &checks,
                                       const std::optional<QList<InstalledMacApplication>> &additionalApplications,
                                       AppLanguage language, FileError *error = nullptr) const;

    /// Work on one item (`ItemOperations`, and behind it `Homebrew`, `DirectInstaller`, `LanguageKit`, `Shortcuts`,
    /// `DefaultApps`, `BuiltinItems`).
    bool install(const AppItem &item) const;
    bool uninstall(const AppItem &item) const;
    bool open(const AppItem &item) const;

private:
    struct Parts;
    std::unique_ptr<const Parts> m_parts;
};

} // namespace Tavelo
