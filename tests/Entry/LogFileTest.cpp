// The log under processes that write at once, die in the middle or cannot write at all.

#include "ProgramOnAMac.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Tavelo;

namespace
{

const QString logFile = QStringLiteral("/Users/technician/Library/Logs/tavelo-deskrig.log");

bool areWholeLines(const QByteArray &log)
{
    static const QRegularExpression form(QStringLiteral("^\\[\\d\\d:\\d\\d:\\d\\d\\] ."));
    const QStringList lines = QString::fromUtf8(log).split(u'\n');
    for (const QString &line : lines.mid(0, lines.size() - 1)) {
        if (!form.match(line).hasMatch())
            return false;
    }
    return lines.size() > 1 && lines.last().isEmpty();
}

} // namespace

class LogFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoProcessesWriteAtOnce();
    void killedInTheMiddle();
    void goesOnWithoutALog();
};

void LogFileTest::twoProcessesWriteAtOnce()
{
    const ProgramOnAMac mac;
    QList<QProcess *> processes;
    for (int count = 0; count < 4; ++count) {
        auto *process = new QProcess(this);
        process->setProcessEnvironment(mac.environment);
        process->start(ProgramOnAMac::program(), {QStringLiteral("--check")});
        processes.append(process);
    }
    for (QProcess *process : processes)
        QVERIFY(process->waitForFinished());
    const QByteArray log = mac.contents(logFile);
    QVERIFY(areWholeLines(log));
    QCOMPARE(log.count("] System check summary:\n"), 4);
    // A fifth, alone, writes as many lines as each of them.
    QCOMPARE(mac.run({QStringLiteral("--check")}).status, 0);
    QCOMPARE(mac.contents(logFile).count('\n') * 4, log.count('\n') * 5);
}

void LogFileTest::killedInTheMiddle()
{
    const ProgramOnAMac mac;
    mac.furnish(QStringLiteral("break-tool"),
                {QStringLiteral("hdiutil"), QStringLiteral("--flood"), QStringLiteral("50000000"),
                 QStringLiteral("--status"), QStringLiteral("1")});
    for (int round = 0; round < 3; ++round) {
        QProcess process;
        process.setProcessEnvironment(mac.environment);
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(ProgramOnAMac::program(), {QStringLiteral("--preset=minimal"), QStringLiteral("--yes")});
        const qint64 before = QFile(mac.hostPath(logFile)).size();
        QTRY_VERIFY_WITH_TIMEOUT(QFile(mac.hostPath(logFile)).size() > before + 20000, 60000);
        process.kill();
        QVERIFY(process.waitForFinished());
        QVERIFY(areWholeLines(mac.contents(logFile)));
    }
}

void LogFileTest::goesOnWithoutALog()
{
    ProgramOnAMac mac;
    mac.environment.insert(QStringLiteral("TAVELO_MAC_LOG_DIR"), QStringLiteral("/Library/log-folder"));
    QFile inTheWay(mac.hostPath(QStringLiteral("/Library/log-folder")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    const auto outcome = mac.run({QStringLiteral("--preset=minimal"), QStringLiteral("--yes")});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.output.contains(
        QRegularExpression(QStringLiteral("\\[(\\d\\d:\\d\\d:\\d\\d)\\] Không ghi được log file: [A-Z][a-z ]+\n"
                                          "\\[\\1\\] Bắt đầu cài: LibreOffice \\+ Vietnamese \\[libreoffice\\]\n"))));
    QVERIFY(outcome.output.endsWith(QStringLiteral("Hoàn tất: 8 thành công, 0 lỗi.\n")));
}

QTEST_GUILESS_MAIN(LogFileTest)
#include "LogFileTest.moc"
