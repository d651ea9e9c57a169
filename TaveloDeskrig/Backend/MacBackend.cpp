#include "MacBackend.h"

#include "BuiltinItems.h"
#include "CommandRunner.h"
#include "DefaultApps.h"
#include "DirectInstaller.h"
#include "FileManager.h"
#include "Homebrew.h"
#include "InstallBlockers.h"
#include "ItemOperations.h"
#include "ItemStatus.h"
#include "LanguageKit.h"
#include "ReportWriter.h"
#include "Shortcuts.h"

namespace Tavelo
{

/// The collaborators, each after those that it is made of.
struct MacBackend::Parts {
    Parts(const PlatformServices &platform, UiLog uiLog, UiProgress uiProgress)
        : services(platform), runtime(services), log(services, runtime, std::move(uiLog), std::move(uiProgress)),
          runner(services, runtime, log), homebrew(runner, log), directInstaller(services, runtime, runner, log),
          languageKit(services, runtime, runner, log), shortcuts(services, runtime, log),
          defaultApps(services, runtime, runner, homebrew, log),
          itemStatus(services, runtime, runner, homebrew, directInstaller, languageKit, shortcuts, defaultApps),
          checks(services, runner, itemStatus), blockers(services, runner, checks),
          builtinItems(runner, itemStatus, log),
          inventory(*services.files, *services.receipts, inventoryTools(), runtime.homeDirectory()),
          reportWriter(services, runtime, runner, log, checks, itemStatus, inventory),
          operations({log, runner, itemStatus, blockers, homebrew, directInstaller, languageKit, shortcuts, defaultApps,
                      builtinItems})
    {
    }

    InventoryTools inventoryTools() const
    {
        return {
            .brewPath = [this] { return runner.brewPath(); },
            .runCapture = [this](const QStringList &arguments) { return runner.runCapture(arguments); },
            .runCaptureCombined = [this](const QStringList &arguments) { return runner.runCaptureCombined(arguments); },
            .runQuiet = [this](const QStringList &arguments) { return runner.runQuiet(arguments); }};
    }

    const PlatformServices services;
    AppRuntime runtime;
    OperationLog log;
    CommandRunner runner;
    Homebrew homebrew;
    DirectInstaller directInstaller;
    LanguageKit languageKit;
    Shortcuts shortcuts;
    DefaultApps defaultApps;
    ItemStatus itemStatus;
    SystemChecks checks;
    InstallBlockers blockers;
    BuiltinItems builtinItems;
    InventoryScan inventory;
    ReportWriter reportWriter;
    ItemOperations operations;
};

MacBackend::MacBackend(const PlatformServices &services, UiLog uiLog, UiProgress uiProgress)
    : m_parts(std::make_unique<Parts>(services, std::move(uiLog), std::move(uiProgress)))
{
    const AppRuntime &own = m_parts->runtime;
    for (const QString &folder : {own.appSupportDir() + QStringLiteral("/Reports"), own.cacheDir(), own.shortcutDir()})
        services.files->removeAbandonedTemporaries(folder);
}

MacBackend::~MacBackend() = default;

const AppRuntime &MacBackend::runtime() const
{
    return m_parts->runtime;
}

void MacBackend::log(const QString &line) const
{
    m_parts->log.log(line);
}

void MacBackend::progress(const QString &message, std::optional<double> fraction) const
{
    m_parts->log.progress(message, fraction);
}

QList<SystemCheck> MacBackend::systemChecks() const
{
    return m_parts->checks.systemChecks();
}

QStringList MacBackend::installBlockers(const QList<AppItem> &items) const
{
    return m_parts->blockers.installBlockers(items);
}

InstallStatus MacBackend::status(const AppItem &item) const
{
    return m_parts->itemStatus.status(item);
}

QHash<QString, InstallStatus> MacBackend::statuses(const QList<AppItem> &items) const
{
    return m_parts->itemStatus.statuses(items);
}

QList<QMap<QString, QString>> MacBackend::installStatusSnapshot() const
{
    return m_parts->itemStatus.installStatusSnapshot();
}

QList<InstalledMacApplication>
MacBackend::installedAdditionalApplications(const InventoryScan::Progress &progress,
                                            const InventoryScan::IsCancelled &isCancelled) const
{
    return m_parts->inventory.installedAdditionalApplications(progress, isCancelled);
}

std::optional<QString>
MacBackend::writeReport(const std::optional<QList<SystemCheck>> &checks,
                        const std::optional<QList<InstalledMacApplication>> &additionalApplications,
                        AppLanguage language, FileError *error) const
{
    return m_parts->reportWriter.writeReport(checks, additionalApplications, language, error);
}

bool MacBackend::install(const AppItem &item) const
{
    return m_parts->operations.install(item);
}

bool MacBackend::uninstall(const AppItem &item) const
{
    return m_parts->operations.uninstall(item);
}

bool MacBackend::open(const AppItem &item) const
{
    return m_parts->operations.open(item);
}

} // namespace Tavelo
