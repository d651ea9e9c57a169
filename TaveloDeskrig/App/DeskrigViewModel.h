#pragma once

#include "AppRuntime.h"
#include "AppStrings.h"
#include "AuditListModel.h"
#include "CatalogListModel.h"
#include "CheckListModel.h"
#include "CloudResult.h"
#include "CoreReadiness.h"
#include "DetailListModel.h"
#include "GroupListModel.h"
#include "LogLines.h"
#include "MacReportProfile.h"
#include "PlatformServices.h"
#include "ReleasePolicy.h"
#include "ReportSnapshot.h"
#include "ScreenRecords.h"
#include "Sheet.h"
#include "TaskHandle.h"
#include "ToastMessage.h"

#include <QDateTime>
#include <QFuture>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QProperty>
#include <QString>
#include <QUrl>
#include <QUuid>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Tavelo
{

class HttpTransport;
class MacBackend;
class SupabaseClient;
class WorkPool;

/// The one object behind every screen: what the window shows, and what a person can do there.
///
/// All state belongs to the main thread. Work that blocks is done on a thread pool; it is given values, and what it
/// gives back is published on the main thread, or dropped if the view model has gone by then. `isInstalling` is the one
/// lock of all that changes the Mac, `isReportRefreshing` that of the scan: a start against a lock is refused without a
/// word. An update that the publisher demands refuses guarded actions with a message.
///
/// `DeskrigViewModel.cpp` holds start-up and what concerns the state alone; operations on items, the audit, the export
/// and the cloud have a file each.
class DeskrigViewModel : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QString selectedGroupID READ selectedGroupID NOTIFY selectedGroupIDChanged)
    Q_PROPERTY(Tavelo::AppLanguage language READ language NOTIFY languageChanged)
    Q_PROPERTY(bool isInstalling READ isInstalling NOTIFY isInstallingChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressTextChanged)
    Q_PROPERTY(double operationProgress READ operationProgress NOTIFY operationProgressChanged)
    Q_PROPERTY(QString operationProgressText READ operationProgressText NOTIFY operationProgressTextChanged)
    Q_PROPERTY(QString operationSummaryText READ operationSummaryText NOTIFY operationSummaryTextChanged)
    Q_PROPERTY(bool showOperationProgress READ showOperationProgress NOTIFY showOperationProgressChanged)
    Q_PROPERTY(QString activeItemID READ activeItemID NOTIFY activeItemIDChanged)
    Q_PROPERTY(double activeItemProgress READ activeItemProgress NOTIFY activeItemProgressChanged)
    Q_PROPERTY(QString activeItemProgressText READ activeItemProgressText NOTIFY activeItemProgressTextChanged)
    Q_PROPERTY(QString currentAction READ currentAction NOTIFY currentActionChanged)
    Q_PROPERTY(bool showLogDrawer READ showLogDrawer NOTIFY showLogDrawerChanged)
    Q_PROPERTY(Tavelo::ToastMessage toast READ toast NOTIFY toastChanged)
    Q_PROPERTY(QString cloudOutput READ cloudOutput NOTIFY cloudOutputChanged)
    Q_PROPERTY(QString coreReadinessLabel READ coreReadinessLabel NOTIFY coreReadinessLabelChanged)
    Q_PROPERTY(QString coreReadinessDetail READ coreReadinessDetail NOTIFY coreReadinessDetailChanged)
    Q_PROPERTY(QString reportText READ reportText NOTIFY reportTextChanged)
    Q_PROPERTY(bool isReportRefreshing READ isReportRefreshing NOTIFY isReportRefreshingChanged)
    Q_PROPERTY(double auditProgress READ auditProgress NOTIFY auditProgressChanged)
    Q_PROPERTY(QString auditProgressText READ auditProgressText NOTIFY auditProgressTextChanged)
    Q_PROPERTY(QString auditProgressDetailText READ auditProgressDetailText NOTIFY auditProgressDetailTextChanged)
    Q_PROPERTY(bool hasReportSnapshot READ hasReportSnapshot NOTIFY hasReportSnapshotChanged)
    Q_PROPERTY(bool updateRequired READ updateRequired NOTIFY updateRequiredChanged)
    Q_PROPERTY(bool savePanelShown READ savePanelShown NOTIFY savePanelShownChanged)

    Q_PROPERTY(Tavelo::CatalogListModel *filteredItems READ filteredItems CONSTANT)
    Q_PROPERTY(Tavelo::LogLines *logLines READ logLines CONSTANT)
    Q_PROPERTY(Tavelo::CheckListModel *latestChecks READ latestChecks CONSTANT)
    Q_PROPERTY(Tavelo::AuditListModel *reportApplications READ reportApplications CONSTANT)

    // What is not stored follows from the others.
    Q_PROPERTY(qsizetype installedCount READ installedCount NOTIFY installedCountChanged STORED false)
    Q_PROPERTY(QString updateTitle READ updateTitle NOTIFY updateTextsChanged STORED false)
    Q_PROPERTY(QString updateMessage READ updateMessage NOTIFY updateTextsChanged STORED false)
    Q_PROPERTY(Tavelo::AppStrings strings READ strings NOTIFY languageChanged STORED false)
    Q_PROPERTY(Tavelo::ShellTexts shell READ shell NOTIFY shellChanged STORED false)
    Q_PROPERTY(Tavelo::GroupListModel *groups READ groups CONSTANT)
    Q_PROPERTY(QList<QString> languageNames READ languageNames CONSTANT)
    Q_PROPERTY(int languageIndex READ languageIndex NOTIFY languageChanged STORED false)
    Q_PROPERTY(bool presetsAllowed READ presetsAllowed NOTIFY presetsAllowedChanged STORED false)
    Q_PROPERTY(Tavelo::Sheets::SheetKind sheetKind READ sheetKind NOTIFY activeSheetChanged STORED false)
    Q_PROPERTY(Tavelo::SheetHead sheetHead READ sheetHead NOTIFY sheetHeadChanged STORED false)
    Q_PROPERTY(Tavelo::DetailListModel *sheetDetails READ sheetDetails CONSTANT)
    Q_PROPERTY(bool removePromptShown READ removePromptShown NOTIFY pendingUninstallChanged STORED false)
    Q_PROPERTY(QString removePromptMessage READ removePromptMessage NOTIFY pendingUninstallChanged STORED false)
    Q_PROPERTY(Tavelo::MacReportProfile reportProfile READ reportProfile WRITE setReportProfile NOTIFY
                   reportProfileChanged STORED false)
    Q_PROPERTY(QUrl savePanelFile READ savePanelFile CONSTANT)
    Q_PROPERTY(QUrl savePanelTop READ savePanelTop CONSTANT)

