#include "DeskrigViewModel.h"

#include "Clock.h"
#include "FileManager.h"
#include "MacBackend.h"
#include "ProgressArithmetic.h"
#include "ScanThrottle.h"
#include "WorkPool.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// Writes the text report and reads it back; nothing if one of both fails.
std::optional<QString> writtenReport(const MacBackend &backend, const FileManager &files,
                                     const std::optional<QList<SystemCheck>> &checks,
                                     const QList<InstalledMacApplication> &applications, AppLanguage language,
                                     FileError *error)
{
    const std::optional<QString> path = backend.writeReport(checks, applications, language, error);
    const std::optional<QByteArray> bytes = path ? files.contents(*path, error) : std::nullopt;
    return bytes ? std::optional(QString::fromUtf8(*bytes)) : std::nullopt;
}

} // namespace

void DeskrigViewModel::openAuditWorkspace()
{
    if (!releasePolicyAllowsAction())
        return;
    m_selectedGroupID = u"audit"_s;
    m_currentAction = strings().auditPreparing();
    scheduleAuditScanAfterNavigationCommit();
}

void DeskrigViewModel::scheduleAuditScanAfterNavigationCommit()
{
    // A scan changes much of what is on screen. One turn of the main loop lets the new screen come first.
    if (m_deferredAuditScanTask)
        m_deferredAuditScanTask->cancel();
    const TaskHandle task;
    m_deferredAuditScanTask = task;
    publisher()([task](DeskrigViewModel &model) {
        if (!task.isCancelled() && model.m_selectedGroupID.value() == u"audit" && model.releasePolicyAllowsAction())
            model.startReportInventoryScan();
    });
}

void DeskrigViewModel::scanMac()
{
    if (releasePolicyAllowsAction())
        startReportInventoryScan();
}

void DeskrigViewModel::startReportInventoryScan()
{
    if (m_isReportRefreshing)
        return;
    m_isReportRefreshing = true;
    m_auditProgress = 0;
    m_auditProgressText = ProgressArithmetic::percentText(0);
    m_auditProgressDetailText = strings().auditPreparing();
    m_currentAction = m_auditProgressDetailText.value();
    appendLog(u"Bắt đầu kiểm kê macOS: app bundle, Homebrew, pkg receipt và chữ ký số."_s);
    m_pool.start([backend = m_backend, files = m_services.files, publish = publisher(), language = m_language.value(),
                  items = m_catalogItems.value()] {
        ScanThrottle throttle;
        const auto applications = backend->installedAdditionalApplications([&](qsizetype completed, qsizetype total) {
            if (throttle.passes(completed, total))
                publish([=](DeskrigViewModel &model) { model.updateAuditScanProgress(completed, total); });
        });
        publish([](DeskrigViewModel &model) { model.markReportCatalogRefresh(); });
        const auto statuses = backend->statuses(items);
        FileError error;
        const auto text = writtenReport(*backend, *files, std::nullopt, applications, language, &error);
        if (text)
            publish([=](DeskrigViewModel &model) { model.finishReportScan(*text, applications, statuses); });
        else
            publish([error](DeskrigViewModel &model) { model.finishReportFailure(error.text); });
    });
}

void DeskrigViewModel::updateAuditScanProgress(qsizetype completed, qsizetype total)
{
    if (!m_isReportRefreshing)
        return;
    const double share = ProgressArithmetic::share(completed, total);
    m_auditProgress = share;
    m_auditProgressText = ProgressArithmetic::percentText(share);
    m_auditProgressDetailText = strings().auditScanProgress(completed, total, ProgressArithmetic::percent(share));
    m_currentAction = m_auditProgressDetailText.value();
}

void DeskrigViewModel::markReportCatalogRefresh()
{
    m_currentAction = strings().auditUpdatingCatalog(m_catalogItems.value().size());
}

void DeskrigViewModel::setReport(const QString &text, const QList<InstalledMacApplication> &applications)
{
    m_reportText = text;
    m_reportApplications.setRecords(applications);
    m_isReportRefreshing = false;
}

void DeskrigViewModel::markReportMade()
{
    m_hasReportSnapshot = true;
    m_reportSnapshotDate = m_services.clock->now();
}

