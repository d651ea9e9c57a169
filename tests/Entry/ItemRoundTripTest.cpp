// Every item of the catalog is installed, opened and removed on a simulated Mac, and the two forms of status detection
// agree all along.

#include "Catalog.h"
#include "MacBackend.h"
#include "ProgramOnAMac.h"
#include "TemporaryMac.h"

#include <QDir>
#include <QTest>

using namespace Tavelo;

namespace
{

QStringList filesIn(const ProgramOnAMac &mac, const QString &folder)
{
    return QDir(mac.hostPath(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

} // namespace

class ItemRoundTripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyItem();

private:
    void compareStatuses(const MacBackend &backend, const ProgramOnAMac &mac, InstallStatus expected);
};

void ItemRoundTripTest::compareStatuses(const MacBackend &backend, const ProgramOnAMac &mac, InstallStatus expected)
{
    mac.takeCalls();
    const QHash<QString, InstallStatus> statuses = backend.statuses(Catalog::items());
    const QStringList brewCalls = mac.takeCalls().filter(QRegularExpression(QStringLiteral("^brew ")));
    QCOMPARE(brewCalls, QStringList({QStringLiteral("brew list --formula -1"), QStringLiteral("brew list --cask -1")}));
    QCOMPARE(statuses.size(), 28);
    for (const AppItem &item : Catalog::items()) {
        const InstallStatus status = backend.status(item);
        QVERIFY2(statuses.value(item.id) == status, qPrintable(item.id));
        const InstallStatus wanted = item.kind == AppKind::blocked ? InstallStatus::blocked
                                     : item.builtinReady           ? InstallStatus::installed
                                                                   : expected;
        QVERIFY2(status == wanted, qPrintable(item.id + u' ' + rawValue(status)));
    }
}

void ItemRoundTripTest::everyItem()
{
    const ProgramOnAMac mac;
    PlatformServices services = mac.services();
    services.clock = std::make_shared<StillClock>();
    Recorder recorder;
    const MacBackend backend(services, recorder.uiLog(), recorder.uiProgress());

    const QStringList applicationsBefore = filesIn(mac, QStringLiteral("/Applications"));
    compareStatuses(backend, mac, InstallStatus::missing);
    const QList<AppItem> items = Catalog::uniqueInstallItems(Catalog::items());
    for (const AppItem &item : items)
        QVERIFY2(backend.install(item), qPrintable(item.id));
    compareStatuses(backend, mac, InstallStatus::installed);

    for (const AppItem &item : items) {
        const bool hasNothingToOpen = item.kind == AppKind::blocked || item.kind == AppKind::mime ||
                                      item.id == u"office-fonts" || item.id == u"ocrmypdf";
        mac.takeCalls();
        QVERIFY2(backend.open(item) != hasNothingToOpen, qPrintable(item.id));
        QCOMPARE(mac.takeCalls().filter(QRegularExpression(QStringLiteral("^open "))).size(), hasNothingToOpen ? 0 : 1);
    }

    for (auto item = items.crbegin(); item != items.crend(); ++item)
        QVERIFY2(backend.uninstall(*item), qPrintable(item->id));
    compareStatuses(backend, mac, InstallStatus::missing);
    QCOMPARE(filesIn(mac, QStringLiteral("/Applications")), applicationsBefore);
    QCOMPARE(filesIn(mac, QStringLiteral("/opt/homebrew/Caskroom")), QStringList());
    QCOMPARE(backend.installStatusSnapshot().size(), 27);
}

QTEST_GUILESS_MAIN(ItemRoundTripTest)
#include "ItemRoundTripTest.moc"
