#include "CommandRunner.h"

#include "Row.h"
#include "Workshop.h"

using namespace Qt::StringLiterals;
using namespace Tavelo;

class CommandRunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void output_data()
    {
        columns<QString, int, QString, QString, QString>("script", "status", "logged", "standardOutput", "combined");
        row("both streams", "echo a; echo b >&2; echo c; exit 3", 3, "a|b|c", "a\nc\n", "a\nb\nc\n");
        row("no final newline", "printf 'one\\ntwo'", 0, "one|two", "one\ntwo", "one\ntwo");
        row("empty lines", R"(printf '\n\none\r\n\n')", 0, "one", "\n\none\r\n\n", "\n\none\r\n\n");
        row("never UTF-8", R"(printf 'a\377b\nc\300\257d'; exit 4)", 4, "ab|cd", "", "");
        row("character cut short", R"(printf 'a\341\272'; exit 5)", 5, "a", "", "");
        row("character in two writes", R"(printf 'T\n\341\272'; sleep 0.2; printf '\277ng')", 0, "T|ếng", "T\nếng",
            "T\nếng");
        row("bad error stream", R"(printf '\341\272\277'; printf '\377' >&2)", 0, "ế", "ế", "");
        row("killed", "kill -TERM $$", 15, "", "", "");
    }

    void output()
    {
        QFETCH(QString, script);
        QFETCH(QString, logged);
        QFETCH(int, status);
        const TemporaryMac mac;
        mac.addTool(u"/usr/bin/tool"_s, script.toUtf8());
        Workshop shop(mac.services());
        const QStringList vector = {u"tool"_s};
        QCOMPARE(shop.runner.runQuiet(vector), status);
        QCOMPARE(shop.runner.runCaptureStatus(vector).status, status);
        QTEST(shop.runner.runCaptureStatus(vector).output, "standardOutput");
        QTEST(shop.runner.runCapture(vector), "standardOutput");
        QTEST(shop.runner.runCaptureCombined(vector), "combined");
        QCOMPARE(shop.texts(), QStringList());
        QCOMPARE(shop.runner.runCommand(vector, u"it"_s), status);
        QCOMPARE(shop.texts(), QStringList(u"$ it"_s) + logged.split(u'|', Qt::SkipEmptyParts) +
                                   QStringList(u"Hoàn tất: it (exit %1)"_s.arg(status)));
    }

    void linesAreHeardWhileTheChildRuns()
    {
        const TemporaryMac mac;
        mac.addTool(u"/usr/bin/tool"_s,
                    "echo first; for i in $(seq 99); do [ -e \"$ROOT/heard\" ] && exit 5; sleep 0.1; done");
        const PlatformServices services = mac.services();
        const AppRuntime runtime(services);
        const OperationLog log(services, runtime,
                               [&](const QString &line) {
                                   if (line.endsWith(u"first"))
                                       mac.write(u"/heard"_s, {});
                               },
                               {});
        QCOMPARE(CommandRunner(services, runtime, log).runCommand({u"tool"_s}, u"it"_s), 5);
    }

    void whatCannotRunIsToldAndHasStatus127()
    {
        const TemporaryMac mac;
        mac.write(u"/usr/bin/plain"_s, "#!/bin/sh\n");
        mac.write(mac.home() + u"/broken"_s, "#!/no/such/interpreter\n", true);
        Workshop shop(mac.services());
        const QString notFound = u"Lỗi: không tìm thấy lệnh "_s;
        for (const QString &command :
             {u""_s, u"gone"_s, u"plain"_s, u"/etc/hosts"_s, u"/Applications"_s, u"~/broken"_s}) {
            const QStringList vector = command.isEmpty() ? QStringList() : QStringList(command);
            QCOMPARE(shop.runner.runQuiet(vector), 127);
            QCOMPARE(shop.runner.runCaptureStatus(vector).status, 127);
            QCOMPARE(shop.runner.runCommand(vector, u"it"_s), 127);
            if (command != u"~/broken")
                QCOMPARE(shop.texts().last(), notFound + command);
        }
        QVERIFY(shop.texts().last().startsWith(u"Không chạy được it: ") &&
                shop.texts().last().contains(u"No such file"));
        QCOMPARE(shop.texts().size(), 12);
    }

    void searchPath()
    {
        const QString fixed =
            u"/opt/homebrew/bin:/opt/homebrew/sbin:/usr/local/bin:/usr/local/sbin:/usr/bin:/bin:/usr/sbin:/sbin"_s;
        TemporaryMac mac;
        mac.furnish(
            u"mkdir -p custom usr/sbin; touch custom/own usr/sbin/both custom/both; chmod +x custom/* usr/sbin/*"_s);
        mac.environment.insert(u"PATH"_s, u"/custom:/usr/bin::/custom:/opt/x:"_s);
        const Workshop shop(mac.services());
        QProcessEnvironment expected = mac.environment;
        expected.insert(u"PATH"_s, fixed + u":/custom:/opt/x"_s);
        QCOMPARE(shop.runner.commandEnvironment(), expected);
        QCOMPARE(shop.runner.commandPath(u"own"_s), u"/custom/own"_s);
        QCOMPARE(shop.runner.commandPath(u"both"_s), u"/usr/sbin/both"_s);
        mac.environment.remove(u"PATH"_s);
        QCOMPARE(Workshop(mac.services()).runner.commandEnvironment().value(u"PATH"_s), fixed);
    }

    void brewPath()
    {
        TemporaryMac mac;
        mac.environment.insert(u"HOMEBREW_BREW_FILE"_s, u"/own/brew"_s);
        mac.environment.insert(u"PATH"_s, u"/custom"_s);
        mac.write(u"/own/brew"_s, {}); // not executable
        const Workshop shop(mac.services());
        QVERIFY(!shop.runner.brewPath());
        for (const QString &better :
             {u"/custom/brew"_s, u"/usr/local/bin/brew"_s, u"/opt/homebrew/bin/brew"_s, u"/own/brew"_s}) {
            mac.write(better, {}, true);
            QCOMPARE(shop.runner.brewPath(), better);
        }
    }
};

QTEST_GUILESS_MAIN(CommandRunnerTest)

#include "CommandRunnerTest.moc"
