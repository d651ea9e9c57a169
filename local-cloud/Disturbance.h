#pragma once

#include "Services.h"

#include <QByteArray>
#include <QJsonObject>

#include <chrono>
#include <optional>

namespace Tavelo
{

/// What goes wrong with the answers of one path, as a file tells it (docs/local-cloud.md). An empty one leaves them as
/// they are.
class Disturbance
{
public:
    Disturbance() = default;
    explicit Disturbance(const QJsonObject &description) : m_description(description) {}

    /// How long the answer is held back.
    std::chrono::milliseconds delay() const;

    /// The bytes that are sent in place of the answer before the connection is closed; nothing if it is closed without
    /// a word.
    std::optional<QByteArray> bytes(const ServiceAnswer &answer) const;

private:
    QByteArray body(const ServiceAnswer &answer) const;

    QJsonObject m_description;
};

} // namespace Tavelo
