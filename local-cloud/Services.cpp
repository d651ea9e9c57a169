#include "Services.h"

#include "StateFile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>
#include <QUuid>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

ServiceAnswer refusal(int status, const QString &code, const QString &detail)
{
    return {status, QJsonObject{{u"error"_s, code}, {u"detail"_s, detail}}};
}

ServiceAnswer badBody(const QString &detail)
{
    return refusal(400, u"invalid_body"_s, detail);
}

/// The names of the query's items in their order, with commas between them.
QString namesIn(const QByteArray &query)
{
    QStringList names;
    for (const auto &[name, value] : QUrlQuery(QString::fromLatin1(query)).queryItems())
        names.append(name);
    return names.join(u',');
}

QString valueIn(const QByteArray &query, const QString &name)
{
    return QUrlQuery(QString::fromLatin1(query)).queryItemValue(name, QUrl::FullyDecoded);
}

const QString catalogColumns = u"item_id,name,group_key,kind,packages,description,is_active,sort_order,updated_at"_s;

/// What is wrong with the keys of an object: one that is missing, is no text, or is not known; nothing if all is well.
/// `others` are known, and whoever asks looks at their values.
std::optional<QString> faultIn(const QJsonObject &object, const QStringList &texts, const QStringList &others = {})
{
    for (const QString &key : texts) {
        if (!object.value(key).isString())
            return key + u" must be a text"_s;
    }
    for (const QString &key : object.keys()) {
        if (!texts.contains(key) && !others.contains(key))
            return key + u" is not known"_s;
    }
    return std::nullopt;
}

bool isListOfTexts(const QJsonValue &value)
{
    const QJsonArray list = value.toArray();
    return value.isArray() &&
           std::all_of(list.begin(), list.end(), [](const QJsonValue &element) { return element.isString(); });
}

} // namespace

QByteArray ReceivedRequest::path() const
{
    return target.split('?').constFirst();
}

QByteArray ReceivedRequest::query() const
{
    return target.mid(path().size() + 1);
}