void DeskrigViewModel::finishReportScan(const QString &text, const QList<InstalledMacApplication> &applications,
                                        const Statuses &statuses)
{
    m_statuses = statuses;
    updateProgress();
    setReport(text, applications);
    m_auditProgress = 1;
    m_auditProgressText = ProgressArithmetic::percentText(1);
    m_auditProgressDetailText = strings().auditScanProgress(applications.size(), applications.size(), 100);
    markReportMade();
    m_currentAction = strings().auditComplete(applications.size());
    appendLog(u"Hoàn tất kiểm kê macOS: %1 phần mềm, %2 mục có key/receipt, %3 mục không cần key, %4 mục không phát "
              u"hiện key."_s.arg(applications.size())
                  .arg(auditKeyPresentCount())
                  .arg(auditKeyNotRequiredCount())
                  .arg(auditKeyNotDetectedCount()));
    showToast(m_currentAction, ToastMessage::Kind::success);
}

void DeskrigViewModel::finishReportFailure(const QString &error)
{
    m_isReportRefreshing = false;
    m_auditProgress = 0;
    m_auditProgressText = ProgressArithmetic::percentText(0);
    m_auditProgressDetailText = strings().auditPreparing();
    m_currentAction = error;
    showToast(m_currentAction, ToastMessage::Kind::failure);
}

void DeskrigViewModel::refreshChecks(bool logToDrawer)
{
    if (m_systemCheckTask)
        m_systemCheckTask->cancel();
    const QUuid generation = QUuid::createUuid();
    m_systemCheckGeneration = generation;
    const TaskHandle task;
    m_systemCheckTask = task;
    m_pool.start([backend = m_backend, files = m_services.files, publish = publisher(), task, generation, logToDrawer,
                  language = m_language.value(), items = m_catalogItems.value()] {
        if (task.isCancelled())
            return;
        const QList<SystemCheck> checks = backend->systemChecks();
        if (task.isCancelled())
            return;
        const auto applications = backend->installedAdditionalApplications({}, [&] { return task.isCancelled(); });
        if (task.isCancelled())
            return;
        publish([task](DeskrigViewModel &model) {
            if (!task.isCancelled())
                model.markReportCatalogRefresh();
        });
        const auto statuses = backend->statuses(items);
        if (task.isCancelled())
            return;
        FileError error;
        const auto text = writtenReport(*backend, *files, checks, applications, language, &error);
        if (!text) {
            publish([error](DeskrigViewModel &model) { model.finishReportFailure(error.text); });
            return;
        }
        if (task.isCancelled())
            return;
        publish([=](DeskrigViewModel &model) {
            if (generation != model.m_systemCheckGeneration)
                return;
            model.m_systemCheckTask.reset();
            model.m_statuses = statuses;
            model.updateProgress();
            model.m_latestChecks.setChecks(checks);
            model.applyCoreReadiness(checks);
            if (logToDrawer)
                model.logChecks(checks);
            model.finishPrepareReport(*text, applications, true);
        });
    });
}

void DeskrigViewModel::finishPrepareReport(const QString &text, const QList<InstalledMacApplication> &applications,
                                           bool presentWhenReady)
{
    setReport(text, applications);
    markReportMade();
    m_currentAction = label(ScreenText::reportWritten);
    if (presentWhenReady)
        showToast(m_currentAction, ToastMessage::Kind::success);
    if (m_activeSheet.value().kind() == Sheet::Kind::systemChecks) {
        // One sheet goes before the other comes.
        dismissSheet();
        publisher()([](DeskrigViewModel &model) { model.show(Sheet(Sheet::Kind::report)); });
    } else if (presentWhenReady && m_activeSheet.value().kind() == Sheet::Kind::none) {
        show(Sheet(Sheet::Kind::report));
    }
}

void DeskrigViewModel::cancelSystemCheck()
{
    if (m_systemCheckTask)
        m_systemCheckTask->cancel();
    m_systemCheckTask.reset();
    m_systemCheckGeneration = QUuid::createUuid();
    m_currentAction = label(AppI18nKey::readyAction);
}

void DeskrigViewModel::openReport()
{
    if (!releasePolicyAllowsAction())
        return;
    show(Sheet(Sheet::Kind::report));
    m_currentAction = label(ScreenText::reportOpened);
}

void DeskrigViewModel::logChecks(const QList<SystemCheck> &checks)
{
    m_backend->log(u"System check summary:"_s);
    for (const SystemCheck &check : checks)
        m_backend->log(logLine(check));
}

} // namespace Tavelo
