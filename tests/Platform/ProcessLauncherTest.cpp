#include "ProcessLauncher.h"

#include "MainQueue.h"
#include "Row.h"
#include "TemporaryMac.h"

#include <QRegularExpression>
#include <QThreadPool>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace Tavelo;

using Output = ProcessSetup::Output;

class ProcessLauncherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"."_s)); // it would stand between the program's own words
    }

    void children_data()
    {
        // standardOutput: bytes taken
        columns<QString, int, int, int>("script", "status", "standardOutput", "merged");
        row("status", "printf out; printf err >&2; exit 200", 200, 3, 6);
        row("closes its output first", "exec >&- 2>&-; exit 7", 7, 0, 0);
        row("flood", "head -c 5000000 /dev/zero >&2; head -c 5000000 /dev/zero", 0, 5'000'000, 10'000'000);
        row("more than fits", "head -c 40000000 /dev/zero; head -c 40000000 /dev/zero >&2", 0, 0, 0);
        row("grandchild keeps the pipe",
            "(for i in $(seq 4000); do [ -e \"$ROOT/go\" ] && exit; sleep 0.1; done) & echo; exit 4", 4, 1, 1);
        row("folder and arguments", "test \"$# $1 $PWD\" = \"2 a b $ROOT/Applications\"", 0, 0, 0);
        row("waits for a queued call", "for i in $(seq 99); do [ -e \"$ROOT/heard\" ] && exit 5; sleep 0.1; done", 5, 0,
            0);
    }

    void children()
    {
        QFETCH(QString, script);
        QFETCH(int, standardOutput);
        QFETCH(int, merged);
        for (const Output output : {Output::discard, Output::standardOutput, Output::merged}) {
            m_mac.furnish(u"rm -f heard go"_s);
            m_services.mainQueue->post([this] { m_mac.write(u"/heard"_s, {}); });
            m_mac.addTool(u"/tool"_s, script.toUtf8());
            const ProcessResult result = m_services.processes->run(
                {u"/tool"_s, {u"a b"_s, u"*"_s}, m_mac.environment, u"/Applications"_s, output, {}});
            m_mac.write(u"/go"_s, {}); // only now may a grandchild end
            QVERIFY(result.started);
            QTEST(result.status, "status");
            QCOMPARE(result.output.size(), output == Output::discard  ? 0
                                           : output == Output::merged ? merged
                                                                      : standardOutput);
        }
    }

    void runsOnSeveralThreadsAtOnce()
    {
        m_mac.addTool(u"/tool"_s, "printf '%s' \"$1\"; exit $1");
        const auto isRight = [this](int number) {
            const ProcessResult result = m_services.processes->run(
                {u"/tool"_s, {QString::number(number)}, m_mac.environment, {}, Output::standardOutput, {}});
            return result.status == number && result.output == QByteArray::number(number);
        };
        std::atomic<int> right = 0;
        QThreadPool pool;
        for (int number = 0; number < 40; ++number)
            pool.start([&, number] { right += isRight(number) ? 1 : 0; });
        for (int number = 40; number < 50; ++number)
            QVERIFY(isRight(number));
        pool.waitForDone();
        QCOMPARE(right.load(), 40);
    }

private:
    TemporaryMac m_mac;
    PlatformServices m_services = m_mac.services();
};

QTEST_GUILESS_MAIN(ProcessLauncherTest)

#include "ProcessLauncherTest.moc"
