#include "DeskrigViewModel.h"

#include "Clock.h"
#include "FileManager.h"
#include "HttpTransport.h"
#include "InventoryText.h"
#include "LanguageSwap.h"
#include "MacBackend.h"
#include "MainQueue.h"
#include "ProgressArithmetic.h"
#include "SupabaseClient.h"
#include "UserDefaults.h"
#include "WorkPool.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

DeskrigViewModel::DeskrigViewModel(const PlatformServices &services, std::unique_ptr<HttpTransport> transport,
                                   WorkPool &pool)
    : m_services(services), m_runtime(services), m_pool(pool), m_snapshots(services, m_runtime)
{
    m_language = AppLanguages::storedDefault(*services.defaults);
    m_currentAction = label(AppI18nKey::readyAction);
    m_operationSummaryText = strings().operationSummary(0, 0);
    m_cloudOutput = label(AppI18nKey::noDeviceData);
    m_coreReadinessDetail = label(AppI18nKey::checkingCore);
    m_auditProgressDetailText = AppStrings(AppLanguage::english).auditPreparing();
    m_reportProfile = {.subject = u"macOS software inventory report"_s};

    const QPointer<DeskrigViewModel> self(this);
    m_backend = std::make_shared<MacBackend>(
        services,
        [self](const QString &line) {
            if (self)
                self->appendBackendLog(line);
        },
        [self](const InstallProgressUpdate &update) {
            if (self)
                self->applyBackendProgress(update);
        });
    m_cloud = std::make_unique<SupabaseClient>(
        services, std::move(transport),
        [self, queue = services.mainQueue](const QString &line) {
            const auto append = [self, line] {
                if (self)
                    self->appendCloudLog(line);
            };
            queue->isMainThread() ? append() : queue->post(append);
        },
        SupabaseClient::loadConfig(services));

    connectModels();
    m_catalogItems = SupabaseClient::cachedCatalog(services);
    seedStatuses();
    loadReportProfile();
    loadReportSnapshot();
    appendLog(u"Khởi động UI native SwiftUI/AppKit."_s);
    appendLog(u"Catalog Linux đã map sang macOS: %1 mục."_s.arg(m_catalogItems.value().size()));

    checkReleasePolicy(false);
    refreshCoreReadiness();
    refreshStatuses(false);
}

DeskrigViewModel::~DeskrigViewModel()
{
    // What runs by now is of no use to anybody; it ends where it next looks.
    for (const auto &task : {m_systemCheckTask, m_deferredAuditScanTask}) {
        if (task)
            task->cancel();
    }
}

DeskrigViewModel::Publish DeskrigViewModel::publisher()
{
    // Only the main thread, where the view model is destroyed, looks whether it is still there.
    return [queue = m_services.mainQueue,
            self = QPointer<DeskrigViewModel>(this)](std::function<void(DeskrigViewModel &)> call) {
        queue->post([self, call = std::move(call)] {
            if (self)
                call(*self);
        });
    };
}

void DeskrigViewModel::connectModels()
{
    const auto showGroup = [this] {
        QList<AppItem> items = m_catalogItems;
        if (m_selectedGroupID.value() != u"all")
            items.removeIf([&](const AppItem &item) { return !item.belongsTo(m_selectedGroupID); });
        m_filteredItems.setItems(items);
    };
    const auto speak = [this] {
        m_filteredItems.setLanguage(m_language);
        m_latestChecks.setLanguage(m_language);
        m_reportApplications.setLanguage(m_language);
        m_groups.setLanguage(m_language);
    };
    connect(this, &DeskrigViewModel::selectedGroupIDChanged, this, showGroup);
    connect(this, &DeskrigViewModel::catalogItemsChanged, this, showGroup);
    connect(this, &DeskrigViewModel::statusesChanged, this, [this] { m_filteredItems.setStatuses(m_statuses); });
    connect(this, &DeskrigViewModel::languageChanged, this, speak);
    connect(this, &DeskrigViewModel::statusesChanged, this, &DeskrigViewModel::installedCountChanged);
    connect(this, &DeskrigViewModel::catalogItemsChanged, this, &DeskrigViewModel::installedCountChanged);
    connect(this, &DeskrigViewModel::releasePolicyChanged, this, &DeskrigViewModel::updateTextsChanged);
    connect(this, &DeskrigViewModel::languageChanged, this, &DeskrigViewModel::updateTextsChanged);
    connectScreens();
    speak();
}

qsizetype DeskrigViewModel::installedCount() const
{
    const QList<AppItem> &items = m_catalogItems.value();
    return std::count_if(items.cbegin(), items.cend(), [this](const AppItem &item) {
        return m_statuses.value().value(item.id, InstallStatus::missing) == InstallStatus::installed;
    });
}

void DeskrigViewModel::seedStatuses()
{
    const auto seed = [](AppKind kind) {
        switch (kind) {
        case AppKind::blocked:
            return InstallStatus::blocked;
        case AppKind::builtin:
            return InstallStatus::installed;
        default:
            return InstallStatus::missing;
        }
    };
    Statuses seeded;
    for (const AppItem &item : m_catalogItems.value())
        seeded.insert(item.id, seed(item.kind));
    m_statuses = seeded;
    updateProgress();
}

