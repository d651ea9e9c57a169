#include "ReportWriter.h"

#include "Catalog.h"
#include "Clock.h"
#include "FileManager.h"
#include "SystemFacts.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

constexpr mode_t folderMode = 0700;
constexpr mode_t fileMode = 0600;

} // namespace

ReportWriter::ReportWriter(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                           const OperationLog &log, const SystemChecks &checks, const ItemStatus &itemStatus,
                           const InventoryScan &inventory)
    : m_services(std::move(services)), m_runtime(runtime), m_runner(runner), m_log(log), m_checks(checks),
      m_itemStatus(itemStatus), m_inventory(inventory)
{
}

std::optional<QString>
ReportWriter::writeReport(const std::optional<QList<SystemCheck>> &checks,
                          const std::optional<QList<InstalledMacApplication>> &additionalApplications,
                          AppLanguage language, FileError *error) const
{
    const FileManager &files = *m_services.files;
    const QString file = m_runtime.reportFile();
    const QString folder = QFileInfo(file).path();
    if (!files.createFolder(folder, folderMode, error))
        return std::nullopt;
    files.setMode(folder, folderMode); // best effort: it may belong to another

    const QString text = textReport(facts(checks, additionalApplications), language);
    if (!files.writeAtomically(file, text.toUtf8(), fileMode, error))
        return std::nullopt;
    FileError modeError;
    if (!files.setMode(file, fileMode, &modeError)) {
        if (error)
            *error = modeError.orInputOutput();
        return std::nullopt;
    }
    m_log.log(u"Đã ghi report: "_s + file);
    return file;
}

TextReportFacts ReportWriter::facts(const std::optional<QList<SystemCheck>> &checks,
                                    const std::optional<QList<InstalledMacApplication>> &additionalApplications) const
{
    const QString hardware = m_runner.runCapture({u"/usr/sbin/system_profiler"_s, u"SPHardwareDataType"_s, u"-json"_s});
    TextReportFacts facts{
        .time = m_services.clock->now(),
        .locale = QLocale(),
        .hostname = m_services.facts->computerName(),
        .hardware = MacInventoryClassifier::hardwareProfile(hardware.toUtf8()),
        .macOSVersion = m_checks.macOSVersionString(),
        .architecture = m_checks.architectureLabel(),
        .brewPath = m_runner.brewPath(),
        .logFile = m_log.file(),
        .checks = checks ? *checks : m_checks.systemChecks(),
        .applications =
            additionalApplications ? *additionalApplications : m_inventory.installedAdditionalApplications(),
        .catalog = {},
    };
    const QList<AppItem> items = Catalog::uniqueInstallItems(Catalog::items());
    const QHash<QString, InstallStatus> statuses = m_itemStatus.statuses(items);
    for (const AppItem &item : items)
        facts.catalog.append({item, statuses.value(item.id)});
    return facts;
}

} // namespace Tavelo
