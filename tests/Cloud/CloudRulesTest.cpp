#include "Catalog.h"
#include "CloudCache.h"
#include "DrivenClient.h"
#include "ReleaseDownloadPolicy.h"
#include "SupabaseEndpointPolicy.h"
#include "Table.h"
#include "TemporaryMac.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

/// Keeps what is sent and answers nothing.
struct SilentTransport : HttpTransport {
    explicit SilentTransport(QList<HttpRequest> &requests) : sent(requests) {}
    void send(const HttpRequest &request, Receive receive) override
    {
        sent.append(request);
        waiting.append(std::move(receive));
    }

    QList<HttpRequest> &sent;
    QList<Receive> waiting;
};

/// "URL KEY FUNCTIONS", or "none".
QString summary(const std::optional<SupabaseConfig> &config)
{
    return config ? config->url + u' ' + config->anonKey + u' ' + config->functionsURL : u"none"_s;
}

QString yesNo(bool value)
{
    return value ? u"yes"_s : u"no"_s;
}

} // namespace

class CloudRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void configs_data() { rowsOfTable(u"cloud-configs.txt"_s, {"url", "key", "functions", "config"}); }
    void configs();
    void configSources();
    void environmentDecides();
    void addresses_data() { rowsOfTable(u"cloud-addresses.txt"_s, {"purpose", "address", "answer"}); }
    void addresses();
    void releasePolicies_data() { rowsOfTable(u"release-policies.txt"_s, {"json", "policy", "line"}); }
    void releasePolicies();
    void cachesReadWholeOrNotAtAll();
    void cachesStayReadable();
    void withoutConfiguration();
    void refusedBeforeItIsSent();
    void startUpWaitsForNothing();
};

void CloudRulesTest::configs()
{
    QFETCH(const QString, url);
    QFETCH(const QString, key);
    QFETCH(const QString, functions);
    QTEST(summary(SupabaseClient::makeConfig(url, key, functions)), "config");
}

