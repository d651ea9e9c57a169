#include "OperationLog.h"

#include "Workshop.h"

#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class OperationLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsPrivateAndOnlyGrows()
    {
        TemporaryMac mac;
        mac.environment.insert(u"TAVELO_MAC_LOG_DIR"_s, u"~/x"_s);
        const QString folder = mac.home() + u"/x"_s;
        const QString file = folder + u"/tavelo-deskrig.log"_s;
        const auto isPrivate = [&] { return mac.mode(folder) == 0700 && mac.mode(file) == 0600; };
        const mode_t mask = ::umask(0);
        Workshop shop(mac.services());
        QVERIFY(isPrivate());
        ::umask(mask);
        mac.write(file, "[00:00:00] earlier\n");
        mac.furnish(u"chmod 777 '.%1'; chmod 666 '.%2'"_s.arg(folder, file));
        shop.log.log(u"Tiếng Việt"_s);
        QCOMPARE(mac.contents(file), "[00:00:00] earlier\n[03:04:05] Tiếng Việt\n");
        QVERIFY(isPrivate());
        mac.furnish(u"rm -r '.%1'"_s.arg(folder));
        shop.log.log(u"again\tand\n\u001b[2J\rmore"_s);
        QCOMPARE(mac.contents(file), "[03:04:05] again\tand\n [2J more\n");
        QVERIFY(isPrivate());
        QVERIFY(shop.heard.lines.isEmpty()); // which the main queue delivers
    }

    void failureIsToldAndStopsNothing()
    {
        // What lies where the file belongs; the reason.
        for (const auto &[furniture, words] : {std::pair("mkdir", u"Is a directory"_s),
                                               {"ln -s ../../notes", u"Too many levels of symbolic links"_s},
                                               {"ln -s ../../none", u"File exists"_s},
                                               {"mkfifo", u"No such device or address"_s}}) {
            const TemporaryMac mac;
            mac.furnish(u"cd Users/technician; mkdir -p Library/Logs; printf mine >notes; chmod 644 notes; "
                        "cd Library/Logs; %1 tavelo-deskrig.log"_s.arg(QLatin1StringView(furniture)));
            Workshop shop(mac.services());
            shop.log.log(u"one"_s);
            shop.log.log(u"two"_s);
            const QString failure = u"Không ghi được log file: "_s + words;
            QCOMPARE(shop.texts(), QStringList({failure, u"one"_s, failure, u"two"_s}));
            QCOMPARE(mac.contents(mac.home() + u"/notes"_s), "mine");
            QCOMPARE(mac.mode(mac.home() + u"/notes"_s), 0644);
            QVERIFY(!mac.exists(mac.home() + u"/none"_s));
        }
    }

    void progress()
    {
        const TemporaryMac mac;
        Workshop shop(mac.services());
        for (const std::optional<double> fraction :
             {std::optional(1.7), std::optional(0.999), std::optional(-0.2), std::optional<double>()})
            shop.log.progress(u"m"_s, fraction);
        QCOMPARE(shop.fractions(), u"1 0.999 0 -"_s);
        QCOMPARE(shop.heard.texts().join(u'|'), u"PROGRESS 100%: m|PROGRESS 99%: m|PROGRESS 0%: m|PROGRESS: m"_s);
    }

    void linesOfManyThreadsStayWhole()
    {
        const TemporaryMac mac;
        Workshop shop(mac.services());
        QThreadPool pool;
        pool.setMaxThreadCount(8);
        for (int number = 0; number < 8; ++number)
            pool.start([&shop, number] {
                for (int count = 0; count < 50; ++count)
                    shop.log.log(QString(3000, QChar(u'a' + number)));
            });
        pool.waitForDone();
        const QString text = QString::fromUtf8(mac.contents(shop.log.file()));
        const QRegularExpression whole(u"^\\[03:04:05\\] (.)\\1{2999}$"_s, QRegularExpression::MultilineOption);
        QCOMPARE(text.count(whole), 400);
        QCOMPARE(text.size(), 400 * 3012);
        QCOMPARE(shop.texts().size(), 400);
    }

    void appVersion()
    {
        const auto version = [](const QVariantMap &info) {
            PlatformServices services = TemporaryMac().services();
            services.ownBundleInfo = info;
            return AppRuntime(services).appVersion();
        };
        const QString key = u"CFBundleShortVersionString"_s, build = u"CFBundleVersion"_s;
        QCOMPARE(version({{key, u" 1.2\n"_s}, {build, u"7"_s}}), u"1.2 (7)"_s);
        QCOMPARE(version({{key, u"1.2"_s}, {build, u" "_s}}), u"1.2"_s);
        QCOMPARE(version({{key, u" "_s}, {build, u"7"_s}}), u"dev"_s);
    }
};

QTEST_GUILESS_MAIN(OperationLogTest)

#include "OperationLogTest.moc"
