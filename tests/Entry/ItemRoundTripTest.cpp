// Every item of the catalog is installed, opened and removed on a simulated Mac, and the two forms of status detection
// agree all along, and what the log tells of one item of each kind is what it always told.

#include "Catalog.h"
#include "Golden.h"
#include "MainQueue.h"
#include "ProgramOnAMac.h"
#include "Workshop.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// The parts of these lines that tell of one item of each kind, without what the tools say.
QByteArray story(const QStringList &lines)
{
    static const QRegularExpression begins(u"^(Bắt đầu .*|Mở): .* \\[([a-z0-9-]+)\\]$"_s);
    static const QRegularExpression uuid(u"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"_s);
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
    void everyItem()
    {
        const QStringList applicationsBefore = filesIn(u"/Applications"_s);
        compareStatuses(InstallStatus::missing);
        const QList<AppItem> items = Catalog::uniqueInstallItems(Catalog::items());
        for (const AppItem &item : items)
            QVERIFY2(m_backend.install(item), qPrintable(item.id));
        compareStatuses(InstallStatus::installed);

        for (const AppItem &item : items) {
            const bool hasNothingToOpen = item.kind == AppKind::blocked || item.kind == AppKind::mime ||
                                          item.id == u"office-fonts" || item.id == u"ocrmypdf";
            m_mac.takeCalls();
            QVERIFY2(m_backend.open(item) != hasNothingToOpen, qPrintable(item.id));
            QCOMPARE(m_mac.takeCalls().filter(QRegularExpression(u"^open "_s)).size(), hasNothingToOpen ? 0 : 1);
        }

        for (auto item = items.crbegin(); item != items.crend(); ++item)
            QVERIFY2(m_backend.uninstall(*item), qPrintable(item->id));
        compareStatuses(InstallStatus::missing);
        QCOMPARE(filesIn(u"/Applications"_s), applicationsBefore);
        QCOMPARE(filesIn(u"/opt/homebrew/Caskroom"_s), QStringList());

        m_shop.services.mainQueue->service();
        const QByteArray differences = differencesFromGolden(u"item-log.txt"_s, story(m_shop.heard.texts()));
        QVERIFY2(differences.isEmpty(), differences);
    }

private:
    QStringList filesIn(const QString &folder) const
    {
        return QDir(m_mac.hostPath(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    void compareStatuses(InstallStatus expected) const
    {
        m_mac.takeCalls();
        const QHash<QString, InstallStatus> statuses = m_backend.statuses(Catalog::items());
        QCOMPARE(m_mac.takeCalls().filter(QRegularExpression(u"^brew "_s)),
                 QStringList({u"brew list --formula -1"_s, u"brew list --cask -1"_s}));
        QCOMPARE(statuses.size(), Catalog::items().size());
        for (const AppItem &item : Catalog::items()) {
            const InstallStatus status = m_backend.status(item);
            QVERIFY2(statuses.value(item.id) == status, qPrintable(item.id));
            const InstallStatus wanted = item.kind == AppKind::blocked ? InstallStatus::blocked
                                         : item.builtinReady           ? InstallStatus::installed
                                                                       : expected;
            QVERIFY2(status == wanted, qPrintable(item.id + u' ' + rawValue(status)));
        }
    }

    const ProgramOnAMac m_mac;
    Workshop m_shop{m_mac.services()};
    const MacBackend &m_backend = m_shop.backend;
};

QTEST_GUILESS_MAIN(ItemRoundTripTest)
#include "ItemRoundTripTest.moc"