public:
    /// How long a toast lives, and how long the banner of an operation stays after its end.
    static constexpr std::chrono::milliseconds toastDuration{2200};
    static constexpr std::chrono::milliseconds bannerDuration{1600};
    /// The longest message of the cloud that is shown, in characters: an answer is as long as a server likes.
    static constexpr qsizetype longestCloudMessage = 2000;

    /// Starts up: everything here is on screen with the first frame, and nothing of it starts a process or asks the
    /// network. `pool` does the work that blocks, needs a thread for each task, and must outlive the view model.
    DeskrigViewModel(const PlatformServices &services, std::unique_ptr<HttpTransport> transport, WorkPool &pool);
    ~DeskrigViewModel() override;
    Q_DISABLE_COPY_MOVE(DeskrigViewModel)

    // What is published. Each has a signal for its change.

    /// Id of the group shown; "all" and "audit" are special.
    QString selectedGroupID() const { return m_selectedGroupID; }
    AppLanguage language() const { return m_language; }
    /// State of each item by id; an id without one is `missing`.
    QHash<QString, InstallStatus> statuses() const { return m_statuses; }
    /// An install, remove or preset operation is running.
    bool isInstalling() const { return m_isInstalling; }
    /// Share of the catalog's items that are installed, from 0 to 1, and as text.
    double progress() const { return m_progress; }
    QString progressText() const { return m_progressText; }
    /// Progress of the running operation, the same way, and how many of its items are done.
    double operationProgress() const { return m_operationProgress; }
    QString operationProgressText() const { return m_operationProgressText; }
    QString operationSummaryText() const { return m_operationSummaryText; }
    bool showOperationProgress() const { return m_showOperationProgress; }
    /// The item at work, empty for none, and its own progress.
    QString activeItemID() const { return m_activeItemID; }
    double activeItemProgress() const { return m_activeItemProgress; }
    QString activeItemProgressText() const { return m_activeItemProgressText; }
    /// The status line.
    QString currentAction() const { return m_currentAction; }
    bool showLogDrawer() const { return m_showLogDrawer; }
    ToastMessage toast() const { return m_toast; }
    Sheet activeSheet() const { return m_activeSheet; }
    /// The item whose remove prompt is open.
    std::optional<AppItem> pendingUninstall() const { return m_pendingUninstall; }
    /// What the cloud actions say.
    QString cloudOutput() const { return m_cloudOutput; }
    /// Whether the Mac is ready (`CoreReadiness`).
    QString coreReadinessLabel() const { return m_coreReadinessLabel; }
    SystemCheck::Level coreReadinessLevel() const { return m_coreReadinessLevel; }
    QString coreReadinessDetail() const { return m_coreReadinessDetail; }
    /// The text report and the inventory in memory, from the last scan or an earlier run of the program.
    QString reportText() const { return m_reportText; }
    AuditListModel *reportApplications() { return &m_reportApplications; }
    bool hasReportSnapshot() const { return m_hasReportSnapshot; }
    /// When they were made; invalid for none.
    QDateTime reportSnapshotDate() const { return m_reportSnapshotDate; }
    /// The scan runs; then its progress.
    bool isReportRefreshing() const { return m_isReportRefreshing; }
    double auditProgress() const { return m_auditProgress; }
    QString auditProgressText() const { return m_auditProgressText; }
    QString auditProgressDetailText() const { return m_auditProgressDetailText; }
    MacReportProfile reportProfile() const { return m_reportProfile; }
    /// The publisher's last word on this version.
    std::optional<ReleasePolicy> releasePolicy() const { return m_releasePolicy; }
    bool updateRequired() const { return m_updateRequired; }
    /// The catalog as the cloud leaves it.
    QList<AppItem> catalogItems() const { return m_catalogItems; }
    LogLines *logLines() { return &m_logLines; }
    CheckListModel *latestChecks() { return &m_latestChecks; }
    /// The window is to ask where the PDF goes; `exportReportPDF` and `cancelReportPDFExport` are the answers.
    bool savePanelShown() const { return m_savePanelShown; }

    // What follows from it.

    AppStrings strings() const { return AppStrings(m_language); }
    /// The items of the selected group, in catalog order.
    CatalogListModel *filteredItems() { return &m_filteredItems; }
    qsizetype installedCount() const;
    qsizetype auditKeyPresentCount() const { return m_reportApplications.keyPresentCount(); }
    qsizetype auditKeyNotRequiredCount() const { return m_reportApplications.keyNotRequiredCount(); }
    qsizetype auditKeyNotDetectedCount() const { return m_reportApplications.keyNotDetectedCount(); }
    /// What the banner of a demanded update says.
    QString updateTitle() const;
    QString updateMessage() const;

    // What screens read besides.

    ShellTexts shell() const;
    /// The sidebar's entries.
    GroupListModel *groups() { return &m_groups; }
    /// What the interface can speak, each name in itself and in English, and the place of the language at hand.
    QStringList languageNames() const;
    int languageIndex() const { return static_cast<int>(m_language.value()); }
    /// Whether the buttons of the presets are enabled.
    bool presetsAllowed() const { return !m_updateRequired && !m_isInstalling; }
    SheetKind sheetKind() const { return m_activeSheet.value().kind(); }
    /// What the sheet of an item or of an application shows, as it was when the sheet opened. Both stay as they are
    /// when it closes, since it takes a moment to go.
    SheetHead sheetHead() const { return m_sheetHead; }
    DetailListModel *sheetDetails() { return &m_sheetDetails; }
    bool removePromptShown() const { return m_pendingUninstall.value().has_value(); }
    /// Empty where nothing is asked.
    QString removePromptMessage() const;
    /// Where the save panel begins, as a file of this machine with the suggested name.
    QUrl savePanelFile() const;
    /// The folder that the save panel cannot leave: the Mac's root.
    QUrl savePanelTop() const;

    QString logPath() const { return m_runtime.logFile(); }
    QString reportPath() const { return m_runtime.reportFile(); }

    // The same operations for views, which know an item by its id and an application by its place among the records.
    // An id or a place that there is not does nothing.

    Q_INVOKABLE void chooseLanguage(int index);
    Q_INVOKABLE void openSheet(Tavelo::Sheets::SheetKind kind);
    Q_INVOKABLE void showItem(const QString &itemID);
    Q_INVOKABLE void showApplication(int row);
    Q_INVOKABLE void performPrimaryActionOf(const QString &itemID);
    Q_INVOKABLE void askToUninstallItem(const QString &itemID);
    Q_INVOKABLE void confirmPendingUninstall();
    /// Leaves the logo as it is.
    Q_INVOKABLE void saveBranding(const QString &displayName) { updateTechnicianBranding(displayName); }

    // State alone.

    void setLanguage(AppLanguage language);
    Q_INVOKABLE void selectGroup(const QString &groupID);
    Q_INVOKABLE void refreshStatuses(bool showToast);
    Q_INVOKABLE void setShowLogDrawer(bool shown);
    /// Opens a sheet over the window, in place of another.
    void show(const Sheet &sheet);
    Q_INVOKABLE void dismissSheet();
    /// Adds a line of the view model's own to the log drawer.
    void appendLog(const QString &line);
    void setReportProfile(const MacReportProfile &profile);
    Q_INVOKABLE void saveReportProfile();

    // Operations on items.

    /// The main button of a row.
    void performPrimaryAction(const AppItem &item);
    void install(const AppItem &item);
    void open(const AppItem &item);
    /// Opens the remove prompt, and its two answers.
    void askToUninstall(const AppItem &item);
    Q_INVOKABLE void cancelUninstall();
    void confirmUninstall(const AppItem &item);
    Q_INVOKABLE void installStandard();
    Q_INVOKABLE void installFull();
    Q_INVOKABLE void copyLogPath();
    Q_INVOKABLE void copyReportPath();
    Q_INVOKABLE void openHomebrewGuide();
    Q_INVOKABLE void copyHomebrewInstallCommand();

    // Audit and report.

    /// Shows the audit, and scans the Mac once the change of screen is through.
    Q_INVOKABLE void openAuditWorkspace();
    /// Scans the Mac, wherever it is asked for.
    Q_INVOKABLE void scanMac();
    Q_INVOKABLE void openReport();
    /// Runs the system checks and makes a report with them, in place of a run under way.
    Q_INVOKABLE void refreshChecks(bool logToDrawer);
    Q_INVOKABLE void cancelSystemCheck();
    /// Shows the text report in its folder.
    Q_INVOKABLE void revealReport();
    Q_INVOKABLE void startReportPDFExport();
    /// Writes the PDF to a file of this machine.
    Q_INVOKABLE void exportReportPDF(const QUrl &file);
    Q_INVOKABLE void cancelReportPDFExport();
    /// The folder of this machine that the save panel begins in; empty where there is none of the usual kind.
    Q_INVOKABLE QUrl savePanelFolder() const;

    // Cloud.

    Q_INVOKABLE void openReleaseDownload();
    Q_INVOKABLE void syncCatalog();
    Q_INVOKABLE void uploadReport();
    Q_INVOKABLE void businessDeviceConfig(const QString &action, const QString &department, const QString &assetCode);
    Q_INVOKABLE void syncTechnicianWorkspace();
    /// The logo is a "data:" URL.
    Q_INVOKABLE void updateTechnicianBranding(const QString &displayName,
                                              const std::optional<QString> &logoDataURL = std::nullopt);
    /// No item ids stand for those of the standard set.
    Q_INVOKABLE void saveTechnicianProfile(const QString &name, const QString &itemIDs);

