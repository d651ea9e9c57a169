#include "MacReportProfile.h"
#include "RefusingFiles.h"
#include "ReportSnapshot.h"
#include "TemporaryMac.h"
#include "UserDefaults.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

const QString folder = u"/Users/technician/Library/Application Support/Tavelo Deskrig/Reports"_s;
const QString file = folder + u"/report-snapshot.json"_s;
const QString earlierKey = u"tavelo.mac.report-snapshot.v1"_s;

/// As an earlier version wrote it, without evidence.
const QByteArray earlier = R"({"createdAt":788918400.25,"text":"Báo cáo\n","applications":[{
    "name":"A","version":"1","identifier":"a","source":"/Applications","signatureStatus":"valid",
    "teamIdentifier":"—","signingIdentifier":"—"}]})";

const QByteArray profileJson = "{\"inspectorName\":\"Lan \\\"L\\\"\",\"team\":\"\",\"recipient\":\"受取人\","
                               "\"subject\":\"S\\\\\\n\",\"notes\":\"—\"}";

/// A store on a Mac of its own.
struct Shop {
    ReportSnapshotStore store() const { return {services, AppRuntime(services)}; }
    bool isMoved() const { return !services.defaults->data(earlierKey); }

    TemporaryMac mac;
    PlatformServices services = mac.services();
};

} // namespace

class ReportStoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void profile()
    {
        const Shop shop;
        const UserDefaults &defaults = *shop.services.defaults;
        QCOMPARE(loadReportProfile(defaults), std::nullopt);
        const MacReportProfile profile{u"Lan \"L\""_s, {}, u"受取人"_s, u"S\\\n"_s, u"—"_s};
        QVERIFY(saveReportProfile(defaults, profile));
        QCOMPARE(defaults.data(u"tavelo.mac.report-profile"_s), profileJson);
        QCOMPARE(loadReportProfile(defaults), profile);
    }

    void damageReadsAsNothing()
    {
        QList<std::pair<QByteArray, QByteArray>> changes{{"{", "[{"}, {"}", {}}, {"{", QByteArray(100'000, '[')}};
        for (const char *time : {"-63113904001", "252423993600", "1e300", "1e999", "NaN", "true", "null", "\"1\""})
            changes.emplaceBack("788918400.25", time);
        for (const char *key : {"createdAt", "text", "applications", "name", "team", "notes"})
            changes.emplaceBack(key, "other");
        for (const char *value : {"7", "null", "{}", "[\"x\"]", "\"\xFF\"", "\"\\uZZ\""})
            changes += {{"\"Báo cáo\\n\"", value}, {"\"受取人\"", value}, {"[{", value + QByteArray(",\"rest\":[{")}};
        for (const auto &[before, after] : std::as_const(changes)) {
            const QByteArray snapshot = QByteArray(earlier).replace(before, after);
            const QByteArray profile = QByteArray(profileJson).replace(before, after);
            QVERIFY(snapshot != earlier || profile != profileJson);
            QVERIFY2(snapshot == earlier || !ReportSnapshot::parse(snapshot), snapshot);
            QVERIFY2(profile == profileJson || !MacReportProfile::parse(profile), profile);
        }
    }

    void movesFromTheSettings()
    {
        const Shop shop;
        QVERIFY(!shop.store().load());
        QVERIFY(shop.services.defaults->setData(earlierKey, earlier));
        shop.mac.write(file, "damaged"); // which wins
        QVERIFY(!shop.store().load() && !shop.isMoved());
        shop.mac.furnish(u"rm '.%1'"_s.arg(file));
        const auto snapshot = shop.store().load();
        QVERIFY(snapshot && shop.isMoved());
        QCOMPARE(snapshot->createdAt, QDateTime({2026, 1, 1}, {0, 0, 0, 250}, Qt::UTC));
        QCOMPARE(ReportSnapshot::parse(snapshot->json()), snapshot);
        QCOMPARE(shop.mac.mode(folder), 0700);
        QCOMPARE(shop.mac.mode(file), 0600);
        const ReportSnapshot moved{u"Báo cáo\n"_s, snapshot->applications, StillClock().now()};
        QCOMPARE(shop.store().load(), moved);
        QVERIFY(shop.services.defaults->setData(earlierKey, QByteArray(earlier).replace("Báo cáo", "Cũ")));
        QCOMPARE(shop.store().load(), moved);
        QVERIFY(shop.isMoved());
    }

    void refusals()
    {
        for (const QString &refused : {folder, file}) {
            Shop shop;
            QVERIFY(shop.services.defaults->setData(earlierKey, earlier));
            shop.services.files = std::make_shared<RefusingFiles>(shop.mac.folder(), refused, EPERM);
            FileError error;
            QVERIFY(shop.store().load(&error)); // the screens go on with it
            QCOMPARE(ReportSnapshotStore::failureLine(error),
                     u"Không lưu được report snapshot an toàn: the system's words"_s);
            QVERIFY(!shop.isMoved());
            QCOMPARE(shop.mac.exists(file), refused == file);
        }
    }
};

QTEST_GUILESS_MAIN(ReportStoresTest)

#include "ReportStoresTest.moc"