/// Each file in turn, from the last to the first; one that holds no configuration is passed over.
void CloudRulesTest::configSources()
{
    const TemporaryMac mac;
    const PlatformServices services = mac.services();
    const auto found = [&services] { return summary(SupabaseClient::loadConfig(services)); };
    const QString support = mac.hostPath(mac.home() + u"/Library/Application Support/Tavelo Deskrig"_s);
    const QString resources = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../../Contents/Resources"_s);
    const auto tidy = qScopeGuard([&] { QFile::remove(resources + u"/config/supabase.json"_s); });
    QString before = u"none"_s;
    for (int number = 1; const QString &folder : {mac.hostPath(u"/config"_s), resources + u"/config"_s,
                                                  mac.hostPath(mac.home() + u"/.config/tavelo-deskrig"_s), support}) {
        QFile file(folder + u"/supabase.json"_s);
        const auto write = [&file](const QByteArray &bytes) {
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && (file.close(), true);
        };
        QVERIFY(QDir().mkpath(folder));
        for (const QByteArray &bytes :
             {QByteArray("{"), QByteArray("[]"), QByteArray(R"({"url": "http://h.example", "anon_key": "k"})"),
              QByteArray(R"({"url": "https://h.example", "anon_key": null})"),
              R"({"url": "https://h.example", "anon_key": "k"})" + QByteArray(1 << 20, ' ')}) {
            QVERIFY(write(bytes));
            QCOMPARE(found(), before);
        }
        QByteArray json =
            R"({"supabase_url": "", "url": "https://h%1.example", "anon_key": "", "supabase_anon_key": 5})";
        QVERIFY(write(json.replace("%1", QByteArray::number(number))));
        before = u"https://h%1.example 5 https://h%1.example/functions/v1"_s.arg(number++);
        QCOMPARE(found(), before);
    }
    mac.write(mac.home() + u"/Library/Application Support/Tavelo Deskrig/supabase.json"_s,
              R"({"supabase_url": "https://a.example", "url": "https://b.example", "anon_key": "first",
                  "supabase_anon_key": "second", "functions_url": "https://a.example/f"})");
    QCOMPARE(found(), u"https://a.example first https://a.example/f"_s);
}

void CloudRulesTest::environmentDecides()
{
    const auto found = [](const QString &url, const QString &key) {
        TemporaryMac mac;
        mac.write(u"/config/supabase.json"_s, R"({"url": "https://file.example", "anon_key": "k"})");
        mac.environment.insert(u"TAVELO_SUPABASE_URL"_s, url);
        mac.environment.insert(u"TAVELO_SUPABASE_ANON_KEY"_s, key);
        mac.environment.insert(u"TAVELO_SUPABASE_FUNCTIONS_URL"_s, u"https://e.example/f"_s);
        return summary(SupabaseClient::loadConfig(mac.services()));
    };
    QCOMPARE(found(u"https://e.example"_s, u"e"_s), u"https://e.example e https://e.example/f"_s);
    QCOMPARE(found(u"http://e.example"_s, u"e"_s), u"none"_s);
    QCOMPARE(found(u"https://e.example"_s, {}), u"https://file.example k https://file.example/functions/v1"_s);
    QCOMPARE(found({}, u"e"_s), u"https://file.example k https://file.example/functions/v1"_s);
}

void CloudRulesTest::addresses()
{
    QFETCH(const QString, purpose);
    QFETCH(QString, address);
    address.replace(u"HOST"_s, *ReleaseDownloadPolicy::allowedHosts().cbegin());
    const std::optional<QUrl> download = ReleaseDownloadPolicy::validatedURL(address);
    const bool good = purpose == u"request" ? SupabaseEndpointPolicy::allows(QUrl(address), u"https://h.example"_s)
                                            : download.has_value();
    QTEST(yesNo(good), "answer");
    QCOMPARE(download.value_or(QUrl(address)), QUrl(address));
}

void CloudRulesTest::releasePolicies()
{
    QFETCH(const QString, json);
    const ReleasePolicy policy(QJsonDocument::fromJson(json.toUtf8()).object());
    const QStringList fields{yesNo(policy.updateRequired) + u", "_s + yesNo(policy.updateAvailable),
                             policy.title,
                             policy.message,
                             policy.downloadURL,
                             policy.latestVersion,
                             policy.minSupportedVersion};
    QTEST(fields.join(u"; "_s).trimmed(), "policy");
    QTEST(releasePolicyLogLine(policy), "line");
    QCOMPARE(releasePolicyLogLine({}), u"Release policy không khả dụng; app tiếp tục fail-open."_s);
}

void CloudRulesTest::cachesReadWholeOrNotAtAll()
{
    const TemporaryMac mac;
    const PlatformServices services = mac.services();
    const QString file = mac.home() + u"/Library/Caches/tavelo-deskrig/supabase-catalog.json"_s;
    const auto rows = [&services] { return SupabaseClient::cachedCatalogRows(services).size(); };
    QCOMPARE(rows(), 0);
    const QJsonArray items{QJsonObject{{u"item_id"_s, u"vlc"_s}}, QJsonObject()};
    QVERIFY(CloudCache::write(services, CloudCache::catalogFile, {{u"items"_s, items}}, nullptr));
    QCOMPARE(rows(), 2);
    const QByteArray whole = mac.contents(file);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        mac.write(file, whole.first(size));
        QCOMPARE(rows(), 0);
    }
    for (const char *bytes : {"[]", "{}", R"({"items": {}})", R"({"items": [{}, 1]})", R"({"items": null})"}) {
        mac.write(file, bytes);
        QCOMPARE(rows(), 0);
    }
    mac.furnish(u"rm '.%1' && mkdir '.%1'"_s.arg(file));
    QCOMPARE(rows(), 0);
}

/// What no reader would take, or what swells when it is indented, does not replace an earlier file.
void CloudRulesTest::cachesStayReadable()
{
    const TemporaryMac mac;
    const PlatformServices services = mac.services();
    const auto write = [&services](const QJsonValue &policies, FileError *error) {
        return CloudCache::write(services, CloudCache::businessPolicyFile, {{u"policies"_s, policies}}, error);
    };
    QVERIFY(write(QJsonArray{QJsonObject()}, nullptr));
    for (const auto &[width, depth] : {std::pair(1, 2000), std::pair(500000, 100)}) {
        QJsonValue value = QJsonDocument::fromJson('[' + QByteArray("0,").repeated(width) + "0]").array();
        for (int level = 0; level < depth; ++level)
            value = QJsonArray{value};
        FileError error;
        QVERIFY(!write(value, &error));
        QCOMPARE(error.code, EFBIG);
        QCOMPARE(SupabaseClient::cachedBusinessPolicyRows(services).size(), 1);
    }
}

void CloudRulesTest::withoutConfiguration()
{
    DrivenClient none(TemporaryMac().services(), u"http://h.example"_s);
    for (const char *action : {"sync", "upload", "fetch", "update", "workspace", "branding", "profile"})
        QCOMPARE(none.perform(QString::fromLatin1(action)),
                 (CloudResult{false, u"Chưa cấu hình Supabase URL/anon key."_s}));
    QCOMPARE(none.perform(u"policy"_s), (CloudResult{false, u"Bỏ qua release policy vì chưa cấu hình Supabase."_s}));
    QCOMPARE(awaited(none.client.requestJSON(u"https://h.example"_s, "GET", {})).body, u"Chưa cấu hình Supabase."_s);
}

void CloudRulesTest::refusedBeforeItIsSent()
{
    const TemporaryMac mac;
    const PlatformServices services = mac.services();
    QList<HttpRequest> sent;
    QStringList logged;
    const SupabaseClient broken(
        services, std::make_unique<SilentTransport>(sent), [&](const QString &line) { logged.append(line); },
        SupabaseConfig{u"https://h.example/%"_s, u"k"_s, u"https://h.example/%"_s});
    QVERIFY(!awaited(broken.releasePolicy()));
    QCOMPARE(logged, QStringList(u"Không tạo được release policy URL."_s));
    QCOMPARE(awaited(broken.syncCatalog()), (CloudResult{false, u"Không tạo được URL đồng bộ catalog."_s}));

    const SupabaseClient good(services, std::make_unique<SilentTransport>(sent), {},
                              SupabaseConfig{u"https://h.example"_s, u"k"_s, u"https://h.example/f"_s});
    for (const char *url : {"http://h.example/x", "https://evil.example/x", "https://u@h.example", "/x", "x y", ""})
        QCOMPARE(awaited(good.requestJSON(QString::fromLatin1(url), "GET", {})).body,
                 u"Endpoint Supabase phải dùng HTTPS và cùng host với project đã cấu hình."_s);
    const QJsonObject wrong{{u"a"_s, QJsonArray{std::nan("")}}};
    QCOMPARE(awaited(good.requestJSON(u"https://h.example"_s, "POST", wrong)).body,
             u"Payload JSON không hợp lệ: Invalid number value in JSON write"_s);
    QCoreApplication::processEvents();
    QVERIFY(sent.isEmpty());
}

void CloudRulesTest::startUpWaitsForNothing()
{
    const TemporaryMac mac;
    const PlatformServices services = mac.services();
    QList<HttpRequest> sent;
    const SupabaseClient cloud(services, std::make_unique<SilentTransport>(sent), {},
                               SupabaseConfig{u"https://h.example"_s, u"k"_s, u"https://h.example/f"_s});
    const auto policy = cloud.releasePolicy();
    QVERIFY(sent.isEmpty()); // not even a name is looked up before the loop runs
    QCoreApplication::processEvents();
    QCOMPARE(sent.size(), 1);
    QCOMPARE(sent[0].timeout, std::chrono::seconds(20));
    QVERIFY(sent[0].url.query().endsWith(u"&current_version=dev&current_build=&app_version=dev"));
    QVERIFY(!policy.isFinished());
    QCOMPARE(SupabaseClient::cachedCatalog(services), Catalog::items());
}

QTEST_GUILESS_MAIN(CloudRulesTest)

#include "CloudRulesTest.moc"