Q_SIGNALS:
    void selectedGroupIDChanged();
    void languageChanged();
    void statusesChanged();
    void isInstallingChanged();
    void progressChanged();
    void progressTextChanged();
    void operationProgressChanged();
    void operationProgressTextChanged();
    void operationSummaryTextChanged();
    void showOperationProgressChanged();
    void activeItemIDChanged();
    void activeItemProgressChanged();
    void activeItemProgressTextChanged();
    void currentActionChanged();
    void showLogDrawerChanged();
    void toastChanged();
    void activeSheetChanged();
    void pendingUninstallChanged();
    void cloudOutputChanged();
    void coreReadinessLabelChanged();
    void coreReadinessLevelChanged();
    void coreReadinessDetailChanged();
    void reportTextChanged();
    void isReportRefreshingChanged();
    void auditProgressChanged();
    void auditProgressTextChanged();
    void auditProgressDetailTextChanged();
    void hasReportSnapshotChanged();
    void reportSnapshotDateChanged();
    void reportProfileChanged();
    void releasePolicyChanged();
    void updateRequiredChanged();
    void catalogItemsChanged();
    void savePanelShownChanged();
    void installedCountChanged();
    void updateTextsChanged();
    void shellChanged();
    void sheetHeadChanged();
    void presetsAllowedChanged();

