// Start-up and operations on items, over a simulated Mac with real processes.

#include "FileManager.h"
#include "GatedLauncher.h"
#include "Golden.h"
#include "ProgramOnAMac.h"
#include "UserDefaults.h"
#include "WatchedViewModel.h"
#include "Workshop.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace std::chrono_literals;

namespace
{

/// A Mac whose organisation allows a few items only, in a program that knows of a cloud.
struct SmallMac : ProgramOnAMac {
    explicit SmallMac(const QByteArray &allowed = R"("microsoft-365", "onlyoffice-mime", "scanner-tools", "vlc",
                                                     "deja-dup")")
    {
        environment.insert(u"TAVELO_SUPABASE_URL"_s, u"https://cloud.example"_s);
        environment.insert(u"TAVELO_SUPABASE_ANON_KEY"_s, u"key"_s);
        const FileManager files{HostRoot(hostPath({}))};
        files.createFolder(u"/Users/technician/Library/Caches/tavelo-deskrig"_s);
        files.writeAtomically(u"/Users/technician/Library/Caches/tavelo-deskrig/business-policy.json"_s,
                              R"({"policies": [{"policy": {"allowed_item_ids": [)" + allowed + "]}}]}", 0600);
    }
};

} // namespace

class DeskrigViewModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startUp();
    void operations();
    void primaryActions();
    void presets();
    void locks();
    void timers();
    void language();
    void smallActions();
    void destroyedAtAnyMoment_data();
    void destroyedAtAnyMoment();
};

/// Nothing but files is looked at before the first frame; then three tasks run side by side.
void DeskrigViewModelTest::startUp()
{
    const ProgramOnAMac mac;
    PlatformServices services = mac.services();
    services.defaults->setText(AppLanguages::storedKey.toString(), u"vi"_s);
    const auto launcher = std::make_shared<GatedLauncher>(services, u"/brew"_s);
    services.processes = launcher;
    WatchedViewModel model(services);

    QCOMPARE(model->currentAction(), AppStrings(AppLanguage::vietnamese).checkingInstalledStatus());
    QCOMPARE(model->operationSummaryText(), AppStrings(AppLanguage::vietnamese).operationSummary(0, 0));
    QCOMPARE(model->coreReadinessLabel(), u"CHECK"_s);
    QCOMPARE(model->coreReadinessDetail(), AppStrings(AppLanguage::vietnamese).text(AppI18nKey::checkingCore));
    QCOMPARE(model->cloudOutput(), AppStrings(AppLanguage::vietnamese).text(AppI18nKey::noDeviceData));
    QCOMPARE(model->auditProgressDetailText(), u"Preparing macOS inventory"_s);
    QCOMPARE(model->reportProfile(), MacReportProfile{.subject = u"macOS software inventory report"_s});
    for (const AppItem &item : model->catalogItems())
        QCOMPARE(model->statuses().value(item.id), item.kind == AppKind::blocked   ? InstallStatus::blocked
                                                   : item.kind == AppKind::builtin ? InstallStatus::installed
                                                                                   : InstallStatus::missing);
    QCOMPARE(model->progressText(), u"%1%"_s.arg(model->installedCount() * 100 / 28));
    QCOMPARE(model->logLines()->lines(), QStringList({u"[03:04:05] Khởi động UI native SwiftUI/AppKit."_s,
                                                      u"[03:04:05] Catalog Linux đã map sang macOS: 28 mục."_s,
                                                      u"[03:04:05] Bắt đầu refresh trạng thái native backend."_s}));
    // The look at the items and the readiness check stand before a tool at the same time; the policy waits for neither.
    QTRY_COMPARE_WITH_TIMEOUT(launcher->arrived, 1, 20000);
    QTRY_VERIFY_WITH_TIMEOUT(model->coreReadinessLabel() != u"CHECK", 20000);
    QCOMPARE(model.take().filter(u"policy"_s),
             QStringList({u"log: Supabase: Bỏ qua release policy vì chưa cấu hình Supabase."_s,
                          u"log: Release policy không khả dụng; app tiếp tục fail-open."_s}));
    launcher->letPass(100);
    model.settle();
    QCOMPARE(model->currentAction(), AppStrings(AppLanguage::vietnamese).statusRefreshed());
    QCOMPARE(launcher->startedOnMainThread, 0);

    // The other way round.
    const auto second = std::make_shared<GatedLauncher>(services, u"/xcode-select"_s);
    services.processes = second;
    WatchedViewModel other(services);
    QTRY_COMPARE_WITH_TIMEOUT(other->currentAction(), AppStrings(AppLanguage::vietnamese).statusRefreshed(), 20000);
    QCOMPARE(other->coreReadinessLabel(), u"CHECK"_s);
    second->letPass(100);
}

