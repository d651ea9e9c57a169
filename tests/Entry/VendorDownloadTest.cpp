// What a vendor download can meet, driven through the tools of a simulated Mac: each refusal has its words, leaves what
// was there and leaves nothing behind.

#include "Catalog.h"
#include "MacBackend.h"
#include "MainQueue.h"
#include "ProgramOnAMac.h"
#include "TemporaryMac.h"

#include <QDir>
#include <QTest>

using namespace Tavelo;

namespace
{

const QString downloadAddress =
    QStringLiteral("https://download.mozilla.org/?product=thunderbird-latest-ssl&os=osx&lang=en-US");
const QString applicationPath = QStringLiteral("/Applications/Thunderbird.app");

AppItem thunderbird()
{
    for (const AppItem &item : Catalog::items()) {
        if (item.id == u"thunderbird")
            return item;
    }
    return {};
}

/// One program of `simulated-mac/` with its arguments.
struct Furnishing {
    QString tool;
    QStringList arguments;
};
using Furnishings = QList<Furnishing>;

} // namespace
Q_DECLARE_METATYPE(Furnishings)

class VendorDownloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void meets_data();
    void meets();
    void removesOnlyTheGenuineCopy();
};

void VendorDownloadTest::meets_data()
{
    QTest::addColumn<Furnishings>("furnishings");
    QTest::addColumn<bool>("installs");
    QTest::addColumn<QString>("line"); // of the log, among others

    const QString elsewhere = QStringLiteral("Download thất bại hoặc redirect ra ngoài allowlist của Thunderbird.");
    const QString refused =
        QStringLiteral("Bundle tải về không đạt bundle ID, Team ID, designated requirement hoặc Gatekeeper policy.");
    const QString installed = QStringLiteral("Đã cài trực tiếp Thunderbird: /Applications/Thunderbird.app");
    const QString foreign = QStringLiteral("App đã tồn tại nhưng không đạt policy chữ ký kỳ vọng; không ghi đè.");
    const auto breaks = [](const QString &line) { return Furnishing{QStringLiteral("break-tool"), line.split(u' ')}; };
    const auto image = [](const QStringList &arguments) {
        return Furnishing{QStringLiteral("set-download"), QStringList(downloadAddress) + arguments};
    };
    const auto app = [](const QString &identifier, const QString &team, const QString &more = {}) {
        return Furnishing{QStringLiteral("add-app"),
                          QStringList{QStringLiteral("Thunderbird"), QStringLiteral("--identifier"), identifier,
                                      QStringLiteral("--team"), team} +
                              more.split(u' ', Qt::SkipEmptyParts)};
    };
    const QString genuineID = QStringLiteral("org.mozilla.thunderbird");
    const QString genuineTeam = QStringLiteral("43AQ936H96");

    QTest::newRow("all is well") << Furnishings{} << true << installed;
    QTest::newRow("redirected elsewhere")
        << Furnishings{image({QStringLiteral("--redirect"), QStringLiteral("https://telegram.org/dl/desktop/mac")})}
        << false << elsewhere;
    QTest::newRow("redirected to plain HTTP")
        << Furnishings{image({QStringLiteral("--redirect"), QStringLiteral("http://download.mozilla.org/x")})} << false
        << elsewhere;
    QTest::newRow("not found") << Furnishings{image({QStringLiteral("--status"), QStringLiteral("404")})} << false
                               << elsewhere;
    QTest::newRow("a damaged image") << Furnishings{breaks(QStringLiteral("curl --damage"))} << false
                                     << QStringLiteral("Hoàn tất: hdiutil attach Thunderbird.dmg (exit 1)");
    QTest::newRow("Gatekeeper says no") << Furnishings{breaks(QStringLiteral("spctl --status 3"))} << false << refused;
    QTest::newRow("the copy is damaged")
        << Furnishings{breaks(QStringLiteral("ditto --damage"))} << false
        << QStringLiteral("App sau khi copy không đạt policy chữ ký; xoá bản copy không hoàn chỉnh.");
    QTest::newRow("detaching fails") << Furnishings{breaks(QStringLiteral("hdiutil --when detach --status 16"))} << true
                                     << installed;
    QTest::newRow("a genuine copy is there")
        << Furnishings{app(genuineID, genuineTeam)} << true
        << QStringLiteral("Thunderbird.app đã tồn tại tại /Applications/Thunderbird.app.");
    QTest::newRow("another team's copy is there")
        << Furnishings{app(genuineID, QStringLiteral("EVIL123456"))} << false << foreign;
    QTest::newRow("a copy with another identifier is there")
        << Furnishings{app(QStringLiteral("org.example.other"), genuineTeam)} << false << foreign;
    QTest::newRow("an unsigned copy is there")
        << Furnishings{app(genuineID, genuineTeam, QStringLiteral("--signature unsigned"))} << false << foreign;
}

