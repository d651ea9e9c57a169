// Start-up, timers, language and end of the view model, over a simulated Mac with real processes.

#include "Catalog.h"
#include "UserDefaults.h"
#include "WatchedViewModel.h"
#include "Workshop.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;
using namespace std::chrono_literals;

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
