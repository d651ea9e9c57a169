#include "WireValue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QUtf8StringView>

using namespace Qt::StringLiterals;

namespace Tavelo::WireValue
{

namespace
{

QString sentence(const QString &code)
{
    return code == u"invalid_email" ? u"Email gửi kèm không hợp lệ."_s : code;
}

} // namespace

std::optional<QJsonValue> parseJSON(const QByteArray &data)
{
    const QJsonDocument document = QJsonDocument::fromJson(data);
    if (document.isObject())
        return document.object();
    if (document.isArray())
        return document.array();
    if (data.isEmpty() || !QUtf8StringView(data).isValidUtf8())
        return std::nullopt;
    return QString::fromUtf8(data);
}

bool boolean(const QJsonValue &value)
{
    if (value.isString()) {
        const QString text = value.toString().toLower();
        return text == u"true" || text == u"1" || text == u"yes";
    }
    return value.toBool() || value.toDouble() != 0;
}

QString string(const QJsonValue &value, const QString &fallback)
{
    if (value.isString())
        return value.toString();
    if (value.isUndefined() || value.isNull())
        return fallback;
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.sliced(1).chopped(1)); // without the brackets
}

QString firstString(const QJsonObject &dict, const QStringList &keys)
{
    for (const QString &key : keys) {
        QString text = string(dict.value(key));
        if (!text.isEmpty())
            return text;
    }
    return {};
}

std::optional<QList<QJsonObject>> objects(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QList<QJsonObject> list;
    const QJsonArray array = value.toArray();
    for (const QJsonValue element : array) {
        if (!element.isObject())
            return std::nullopt;
        list.append(element.toObject());
    }
    return list;
}

QString responseErrorText(const QJsonValue &body)
{
    if (!body.isObject())
        return string(body);
    const QString text = sentence(string(body["error"_L1], u"unknown_error"_s));
    const QString detail = string(body["detail"_L1]);
    return detail.isEmpty() ? text : text + u" Chi tiết: "_s + detail;
}

} // namespace Tavelo::WireValue