void VendorDownloadTest::meets()
{
    QFETCH(Furnishings, furnishings);
    QFETCH(bool, installs);
    QFETCH(QString, line);
    const ProgramOnAMac mac;
    for (const Furnishing &each : furnishings)
        mac.furnish(each.tool, each.arguments);
    const QByteArray before = mac.contents(applicationPath + QStringLiteral("/Contents/Info.plist"));

    const PlatformServices services = mac.services();
    Recorder recorder;
    const MacBackend backend(services, recorder.uiLog(), recorder.uiProgress());
    const bool result = backend.install(thunderbird());
    services.mainQueue->service();
    QVERIFY2(recorder.texts().contains(line), qPrintable(recorder.texts().join(u'\n')));
    QCOMPARE(result, installs);
    QCOMPARE(backend.status(thunderbird()), installs ? InstallStatus::installed : InstallStatus::missing);

    if (!before.isEmpty())
        QCOMPARE(mac.contents(applicationPath + QStringLiteral("/Contents/Info.plist")), before);
    else
        QCOMPARE(mac.exists(applicationPath), installs);
    const QString cache = mac.hostPath(QStringLiteral("/Users/technician/Library/Caches/tavelo-deskrig/"));
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(cache + QStringLiteral("mounts")).entryList(everything), QStringList());
    const bool refusedDownload = line.startsWith(QStringLiteral("Download thất bại"));
    QCOMPARE(QDir(cache + QStringLiteral("downloads")).entryList(everything),
             refusedDownload ? QStringList() : QStringList(QStringLiteral("Thunderbird.dmg")));
}

void VendorDownloadTest::removesOnlyTheGenuineCopy()
{
    const ProgramOnAMac mac;
    mac.furnish(QStringLiteral("add-app"),
                {QStringLiteral("Thunderbird"), QStringLiteral("--identifier"),
                 QStringLiteral("org.mozilla.thunderbird"), QStringLiteral("--team"), QStringLiteral("EVIL123456")});
    const QString own = QStringLiteral("/Users/technician/Applications/Thunderbird.app");
    mac.furnish(QStringLiteral("add-app"),
                {QStringLiteral("Thunderbird"), QStringLiteral("--path"), own, QStringLiteral("--identifier"),
                 QStringLiteral("org.mozilla.thunderbird"), QStringLiteral("--team"), QStringLiteral("43AQ936H96")});
    const PlatformServices services = mac.services();
    Recorder recorder;
    const MacBackend backend(services, recorder.uiLog(), recorder.uiProgress());
    QCOMPARE(backend.status(thunderbird()), InstallStatus::installed);
    QVERIFY(!backend.uninstall(thunderbird()));
    QVERIFY(mac.exists(applicationPath));
    QVERIFY(!mac.exists(own));
    services.mainQueue->service();
    QVERIFY(recorder.texts().contains(QStringLiteral(
        "Từ chối xoá /Applications/Thunderbird.app: bundle ID hoặc chữ ký không khớp manifest Thunderbird.")));
}

QTEST_GUILESS_MAIN(VendorDownloadTest)
#include "VendorDownloadTest.moc"
