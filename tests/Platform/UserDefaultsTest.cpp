#include "UserDefaults.h"

#include "FileManager.h"
#include "TemporaryMac.h"

#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace Tavelo;

const QString file = u"/Users/technician/Library/Preferences/io.github.tavelo.deskrig.plist"_s;

class UserDefaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTextAndData()
    {
        const TemporaryMac mac;
        const UserDefaults defaults(mac.services().files, mac.home());
        QVERIFY(defaults.remove(u"a.b"_s) && !mac.exists(file));
        const QByteArray bytes("\0\xFF{}", 4);
        QVERIFY(defaults.setText(u"a.b"_s, u"Tiếng Việt <&>"_s) && defaults.setData(u"d"_s, bytes));
        const UserDefaults other(mac.services().files, mac.home()); // as another process sees it
        QCOMPARE(other.text(u"a.b"_s), u"Tiếng Việt <&>"_s);
        QCOMPARE(other.data(u"d"_s), bytes);
        QVERIFY(!other.text(u"d"_s) && !other.data(u"a.b"_s));
        QVERIFY(other.setData(u"a.b"_s, {}) && other.remove(u"d"_s));
        QVERIFY(defaults.data(u"a.b"_s) && !defaults.data(u"d"_s));
        QCOMPARE(mac.mode(file), 0600);
    }

    void touchesNothingElse()
    {
        const TemporaryMac mac;
        const UserDefaults defaults(mac.services().files, mac.home());
        const QByteArray date = "<date>2026-01-02T03:04:05Z</date>", list = "<plist><dict><key>d</key>" + date;
        mac.write(file, list + "<key>a</key>" + date + "</dict></plist>");
        QVERIFY(!defaults.text(u"a"_s) && defaults.setText(u"a"_s, u"x"_s));
        QCOMPARE(mac.contents(file).count(date), 1);
        for (const QString &unfit : {u"escape \u001b"_s, QString(QChar::Null), QString(QChar(0xD800))})
            QVERIFY(!defaults.setText(u"a"_s, unfit));
        QCOMPARE(defaults.text(u"a"_s), u"x"_s);

        mac.write(file, list); // damaged
        QVERIFY(!defaults.text(u"a"_s) && defaults.setText(u"a"_s, u"y"_s));
        QCOMPARE(defaults.text(u"a"_s), u"y"_s);
        mac.furnish(u"rm .%1; mkdir .%1"_s.arg(file));
        FileError error;
        QVERIFY(!defaults.setText(u"a"_s, u"z"_s, &error));
        QCOMPARE(error.code, EISDIR);
    }
};

QTEST_GUILESS_MAIN(UserDefaultsTest)

#include "UserDefaultsTest.moc"