void DeskrigViewModel::setStatus(const QString &itemID, InstallStatus status)
{
    Statuses changed = m_statuses;
    changed.insert(itemID, status);
    m_statuses = changed;
}

void DeskrigViewModel::updateProgress(qsizetype done, qsizetype total)
{
    m_progress = ProgressArithmetic::share(done, total);
    m_progressText = ProgressArithmetic::cutPercentText(done, total);
}

void DeskrigViewModel::loadReportProfile()
{
    if (const auto stored = Tavelo::loadReportProfile(*m_services.defaults))
        m_reportProfile = *stored;
}

void DeskrigViewModel::setReportProfile(const MacReportProfile &profile)
{
    m_reportProfile = profile;
}

void DeskrigViewModel::saveReportProfile()
{
    Tavelo::saveReportProfile(*m_services.defaults, m_reportProfile);
}

void DeskrigViewModel::loadReportSnapshot()
{
    FileError error;
    const std::optional<ReportSnapshot> stored = m_snapshots.load(&error);
    if (!stored)
        return;
    m_reportText = stored->text;
    m_reportApplications.setRecords(stored->applications);
    m_hasReportSnapshot = true;
    m_reportSnapshotDate = stored->createdAt;
    m_auditProgress = 1;
    m_auditProgressText = ProgressArithmetic::percentText(1);
    m_auditProgressDetailText = strings().auditComplete(stored->applications.size());
    if (error.code != 0)
        appendLog(ReportSnapshotStore::failureLine(error));
}

void DeskrigViewModel::saveReportSnapshot()
{
    FileError error;
    if (!m_snapshots.save(m_reportText, m_reportApplications.records(), &error))
        appendLog(ReportSnapshotStore::failureLine(error));
}

void DeskrigViewModel::refreshStatuses(bool showToast)
{
    m_currentAction = strings().checkingInstalledStatus();
    appendLog(u"Bắt đầu refresh trạng thái native backend."_s);
    m_pool.start([backend = m_backend, items = m_catalogItems.value(), publish = publisher(), showToast] {
        publish([statuses = backend->statuses(items), showToast](DeskrigViewModel &model) {
            model.applyRefreshedStatuses(statuses, showToast);
        });
    });
}

void DeskrigViewModel::applyRefreshedStatuses(const Statuses &statuses, bool showToast)
{
    m_statuses = statuses;
    m_currentAction = strings().statusRefreshed();
    updateProgress();
    appendLog(u"Refresh trạng thái: %1."_s.arg(strings().summary(installedCount(), m_catalogItems.value().size())));
    if (showToast)
        this->showToast(strings().statusRefreshed(), ToastMessage::Kind::success);
}

void DeskrigViewModel::refreshCoreReadiness()
{
    m_pool.start([backend = m_backend, publish = publisher()] {
        publish([checks = backend->systemChecks()](DeskrigViewModel &model) {
            model.m_latestChecks.setChecks(checks);
            model.applyCoreReadiness(checks);
        });
    });
}

void DeskrigViewModel::applyCoreReadiness(const QList<SystemCheck> &checks)
{
    const CoreReadiness readiness = CoreReadiness::of(checks, strings());
    m_coreReadinessLabel = readiness.label;
    m_coreReadinessLevel = readiness.level;
    m_coreReadinessDetail = readiness.detail;
}

void DeskrigViewModel::appendLog(const QString &line)
{
    appendBackendLog(u"[%1] %2"_s.arg(m_services.clock->now().toString(u"HH:mm:ss"_s), withoutControls(line)));
}

void DeskrigViewModel::appendBackendLog(const QString &line)
{
    m_logLines.append(line);
}

void DeskrigViewModel::setShowLogDrawer(bool shown)
{
    m_showLogDrawer = shown;
}

void DeskrigViewModel::show(const Sheet &sheet)
{
    m_activeSheet = sheet;
}

void DeskrigViewModel::dismissSheet()
{
    m_activeSheet = Sheet();
}

void DeskrigViewModel::selectGroup(const QString &groupID)
{
    if (groupID == m_selectedGroupID)
        return;
    if (m_deferredAuditScanTask)
        m_deferredAuditScanTask->cancel();
    m_selectedGroupID = groupID;
}

void DeskrigViewModel::setLanguage(AppLanguage language)
{
    m_language = language;
    m_services.defaults->setText(AppLanguages::storedKey.toString(), rawValue(language));
    m_currentAction = label(AppI18nKey::readyAction);
    m_operationSummaryText = strings().operationSummary(m_operationCompletedItems, m_operationTotalItems);
    m_cloudOutput = swappedLanguage(m_cloudOutput, AppI18nKey::noDeviceData, language);
    m_coreReadinessDetail = swappedLanguage(m_coreReadinessDetail, AppI18nKey::checkingCore, language);
    refreshCoreReadiness();
}

} // namespace Tavelo
