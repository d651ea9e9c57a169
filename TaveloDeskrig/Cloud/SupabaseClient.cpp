#include "SupabaseClient.h"

#include "Catalog.h"
#include "CatalogOverlays.h"
#include "Clock.h"
#include "CloudCache.h"
#include "MainQueue.h"
#include "WireValue.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

using QueryItems = QList<std::pair<QString, QString>>;

/// The address with the query items in their order; nothing where it is none.
std::optional<QString> addressWithQuery(const QString &address, const QueryItems &items)
{
    QStringList pairs;
    for (const auto &[key, value] : items)
        pairs.append(key + u'=' + QString::fromLatin1(QUrl::toPercentEncoding(value, ",()")));
    QUrl url(address, QUrl::StrictMode);
    if (!url.isValid())
        return std::nullopt;
    url.setQuery(pairs.join(u'&'), QUrl::StrictMode);
    return url.toString(QUrl::FullyEncoded);
}

QFuture<CloudResult> unconfigured()
{
    return QtFuture::makeReadyFuture(CloudResult{false, u"Chưa cấu hình Supabase URL/anon key."_s});
}

CloudResult failure(const QString &words, const QJsonValue &body)
{
    return {false, words + WireValue::responseErrorText(body)};
}

QList<QJsonObject> rowsIn(const QJsonObject &cache, QLatin1StringView key)
{
    return WireValue::objects(cache.value(key)).value_or(QList<QJsonObject>());
}

QString nameIn(const QJsonValue &object, QLatin1StringView key, const QString &fallback)
{
    return WireValue::string(object.toObject().value(key), fallback);
}

} // namespace

SupabaseClient::SupabaseClient(const PlatformServices &services, std::unique_ptr<HttpTransport> transport, Log log,
                               std::optional<SupabaseConfig> config)
    : m_services(services), m_runtime(services), m_log(std::move(log)), m_config(std::move(config)),
      m_transport(std::move(transport)), m_unsent(std::make_unique<MainQueue>())
{
}

SupabaseClient::~SupabaseClient() = default;

QList<QJsonObject> SupabaseClient::cachedCatalogRows(const PlatformServices &services)
{
    return rowsIn(CloudCache::read(services, CloudCache::catalogFile), "items"_L1);
}

QList<QJsonObject> SupabaseClient::cachedBusinessPolicyRows(const PlatformServices &services)
{
    return rowsIn(CloudCache::read(services, CloudCache::businessPolicyFile), "policies"_L1);
}

QList<AppItem> SupabaseClient::cachedCatalog(const PlatformServices &services)
{
    return Catalog::applyingBusinessPolicies(
        cachedBusinessPolicyRows(services),
        Catalog::applyingCloudOverlay(cachedCatalogRows(services), Catalog::items()));
}

QFuture<std::optional<ReleasePolicy>> SupabaseClient::releasePolicy() const
{
    const auto none = [this](const QString &reason) {
        if (m_log)
            m_log(reason);
        return std::optional<ReleasePolicy>();
    };
    if (!m_config)
        return QtFuture::makeReadyFuture(none(u"Bỏ qua release policy vì chưa cấu hình Supabase."_s));
    const QString shortVersion = m_runtime.bundleString(u"CFBundleShortVersionString"_s);
    const std::optional<QString> url =
        addressWithQuery(m_config->functionsURL + u"/release-policy"_s,
                         {{u"product"_s, u"mac_deskrig"_s},
                          {u"platform"_s, u"macos"_s},
                          {u"channel"_s, u"stable"_s},
                          {u"current_version"_s, shortVersion.isEmpty() ? m_runtime.appVersion() : shortVersion},
                          {u"current_build"_s, m_runtime.bundleString(u"CFBundleVersion"_s)},
                          {u"app_version"_s, m_runtime.appVersion()}});
    if (!url)
        return QtFuture::makeReadyFuture(none(u"Không tạo được release policy URL."_s));
    return requestJSON(*url, "GET", std::nullopt).then([none](const JsonAnswer &answer) {
        if (!answer.ok)
            return none(u"Không đọc được release policy: "_s + WireValue::responseErrorText(answer.body));
        if (!answer.body.isObject())
            return none(u"Release policy trả về dữ liệu không hợp lệ."_s);
        return std::optional(ReleasePolicy(answer.body.toObject()));
    });
}

QFuture<CloudResult> SupabaseClient::syncCatalog() const
{
    if (!m_config)
        return unconfigured();
    const std::optional<QString> url = addressWithQuery(
        m_config->url + u"/rest/v1/app_catalog"_s,
        {{u"select"_s, u"item_id,name,group_key,kind,packages,description,is_active,sort_order,updated_at"_s},
         {u"order"_s, u"sort_order.asc"_s}});
    if (!url)
        return QtFuture::makeReadyFuture(CloudResult{false, u"Không tạo được URL đồng bộ catalog."_s});
    return requestJSON(*url, "GET", std::nullopt).then([this](const JsonAnswer &answer) {
        return catalogReceived(answer);
    });
}

CloudResult SupabaseClient::catalogReceived(const JsonAnswer &answer) const
{
    if (!answer.ok)
        return failure(u"Không đồng bộ được catalog: "_s, answer.body);
    const auto rows = WireValue::objects(answer.body);
    if (!rows)
        return {false, u"Catalog trả về không đúng định dạng."_s};
    const QString now = m_services.clock->now().toUTC().toString(Qt::ISODateWithMs);
    FileError error;
    if (!CloudCache::write(m_services, CloudCache::catalogFile, {{u"synced_at"_s, now}, {u"items"_s, answer.body}},
                           &error))
        return {false, u"Không ghi được cache catalog: "_s + error.text};
    return {true, u"Đã đồng bộ %1 app từ Supabase."_s.arg(rows->size())};
}