void DeskrigViewModelTest::operations()
{
    const SmallMac mac;
    WatchedViewModel model(mac.services());
    QString transcript;
    const auto scene = [&](const QString &title) {
        model.settle();
        transcript += u"== %1\n%2\n\n"_s.arg(title, model.take().join(u'\n'));
    };
    const auto breakTool = [&](const QString &tool, const QStringList &how) {
        mac.furnish(u"break-tool"_s, QStringList{tool} + how);
    };
    const AppItem vlc = catalogItem(u"vlc"_s);
    model.settle();
    model.take();
    model->performPrimaryAction(vlc);
    model->install(vlc);
    scene(u"install, and again while it runs"_s);
    model->performPrimaryAction(vlc);
    scene(u"open"_s);
    breakTool(u"open"_s, {u"--status"_s, u"1"_s});
    model->open(vlc);
    scene(u"open, which fails"_s);
    model->askToUninstall(vlc);
    model->confirmUninstall(vlc);
    scene(u"remove"_s);
    breakTool(u"brew"_s, {u"--status"_s, u"1"_s, u"--when"_s, u"vlc"_s});
    model->install(vlc);
    scene(u"install, which fails"_s);
    model->installStandard();
    scene(u"standard set, in which one fails"_s);
    breakTool(u"brew"_s, {u"--mend"_s});
    model->install(vlc);
    scene(u"install, after it failed"_s);
    model->refreshStatuses(true);
    scene(u"refresh"_s);
    QCOMPARE(differencesFromGolden(u"view-model-operations.txt"_s, transcript.toUtf8()), QByteArray());
}

/// What a row's button does with what is installed, and that opening raises no banner, though the backend tells of it.
void DeskrigViewModelTest::primaryActions()
{
    const ProgramOnAMac mac;
    WatchedViewModel model(mac.services());
    model.settle();
    for (const QString &id : {u"onlyoffice"_s, u"onlyoffice-mime"_s, u"ocrmypdf"_s}) {
        model->install(catalogItem(id));
        model.settle();
        QCOMPARE(model->statuses().value(id), InstallStatus::installed);
    }
    model.advance(3s);
    model.take();
    for (const QString &id : {u"onlyoffice-mime"_s, u"ocrmypdf"_s, u"deja-dup"_s})
        model->performPrimaryAction(catalogItem(id));
    QCOMPARE(model.take(), QStringList({u"activeSheet = item-onlyoffice-mime"_s, u"activeSheet = item-ocrmypdf"_s,
                                        u"activeSheet = item-deja-dup"_s,
                                        u"toast = warning: This item is not supported on macOS"_s}));
    model->performPrimaryAction(catalogItem(u"printer-drivers"_s));
    model.settle();
    QCOMPARE(model.take(), QStringList({u"currentAction = Opening Printers & Scanners"_s,
                                        u"log: Mở printer-drivers -> Printers & Scanners."_s,
                                        u"currentAction = Opened Printers & Scanners"_s,
                                        u"toast = success: Opened Printers & Scanners"_s}));
}

void DeskrigViewModelTest::presets()
{
    const SmallMac empty("");
    WatchedViewModel none(empty.services());
    none.settle();
    QCOMPARE(none->progressText(), u"0%"_s);
    none.take();
    none->installFull();
    none.settle();
    QCOMPARE(none.take().filter(QRegularExpression(u"^(currentAction|log|toast|show)"_s)),
             QStringList({u"currentAction = Installing all items (0 items)"_s, u"showOperationProgress = true"_s,
                          u"showLogDrawer = true"_s, u"currentAction = Preparing to install all items"_s,
                          u"log: Preset all items: ."_s,
                          u"currentAction = Finished preset all items: 0 succeeded, 0 failed"_s,
                          u"toast = success: Finished preset all items"_s}));

    // Left out: what the system is too old for, what is not supported, and what would be installed twice.
    const ProgramOnAMac old({u"--macos"_s, u"13.6"_s, u"--without-homebrew"_s});
    WatchedViewModel model(old.services());
    model.settle();
    model.take();
    model->installFull();
    const QString plan = model.take().filter(u"log: "_s).value(0);
    QVERIFY(plan.startsWith(u"log: Preset all items: libreoffice, ibus-unikey, "));
    QVERIFY(plan.endsWith(u", ocrmypdf, keepassxc, gnome-disks."));
    QCOMPARE(plan.count(u','), 23);
    model.settle();
}

