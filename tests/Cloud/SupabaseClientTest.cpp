#include "SupabaseClient.h"
#include "Catalog.h"
#include "FileManager.h"
#include "Golden.h"
#include "MainQueue.h"
#include "NetworkTransport.h"
#include "RunningCloud.h"
#include "Table.h"
#include "TemporaryMac.h"

#include <QJsonArray>
#include <QNetworkProxyFactory>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QTest>

#include <atomic>
#include <cmath>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// Keeps what is sent and answers nothing.
class SilentTransport : public HttpTransport
{
public:
    explicit SilentTransport(QList<HttpRequest> &sent) : m_sent(sent) {}
    void send(const HttpRequest &request, Receive receive) override
    {
        m_sent.append(request);
        m_waiting.append(std::move(receive));
    }

private:
    QList<HttpRequest> &m_sent;
    QList<Receive> m_waiting;
};

/// The real one with less patience, so that a test need not wait for twenty seconds.
class ImpatientTransport : public NetworkTransport
{
public:
    void send(const HttpRequest &request, Receive receive) override
    {
        HttpRequest hurried = request;
        hurried.timeout /= 40;
        NetworkTransport::send(hurried, std::move(receive));
    }
};

/// A disk that takes no file as a whole.
class FullDisk : public FileManager
{
public:
    using FileManager::FileManager;
    bool writeAtomically(const QString &, const QByteArray &, mode_t, FileError *error) const override
    {
        *error = {ENOSPC, u"No space left on device"_s};
        return false;
    }
};

/// The result, once the main loop has brought it.
template <typename Result>
Result awaited(const QFuture<Result> &future)
{
    return QTest::qWaitFor([&future] { return future.isFinished(); }, 30000) ? future.result() : Result();
}

void trust(const RunningCloud &cloud)
{
    // A user adds the authority to the system's own store; this is that store, for this process.
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (!configuration.addCaCertificates(cloud.authority()))
        qFatal("no authority");
    QSslConfiguration::setDefaultConfiguration(configuration);
}

const QString cacheFolder = u"/Users/technician/Library/Caches/tavelo-deskrig/"_s;

} // namespace

class SupabaseClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void requests();
    void failures_data() { rowsOfTable(u"cloud-failures.txt"_s, {"action", "disturbance", "message"}); }
    void failures();
    void unreachable();
    void withoutConfiguration();
    void refusedBeforeItIsSent();
    void startUpWaitsForNothing();
    void startedOnAnotherThread();
    void unwritableCacheKeepsTheEarlierOne();

private:
    template <typename Transport = NetworkTransport>
    SupabaseClient client(const PlatformServices &services, const QString &url)
    {
        return {services, std::make_unique<Transport>(), [this](const QString &line) { m_logged = line; },
                SupabaseClient::makeConfig(url, u"local-anon-key"_s, {})};
    }
    CloudResult perform(const SupabaseClient &client, const QString &action);
    void disturb(const QString &action, const QString &disturbance) const;

    QString m_logged; ///< The last line.
    RunningCloud m_cloud;
    RunningCloud m_other{{u"--name"_s, u"127.0.0.1"_s}}; ///< Trusted as well, and none of the project's business.
};

void SupabaseClientTest::initTestCase()
{
    QNetworkProxyFactory::setUseSystemConfiguration(false);
    trust(m_cloud);
    trust(m_other);
    const TemporaryMac mac;
    QVERIFY(perform(client(mac.services(), m_other.url()), u"fetch"_s).ok);
    QVERIFY(!m_other.takeRequests().isEmpty());
}

