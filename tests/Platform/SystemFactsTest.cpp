#include "SystemFacts.h"

#include "PropertyList.h"
#include "TemporaryMac.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class SystemFactsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void osVersion()
    {
        const TemporaryMac mac;
        const auto version = [&mac](const QByteArray &file) {
            mac.write(u"/System/Library/CoreServices/SystemVersion.plist"_s, file);
            return mac.services().facts->osVersion();
        };
        const auto product = [](const QVariant &number) {
            return PropertyList::xml(QVariantMap{{u"ProductVersion"_s, number}});
        };
        QCOMPARE(version(product(u"14.7.2"_s)), (OSVersion{14, 7, 2}));
        QCOMPARE(version(product(u"13"_s)), (OSVersion{13, 0, 0}));
        for (const QByteArray &useless : {product(u"Sequoia"_s), PropertyList::xml(u"15.1"_s), QByteArray("15.1")})
            QCOMPARE(version(useless), OSVersion());
    }

    void resolvesByTheHostsFile()
    {
        const auto resolves = [](const QByteArray &hosts) {
            const TemporaryMac mac;
            mac.write(u"/etc/hosts"_s, hosts);
            return mac.services().facts->resolves(u"brew.example"_s);
        };
        QVERIFY(resolves("::1 localhost\n10.0.0.1\tother  brew.example # of ours\r\n"));
        QVERIFY(!resolves("# 10.0.0.1 brew.example\n10.0.0.1 other # brew.example\n"));
        QVERIFY(!resolves("10.0.0.1 old.brew.example brew.example.org\n"));
        QVERIFY(!resolves("brew.example\n10.0.0.1\n"));
    }

    void computerName()
    {
        const TemporaryMac mac;
        const auto nameAs = [&mac](const QVariant &value) {
            const QVariantMap inner{{u"System"_s, QVariantMap{{u"ComputerName"_s, value}}}};
            mac.write(u"/Library/Preferences/SystemConfiguration/preferences.plist"_s,
                      PropertyList::xml(QVariantMap{{u"System"_s, inner}}));
            return mac.services().facts->computerName();
        };
        QVERIFY(!mac.services().facts->computerName() && !nameAs(u""_s) && !nameAs(7));
        QCOMPARE(nameAs(u"Máy của Lan"_s), u"Máy của Lan"_s);
    }

    void homeFolderNeverLeavesUsers()
    {
        TemporaryMac mac;
        mac.environment.insert(u"USER"_s, u"anna"_s);
        QCOMPARE(mac.services().facts->homeFolder(), u"/Users/anna"_s);
        for (const QString &hostile : {u""_s, u"."_s, u".."_s, u"../x"_s, u"a/b"_s, u"/root"_s}) {
            mac.environment.insert(u"USER"_s, hostile);
            QCOMPARE(mac.services().facts->homeFolder(), u"/Users/technician"_s);
        }
        mac.environment.remove(u"USER"_s);
        QCOMPARE(mac.services().facts->homeFolder(), u"/Users/technician"_s);
    }
};

QTEST_GUILESS_MAIN(SystemFactsTest)

#include "SystemFactsTest.moc"