/// A running operation refuses another without a word, a demanded update with its words, which come first.
void DeskrigViewModelTest::locks()
{
    const SmallMac mac;
    PlatformServices services = mac.services();
    const auto launcher = std::make_shared<GatedLauncher>(services, u"/brew"_s);
    services.processes = launcher;
    auto transport = std::make_unique<HeldTransport>();
    HeldTransport &network = *transport;
    launcher->letPass(2);
    WatchedViewModel model(services, std::move(transport));
    const AppItem vlc = catalogItem(u"vlc"_s);
    QTRY_VERIFY_WITH_TIMEOUT(model->currentAction() == u"Status refreshed" && model->coreReadinessLabel() != u"CHECK",
                             20000);
    model->install(vlc);
    model->askToUninstall(vlc);
    QTRY_COMPARE_WITH_TIMEOUT(launcher->arrived, 3, 20000);
    QCoreApplication::processEvents();
    model.take();
    model->install(vlc);
    model->open(vlc);
    model->installFull();
    model->performPrimaryAction(vlc);
    QCOMPARE(model.take(), QStringList());
    model->confirmUninstall(vlc);
    QCOMPARE(model.take(), QStringList(u"pendingUninstall = "_s));
    model->setShowLogDrawer(false);
    model->askToUninstall(vlc);
    model->openAuditWorkspace();
    model.take();

    QCOMPARE(network.waiting.size(), 1);
    network.answer(R"({"update_required": "yes", "latest_version": "9.0", "message": "", "title": "Please update"})");
    QTRY_VERIFY_WITH_TIMEOUT(model->updateRequired(), 20000);
    QCOMPARE(model->updateMessage(), u"Install Tavelo Deskrig 9.0 or newer to continue."_s);
    QCOMPARE(model.take(),
             QStringList({u"updateRequired = true"_s, u"currentAction = Update required before continuing"_s,
                          u"log: Release policy yêu cầu update trước khi dùng tiếp."_s,
                          u"toast = warning: Please update"_s}));
    const QStringList refusal{u"toast = warning: Install the update to continue."_s};
    QCoreApplication::processEvents(); // the scan that waited for its screen
    QCOMPARE(model.take(),
             QStringList({u"cloudOutput = Install Tavelo Deskrig 9.0 or newer to continue."_s}) + refusal);
    model->confirmUninstall(vlc);
    QCOMPARE(model.take(), QStringList(u"pendingUninstall = "_s) + refusal);
    const std::function<void()> actions[] = {[&] { model->install(vlc); },
                                             [&] { model->askToUninstall(vlc); },
                                             [&] { model->installStandard(); },
                                             [&] { model->installFull(); },
                                             [&] { model->performPrimaryAction(vlc); },
                                             [&] { model->openAuditWorkspace(); },
                                             [&] { model->scanMac(); },
                                             [&] { model->openReport(); },
                                             [&] { model->syncCatalog(); },
                                             [&] { model->uploadReport(); },
                                             [&] { model->businessDeviceConfig({}, {}, {}); },
                                             [&] { model->syncTechnicianWorkspace(); },
                                             [&] { model->updateTechnicianBranding({}); },
                                             [&] { model->saveTechnicianProfile({}, {}); }};
    for (const auto &action : actions) {
        action();
        QCOMPARE(model.take(), refusal);
    }
    // Browsing stays open, and the operation goes on; what it says opens the log once more.
    model->performPrimaryAction(catalogItem(u"deja-dup"_s));
    QCOMPARE(model.take(), QStringList({u"activeSheet = item-deja-dup"_s,
                                        u"toast = warning: This item is not supported on macOS"_s}));
    launcher->letPass(100);
    model.settle();
    QVERIFY(model->showLogDrawer());
    QCOMPARE(model->currentAction(), u"Finished VLC"_s);
    model->openReleaseDownload();
    QCOMPARE(model->toast().text, u"Update download link is unavailable."_s);
}