/// The result of an action, told by a short name; that of a release policy is its version or the line that is logged.
CloudResult SupabaseClientTest::perform(const SupabaseClient &client, const QString &action)
{
    if (action == u"policy") {
        const auto policy = awaited(client.releasePolicy());
        return {policy.has_value(), policy ? policy->latestVersion : m_logged};
    }
    const auto row = [](const QString &id, const QString &status) {
        return QMap<QString, QString>{{u"item_id"_s, id},
                                      {u"name"_s, id.toUpper()},
                                      {u"group_key"_s, u"media"_s},
                                      {u"kind"_s, u"cask"_s},
                                      {u"status"_s, status}};
    };
    return awaited(action == u"sync" ? client.syncCatalog()
                   : action == u"upload"
                       ? client.uploadReport({row(u"vlc"_s, u"installed"_s), row(u"gimp"_s, u"missing"_s)})
                   : action == u"fetch"     ? client.businessDeviceConfig(u"fetch"_s, {}, {})
                   : action == u"update"    ? client.businessDeviceConfig(u"update"_s, u"Kế toán"_s, u"A-1"_s)
                   : action == u"workspace" ? client.syncTechnicianWorkspace()
                   : action == u"branding"  ? client.updateTechnicianBranding(u"Cửa hàng"_s, std::nullopt)
                   : action == u"logo" ? client.updateTechnicianBranding(u"Cửa hàng"_s, u"data:image/png;base64,AA=="_s)
                   : action == u"profile" ? client.saveTechnicianProfile(u" Văn phòng\n"_s, u" vlc,,gimp\n"_s)
                                          : client.saveTechnicianProfile(u"Tất cả"_s, {}));
}

void SupabaseClientTest::disturb(const QString &action, const QString &disturbance) const
{
    const QString path = action == u"sync"     ? u"/rest/v1/app_catalog"_s
                         : action == u"policy" ? u"/functions/v1/release-policy"_s
                         : action == u"upload" ? u"/functions/v1/upload-install-report"_s
                         : action == u"fetch"  ? u"/functions/v1/business-device-config"_s
                                               : u"/functions/v1/manage-technician-workspace"_s;
    m_cloud.write(u"disturbances.json"_s, u"{\"%1\": %2}"_s.arg(path, disturbance).toUtf8());
}

/// Each request as it arrives over TLS, redirects included, with the sentence that it leads to; then what is cached.
void SupabaseClientTest::requests()
{
    const TemporaryMac mac;
    PlatformServices services = mac.services();
    services.ownBundleInfo = {{u"CFBundleShortVersionString"_s, u"1.2+3&x"_s}, {u"CFBundleVersion"_s, u"34"_s}};
    m_cloud.write(u"release-policy.json"_s, R"({"latest_version": "2.0"})");
    m_cloud.write(u"app_catalog.json"_s, R"([{"item_id": "vlc", "sort_order": 5}, {"item_id": "gimp", "sort_order": 1},
                                             {"item_id": "xournalpp", "is_active": false}])");
    m_cloud.write(u"business.json"_s, R"({"organization": {"name": "Công ty Ví dụ"},
                                          "policies": [{"policy": {"disabled_item_ids": ["vlc"]}}]})");
    const SupabaseClient cloud = client(services, m_cloud.url());
    QString transcript;
    const auto step = [&](const QString &action, const QString &disturbance = u"{}"_s) {
        disturb(action, disturbance);
        m_cloud.takeRequests();
        const CloudResult result = perform(cloud, action);
        transcript += u"== %1 %2\n%3\n=> %4 %5\n\n"_s.arg(action, disturbance, m_cloud.takeRequests().join(u'\n'),
                                                          result.ok ? u"OK"_s : u"failed"_s, result.message);
    };
    for (const char *action :
         {"policy", "sync", "upload", "fetch", "update", "workspace", "branding", "logo", "profile", "empty profile"})
        step(QString::fromLatin1(action));
    step(u"upload"_s, u"{\"body\": \"{\\\"run_id\\\": 7}\"}"_s);
    step(u"upload"_s, u"{\"status\": 201, \"body\": \"[]\"}"_s);
    const QString redirect = u"{\"status\": %1, \"headers\": {\"Location\": \"%2\"}}"_s;
    step(u"sync"_s, redirect.arg(302).arg(m_cloud.url().toUpper().replace(u"HTTPS"_s, u"https"_s) + u"/moved"_s));
    step(u"sync"_s, redirect.arg(301).arg(u"../moved?x#y"_s));
    step(u"fetch"_s, redirect.arg(303).arg(u"/moved"_s));
    step(u"fetch"_s, redirect.arg(307).arg(u"/moved"_s));
    step(u"fetch"_s, redirect.arg(308).arg(u"/functions/v1/business-device-config"_s));
    for (const char *name : {"supabase-catalog.json", "business-policy.json", "technician-workspace.json"}) {
        const QString file = cacheFolder + QString::fromLatin1(name);
        transcript += u"== %1 %2\n%3\n\n"_s.arg(QString::fromLatin1(name))
                          .arg(mac.mode(file), 0, 8)
                          .arg(QString::fromUtf8(mac.contents(file)));
    }
    for (const auto &item : SupabaseClient::cachedCatalog(services).first(3))
        transcript += item.id + u'\n';
    // Answers with next to nothing in them.
    step(u"fetch"_s, u"{\"status\": 204, \"body\": \"\"}"_s);
    step(u"workspace"_s, u"{\"body\": \"{\\\"workspace\\\": [], \\\"profiles\\\": 5}\"}"_s);
    static const QRegularExpression varying(u"[0-9a-f]{8}-[0-9a-f-]{27}|(?i:localhost:\\d+)|20\\d\\d-[0-9T:.-]+Z"_s);
    QCOMPARE(differencesFromGolden(u"cloud-requests.txt"_s, transcript.replace(varying, u"…"_s).toUtf8()),
             QByteArray());
}