private:
    enum class ItemChange { install, remove };
    struct Presentation;

    /// A call into the view model from another thread: it runs on the main thread, in the order of such calls, and not
    /// at all if the view model has gone by then.
    using Publish = std::function<void(std::function<void(DeskrigViewModel &)>)>;
    Publish publisher();

    // DeskrigViewModel.cpp
    void connectModels();
    void seedStatuses();
    void loadReportProfile();
    void loadReportSnapshot();
    void saveReportSnapshot();
    void updateProgress(qsizetype done, qsizetype total);
    void updateProgress() { updateProgress(installedCount(), m_catalogItems.value().size()); }
    void applyRefreshedStatuses(const QHash<QString, InstallStatus> &statuses, bool showToast);
    void appendBackendLog(const QString &line);
    void appendCloudLog(const QString &line);
    void refreshCoreReadiness();
    void applyCoreReadiness(const QList<SystemCheck> &checks);
    void setStatus(const QString &itemID, InstallStatus status);
    QString label(AppI18nKey key) const { return strings().text(key); }
    QString label(ScreenText text) const { return strings().text(text); }

    // DeskrigViewModelScreens.cpp
    void connectScreens();
    void fillSheet();
    std::optional<AppItem> itemOf(const QString &itemID) const;

    // DeskrigViewModelOperations.cpp
    bool releasePolicyAllowsAction();
    void showToast(const QString &text, ToastMessage::Kind kind);
    void change(const AppItem &item, ItemChange change);
    void finishInstall(const AppItem &item, ItemChange change, bool ok, InstallStatus finalStatus);
    void finishOpenItem(const AppItem &item, bool ok);
    QList<AppItem> presetItems(bool standardOnly) const;
    void startPreset(const QString &name, const QList<AppItem> &items);
    void markPresetItemWorking(const AppItem &item, qsizetype index, qsizetype total);
    void markPresetItemDone(const AppItem &item, qsizetype index, qsizetype total, InstallStatus status);
    void finishPreset(const QString &name, const QHash<QString, InstallStatus> &refreshed, qsizetype success,
                      qsizetype failed);
    void beginOperation(qsizetype total, const QString &activeItemID, const QString &message);
    void completeOperation(const QString &message);
    void setOperationProgress(double share);
    void setOperationSummary(qsizetype done, qsizetype total);
    void setActiveItem(const QString &itemID, double share);
    void setActiveItemProgress(double share);
    void applyBackendProgress(const InstallProgressUpdate &update);

    // DeskrigViewModelAudit.cpp
    void scheduleAuditScanAfterNavigationCommit();
    void startReportInventoryScan();
    void updateAuditScanProgress(qsizetype completed, qsizetype total);
    void markReportCatalogRefresh();
    void finishReportScan(const QString &text, const QList<InstalledMacApplication> &applications,
                          const QHash<QString, InstallStatus> &statuses);
    void finishReportFailure(const QString &error);
    void finishPrepareReport(const QString &text, const QList<InstalledMacApplication> &applications,
                             bool presentWhenReady);
    void logChecks(const QList<SystemCheck> &checks);
    void setReport(const QString &text, const QList<InstalledMacApplication> &applications);
    void markReportMade();

    // DeskrigViewModelExport.cpp
    void finishPDFExport(const QString &path);

    // DeskrigViewModelCloud.cpp
    void checkReleasePolicy(bool showToast);
    void applyReleasePolicy(const std::optional<ReleasePolicy> &policy, bool showToast);
    void rebuildCatalog();
    void announceCloudAction(const QString &text);
    void finishCloudAction(const CloudResult &result);
    void whenDone(const QFuture<CloudResult> &result, bool changesCatalog = false);

    PlatformServices m_services;
    AppRuntime m_runtime;
    WorkPool &m_pool;
    ReportSnapshotStore m_snapshots;
    std::shared_ptr<const MacBackend> m_backend;
    std::unique_ptr<SupabaseClient> m_cloud;

