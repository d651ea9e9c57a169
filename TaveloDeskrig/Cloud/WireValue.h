#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// How values of the wire are read. They are untrusted: any type may stand in any place, and no reading fails.
namespace Tavelo::WireValue
{

/// The JSON array or object that the bytes hold; otherwise the bytes as text, so that a plain error page reaches the
/// user; nothing for no bytes and for bytes that are not UTF-8.
std::optional<QJsonValue> parseJSON(const QByteArray &data);

/// A Boolean as it is, a number unless it is zero, and the texts "true", "1" and "yes" in any case are true.
bool boolean(const QJsonValue &value);

/// A text as it is, and `fallback` for null and for what is missing. Any other value as JSON writes it, so that a
/// number arrives as its digits.
QString string(const QJsonValue &value, const QString &fallback = {});

/// The first of the keys' values, read as `string`, that is not empty; empty if there is none.
QString firstString(const QJsonObject &dict, const QStringList &keys);

/// The objects of an array that holds nothing else.
std::optional<QList<QJsonObject>> objects(const QJsonValue &value);

/// What the body of a failed request tells the user: the sentence for its `error`, or that code itself, with its
/// `detail`; a body that is not an object as it is.
QString responseErrorText(const QJsonValue &body);

} // namespace Tavelo::WireValue
