// The rules that the view model is made of, each by itself.

#include "AuditListModel.h"
#include "CatalogListModel.h"
#include "CheckListModel.h"
#include "CoreReadiness.h"
#include "LogLines.h"
#include "ProgressArithmetic.h"
#include "Row.h"
#include "ScanThrottle.h"
#include "Sheet.h"
#include "WorkPool.h"
#include "Workshop.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class ViewModelPiecesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void percentages()
    {
        using namespace ProgressArithmetic;
        QCOMPARE(cutPercentText(1, 3), u"33%"_s);
        QCOMPARE(cutPercentText(2, 3), u"66%"_s);
        QCOMPARE(cutPercentText(0, 0), u"0%"_s);
        QCOMPARE(share(1, 0), 0.0);
        QCOMPARE(percentText(0.625), u"63%"_s);
        QCOMPARE(percentText(1.5), u"100%"_s);
        QCOMPARE(percentText(std::nan("")), u"0%"_s);
        QCOMPARE(clamp(-0.1), 0.0);
        QCOMPARE(operationShare(0.5, 2, 4), 0.625);
        QCOMPARE(operationShare(0.25, 0, 1), 0.25);
        QCOMPARE(operationShare(7, 3, 4), 1.0);
        QCOMPARE(operationShare(0.5, 0, 0), 0.5);
    }

    void scanThrottle_data()
    {
        columns<int, QString>("total", "shown");
        row("nothing", 0, u"0"_s);
        row("every one", 5, u"0 1 2 3 4 5"_s);
        row("below the bound", 79, u"0 1 2 3 4 … 79"_s);
        row("every second", 80, u"0 2 4 6 8 … 80"_s);
        row("every tenth, and the last", 404, u"0 10 20 30 40 … 404"_s);
    }
    void scanThrottle()
    {
        QFETCH(const int, total);
        ScanThrottle throttle;
        QStringList shown;
        for (int completed = 0; completed <= total; ++completed) {
            if (throttle.passes(completed, total))
                shown.append(QString::number(completed));
        }
        QVERIFY(total < 80 || shown.size() <= 42);
        QTEST(shown.size() <= 6 ? shown.join(u' ') : shown.first(5).join(u' ') + u" … "_s + shown.last(), "shown");
    }

    void readiness_data()
    {
        columns<QString, QString>("levels", "readiness");
        const char *ready = "OK OK Homebrew, DNS, free disk space, and user permissions are ready.";
        row("well", "Homebrew:ok user mode:ok LibreOffice:fail", ready);
        row("warnings", "Homebrew:warn macOS compatibility:ok Dung lượng trống:warn LibreOffice:warn",
            "SETUP WARN Setup needed: Homebrew, Free disk space.");
        row("the first failure", "Homebrew:warn CPU architecture:fail Internet connection:fail",
            "FAIL FAIL detail of CPU architecture");
        row("nothing known", "", ready);
    }
    void readiness()
    {
        QFETCH(const QString, levels);
        static const QRegularExpression check(u"(\\S[^:]*):(ok|warn|fail)"_s);
        QList<SystemCheck> checks;
        for (const auto &match : check.globalMatch(levels)) {
            const QString level = match.captured(2);
            checks.append({.name = match.captured(1),
                           .level = level == u"ok"     ? SystemCheck::Level::ok
                                    : level == u"warn" ? SystemCheck::Level::warn
                                                       : SystemCheck::Level::fail,
                           .detail = u"detail of "_s + match.captured(1)});
        }
        const CoreReadiness found = CoreReadiness::of(checks, AppStrings(AppLanguage::english));
        QTEST(QStringList({found.label, levelWord(found.level), found.detail}).join(u' '), "readiness");
    }

    /// A line repaints one row, and the oldest of too many goes.
    void logLines()
    {
        LogLines log;
        const QAbstractItemModelTester tester(&log);
        const QSignalSpy added(&log, &LogLines::rowsInserted);
        const QSignalSpy removed(&log, &LogLines::rowsRemoved);
        for (int line = 1; line <= 502; ++line)
            log.append(QString::number(line));
        QCOMPARE(added.size(), 502);
        QCOMPARE(removed.size(), 2);
        QCOMPARE(log.rowCount(), 500);
        QCOMPARE(log.data(log.index(0), Qt::DisplayRole), u"3"_s);
        QCOMPARE(log.data(log.index(499), Qt::DisplayRole), u"502"_s);
    }

    /// A change of one item is a change of one row, and of the roles that show it.
    void catalogRows()
    {
        CatalogListModel model(AppLanguage::english);
        const QAbstractItemModelTester tester(&model);
        model.setItems({catalogItem(u"vlc"_s), catalogItem(u"gimp"_s)});
        QStringList changes;
        connect(&model, &CatalogListModel::dataChanged, this,
                [&](const QModelIndex &first, const QModelIndex &last, const QList<int> &roles) {
                    QStringList names;
                    for (const int role : roles)
                        names.append(QString::fromLatin1(model.roleNames().value(role)));
                    changes.append(u"%1-%2 %3"_s.arg(first.row()).arg(last.row()).arg(names.join(u' ')));
                });
        CatalogListModel::Statuses statuses{{u"vlc"_s, InstallStatus::missing}, {u"gimp"_s, InstallStatus::working}};
        model.setStatuses(statuses);
        model.setActiveItem({u"gimp"_s, 0.5, u"50%"_s});
        QCOMPARE(model.index(1).data(CatalogListModel::statusText), u"Installing 50%"_s);
        QCOMPARE(model.index(0).data(CatalogListModel::isAtWork), false);
        model.setActiveItem({u"gimp"_s, 0.75, u"75%"_s});
        model.setActiveItem({u"gimp"_s, 0.75, u"75%"_s});
        statuses[u"gimp"_s] = InstallStatus::installed;
        model.setStatuses(statuses);
        QCOMPARE(model.index(1).data(CatalogListModel::canRemove), true);
        model.setActiveItem({});
        QCOMPARE(changes, QStringList({u"1-1 status statusText primaryActionLabel canRemove"_s,
                                       u"1-1 isAtWork itemProgress itemProgressText statusText"_s,
                                       u"1-1 itemProgress itemProgressText statusText"_s,
                                       u"1-1 status statusText primaryActionLabel canRemove"_s,
                                       u"1-1 isAtWork itemProgress itemProgressText statusText"_s}));
    }

    void auditRows()
    {
        using State = AppLicenseEvidenceState;
        AuditListModel model(AppLanguage::english);
        const QAbstractItemModelTester tester(&model);
        QList<InstalledMacApplication> records;
        for (int state = 0; state <= static_cast<int>(State::explicitUnlicensed); ++state) {
            InstalledMacApplication record;
            record.licenseEvidence = AppLicenseEvidence{.state = State(state), .source = {}, .detail = {}};
            records.append(record);
        }
        records.append(InstalledMacApplication());
        model.setRecords(records);
        QCOMPARE(model.keyPresentCount(), 4);
        QCOMPARE(model.keyNotRequiredCount(), 2);
        QCOMPARE(model.keyNotDetectedCount(), 6);
        QCOMPARE(model.index(11).data(AuditListModel::licenseState), u"noEvidence"_s);
        QCOMPARE(model.index(11).data(AuditListModel::applicationDescription), u"Version —"_s);
        QCOMPARE(model.index(11).data(AuditListModel::number), 12);
    }

    void sheetNames()
    {
        InstalledMacApplication application;
        application.identifier = u"org.example"_s;
        application.name = u"Example"_s;
        using enum SheetKind;
        QStringList names{Sheet::itemDetail(catalogItem(u"vlc"_s)).id(), Sheet::auditDetail(application).id()};
        for (const SheetKind kind : {settings, systemChecks, report, cloudTools, none})
            names.append(Sheet(kind).id());
        QCOMPARE(names.join(u' '), u"item-vlc audit-org.example-Example settings system-checks report cloud-tools "_s);
    }

    void heldWork()
    {
        std::atomic<int> done = 0;
        const auto add = [&done](int number) { return [&done, number] { done += number; }; };
        WorkPool pool;
        pool.holdBack();
        pool.start(add(1000));
        pool.clear();
        pool.start(add(100));
        pool.start(add(10));
        QVERIFY(pool.waitForDone() && done == 0);
        pool.letGo();
        pool.waitForDone();
        QCOMPARE(done, 110);
        pool.start(add(1));
        pool.waitForDone();
        QCOMPARE(done, 111);
    }
};

QTEST_GUILESS_MAIN(ViewModelPiecesTest)

#include "ViewModelPiecesTest.moc"