#define TAVELO_PUBLISHED(type, name, ...)                                                                              \
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(DeskrigViewModel, type, m_##name, type(__VA_ARGS__),                          \
                                         &DeskrigViewModel::name##Changed)
    using Statuses = QHash<QString, InstallStatus>;
    using OptionalItem = std::optional<AppItem>;
    using OptionalPolicy = std::optional<ReleasePolicy>;
    using Items = QList<AppItem>;
    TAVELO_PUBLISHED(QString, selectedGroupID, QStringLiteral("all"))
    TAVELO_PUBLISHED(AppLanguage, language, AppLanguage::english)
    TAVELO_PUBLISHED(Statuses, statuses)
    TAVELO_PUBLISHED(bool, isInstalling, false)
    TAVELO_PUBLISHED(double, progress, 0)
    TAVELO_PUBLISHED(QString, progressText, QStringLiteral("0%"))
    TAVELO_PUBLISHED(double, operationProgress, 0)
    TAVELO_PUBLISHED(QString, operationProgressText, QStringLiteral("0%"))
    TAVELO_PUBLISHED(QString, operationSummaryText)
    TAVELO_PUBLISHED(bool, showOperationProgress, false)
    TAVELO_PUBLISHED(QString, activeItemID)
    TAVELO_PUBLISHED(double, activeItemProgress, 0)
    TAVELO_PUBLISHED(QString, activeItemProgressText, QStringLiteral("0%"))
    TAVELO_PUBLISHED(QString, currentAction)
    TAVELO_PUBLISHED(bool, showLogDrawer, false)
    TAVELO_PUBLISHED(ToastMessage, toast)
    TAVELO_PUBLISHED(Sheet, activeSheet)
    TAVELO_PUBLISHED(OptionalItem, pendingUninstall)
    TAVELO_PUBLISHED(QString, cloudOutput)
    TAVELO_PUBLISHED(QString, coreReadinessLabel, CoreReadiness().label)
    TAVELO_PUBLISHED(SystemCheck::Level, coreReadinessLevel, CoreReadiness().level)
    TAVELO_PUBLISHED(QString, coreReadinessDetail)
    TAVELO_PUBLISHED(QString, reportText)
    TAVELO_PUBLISHED(bool, isReportRefreshing, false)
    TAVELO_PUBLISHED(double, auditProgress, 0)
    TAVELO_PUBLISHED(QString, auditProgressText, QStringLiteral("0%"))
    TAVELO_PUBLISHED(QString, auditProgressDetailText)
    TAVELO_PUBLISHED(bool, hasReportSnapshot, false)
    TAVELO_PUBLISHED(QDateTime, reportSnapshotDate)
    TAVELO_PUBLISHED(MacReportProfile, reportProfile)
    TAVELO_PUBLISHED(OptionalPolicy, releasePolicy)
    TAVELO_PUBLISHED(bool, updateRequired, false)
    TAVELO_PUBLISHED(Items, catalogItems)
    TAVELO_PUBLISHED(bool, savePanelShown, false)
#undef TAVELO_PUBLISHED

    CatalogListModel m_filteredItems{AppLanguage::english};
    LogLines m_logLines;
    CheckListModel m_latestChecks{AppLanguage::english};
    AuditListModel m_reportApplications{AppLanguage::english};
    GroupListModel m_groups;
    SheetHead m_sheetHead;
    DetailListModel m_sheetDetails;

    qsizetype m_operationTotalItems = 1; ///< Of the running operation; never below 1.
    qsizetype m_operationCompletedItems = 0;
    QUuid m_operationDisplayToken = QUuid::createUuid(); ///< Of the latest operation, whose banner is on screen.
    QUuid m_systemCheckGeneration = QUuid::createUuid(); ///< Of the latest system check, whose result counts.
    std::optional<TaskHandle> m_systemCheckTask;         ///< The one that runs.
    std::optional<TaskHandle> m_deferredAuditScanTask;   ///< The scan that waits for the change of screen.
};

} // namespace Tavelo
