#include "Catalog.h"
#include "Clock.h"
#include "DrivenClient.h"
#include "Golden.h"
#include "RunningCloud.h"
#include "Table.h"
#include "TemporaryMac.h"

#include <QJsonDocument>
#include <QNetworkProxyFactory>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// The real one with less patience, so that a test need not wait for twenty seconds.
struct ImpatientTransport : NetworkTransport {
    void send(const HttpRequest &request, Receive receive) override
    {
        HttpRequest hurried = request;
        hurried.timeout /= 40;
        NetworkTransport::send(hurried, std::move(receive));
    }
};

const QString cacheFolder = u"/Users/technician/Library/Caches/tavelo-deskrig/"_s;

} // namespace

class SupabaseClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "ICT-7"); // so that local time is not what goes over the wire
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        m_cloud.trust();
        m_other.trust();
        m_other.restart({u"--name"_s, u"127.0.0.1"_s}); // it is trusted still
        QVERIFY(DrivenClient(TemporaryMac().services(), m_other.url()).perform(u"fetch"_s).ok);
        QVERIFY(!m_other.takeRequests().isEmpty());
    }

    /// Each request as it arrives over TLS, redirects included, with the sentence that it leads to; then what is
    /// cached.
    void requests()
    {
        const TemporaryMac mac;
        PlatformServices services = mac.services();
        services.clock->sleep(std::chrono::milliseconds(67));
        services.ownBundleInfo = {{u"CFBundleShortVersionString"_s, u"1.2+3&x"_s}, {u"CFBundleVersion"_s, u"34"_s}};
        m_cloud.write(u"release-policy.json"_s, R"({"latest_version": "2.0"})");
        m_cloud.write(u"app_catalog.json"_s,
                      R"([{"item_id": "vlc", "sort_order": 5}, {"item_id": "gimp", "sort_order": 1},
                                             {"item_id": "xournalpp", "is_active": false}])");
        m_cloud.write(u"business.json"_s, R"({"organization": {"name": "Công ty Ví dụ"},
                                          "policies": [{"policy": {"disabled_item_ids": ["vlc"]}}]})");
        DrivenClient cloud(services, m_cloud.url());
        QString transcript;
        const auto step = [&](const QString &action, const QString &disturbance = u"{}"_s) {
            m_cloud.disturb(disturbance);
            m_cloud.takeRequests();
            const CloudResult result = cloud.perform(action);
            transcript += u"== %1 %2\n%3\n=> %4 %5\n\n"_s.arg(action, disturbance, m_cloud.takeRequests().join(u'\n'),
                                                              result.ok ? u"OK"_s : u"failed"_s, result.message);
        };
        for (const char *action : {"policy", "sync", "upload", "fetch", "update", "workspace", "branding", "logo",
                                   "profile", "empty profile"})
            step(QString::fromLatin1(action));
        step(u"upload"_s, u"{\"body\": \"{\\\"run_id\\\": 7}\"}"_s);
        step(u"upload"_s, u"{\"status\": 201, \"body\": \"[]\"}"_s);
        const QString redirect = u"{\"status\": %1, \"headers\": {\"Location\": \"%2\"}}"_s;
        step(u"sync"_s, redirect.arg(302).arg(m_cloud.url().toUpper().replace(u"HTTPS"_s, u"https"_s) + u"/moved"_s));
        step(u"sync"_s, redirect.arg(301).arg(u"../moved?x#y"_s));
        step(u"fetch"_s, redirect.arg(303).arg(u"/moved"_s));
        step(u"fetch"_s, redirect.arg(307).arg(u"/moved"_s));
        step(u"fetch"_s, redirect.arg(308).arg(u"/functions/v1/business-device-config"_s));
        const auto show = [&](const QString &name) {
            const QString file = cacheFolder + name, text = QString::fromUtf8(mac.contents(file));
            transcript += u"== %1 %2\n%3\n\n"_s.arg(name).arg(mac.mode(file), 0, 8).arg(text);
        };
        for (const char *name : {"supabase-catalog.json", "business-policy.json", "technician-workspace.json"})
            show(QString::fromLatin1(name));
        for (const auto &item : SupabaseClient::cachedCatalog(services).first(3))
            transcript += item.id + u'\n';
        // Answers with next to nothing in them.
        step(u"fetch"_s, u"{\"status\": 204, \"body\": \"\"}"_s);
        step(u"workspace"_s, u"{\"body\": \"{\\\"workspace\\\": [], \\\"profiles\\\": 5}\"}"_s);
        step(u"sync"_s, u"{\"body\": \"[]\"}"_s);
        show(u"supabase-catalog.json"_s);
        QCOMPARE(SupabaseClient::cachedCatalog(services), Catalog::items());
        static const QRegularExpression varying(u"[0-9a-f]{8}-[0-9a-f-]{27}|(?i:localhost:\\d+)"_s);
        QCOMPARE(differencesFromGolden(u"cloud-requests.txt"_s, transcript.replace(varying, u"…"_s).toUtf8()),
                 QByteArray());
    }

    void failures_data() { rowsOfTable(u"cloud-failures.txt"_s, {"action", "disturbance", "message"}); }

    /// Every answer out of order gives its sentence after exactly one request, and leaves the catalog alone.
    void failures()
    {
        QFETCH(const QString, action);
        QFETCH(QString, disturbance);
        QFETCH(const QString, message);
        const TemporaryMac mac;
        const PlatformServices services = mac.services();
        mac.write(cacheFolder + u"supabase-catalog.json"_s, R"({"items": [{"item_id": "vlc", "sort_order": 1}]})");
        mac.write(cacheFolder + u"business-policy.json"_s,
                  R"({"policies": [{"policy": {"allowed_item_ids": ["gimp", "vlc"]}}]})");
        const QList<AppItem> before = SupabaseClient::cachedCatalog(services);
        QCOMPARE(before.size(), 2);
        const QByteArray packed = qCompress(QByteArray(6 << 20, ' ')).sliced(4).toBase64();
        m_cloud.disturb(
            disturbance.replace(u"DEFLATED"_s, QString::fromLatin1(packed)).replace(u"OTHER"_s, m_other.url()));
        m_cloud.takeRequests();
        DrivenClient cloud(services, m_cloud.url(),
                           message.endsWith(u"timed out") ? std::make_unique<ImpatientTransport>()
                                                          : std::make_unique<NetworkTransport>());
        QCOMPARE(cloud.perform(action), (CloudResult{false, message}));
        QCOMPARE(m_cloud.takeRequests().size(), 1);
        QCOMPARE(m_other.takeRequests(), QStringList());
        QCOMPARE(SupabaseClient::cachedCatalog(services), before);
    }

    /// No answer at all, and no request either: the key stays at home.
    void unreachable()
    {
        const TemporaryMac mac;
        const RunningCloud untrusted;
        const RunningCloud misnamed{{u"--name"_s, u"elsewhere.example"_s}};
        misnamed.trust();
        const auto sentence = [&](const QString &url) {
            return DrivenClient(mac.services(), url).perform(u"workspace"_s).message.section(u": "_s, 1);
        };
        QCOMPARE(
            sentence(untrusted.url()),
            u"SSL handshake failed: The issuer certificate of a locally looked up certificate could not be found"_s);
        QCOMPARE(sentence(QString(misnamed.url()).replace(u"elsewhere.example"_s, u"localhost"_s)),
                 u"SSL handshake failed: The host name did not match any of the valid hosts for this certificate"_s);
        QCOMPARE(sentence(u"https://127.0.0.1:1"_s), u"Connection refused"_s);
        QCOMPARE(untrusted.takeRequests() + misnamed.takeRequests(), QStringList());
    }

    void refusals_data() { rowsOfTable(u"local-cloud-refusals.txt"_s, {"target", "body", "detail"}); }

    /// What the program never sends, so that the local cloud's agreement means something.
    void refusals()
    {
        QFETCH(const QString, target);
        QFETCH(const QString, body);
        const DrivenClient cloud(TemporaryMac().services(), m_cloud.url());
        m_cloud.disturb(u"{}"_s);
        const auto payload =
            body.isEmpty() ? std::nullopt : std::optional(QJsonDocument::fromJson(body.toUtf8()).object());
        const auto answer =
            awaited(cloud.client.requestJSON(m_cloud.url() + target, payload ? "POST" : "GET", payload));
        QTEST(answer.body["detail"_L1].toString(), "detail");
    }

    /// Somebody may be writing in it.
    void damagedFileStays()
    {
        m_cloud.disturb(u"{}"_s);
        m_cloud.write(u"business.json"_s, "{\"policies\": [");
        const DrivenClient cloud(TemporaryMac().services(), m_cloud.url());
        const QString target = m_cloud.url() + u"/functions/v1/business-device-config"_s;
        const QJsonObject change{{u"action"_s, u"update"_s}, {u"department"_s, u"D"_s}, {u"asset_code"_s, u"A"_s}};
        for (int attempt = 0; attempt < 2; ++attempt) { // the first one replaces nothing
            const auto answer = awaited(cloud.client.requestJSON(target, "POST", change));
            QCOMPARE(answer.body["detail"_L1].toString(), u"business.json is not JSON"_s);
        }
        m_cloud.write(u"business.json"_s, "{}");
    }

    /// A client that goes takes with it what is under way, also where it goes because of an answer of its own.
    void goesWithWhatIsUnderWay()
    {
        const TemporaryMac mac;
        std::optional<DrivenClient> cloud(std::in_place, mac.services(), m_cloud.url());
        int received = 0;
        const auto end = [&](const CloudResult &) {
            ++received;
            cloud.reset();
        };
        m_cloud.takeRequests();
        m_cloud.disturb(u"{\"delay_ms\": 60000}"_s);
        QFuture<CloudResult> late = cloud->client.syncCatalog();
        late.then(this, end);
        QVERIFY(QTest::qWaitFor([this] { return !m_cloud.takeRequests().isEmpty(); }));
        cloud.reset();
        QVERIFY(late.isCanceled());

        for (const char *disturbance : {"{}", R"({"body": "0123456789", "repeat": 1000000})"}) {
            m_cloud.disturb(QString::fromLatin1(disturbance));
            cloud.emplace(mac.services(), m_cloud.url());
            cloud->client.updateTechnicianBranding({}, {}).then(this, end);
            QTRY_VERIFY(!cloud);
            cloud.emplace(mac.services(), m_cloud.url());
            cloud->client.updateTechnicianBranding({}, {}).then(this, end);
            cloud->client.syncCatalog().then(this, end); // one of the two comes first, and the other never
            QTRY_VERIFY(!cloud);
        }
        m_cloud.disturb(u"{}"_s);
        QVERIFY(DrivenClient(mac.services(), m_cloud.url()).perform(u"workspace"_s).ok);
        QCOMPARE(received, 4);
    }

    /// A background task may start an action and wait, while the main loop does the work.
    void startedOnAnotherThread()
    {
        const TemporaryMac mac;
        const DrivenClient cloud(mac.services(), m_cloud.url());
        m_cloud.disturb(u"{}"_s);
        CloudResult result;
        std::atomic<bool> ended = false;
        std::thread waiting([&] {
            result = cloud.client.syncTechnicianWorkspace().result();
            ended = true;
        });
        QTRY_VERIFY(ended);
        waiting.join();
        QVERIFY(result.ok);
    }

    void unwritableCacheKeepsTheEarlierOne()
    {
        const TemporaryMac mac;
        for (const char *name : {"supabase-catalog", "business-policy", "technician-workspace"})
            mac.write(u"%1%2.json/earlier"_s.arg(cacheFolder, QString::fromLatin1(name)), {});
        DrivenClient cloud(mac.services(), m_cloud.url());
        m_cloud.disturb(u"{}"_s);
        const QString reason = u"Is a directory"_s;
        QCOMPARE(cloud.perform(u"sync"_s), (CloudResult{false, u"Không ghi được cache catalog: "_s + reason}));
        QCOMPARE(cloud.perform(u"fetch"_s), (CloudResult{false, u"Không lưu được policy Business: "_s + reason}));
        QCOMPARE(cloud.perform(u"logo"_s), (CloudResult{false, u"Không lưu được workspace: "_s + reason}));
        QVERIFY(mac.exists(cacheFolder + u"supabase-catalog.json/earlier"_s));
        mac.furnish(u"rm -r '.%1' && touch '.%1'"_s.arg(cacheFolder.chopped(1)));
        QCOMPARE(cloud.perform(u"sync"_s), (CloudResult{false, u"Không ghi được cache catalog: File exists"_s}));
    }

private: // NOLINT(readability-redundant-access-specifiers): not for moc
    RunningCloud m_cloud;
    RunningCloud m_other{{u"--name"_s, u"127.0.0.1"_s}}; ///< Trusted as well, and none of the project's business.
};

QTEST_GUILESS_MAIN(SupabaseClientTest)

#include "SupabaseClientTest.moc"
