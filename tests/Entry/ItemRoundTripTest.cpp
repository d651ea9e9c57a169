// Every item of the catalog is installed, opened and removed on a simulated Mac, and the two forms of status detection
// agree all along, and what the log tells of one item of each kind is what it always told.

#include "Catalog.h"
#include "Golden.h"
#include "MacBackend.h"
#include "MainQueue.h"
#include "ProgramOnAMac.h"
#include "TemporaryMac.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

QStringList filesIn(const ProgramOnAMac &mac, const QString &folder)
{
    return QDir(mac.hostPath(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

/// The parts of these lines that tell of one item of each kind, without what the tools say.
QByteArray story(const QStringList &lines)
{
    static const QRegularExpression begins(QStringLiteral("^(Bắt đầu .*|Mở): .* \\[([a-z0-9-]+)\\]$"));
    static const QRegularExpression uuid(QStringLiteral("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"));
    static const QSet<QString> told{u"thunderbird"_s,   u"flameshot"_s, u"onlyoffice-mime"_s, u"ocrmypdf"_s,
                                    u"zalo-shortcut"_s, u"keepassxc"_s, u"deja-dup"_s};
    QString text;
    bool tells = false, ofTool = false;
    for (const QString &line : lines) {
        if (const auto first = begins.match(line); first.hasMatch())
            tells = told.contains(first.captured(2));
        ofTool = ofTool && !line.startsWith(u"Hoàn tất: ");
        if (tells && !ofTool)
            text += line + u'\n';
        ofTool = ofTool || line.startsWith(u"$ ");
    }
    return text.replace(uuid, u"UUID"_s).toUtf8();
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
    QCOMPARE(statuses.size(), Catalog::items().size());
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

    const QList<QMap<QString, QString>> snapshot = backend.installStatusSnapshot();
    QCOMPARE(snapshot.size(), items.size());
    QCOMPARE(snapshot.at(0).keys().join(u' '), u"group_key item_id kind name status"_s);
    QCOMPARE(snapshot.at(0).values().join(u'|'), u"office|libreoffice|cask|LibreOffice + Vietnamese|missing"_s);
    QCOMPARE(snapshot.at(1).values().join(u'|'), u"office|ibus-unikey|builtin|Vietnamese Input Sources|installed"_s);

    services.mainQueue->service();
    const QByteArray differences = differencesFromGolden(u"item-log.txt"_s, story(recorder.texts()));
    QVERIFY2(differences.isEmpty(), differences);
}

QTEST_GUILESS_MAIN(ItemRoundTripTest)
#include "ItemRoundTripTest.moc"
