// The command line's texts, streams and statuses, through the program itself.

#include "Catalog.h"
#include "ProgramOnAMac.h"
#include "Row.h"

#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// The lines of a log, or those that an output shares with it.
QStringList logLinesIn(const QString &text)
{
    static const QRegularExpression form(u"^\\[\\d\\d:\\d\\d:\\d\\d\\] ."_s);
    return text.split(u'\n').filter(form);
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help()
    {
        const ProgramOnAMac mac;
        const auto outcome = mac.run(u"--help --preset nonsense --check"_s);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, QString());
        QVERIFY(outcome.output.startsWith(u"Tavelo Deskrig macOS native CLI\n\nUsage:\n"));
        QCOMPARE(outcome.output.count(QRegularExpression(u"\\n  --[^ ].{20} [^ ].*(?=\\n)"_s)), 6);
        QVERIFY(outcome.output.contains(u" minimal, standard or full.\n"));
        QVERIFY2(!mac.exists(u"/Users/technician/Library/Logs"_s), "help leaves no trace");
    }

    void wrongUsage_data()
    {
        columns<QString, QString>("line", "errors");
        const char *noPreset = "CLI cần --preset minimal|standard|full hoặc --check. Bỏ --no-gui để mở app GUI.\n";
        const char *unknown = "Preset không hợp lệ. Dùng minimal, standard hoặc full.\n";
        row("no gui alone", "--no-gui", noPreset);
        row("empty preset", "--preset=", unknown);
        row("an option as preset", "--preset --yes", unknown);
    }

    void wrongUsage()
    {
        QFETCH(QString, line);
        const auto outcome = ProgramOnAMac().run(line);
        QCOMPARE(outcome.status, 2);
        QCOMPARE(outcome.output, QString());
        QTEST(outcome.errors, "errors");
    }

    void asksBeforeItInstalls_data()
    {
        columns<QString, bool>("input", "confirmed");
        row("YES with blanks", "  YES \r\n", true);
        row("n", "n\n", false);
        row("empty line", "\n", false);
        row("another word", "yep\n", false);
        row("end of input", "", false);
        row("y without a line end", "y", true);
    }

    void asksBeforeItInstalls()
    {
        QFETCH(QString, input);
        QFETCH(bool, confirmed);
        const ProgramOnAMac mac;
        mac.furnish(u"break-tool"_s, {u"brew"_s, u"--status"_s, u"1"_s, u"--silent"_s});
        const auto outcome = mac.run(u"--preset MINIMAL --no-shortcuts"_s, input.toUtf8());
        QVERIFY(outcome.output.startsWith(u"Kế hoạch cài đặt:\n"
                                          "- LibreOffice + Vietnamese (cask)\n"
                                          "- Vietnamese Input Sources (builtin)\n"_s));
        QVERIFY(outcome.output.contains(u"- Screenshot & Markup (builtin)\n"
                                        "Log: /Users/technician/Library/Logs/tavelo-deskrig.log\nTiếp tục? [y/N] "_s));
        QCOMPARE(outcome.status, confirmed ? 1 : 130);
        QCOMPARE(outcome.output.endsWith(u"[y/N] Đã hủy.\n"_s), !confirmed);
        QCOMPARE(outcome.output.contains(u"Bắt đầu cài"_s), confirmed);
        QCOMPARE(logLinesIn(QString(outcome.output).remove(u"Tiếp tục? [y/N] "_s)), mac.logLines());
    }

    void leavesOutWhatItIsTold()
    {
        const ProgramOnAMac mac;
        const auto plan = [&](const QString &line) { return mac.run(line, "n\n").output; };
        const QString full = plan(u"--preset full"_s);
        const auto planned = full.count(u"\n- "_s);
        QCOMPARE(planned, Catalog::uniqueInstallItems(Catalog::items()).size() - 2); // two are not supported
        const QString filtered = plan(u"--preset full --no-shortcuts --no-mime-defaults"_s);
        QVERIFY(!filtered.contains(u"(shortcut)") && !filtered.contains(u"(mime)"));
        QCOMPARE(filtered.count(u"\n- "_s), planned - full.count(u" (shortcut)\n"_s) - full.count(u" (mime)\n"_s));
    }

    /// A tool that asks for a password reads what the technician types next.
    void leavesTheRestOfItsInputToTheTools()
    {
        ProgramOnAMac mac;
        const QString asking = u"/tmp/asking-brew"_s;
        mac.write(asking, "#!/bin/sh\n[ \"$1\" = install ] || exit 1\nread password\necho \"heard $password\"\n", true);
        mac.environment.insert(u"HOMEBREW_BREW_FILE"_s, asking);
        const auto outcome = mac.run(u"--preset minimal"_s, "y\nsecret\n");
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.output.contains(u"] heard secret\n"_s));
    }

    void checksASimulatedMac()
    {
        const ProgramOnAMac mac({u"--macos"_s, u"14.6.1"_s});
        const auto outcome = mac.run(u"--check --preset nonsense --yes"_s);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, QString());
        const QStringList table = outcome.output.section(u"\n\nKết quả kiểm tra hệ thống:\n"_s, 1).split(u'\n');
        const qsizetype end = table.indexOf(QString());
        QStringList names;
        for (const QString &line : table.mid(0, end))
            names << line.mid(6, 29).trimmed();
        QCOMPARE(names.join(u", "_s),
                 u"macOS compatibility, CPU architecture, Homebrew, Internet connection, Xcode Command Line "
                 "Tools, Dung lượng trống, user mode, LibreOffice, ONLYOFFICE"_s);
        QVERIFY(table.contains(u"OK    macOS compatibility          macOS 14.6.1."_s));
        QVERIFY(table.contains(u"WARN  ONLYOFFICE                   Chưa cài."_s));
        const QString report =
            u"/Users/technician/Library/Application Support/Tavelo Deskrig/Reports/tavelo-deskrig-report.txt"_s;
        QCOMPARE(table.mid(end + 2), QStringList({u"Report: "_s + report, QString()}));
        QVERIFY(mac.contents(report).contains("\nHostname: Simulated MacBook Air\nHardware model: MacBook Air\n"
                                              "Model identifier: Mac14,2\nChip: Apple M2\nMemory: 16 GB\n"));

        const QStringList log = mac.logLines();
        QCOMPARE(log.size(), end + 2);
        QCOMPARE(log.last(), table.at(end + 1));
        QVERIFY(log.last().endsWith(u"] Đã ghi report: "_s + report));
        QVERIFY(log.at(0).endsWith(u"] System check summary:"_s));
        QVERIFY(log.at(1).endsWith(u"] CHECK OK: macOS compatibility - macOS 14.6.1."_s));
        QVERIFY(outcome.output.startsWith(log.mid(0, end + 1).join(u'\n') + u'\n'));
    }

    void reportThatCannotBeWritten()
    {
        ProgramOnAMac mac;
        mac.environment.insert(u"TAVELO_MAC_REPORT_FILE"_s, u"/Users/Shared"_s);
        const auto outcome = mac.run(u"--check"_s);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.errors, u"Không thể tạo report: Is a directory\n"_s);
        QVERIFY(!outcome.output.contains(u"eport: "_s));
    }

