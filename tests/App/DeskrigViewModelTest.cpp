// Start-up, operations on items, timers, language and end of the view model, over a simulated Mac with real processes.

#include "Catalog.h"
#include "Golden.h"
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

const QByteArray requiredUpdate =
    R"({"update_required": "yes", "latest_version": "9.0", "message": "", "title": "Please update",
        "download_url": "https://elsewhere.example/a.dmg"})";

} // namespace

class DeskrigViewModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Nothing but files is looked at before the first frame; then three tasks run side by side.
    void startUp()
    {
        const ProgramOnAMac mac;
        const PlatformServices services = mac.services();
        services.defaults->setText(u"tavelo.uiLanguage"_s, u"vi"_s);
        const AppStrings vietnamese(AppLanguage::vietnamese);
        WatchedViewModel model(services, u"/brew"_s);
        QCOMPARE(model->currentAction(), vietnamese.checkingInstalledStatus());
        QCOMPARE(model->operationSummaryText(), vietnamese.operationSummary(0, 0));
        QCOMPARE(model->coreReadinessDetail(), vietnamese.text(AppI18nKey::checkingCore));
        QCOMPARE(model->auditProgressDetailText(), u"Preparing macOS inventory"_s);
        for (const AppItem &item : model->catalogItems())
            QCOMPARE(model->statuses().value(item.id), item.kind == AppKind::blocked   ? InstallStatus::blocked
                                                       : item.kind == AppKind::builtin ? InstallStatus::installed
                                                                                       : InstallStatus::missing);
        QCOMPARE(model->progressText(), u"%1%"_s.arg(model->installedCount() * 100 / Catalog::items().size()));
        QCOMPARE(model->logLines()->lines(),
                 QStringList({u"[03:04:05] Khởi động UI native SwiftUI/AppKit."_s,
                              u"[03:04:05] Catalog Linux đã map sang macOS: %1 mục."_s.arg(Catalog::items().size()),
                              u"[03:04:05] Bắt đầu refresh trạng thái native backend."_s}));
        // The look at the items and the readiness check stand before a tool at the same time; the policy waits for
        // neither.
        QTRY_COMPARE_WITH_TIMEOUT(model.launcher().arrived, 1, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(model->coreReadinessLabel() != u"CHECK", 20000);
        QCOMPARE(model.take().filter(u"policy"_s),
                 QStringList({u"log: Supabase: Bỏ qua release policy vì chưa cấu hình Supabase."_s,
                              u"log: Release policy không khả dụng; app tiếp tục fail-open."_s}));
        model.settled();
        QCOMPARE(model->currentAction(), vietnamese.statusRefreshed());
        QCOMPARE(model.launcher().startedOnMainThread, 0);

        // The other way round.
        WatchedViewModel other(services, u"/xcode-select"_s);
        QTRY_COMPARE_WITH_TIMEOUT(other->currentAction(), vietnamese.statusRefreshed(), 20000);
        QCOMPARE(other->coreReadinessLabel(), u"CHECK"_s);
    }

    void bannerStaysAWhile()
    {
        const SmallMac mac;
        WatchedViewModel model(mac.services());
        model.settle();
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

    void language()
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
        for (const QString &unknown : {u"fr"_s, u"JA"_s}) {
            services.defaults->setText(u"tavelo.uiLanguage"_s, unknown);
            QCOMPARE(AppLanguages::storedDefault(*services.defaults), AppLanguage::english);
        }
        model.settle();
        QCOMPARE(model->coreReadinessDetail(), CoreReadiness::of(model->latestChecks()->checks(), japanese).detail);
        model->setLanguage(AppLanguage::korean);
        QCOMPARE(model->cloudOutput(), AppStrings(AppLanguage::korean).text(AppI18nKey::noDeviceData));
        model->selectGroup(u"microsoft"_s);
        QCOMPARE(model->filteredItems()->rowCount(), 2);
    }

    void smallActionsAndTheirToasts()
    {
        const SmallMac mac;
        WatchedViewModel model(mac.services());
        model.settle();
        mac.takeCalls();
        const auto copied = [] { return QGuiApplication::clipboard()->text(); };
        model->copyLogPath();
        QCOMPARE(copied(), u"/Users/technician/Library/Logs/tavelo-deskrig.log"_s);
        model.advance(2100ms);
        model->copyReportPath();
        model.advance(200ms); // the first toast's time is up
        QCOMPARE(model->toast().text, u"Copied report path"_s);
        model.advance(1999ms);
        QVERIFY(model->toast().isShown());
        model.advance(1ms);
        QVERIFY(!model->toast().isShown());
        QCOMPARE(copied(),
                 u"/Users/technician/Library/Application Support/Tavelo Deskrig/Reports/tavelo-deskrig-report.txt"_s);
        model.take();
        model->copyHomebrewInstallCommand();
        QVERIFY(copied().startsWith(u"/bin/bash -c \"$(curl -fsSL https://"_s));
        model->openHomebrewGuide();
        QCOMPARE(model.settled(),
                 QStringList({u"currentAction = Copied Homebrew install command"_s,
                              u"log: Đã copy lệnh cài Homebrew vào clipboard."_s,
                              u"toast = success: Copied Homebrew command"_s, u"currentAction = Opened Homebrew guide"_s,
                              u"log: Mở hướng dẫn Homebrew: https://brew.sh"_s}));
        model->revealReport();
        model.settle();
        QCOMPARE(mac.takeCalls(), QStringList({u"open https://brew.sh"_s, u"open -R '%1'"_s.arg(model->reportPath())}));
    }

    void operations()
    {
        const SmallMac mac;
        WatchedViewModel model(mac.services());
        QString transcript;
        const auto scene = [&](const QString &title) {
            transcript += u"== %1\n%2\n\n"_s.arg(title, model.settled().join(u'\n'));
        };
        const auto breakTool = [&](const QString &tool, const QStringList &how) {
            mac.furnish(u"break-tool"_s, QStringList{tool} + how);
        };
        const AppItem vlc = catalogItem(u"vlc"_s);
        model.settled();
        model->performPrimaryAction(vlc);
        model->install(vlc);
        scene(u"install, and again while it runs"_s);
        model->performPrimaryAction(vlc);
        scene(u"open"_s);
        model->open(catalogItem(u"printer-drivers"_s)); // of which the backend tells progress
        scene(u"open a part of macOS"_s);
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
        AppItem tools = catalogItem(u"scanner-tools"_s);
        tools.appPaths.clear();
        model->performPrimaryAction(tools);
        scene(u"what cannot be opened"_s);
        breakTool(u"brew"_s, {u"--mend"_s});
        model->install(vlc);
        scene(u"install, after it failed"_s);
        model->refreshStatuses(true);
        scene(u"refresh"_s);
        QCOMPARE(differencesFromGolden(u"view-model-operations.txt"_s, transcript.toUtf8()), QByteArray());
    }

    void presets()
    {
        const SmallMac empty("");
        WatchedViewModel none(empty.services());
        none.settle();
        none->installFull();
        none.settle();
        QCOMPARE(none->currentAction(), u"Finished preset all items: 0 succeeded, 0 failed"_s);
        QCOMPARE(none->toast().text, u"Finished preset all items"_s);

        // Left out: what the system is too old for, what is not supported, and what would be installed twice.
        const ProgramOnAMac old({u"--macos"_s, u"13.6"_s, u"--without-homebrew"_s});
        WatchedViewModel model(old.services());
        model.settled();
        model->installFull();
        const QString plan = model.settled().filter(u"log: "_s).value(0);
        QVERIFY(plan.startsWith(u"log: Preset all items: libreoffice, ibus-unikey, "));
        QVERIFY(plan.endsWith(u", ocrmypdf, keepassxc, gnome-disks."));
        QCOMPARE(plan.count(u',') + 1, Catalog::uniqueInstallItems(Catalog::items()).size() - 3);
    }

    /// A running operation refuses another without a word, a demanded update with its words, which come first.
    void locks()
    {
        const SmallMac mac;
        WatchedViewModel model(mac.services(), u"/brew"_s);
        model.launcher().letPass(2);
        const AppItem vlc = catalogItem(u"vlc"_s);
        QTRY_VERIFY_WITH_TIMEOUT(
            model->currentAction() == u"Status refreshed" && model->coreReadinessLabel() != u"CHECK", 20000);
        model->install(vlc);
        model->askToUninstall(vlc);
        QTRY_COMPARE_WITH_TIMEOUT(model.launcher().arrived, 3, 20000);
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

        QCOMPARE(model.network().waiting.size(), 1);
        model.network().answer(requiredUpdate);
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
        model.settled();
        QVERIFY(model->showLogDrawer());
        QCOMPARE(model->currentAction(), u"Finished VLC"_s);
        model->openReleaseDownload();
        QCOMPARE(model->toast().text, u"Update download link is unavailable."_s);
    }

    /// An operation and a scan run beside one another, whichever came first, and beside a sync and a change of
    /// language.
    void besideOneAnother()
    {
        const AppItem vlc = catalogItem(u"vlc"_s);
        const AppStrings japanese(AppLanguage::japanese);
        for (const bool scanFirst : {true, false}) {
            const SmallMac mac;
            WatchedViewModel model(mac.services(), u"/brew"_s);
            HeldTransport &network = model.network();
            model.launcher().letPass(2);
            QTRY_COMPARE_WITH_TIMEOUT(model->currentAction(), u"Status refreshed"_s, 20000);
            if (scanFirst)
                model->scanMac();
            model->install(vlc);
            if (!scanFirst)
                model->scanMac();
            model->syncCatalog();
            QTRY_COMPARE_WITH_TIMEOUT(network.waiting.size(), 2, 20000);
            network.answer("{}"); // the policy
            network.answer(R"([{"item_id": "deja-dup", "is_active": false}])");
            QTRY_COMPARE_WITH_TIMEOUT(model->catalogItems().size(), 4, 20000);
            model->setLanguage(AppLanguage::japanese);
            QCOMPARE(model->operationSummaryText(), japanese.operationSummary(0, 1));
            QVERIFY(model->isInstalling() && model->isReportRefreshing());
            QTRY_COMPARE_WITH_TIMEOUT(model.launcher().arrived, 5, 20000); // and the look after the sync
            const QStringList published = model.settled();
            QVERIFY(mac.exists(u"/Applications/VLC.app"_s));
            QCOMPARE(model->cloudOutput(),
                     u"Đã đồng bộ 1 app từ Supabase."_s); // which is in no language of the interface
            QVERIFY(model->hasReportSnapshot() && !model->isInstalling() && !model->isReportRefreshing());
            QVERIFY(published.contains(u"toast = success: "_s + japanese.processed(japanese.itemName(vlc))));
            QCOMPARE(model->operationSummaryText(), japanese.operationSummary(1, 1));
        }
    }

    /// At whatever moment the view model goes, nothing crashes and the work under way comes to its end.
    void destroyedAtAnyMoment()
    {
        const AppItem vlc = catalogItem(u"vlc"_s);
        const std::function<void(DeskrigViewModel &)> operations[] = {
            [&](DeskrigViewModel &model) { model.install(vlc); },
            [](DeskrigViewModel &model) { model.installFull(); },
            [](DeskrigViewModel &model) { model.openAuditWorkspace(); },
            [](DeskrigViewModel &model) { model.refreshChecks(true); },
            [](DeskrigViewModel &model) { model.syncCatalog(); },
            [](DeskrigViewModel &model) { model.uploadReport(); },
            [](DeskrigViewModel &model) { model.open(catalogItem(u"printer-drivers"_s)); },
            [](DeskrigViewModel &model) { model.setLanguage(AppLanguage::korean); }};
        for (const auto &operation : operations) {
            const SmallMac mac;
            for (const int wait : {0, 1, 3, 10, 30, 100}) {
                WatchedViewModel model(mac.services());
                operation(*model);
                if (wait > 0)
                    QTest::qWait(wait);
                model.destroy();
                model.settle();
            }
            QVERIFY(&operation >= &operations[2] || mac.exists(u"/opt/homebrew/Caskroom/vlc"_s));
        }
    }
};

QTEST_MAIN(DeskrigViewModelTest)

#include "DeskrigViewModelTest.moc"