/// Every answer out of order gives its sentence after exactly one request, and leaves the catalog alone.
void SupabaseClientTest::failures()
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
    const QByteArray packed = qCompress(QByteArray(6 * 1024 * 1024, ' ')).sliced(4).toBase64();
    disturb(action, disturbance.replace(u"DEFLATED"_s, QString::fromLatin1(packed)).replace(u"OTHER"_s, m_other.url()));
    m_cloud.takeRequests();
    const SupabaseClient cloud = message.endsWith(u"timed out") ? client<ImpatientTransport>(services, m_cloud.url())
                                                                : client(services, m_cloud.url());
    QCOMPARE(perform(cloud, action), (CloudResult{false, message}));
    QCOMPARE(m_cloud.takeRequests().filter(u"apikey"_s).size(), 1);
    QCOMPARE(m_other.takeRequests(), QStringList());
    QCOMPARE(SupabaseClient::cachedCatalog(services), before);
}

/// No answer at all, and no request either: the key stays at home.
void SupabaseClientTest::unreachable()
{
    const TemporaryMac mac;
    const RunningCloud untrusted;
    const RunningCloud misnamed({u"--name"_s, u"elsewhere.example"_s});
    trust(misnamed);
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const QString closedURL = u"https://127.0.0.1:%1"_s.arg(closed.serverPort());
    closed.close();
    const auto sentence = [&](const QString &url) {
        return perform(client(mac.services(), url), u"workspace"_s).message.section(u": "_s, 1);
    };
    QCOMPARE(sentence(untrusted.url()),
             u"SSL handshake failed: The issuer certificate of a locally looked up certificate "
             u"could not be found"_s);
    QCOMPARE(sentence(QString(misnamed.url()).replace(u"elsewhere.example"_s, u"localhost"_s)),
             u"SSL handshake failed: The host name did not match any of the valid hosts for this certificate"_s);
    QCOMPARE(sentence(closedURL), u"Connection refused"_s);
    QCOMPARE(untrusted.takeRequests() + misnamed.takeRequests(), QStringList());
}

void SupabaseClientTest::withoutConfiguration()
{
    const TemporaryMac mac;
    const SupabaseClient none = client(mac.services(), u"http://h.example"_s);
    for (const char *action : {"sync", "upload", "fetch", "update", "workspace", "branding", "profile"})
        QCOMPARE(perform(none, QString::fromLatin1(action)),
                 (CloudResult{false, u"Chưa cấu hình Supabase URL/anon key."_s}));
    QCOMPARE(perform(none, u"policy"_s), (CloudResult{false, u"Bỏ qua release policy vì chưa cấu hình Supabase."_s}));
    QCOMPARE(awaited(none.requestJSON(u"https://h.example"_s, "GET", {})).body, u"Chưa cấu hình Supabase."_s);
}

