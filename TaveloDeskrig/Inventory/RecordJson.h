#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>

namespace Tavelo
{

/// Reads the fields of one JSON object into a record and remembers whether one of them failed, so that a record reads
/// whole or not at all.
class RecordReader
{
public:
    explicit RecordReader(const QJsonObject &object) : m_object(object) {}

    bool ok() const { return m_ok; }

    /// A required text.
    QString text(QLatin1StringView key)
    {
        const QJsonValue value = m_object.value(key);
        m_ok = m_ok && value.isString();
        return value.toString();
    }

    /// A required raw text, as `parse` understands it.
    template <typename Value>
    Value word(QLatin1StringView key, std::optional<Value> (*parse)(QStringView))
    {
        return kept(parse(text(key))).value_or(Value());
    }

    /// A field that may be missing or null; `read` gives nothing for a value that it does not take.
    template <typename Read>
    auto optional(QLatin1StringView key, Read read) -> decltype(read(QJsonValue()))
    {
        const QJsonValue value = m_object.value(key);
        if (value.isUndefined() || value.isNull())
            return std::nullopt;
        return kept(read(value));
    }

private:
    template <typename Value>
    std::optional<Value> kept(std::optional<Value> value)
    {
        m_ok = m_ok && value.has_value();
        return value;
    }

    const QJsonObject &m_object;
    bool m_ok = true;
};

} // namespace Tavelo