QByteArray ReceivedRequest::header(const QByteArray &name) const
{
    const auto found = std::find_if(headers.begin(), headers.end(), [&](const auto &header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headers.end() ? QByteArray() : found->second;
}

Services::Services(QString folder, QByteArray anonKey) : m_folder(std::move(folder)), m_anonKey(std::move(anonKey))
{
    const std::pair<QString, QJsonValue> beginnings[] = {
        {u"release-policy.json"_s, QJsonObject{{u"update_required"_s, false}, {u"update_available"_s, false}}},
        {u"app_catalog.json"_s, QJsonArray()},
        {u"business.json"_s, QJsonObject{{u"organization"_s, QJsonObject{{u"name"_s, u"Local organisation"_s}}},
                                         {u"policies"_s, QJsonArray()}}},
        {u"workspace.json"_s, QJsonObject{{u"workspace"_s, QJsonObject{{u"display_name"_s, u"Local repair shop"_s}}},
                                          {u"profiles"_s, QJsonArray()}}},
    };
    QDir().mkpath(file(u"reports"_s));
    for (const auto &[name, value] : beginnings) {
        if (!QFile::exists(file(name)))
            StateFile::write(file(name), value);
    }
}

ServiceAnswer Services::answer(const ReceivedRequest &request) const
{
    const QByteArray path = request.path();
    const bool isRead = path == "/functions/v1/release-policy" || path == "/rest/v1/app_catalog";
    const bool isCall = path == "/functions/v1/upload-install-report" ||
                        path == "/functions/v1/business-device-config" ||
                        path == "/functions/v1/manage-technician-workspace";
    if (!isRead && !isCall)
        return refusal(404, u"not_found"_s, QString::fromUtf8(path));
    if (request.header("apikey") != m_anonKey || request.header("Authorization") != "Bearer " + m_anonKey)
        return refusal(401, u"unauthorized"_s, u"apikey and Authorization must carry the anon key"_s);
    if (request.header("Accept") != "application/json")
        return refusal(406, u"not_acceptable"_s, u"Accept must be application/json"_s);
    if (request.method != (isRead ? "GET" : "POST"))
        return refusal(405, u"method_not_allowed"_s, QString::fromUtf8(request.method));
    if (isRead) {
        if (!request.body.isEmpty() || !request.header("Content-Type").isEmpty())
            return badBody(u"a GET has no body"_s);
        return path == "/rest/v1/app_catalog" ? catalog(request) : releasePolicy(request);
    }
    if (!request.query().isEmpty())
        return refusal(400, u"invalid_query"_s, u"there is none"_s);
    if (request.header("Content-Type") != "application/json")
        return refusal(415, u"unsupported_media_type"_s, u"Content-Type must be application/json"_s);
    const QJsonDocument document = QJsonDocument::fromJson(request.body);
    if (!document.isObject())
        return badBody(u"not a JSON object"_s);
    if (path.endsWith("/upload-install-report"))
        return installReport(document.object());
    return path.endsWith("/business-device-config") ? businessConfig(document.object()) : workspace(document.object());
}

ServiceAnswer Services::releasePolicy(const ReceivedRequest &request) const
{
    const QByteArray query = request.query();
    if (namesIn(query) != u"product,platform,channel,current_version,current_build,app_version" ||
        valueIn(query, u"product"_s) != u"mac_deskrig" || valueIn(query, u"platform"_s) != u"macos" ||
        valueIn(query, u"channel"_s) != u"stable" || valueIn(query, u"current_version"_s).isEmpty() ||
        valueIn(query, u"app_version"_s).isEmpty())
        return refusal(400, u"invalid_query"_s, QString::fromUtf8(query));
    return {200, StateFile::read(file(u"release-policy.json"_s))};
}

ServiceAnswer Services::catalog(const ReceivedRequest &request) const
{
    const QByteArray query = request.query();
    if (namesIn(query) != u"select,order" || valueIn(query, u"select"_s) != catalogColumns ||
        valueIn(query, u"order"_s) != u"sort_order.asc")
        return refusal(400, u"invalid_query"_s, QString::fromUtf8(query));
    QList<QJsonObject> rows;
    const QJsonArray kept = StateFile::read(file(u"app_catalog.json"_s)).toArray();
    const QStringList columns = catalogColumns.split(u',');
    for (const QJsonValue row : kept) {
        QJsonObject selected;
        for (const QString &column : columns)
            selected.insert(column, row.toObject().contains(column) ? row.toObject().value(column) : QJsonValue());
        rows.append(selected);
    }
    // As the database does: what has no place comes last.
    std::stable_sort(rows.begin(), rows.end(), [](const QJsonObject &a, const QJsonObject &b) {
        const QJsonValue left = a["sort_order"_L1], right = b["sort_order"_L1];
        return left.isDouble() && (!right.isDouble() || left.toDouble() < right.toDouble());
    });
    QJsonArray answer;
    for (const QJsonObject &row : rows)
        answer.append(row);
    return {200, answer};
}

ServiceAnswer Services::installReport(const QJsonObject &report) const
{
    if (const auto fault = faultIn(report, {u"app_version"_s}, {u"summary"_s, u"items"_s}))
        return badBody(*fault);
    if (!report["items"_L1].isArray())
        return badBody(u"items must be a list"_s);
    const QStringList columns{u"item_id"_s, u"name"_s, u"group_key"_s, u"kind"_s, u"status"_s};
    const QJsonArray items = report["items"_L1].toArray();
    int installed = 0;
    for (const QJsonValue item : items) {
        if (!item.isObject())
            return badBody(u"each of the items must be an object"_s);
        if (const auto fault = faultIn(item.toObject(), columns))
            return badBody(*fault);
        installed += item["status"_L1] == u"installed"_s ? 1 : 0;
    }
    if (report["summary"_L1] != QJsonObject{{u"installed"_s, installed}, {u"total"_s, items.size()}})
        return badBody(u"summary does not count the items"_s);
    const QString runID = QUuid::createUuid().toString(QUuid::WithoutBraces);
    StateFile::write(file(u"reports/"_s + runID + u".json"_s), report);
    return {200, QJsonObject{{u"run_id"_s, runID}}};
}

ServiceAnswer Services::businessConfig(const QJsonObject &request) const
{
    if (const auto fault = faultIn(request, {u"action"_s, u"department"_s, u"asset_code"_s}))
        return badBody(*fault);
    QJsonObject state = StateFile::read(file(u"business.json"_s)).toObject();
    const QString action = request["action"_L1].toString();
    if (action == u"update") {
        state.insert(u"device"_s, QJsonObject{{u"department"_s, request["department"_L1]},
                                              {u"asset_code"_s, request["asset_code"_L1]}});
        StateFile::write(file(u"business.json"_s), state);
    } else if (action != u"fetch") {
        return badBody(u"unknown action"_s);
    } else if (request["department"_L1] != QString() || request["asset_code"_L1] != QString()) {
        return badBody(u"department and asset_code must be empty in a fetch"_s);
    }
    return {200, state};
}

ServiceAnswer Services::workspace(const QJsonObject &request) const
{
    QJsonObject state = StateFile::read(file(u"workspace.json"_s)).toObject();
    const QString action = request["action"_L1].toString();
    if (action == u"get") {
        if (const auto fault = faultIn(request, {u"action"_s}))
            return badBody(*fault);
        return {200, state};
    }
    QJsonObject change = request;
    change.remove(u"action"_s);
    if (action == u"update_branding") {
        if (const auto fault = faultIn(change, {u"display_name"_s}, {u"logo_data_url"_s}))
            return badBody(*fault);
        if (change.contains("logo_data_url"_L1) && !change["logo_data_url"_L1].isString())
            return badBody(u"logo_data_url must be a text"_s);
        QJsonObject branding = state["workspace"_L1].toObject();
        for (const QString &key : change.keys())
            branding.insert(key, change.value(key));
        state.insert(u"workspace"_s, branding);
    } else if (action == u"save_profile") {
        if (const auto fault = faultIn(change, {u"name"_s}, {u"item_ids"_s}))
            return badBody(*fault);
        if (change.contains("item_ids"_L1) &&
            (!isListOfTexts(change["item_ids"_L1]) || change["item_ids"_L1].toArray().isEmpty()))
            return badBody(u"item_ids must be a list of texts, and not an empty one"_s);
        QJsonArray profiles = state["profiles"_L1].toArray();
        profiles.append(change);
        state.insert(u"profiles"_s, profiles);
    } else {
        return badBody(u"unknown action"_s);
    }
    StateFile::write(file(u"workspace.json"_s), state);
    return {200, QJsonObject{{u"ok"_s, true}}};
}

} // namespace Tavelo