void DeskrigViewModelTest::timers()
{
    const SmallMac mac;
    WatchedViewModel model(mac.services());
    model.settle();
    model->copyLogPath();
    model.advance(2100ms);
    model->copyReportPath();
    model.advance(200ms); // the first toast's time is up
    QCOMPARE(model->toast().text, u"Copied report path"_s);
    model.advance(1999ms);
    QVERIFY(model->toast().isShown());
    model.advance(1ms);
    QVERIFY(!model->toast().isShown());

    const AppItem vlc = catalogItem(u"vlc"_s);
    model->install(vlc);
    model.settle();
    model.advance(1000ms);
    model->confirmUninstall(vlc);
    model.settle();
    model.advance(700ms); // the first banner's time is up
    QVERIFY(model->showOperationProgress());
    model.advance(899ms);
    QVERIFY(model->showOperationProgress());
    QCOMPARE(model->activeItemID(), u"vlc"_s);
    model.advance(1ms);
    QVERIFY(!model->showOperationProgress());
    QCOMPARE(model->activeItemID(), QString());
    QVERIFY(model->showLogDrawer());
}

void DeskrigViewModelTest::language()
{
    const SmallMac mac;
    const PlatformServices services = mac.services();
    WatchedViewModel model(services);
    model.settle();
    model->setLanguage(AppLanguage::japanese);
    const AppStrings japanese(AppLanguage::japanese);
    QCOMPARE(model->cloudOutput(), japanese.text(AppI18nKey::noDeviceData));
    QCOMPARE(model->currentAction(), japanese.text(AppI18nKey::readyAction));
    QCOMPARE(model->operationSummaryText(), japanese.operationSummary(0, 1));
    QCOMPARE(model->filteredItems()->index(0).data(CatalogListModel::statusText),
             japanese.statusText(InstallStatus::missing));
    QCOMPARE(AppLanguages::storedDefault(*services.defaults), AppLanguage::japanese);
    model.settle();
    QCOMPARE(model->coreReadinessDetail(), CoreReadiness::of(model->latestChecks()->checks(), japanese).detail);

    model->selectGroup(u"microsoft"_s);
    QCOMPARE(model->filteredItems()->rowCount(), 2);
    model->selectGroup(u"audit"_s);
    QCOMPARE(model->filteredItems()->rowCount(), 0);
}

void DeskrigViewModelTest::smallActions()
{
    const SmallMac mac;
    WatchedViewModel model(mac.services());
    model.settle();
    mac.takeCalls();
    model->copyLogPath();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"/Users/technician/Library/Logs/tavelo-deskrig.log"_s);
    model->copyReportPath();
    QCOMPARE(QGuiApplication::clipboard()->text(),
             u"/Users/technician/Library/Application Support/Tavelo Deskrig/Reports/tavelo-deskrig-report.txt"_s);
    model->copyHomebrewInstallCommand();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(u"/bin/bash -c \"$(curl -fsSL https://"_s));
    model.take();
    model->copyHomebrewInstallCommand();
    model->openHomebrewGuide();
    model.settle();
    QCOMPARE(
        model.take(),
        QStringList({u"log: Đã copy lệnh cài Homebrew vào clipboard."_s, u"toast = success: Copied Homebrew command"_s,
                     u"currentAction = Opened Homebrew guide"_s, u"log: Mở hướng dẫn Homebrew: https://brew.sh"_s}));
    model->revealReport();
    model.settle();
    QCOMPARE(mac.takeCalls(), QStringList({u"open https://brew.sh"_s, u"open -R '%1'"_s.arg(model->reportPath())}));
}

void DeskrigViewModelTest::destroyedAtAnyMoment_data()
{
    QTest::addColumn<int>("operation");
    for (int operation = 0; operation < 8; ++operation)
        QTest::addRow("operation %d", operation) << operation;
}

/// At whatever moment the view model goes, nothing crashes and the work under way comes to its end.
void DeskrigViewModelTest::destroyedAtAnyMoment()
{
    QFETCH(const int, operation);
    const SmallMac mac;
    const AppItem vlc = catalogItem(u"vlc"_s);
    for (const int wait : {0, 1, 3, 10, 30, 100}) {
        WatchedViewModel model(mac.services());
        const std::function<void()> operations[] = {[&] { model->install(vlc); },
                                                    [&] { model->installFull(); },
                                                    [&] { model->openAuditWorkspace(); },
                                                    [&] { model->refreshChecks(true); },
                                                    [&] { model->syncCatalog(); },
                                                    [&] { model->uploadReport(); },
                                                    [&] { model->open(catalogItem(u"printer-drivers"_s)); },
                                                    [&] { model->setLanguage(AppLanguage::korean); }};
        operations[operation]();
        if (wait > 0)
            QTest::qWait(wait);
        model.destroy();
        model.settle();
    }
    if (operation < 2)
        QVERIFY(mac.exists(u"/opt/homebrew/Caskroom/vlc"_s));
}

QTEST_MAIN(DeskrigViewModelTest)

#include "DeskrigViewModelTest.moc"
