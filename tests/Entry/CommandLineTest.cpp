// The command line's texts, streams and statuses, through the program itself.

#include "ProgramOnAMac.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Tavelo;

namespace
{

QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help();
    void wrongUsage_data();
    void wrongUsage();
    void asksBeforeItInstalls_data();
    void asksBeforeItInstalls();
    void leavesTheRestOfItsInputToTheTools();
    void checksASimulatedMac();
    void reportIsWrittenWhereItIsTold();
#ifndef Q_OS_MACOS
    void checksAMachineThatIsNoMac();
#endif
    void plainEnvironment();
};

void CommandLineTest::help()
{
    const ProgramOnAMac mac;
    const auto outcome = mac.run(words("--help --preset nonsense --check"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.errors, QString());
    const QStringList lines = outcome.output.split(u'\n');
    QCOMPARE(lines.size(), 14); // thirteen lines, each with its end
    QCOMPARE(lines.first(), QStringLiteral("Tavelo Deskrig macOS native CLI"));
    for (const QString &line : lines.mid(7, 6)) {
        QVERIFY2(line.startsWith(QStringLiteral("  --")) && line.at(25) == u' ' && line.at(26) != u' ',
                 qPrintable(line));
    }
    for (const QString &value : words("minimal standard full"))
        QVERIFY(lines.at(8).contains(value));
    QVERIFY2(!mac.exists(QStringLiteral("/Users/technician/Library/Logs")), "help leaves no trace");
}

void CommandLineTest::wrongUsage_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("errors");

    const QString noPreset =
        QStringLiteral("CLI cần --preset minimal|standard|full hoặc --check. Bỏ --no-gui để mở app GUI.\n");
    const QString unknown = QStringLiteral("Preset không hợp lệ. Dùng minimal, standard hoặc full.\n");
    QTest::newRow("no gui alone") << "--no-gui" << noPreset;
    QTest::newRow("preset without a value") << "--preset" << noPreset;
    QTest::newRow("empty preset") << "--preset=" << unknown;
    QTest::newRow("unknown preset") << "--preset nonsense --yes" << unknown;
    QTest::newRow("an option as preset") << "--preset --yes" << unknown;
}

void CommandLineTest::wrongUsage()
{
    QFETCH(QString, line);
    const ProgramOnAMac mac;
    const auto outcome = mac.run(line.split(u' '));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.output, QString());
    QTEST(outcome.errors, "errors");
}

void CommandLineTest::asksBeforeItInstalls_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<bool>("confirmed");

    QTest::newRow("y") << QByteArray("y\n") << true;
    QTest::newRow("YES with blanks") << QByteArray("  YES \r\n") << true;
    QTest::newRow("n") << QByteArray("n\n") << false;
    QTest::newRow("empty line") << QByteArray("\n") << false;
    QTest::newRow("another word") << QByteArray("yep\n") << false;
    QTest::newRow("end of input") << QByteArray() << false;
    QTest::newRow("y without a line end") << QByteArray("y") << true;
}

void CommandLineTest::asksBeforeItInstalls()
{
    QFETCH(QByteArray, input);
    QFETCH(bool, confirmed);
    const ProgramOnAMac mac;
    mac.furnish(QStringLiteral("break-tool"), words("brew --status 1 --silent"));
    const auto outcome = mac.run(words("--preset MINIMAL --no-shortcuts"), input);
    QVERIFY(outcome.output.startsWith(QStringLiteral("Kế hoạch cài đặt:\n"
                                                     "- LibreOffice + Vietnamese (cask)\n"
                                                     "- Vietnamese Input Sources (builtin)\n")));
    QVERIFY(outcome.output.contains(
        QStringLiteral("- Screenshot & Markup (builtin)\n"
                       "Log: /Users/technician/Library/Logs/tavelo-deskrig.log\nTiếp tục? [y/N] ")));
    QCOMPARE(outcome.status, confirmed ? 1 : 130);
    QCOMPARE(outcome.output.endsWith(QStringLiteral("[y/N] Đã hủy.\n")), !confirmed);
    QCOMPARE(outcome.output.contains(QStringLiteral("Bắt đầu cài")), confirmed);
}

void CommandLineTest::leavesTheRestOfItsInputToTheTools()
{
    // A tool that asks for a password reads what the technician types next.
    ProgramOnAMac mac;
    const QString asking = QStringLiteral("/tmp/asking-brew");
    QFile script(mac.hostPath(asking));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n[ \"$1\" = install ] || exit 1\nread password\necho \"heard $password\"\n");
    script.setPermissions(script.permissions() | QFile::ExeOwner | QFile::ExeUser);
    script.close();
    mac.environment.insert(QStringLiteral("HOMEBREW_BREW_FILE"), asking);
    const auto outcome = mac.run(words("--preset minimal"), "y\nsecret\n");
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.output.contains(QStringLiteral("] heard secret\n")));
}