void SupabaseClientTest::refusedBeforeItIsSent()
{
    const TemporaryMac mac;
    const PlatformServices services = mac.services();
    QList<HttpRequest> sent;
    const SupabaseClient broken(
        services, std::make_unique<SilentTransport>(sent), [this](const QString &line) { m_logged = line; },
        SupabaseConfig{u"https://h.example/%"_s, u"k"_s, u"https://h.example/%"_s});
    QCOMPARE(perform(broken, u"policy"_s), (CloudResult{false, u"Không tạo được release policy URL."_s}));
    QCOMPARE(perform(broken, u"sync"_s), (CloudResult{false, u"Không tạo được URL đồng bộ catalog."_s}));

    const SupabaseClient good(services, std::make_unique<SilentTransport>(sent), {},
                              SupabaseConfig{u"https://h.example"_s, u"k"_s, u"https://h.example/f"_s});
    for (const char *url : {"http://h.example/x", "https://evil.example/x", "https://u@h.example", "/x", "x y", ""})
        QCOMPARE(awaited(good.requestJSON(QString::fromLatin1(url), "GET", {})).body,
                 u"Endpoint Supabase phải dùng HTTPS và cùng host với project đã cấu hình."_s);
    const QJsonObject wrong{{u"a"_s, QJsonArray{std::nan("")}}};
    QCOMPARE(awaited(good.requestJSON(u"https://h.example"_s, "POST", wrong)).body,
             u"Payload JSON không hợp lệ: Invalid number value in JSON write"_s);
    services.mainQueue->service();
    QVERIFY(sent.isEmpty());
}

void SupabaseClientTest::startUpWaitsForNothing()
{
    const TemporaryMac mac;
    const PlatformServices services = mac.services();
    QList<HttpRequest> sent;
    bool continued = false;
    QFuture<std::optional<ReleasePolicy>> policy;
    {
        const SupabaseClient cloud(services, std::make_unique<SilentTransport>(sent), {},
                                   SupabaseClient::makeConfig(m_cloud.url(), u"k"_s, {}));
        policy = cloud.releasePolicy();
        cloud.updateTechnicianBranding({}, {}).then(this, [&](const CloudResult &) { continued = true; });
        QVERIFY(sent.isEmpty()); // not even a name is looked up before the loop runs
        services.mainQueue->service();
        QCOMPARE(sent.size(), 2);
        QCOMPARE(sent[0].timeout, std::chrono::seconds(20));
        QVERIFY(!policy.isFinished());
        QCOMPARE(SupabaseClient::cachedCatalog(services), Catalog::items());
    }
    // A client that goes takes with it what was under way.
    QVERIFY(policy.isCanceled());
    QCoreApplication::processEvents();
    QVERIFY(!continued);
}

void SupabaseClientTest::startedOnAnotherThread()
{
    const TemporaryMac mac;
    const SupabaseClient cloud = client(mac.services(), m_cloud.url());
    QThread *continuedOn = nullptr;
    QFuture<CloudResult> started;
    std::thread([&] { started = cloud.syncTechnicianWorkspace(); }).join();
    const auto done = started.then(this, [&](const CloudResult &) { continuedOn = QThread::currentThread(); });
    QTRY_VERIFY(done.isFinished());
    QCOMPARE(continuedOn, QThread::currentThread());
    // A background task may also wait, while the main loop does the work.
    QString message;
    std::atomic<bool> ended = false;
    std::thread waiting([&] {
        message = cloud.syncTechnicianWorkspace().result().message;
        ended = true;
    });
    QTRY_VERIFY(ended);
    waiting.join();
    QCOMPARE(message, started.result().message);
}

void SupabaseClientTest::unwritableCacheKeepsTheEarlierOne()
{
    const TemporaryMac mac;
    PlatformServices services = mac.services();
    mac.write(cacheFolder + u"supabase-catalog.json"_s, "earlier");
    services.files = std::make_shared<FullDisk>(services.files->root());
    const SupabaseClient cloud = client(services, m_cloud.url());
    m_cloud.write(u"disturbances.json"_s, "{}");
    const QString full = u"No space left on device"_s;
    QCOMPARE(perform(cloud, u"sync"_s), (CloudResult{false, u"Không ghi được cache catalog: "_s + full}));
    QCOMPARE(perform(cloud, u"fetch"_s), (CloudResult{false, u"Không lưu được policy Business: "_s + full}));
    QCOMPARE(perform(cloud, u"logo"_s), (CloudResult{false, u"Không lưu được workspace: "_s + full}));
    QCOMPARE(mac.contents(cacheFolder + u"supabase-catalog.json"_s), QByteArray("earlier"));
}

QTEST_GUILESS_MAIN(SupabaseClientTest)

#include "SupabaseClientTest.moc"
