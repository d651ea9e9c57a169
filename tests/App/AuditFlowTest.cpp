// The inventory scan, the system check and the export of the view model, over a simulated Mac with real processes.

#include "FileManager.h"
#include "Golden.h"
#include "RefusingFiles.h"
#include "UserDefaults.h"
#include "WatchedViewModel.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QString supportFolder = u"/Users/technician/Library/Application Support/Tavelo Deskrig"_s;
const QString pdfFile = u"/Users/technician/Documents/a.pdf"_s;
const QString snapshotFile = supportFolder + u"/Reports/report-snapshot.json"_s;

struct MacWithTwoApplications {
    MacWithTwoApplications()
    {
        mac.furnish(u"add-app"_s, {u"Alpha"_s});
        mac.furnish(u"add-app"_s, {u"Beta"_s});
    }
    const ProgramOnAMac mac;
};

/// The view model there, whose report waits at a gate for the hardware's description.
struct Audit : MacWithTwoApplications, WatchedViewModel {
    Audit() : WatchedViewModel(mac.services(), u"/system_profiler"_s)
    {
        settle();
        take();
    }
};

} // namespace

class AuditFlowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromTheScanToTheNextStart()
    {
        Audit model;
        QString transcript;
        const auto scene = [&](const QString &title) {
            transcript += u"== %1\n%2\n\n"_s.arg(title, model.settled().join(u'\n'));
            model.advance(std::chrono::seconds(10));
        };
        model->openAuditWorkspace();
        model->openAuditWorkspace();
        scene(u"audit workspace, clicked twice"_s);
        model->show(Sheet(Sheet::Kind::systemChecks));
        model->refreshChecks(true);
        scene(u"system check in its sheet"_s);
        const MacReportProfile profile{.inspectorName = u"Lan"_s, .subject = u"Audit"_s};
        model->startReportPDFExport();
        model->setReportProfile(profile);
        model->startReportPDFExport();
        model->exportReportPDF(QUrl::fromLocalFile(model.mac.hostPath(pdfFile)));
        scene(u"export"_s);
        QCOMPARE(differencesFromGolden(u"view-model-audit.txt"_s, transcript.toUtf8()), QByteArray());

        // The next start.
        PlatformServices services = model.mac.services();
        WatchedViewModel next(services);
        QCOMPARE(next->reportProfile(), profile);
        QVERIFY(next->hasReportSnapshot());
        QCOMPARE(next->reportText(), model->reportText());
        QCOMPARE(next->reportSnapshotDate(), model->reportSnapshotDate());
        QCOMPARE(next->reportApplications()->records().size(), 2);
        QCOMPARE(next->auditProgressText(), u"100%"_s);
        QCOMPARE(next->auditProgressDetailText(), u"Inventory complete: 2 items detected"_s);

        // An earlier version's snapshot, which cannot be moved.
        QVERIFY(services.defaults->setData(u"tavelo.mac.report-snapshot.v1"_s, model.mac.contents(snapshotFile)));
        services.files = std::make_shared<RefusingFiles>(model.mac.folder(), snapshotFile, EPERM);
        WatchedViewModel last(services);
        QVERIFY(last->hasReportSnapshot());
        QVERIFY(last->logLines()->lines().constFirst().endsWith(
            u" Không lưu được report snapshot an toàn: the system's words"));
    }

    /// The scan waits for the change of screen, and whoever leaves before it gets none.
    void navigation()
    {
        Audit model;
        model->openAuditWorkspace();
        QVERIFY(!model->isReportRefreshing());
        model->selectGroup(u"audit"_s); // is there already
        QCoreApplication::processEvents();
        QVERIFY(model->isReportRefreshing());
        model->selectGroup(u"office"_s); // too late: the scan goes on
        model->openAuditWorkspace();
        model->scanMac();
        QCOMPARE(model.settled().filter(u"toast = "_s).size(), 1);
        model->openAuditWorkspace();
        model->selectGroup(u"office"_s);
        QCOMPARE(model.settled().filter(u"isReportRefreshing"_s), QStringList());
    }

    void systemCheckGivesWay()
    {
        Audit model;
        model->show(Sheet(Sheet::Kind::settings));
        model.take();
        model->refreshChecks(false);
        const QStringList published = model.settled();
        QCOMPARE(published.filter(u"activeSheet"_s), QStringList());
        QCOMPARE(published.filter(u"toast"_s), QStringList(u"toast = success: Report written"_s));
        QCOMPARE(model->logLines()->lines().filter(u"CHECK "_s), QStringList());
        model->dismissSheet();
        model->refreshChecks(true);
        model.settled();
        QCOMPARE(model->activeSheet().kind(), Sheet::Kind::report);
        QCOMPARE(model->logLines()->lines().filter(u"CHECK "_s).size(), model->latestChecks()->rowCount());

        // A scan and a check side by side: both end, and the flag of the scan is cleared.
        model->scanMac();
        model->refreshChecks(false);
        model.settled();
        QVERIFY(!model->isReportRefreshing());
        QVERIFY(model->hasReportSnapshot());
    }

    void cancelledAndSuperseded()
    {
        Audit model;
        model->refreshChecks(true);
        QTRY_COMPARE_WITH_TIMEOUT(model.launcher().arrived, 1, 20000);
        QCoreApplication::processEvents();
        model.take();
        model->cancelSystemCheck();
        QCOMPARE(model.settled(), QStringList(u"currentAction = "_s + model->strings().text(AppI18nKey::readyAction)));
        QVERIFY(!model->hasReportSnapshot());

        model->refreshChecks(true);
        model.waitForTasks(); // its result is on the way
        model->cancelSystemCheck();
        QCOMPARE(model.settled().filter(u"latestChecks"_s), QStringList());
        QVERIFY(!model->hasReportSnapshot());

        model->refreshChecks(true);
        model->refreshChecks(true);
        QCOMPARE(model.settled().filter(u"latestChecks"_s).size(), 1);
        QCOMPARE(model->logLines()->lines().filter(u"System check summary:"_s).size(), 1);
    }

    /// A report that cannot be written shows why, also of a check that another has replaced, and nothing else changes.
    void failures()
    {
        Audit model;
        QVERIFY(model.mac.services().files->createFolder(model->reportPath()));
        model->refreshChecks(false);
        QTRY_COMPARE_WITH_TIMEOUT(model.launcher().arrived, 1, 20000);
        model->refreshChecks(false);
        QCOMPARE(model.settled().filter(u"toast = failure: Is a directory"_s).size(), 2);
        model->scanMac();
        QCOMPARE(model.settled().last(6),
                 QStringList({u"isReportRefreshing = false"_s, u"auditProgress = 0"_s, u"auditProgressText = 0%"_s,
                              u"auditProgressDetailText = Preparing macOS inventory"_s,
                              u"currentAction = Is a directory"_s, u"toast = failure: Is a directory"_s}));
        QVERIFY(!model->hasReportSnapshot());
        QCOMPARE(model->reportText(), QString());
    }

    void exportsOnlyWhatAndWhereItMay()
    {
        Audit model;
        model->startReportPDFExport();
        QCOMPARE(model->toast().text, u"Scan the computer before exporting PDF."_s);
        model->scanMac();
        model.settled();
        model->setReportProfile({.inspectorName = u" \n"_s, .subject = u"S"_s});
        model->startReportPDFExport();
        QCOMPARE(model->toast().text, u"Enter the inspector name and report title."_s);
        QVERIFY(!model->savePanelShown());
        model->setReportProfile({.inspectorName = u"L"_s, .subject = u"S"_s});
        model->startReportPDFExport();
        QVERIFY(model->savePanelShown());
        model.settled();
        model->cancelReportPDFExport();
        QCOMPARE(model.settled(), QStringList(u"savePanelShown = false"_s));
        model->startReportPDFExport();
        model->exportReportPDF(QUrl::fromLocalFile(model.mac.hostPath(u"/nowhere/a.pdf"_s)));
        QCOMPARE(model.settled().last(2), QStringList({u"currentAction = Không thể tạo tài liệu PDF."_s,
                                                       u"toast = failure: Không thể tạo tài liệu PDF."_s}));
        const QTemporaryDir outside; // of the simulated Mac, where the same path exists
        QVERIFY(QDir().mkpath(model.mac.hostPath(outside.path())));
        model->exportReportPDF(QUrl::fromLocalFile(outside.filePath(u"a.pdf"_s)));
        QCOMPARE(model.settled().constLast(), u"toast = failure: Không thể tạo tài liệu PDF."_s);
        QVERIFY(QDir(outside.path()).isEmpty() && !model.mac.exists(outside.filePath(u"a.pdf"_s)));
        QVERIFY(!model.mac.exists(snapshotFile));

        // A snapshot that cannot be kept is told in the log, and the PDF is exported all the same.
        QVERIFY(model.mac.services().files->createFolder(snapshotFile));
        model->exportReportPDF(QUrl::fromLocalFile(model.mac.hostPath(pdfFile)));
        QVERIFY(model.settled().contains(u"log: Không lưu được report snapshot an toàn: Is a directory"_s));
        QVERIFY(model.mac.exists(pdfFile));
    }
};

QTEST_MAIN(AuditFlowTest)

#include "AuditFlowTest.moc"