QFuture<CloudResult> SupabaseClient::uploadReport(const ReportItems &items) const
{
    if (!m_config)
        return unconfigured();
    QJsonArray rows;
    qint64 installed = 0;
    for (const QMap<QString, QString> &item : items) {
        QJsonObject row;
        for (const auto &[key, value] : item.asKeyValueRange())
            row.insert(key, value);
        rows.append(row);
        installed += item.value(u"status"_s) == u"installed" ? 1 : 0;
    }
    const QJsonObject summary{{u"installed"_s, installed}, {u"total"_s, items.size()}};
    return callFunction(u"/upload-install-report"_s,
                        {{u"app_version"_s, m_runtime.appVersion()}, {u"summary"_s, summary}, {u"items"_s, rows}})
        .then([](const JsonAnswer &answer) {
            if (!answer.ok)
                return failure(u"Upload report thất bại: "_s, answer.body);
            const QString runID = WireValue::string(answer.body["run_id"_L1]);
            return CloudResult{true, runID.isEmpty() ? u"Đã upload report."_s : u"Đã upload report: "_s + runID};
        });
}

QFuture<CloudResult> SupabaseClient::businessDeviceConfig(const QString &action, const QString &department,
                                                          const QString &assetCode) const
{
    if (!m_config)
        return unconfigured();
    return callFunction(u"/business-device-config"_s,
                        {{u"action"_s, action}, {u"department"_s, department}, {u"asset_code"_s, assetCode}})
        .then([this](const JsonAnswer &answer) { return businessConfigReceived(answer); });
}

CloudResult SupabaseClient::businessConfigReceived(const JsonAnswer &answer) const
{
    if (!answer.ok || !answer.body.isObject())
        return failure(u"Không tải được cấu hình Business: "_s, answer.body);
    const QJsonObject config = answer.body.toObject();
    FileError error;
    if (!CloudCache::write(m_services, CloudCache::businessPolicyFile, config, &error))
        return {false, u"Không lưu được policy Business: "_s + error.text};
    const QString name = nameIn(config.value("organization"_L1), "name"_L1, u"Business organization"_s);
    return {true, u"Đã áp %1 policy từ %2."_s.arg(QString::number(rowsIn(config, "policies"_L1).size()), name)};
}

QFuture<CloudResult> SupabaseClient::syncTechnicianWorkspace() const
{
    if (!m_config)
        return unconfigured();
    return callFunction(u"/manage-technician-workspace"_s, {{u"action"_s, u"get"_s}})
        .then([this](const JsonAnswer &answer) { return workspaceReceived(answer); });
}

CloudResult SupabaseClient::workspaceReceived(const JsonAnswer &answer) const
{
    if (!answer.ok || !answer.body.isObject())
        return failure(u"Không đồng bộ được workspace: "_s, answer.body);
    const QJsonObject content = answer.body.toObject();
    FileError error;
    if (!CloudCache::write(m_services, CloudCache::technicianWorkspaceFile, content, &error))
        return {false, u"Không lưu được workspace: "_s + error.text};
    const QString name = nameIn(content.value("workspace"_L1), "display_name"_L1, u"Tavelo workspace"_s);
    const qsizetype profiles = content.value("profiles"_L1).toArray().size();
    return {true, u"Đã đồng bộ %1: %2 profile dùng chung."_s.arg(name, QString::number(profiles))};
}

QFuture<CloudResult> SupabaseClient::updateTechnicianBranding(const QString &displayName,
                                                              const std::optional<QString> &logoDataURL) const
{
    QJsonObject payload{{u"action"_s, u"update_branding"_s}, {u"display_name"_s, displayName}};
    if (logoDataURL)
        payload.insert("logo_data_url"_L1, *logoDataURL);
    return changeWorkspace(payload, u"Không lưu được branding: "_s);
}

QFuture<CloudResult> SupabaseClient::saveTechnicianProfile(const QString &name, const QString &itemIDsText) const
{
    // Only what is empty as typed is dropped: a blank between two commas goes out as an empty id.
    QJsonArray ids;
    const QStringList pieces = itemIDsText.split(u',', Qt::SkipEmptyParts);
    for (const QString &piece : pieces)
        ids.append(piece.trimmed());
    QJsonObject payload{{u"action"_s, u"save_profile"_s}, {u"name"_s, name.trimmed()}};
    if (!ids.isEmpty())
        payload.insert("item_ids"_L1, ids);
    return changeWorkspace(payload, u"Không lưu được profile: "_s);
}

QFuture<CloudResult> SupabaseClient::changeWorkspace(const QJsonObject &payload, const QString &words) const
{
    if (!m_config)
        return unconfigured();
    return callFunction(u"/manage-technician-workspace"_s, payload)
        .then([this, words](const JsonAnswer &answer) {
            return answer.ok ? syncTechnicianWorkspace() : QtFuture::makeReadyFuture(failure(words, answer.body));
        })
        .unwrap();
}

QFuture<JsonAnswer> SupabaseClient::callFunction(const QString &path, const QJsonObject &payload) const
{
    return requestJSON(m_config->functionsURL + path, "POST", payload);
}

} // namespace Tavelo