void CommandLineTest::checksASimulatedMac()
{
    const ProgramOnAMac mac({QStringLiteral("--macos"), QStringLiteral("14.6.1")});
    const auto outcome = mac.run(words("--check --preset nonsense --yes"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.errors, QString());
    const QStringList table =
        outcome.output.section(QStringLiteral("\n\nKết quả kiểm tra hệ thống:\n"), 1).split(u'\n');
    const qsizetype end = table.indexOf(QString());
    QStringList names;
    for (const QString &line : table.mid(0, end))
        names << line.mid(6, 29).trimmed();
    QCOMPARE(names.join(QStringLiteral(", ")),
             QStringLiteral("macOS compatibility, CPU architecture, Homebrew, Internet connection, Xcode Command Line "
                            "Tools, Dung lượng trống, user mode, LibreOffice, ONLYOFFICE"));
    QVERIFY(table.contains(QStringLiteral("OK    macOS compatibility          macOS 14.6.1.")));
    QVERIFY(table.contains(QStringLiteral("OK    Internet connection          Có thể phân giải formulae.brew.sh.")));
    QCOMPARE(
        table.filter(QRegularExpression(QStringLiteral("^(OK  |FAIL)  Dung lượng trống {13}\\d+GB trống trên /\\.$")))
            .size(),
        1);
    QVERIFY(table.contains(QStringLiteral("WARN  ONLYOFFICE                   Chưa cài.")));
    const QString folder = QStringLiteral("/Users/technician/Library/Application Support/Tavelo Deskrig/Reports");
    const QString report = folder + QStringLiteral("/tavelo-deskrig-report.txt");
    QCOMPARE(table.mid(end + 2), QStringList({QStringLiteral("Report: ") + report, QString()}));
    const auto ofUserAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(mac.hostPath(report)), ofUserAlone);
    QCOMPARE(QFile::permissions(mac.hostPath(folder)), ofUserAlone | QFile::ExeOwner | QFile::ExeUser);
    QVERIFY(mac.contents(report).contains("\nHostname: Simulated MacBook Air\nHardware model: MacBook Air\n"
                                          "Model identifier: Mac14,2\nChip: Apple M2\nMemory: 16 GB\n"));

    const QStringList log = mac.logLines();
    QCOMPARE(log.size(), end + 2);
    QCOMPARE(log.last(), table.at(end + 1));
    QVERIFY(log.last().endsWith(QStringLiteral("] Đã ghi report: ") + report));
    QVERIFY(log.at(0).endsWith(QStringLiteral("] System check summary:")));
    QVERIFY(log.at(1).endsWith(QStringLiteral("] CHECK OK: macOS compatibility - macOS 14.6.1.")));
    QVERIFY(outcome.output.startsWith(log.mid(0, end + 1).join(u'\n') + u'\n'));
}

void CommandLineTest::reportIsWrittenWhereItIsTold()
{
    ProgramOnAMac mac({QStringLiteral("--without-homebrew")});
    const QString report = QStringLiteral("/Users/Shared/of client/report.txt");
    mac.environment.insert(QStringLiteral("TAVELO_MAC_REPORT_FILE"), report);
    QCOMPARE(mac.run(words("--check")).status, 0);
    const QByteArray text = mac.contents(report);
    QVERIFY(text.contains("\nHomebrew: not found\n") && text.contains("\n- Không phát hiện.\n"));

    QVERIFY(QFile::remove(mac.hostPath(report)) && QDir().mkdir(mac.hostPath(report)));
    const auto outcome = mac.run(words("--check"));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors, QStringLiteral("Không thể tạo report: Is a directory\n"));
    QVERIFY(!outcome.output.contains(QStringLiteral("eport: ")));
}

#ifndef Q_OS_MACOS
void CommandLineTest::checksAMachineThatIsNoMac()
{
    QTemporaryDir home;
    ProgramOnAMac mac;
    mac.environment.remove(QStringLiteral("TAVELO_MAC_HOST_ROOT"));
    mac.environment.insert(QStringLiteral("HOME"), home.path());
    const auto check = mac.run(words("--check --no-gui"));
    QCOMPARE(check.status, 0);
    QVERIFY(check.output.contains(
        QStringLiteral("\nFAIL  macOS compatibility          macOS 0.0.0 quá cũ. Target tối thiểu: macOS 13.\n")));
    const auto preset = mac.run(words("--preset minimal --yes"));
    QCOMPARE(preset.status, 1);
    QVERIFY(preset.errors.startsWith(QStringLiteral("BLOCK: macOS 0.0.0 quá cũ. Target tối thiểu: macOS 13.\n")));
    QCOMPARE(preset.output, QString());
}
#endif

void CommandLineTest::plainEnvironment()
{
    // With no locale at all the texts are still whole, and no library speaks up.
    ProgramOnAMac mac;
    for (const char *name : {"PATH", "USER"})
        mac.environment.remove(QString::fromLatin1(name));
    const auto outcome = mac.run(words("--check"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.errors, QString());
    QVERIFY(outcome.output.contains(QStringLiteral("Kết quả kiểm tra hệ thống:")));
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
