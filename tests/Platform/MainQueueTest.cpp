#include "MainQueue.h"

#include <QStringList>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class MainQueueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callsKeepTheirOrder()
    {
        MainQueue queue;
        QString ran;
        const auto post = [&](QChar name) { queue.post([&ran, name] { ran += name; }); };
        post(u'a');
        queue.post([&] {
            post(u'd');
            queue.service(); // c and d, before this call has ended
            ran += u'b';
        });
        post(u'c');
        queue.service();
        QCOMPARE(ran, u"acdb"_s);
        queue.post([&] { post(u'f'); });
        queue.service();
        QCOMPARE(ran, u"acdb"_s); // a call that always queues another must not keep the main thread
        std::thread([&] {
            post(u'g');
            queue.service();
        }).join();
        QCOMPARE(ran, u"acdb"_s);
        QTRY_COMPARE(ran, u"acdbfg"_s); // by the event loop
        post(u'h');
        QTRY_COMPARE(ran, u"acdbfgh"_s);
    }

    void callsOfManyThreadsAllRun()
    {
        MainQueue queue;
        int ran = 0;
        std::atomic<int> posted = 0;
        std::vector<std::thread> threads;
        for (int number = 0; number < 4; ++number)
            threads.emplace_back([&] {
                for (int count = 0; count < 5000; ++count, ++posted)
                    queue.post([&ran] { ++ran; });
            });
        while (posted < 20000)
            queue.service();
        for (std::thread &thread : threads)
            thread.join();
        queue.service();
        QCOMPARE(ran, 20000);
    }

    void aCallMayEndTheQueue()
    {
        for (const bool byLoop : {false, true}) {
            auto queue = std::make_unique<MainQueue>();
            bool isLateHeard = false;
            queue->post([&] { queue.reset(); });
            queue->post([&] { isLateHeard = true; });
            if (!byLoop)
                queue->service();
            QTRY_VERIFY(!queue);
            QTest::qWait(1);
            QVERIFY(!isLateHeard);
        }
    }
};

QTEST_GUILESS_MAIN(MainQueueTest)

#include "MainQueueTest.moc"
