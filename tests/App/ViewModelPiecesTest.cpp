// The rules that the view model is made of, each by itself.

#include "AuditListModel.h"
#include "CatalogListModel.h"
#include "CoreReadiness.h"
#include "LogLines.h"
#include "ProgressArithmetic.h"
#include "ScanThrottle.h"
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

    void scanThrottle()
    {
        const auto shown = [](int total) {
            ScanThrottle throttle;
            QStringList steps;
            for (int completed = 0; completed <= total; ++completed) {
                if (throttle.passes(completed, total))
                    steps.append(QString::number(completed));
            }
            return steps.size() <= 6 ? steps.join(u' ')
                                     : u"%1 … %2, %3 in all"_s.arg(QStringList(steps.first(3)).join(u' '), steps.last())
                                           .arg(steps.size());
        };
        QCOMPARE(shown(0), u"0"_s);
        QCOMPARE(shown(5), u"0 1 2 3 4 5"_s);
        QCOMPARE(shown(79), u"0 1 2 … 79, 80 in all"_s);
        QCOMPARE(shown(80), u"0 2 4 … 80, 41 in all"_s);
        QCOMPARE(shown(404), u"0 10 20 … 404, 42 in all"_s);
    }

    void readiness()
    {
        using enum SystemCheck::Level;
        const auto of = [](const QList<std::pair<QString, SystemCheck::Level>> &levels) {
            QList<SystemCheck> checks;
            for (const auto &[name, level] : levels)
                checks.append({.name = name, .level = level, .detail = u"detail of "_s + name});
            const CoreReadiness found = CoreReadiness::of(checks, AppStrings(AppLanguage::english));
            return QStringList({found.label, levelWord(found.level), found.detail}).join(u' ');
        };
        const QString ready = u"OK OK Homebrew, DNS, free disk space, and user permissions are ready."_s;
        QCOMPARE(of({}), ready);
        QCOMPARE(of({{u"Homebrew"_s, ok}, {u"LibreOffice"_s, fail}}), ready);
        QCOMPARE(of({{u"Homebrew"_s, warn}, {u"Dung lượng trống"_s, warn}, {u"LibreOffice"_s, warn}}),
                 u"SETUP WARN Setup needed: Homebrew, Free disk space."_s);
        QCOMPARE(of({{u"Homebrew"_s, warn}, {u"CPU architecture"_s, fail}, {u"user mode"_s, fail}}),
                 u"FAIL FAIL detail of CPU architecture"_s);
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
