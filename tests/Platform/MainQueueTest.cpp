#include "MainQueue.h"

#include <QStringList>
#include <QTest>
#include <QThreadPool>

#include <memory>
#include <thread>

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
        QThreadPool pool;
        pool.setMaxThreadCount(4);
        for (int number = 0; number < 4; ++number)
            pool.start([&] {
                for (int count = 0; count < 5000; ++count)
                    queue.post([&ran] { ++ran; });
            });
        while (!pool.waitForDone(0))
            queue.service();
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