#ifndef Q_OS_MACOS
    void checksAMachineThatIsNoMac()
    {
        QTemporaryDir home;
        ProgramOnAMac mac;
        mac.environment.remove(u"TAVELO_MAC_HOST_ROOT"_s);
        mac.environment.insert(u"HOME"_s, home.path());
        const auto check = mac.run(u"--check --no-gui"_s);
        QCOMPARE(check.status, 0);
        const QString tooOld = u"macOS 0.0.0 quá cũ. Target tối thiểu: macOS 13.\n"_s;
        QVERIFY(check.output.contains(u"\nFAIL  macOS compatibility          "_s + tooOld));
        const auto preset = mac.run(u"--preset minimal --yes"_s);
        QCOMPARE(preset.status, 1);
        QVERIFY(preset.errors.startsWith(u"BLOCK: "_s + tooOld));
        QCOMPARE(preset.output, QString());
    }
#endif

    void survivesItsParent_data()
    {
        columns<QString>("line"); // of a shell, after which the smallest preset is installed
        row("nobody reads", R"("$@" 2>&1 | head -n 1)");
        row("closed streams", R"(exec "$@" <&- >&- 2>&-)");
        row("closed input", R"(exec "$@" <&-)");
        row("the end of children is ignored", R"(trap '' CHLD; exec "$@")");
        row("an odd PATH", R"(PATH=:/nowhere::. exec "$@")");
        row("no locale, no PATH and no user", R"(unset PATH USER; exec "$@")");
        row("blanks for folders", R"(TAVELO_MAC_CACHE_DIR=' ' TAVELO_MAC_LOG_DIR='  ' exec "$@")");
        row("a relative folder", R"(TAVELO_MAC_CACHE_DIR=tmp/cache exec "$@")");
        row("a folder above the root", R"(TAVELO_MAC_CACHE_DIR=/../../tmp/cache exec "$@")");
        row("no log", R"(TAVELO_MAC_LOG_DIR=/etc/hosts exec "$@")");
    }

    void survivesItsParent()
    {
        QFETCH(QString, line);
        const ProgramOnAMac mac;
        QProcess shell;
        shell.setProcessEnvironment(mac.environment);
        shell.start(u"/bin/sh"_s,
                    {u"-c"_s, line, u"sh"_s, ProgramOnAMac::program(), u"--preset=minimal"_s, u"--yes"_s});
        QVERIFY(shell.waitForFinished(120000));
        QCOMPARE(shell.exitCode(), 0);
        QCOMPARE(shell.readAllStandardError(), QByteArray());
        const bool hasLog = !line.contains(u"/etc/hosts");
        const QString told = hasLog ? mac.logLines().join(u'\n') : QString::fromUtf8(shell.readAllStandardOutput());
        QCOMPARE(told.count(u"] Thành công: "_s), 8);
        QVERIFY(!told.contains(u"] Thất bại: "_s));
        QCOMPARE(told.contains(u"] Không ghi được log file: "_s), !hasLog);
        QVERIFY(mac.exists(u"/Applications/Thunderbird.app"_s));
        QCOMPARE(mac.leftovers(), QStringList());
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
