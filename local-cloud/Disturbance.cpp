#include "Disturbance.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace Tavelo
{

std::chrono::milliseconds Disturbance::delay() const
{
    return std::chrono::milliseconds(m_description["delay_ms"_L1].toInteger());
}

std::optional<QByteArray> Disturbance::bytes(const ServiceAnswer &answer) const
{
    if (m_description["drop"_L1].toBool())
        return std::nullopt;
    const QByteArray content = body(answer);
    if (m_description["bare"_L1].toBool())
        return content;
    const int status = m_description["status"_L1].toInt(answer.status);
    QByteArray frame = "HTTP/1.1 " + QByteArray::number(status) + " -\r\n";
    QJsonObject headers{{u"Content-Type"_s, u"application/json"_s},
                        {u"Content-Length"_s, QString::number(content.size())},
                        {u"Connection"_s, u"close"_s}};
    if (status == 204)
        headers.remove("Content-Length"_L1);
    const QJsonObject others = m_description["headers"_L1].toObject();
    for (const QString &name : others.keys())
        headers.insert(name, others.value(name));
    for (const QString &name : headers.keys())
        frame += name.toUtf8() + ": " + headers.value(name).toString().toUtf8() + "\r\n";
    return frame + "\r\n" + content;
}

QByteArray Disturbance::body(const ServiceAnswer &answer) const
{
    QByteArray content;
    if (m_description.contains("body"_L1))
        content = m_description["body"_L1].toString().toUtf8();
    else if (m_description.contains("body_base64"_L1))
        content = QByteArray::fromBase64(m_description["body_base64"_L1].toString().toLatin1());
    else if (answer.body.isArray())
        content = QJsonDocument(answer.body.toArray()).toJson(QJsonDocument::Compact);
    else
        content = QJsonDocument(answer.body.toObject()).toJson(QJsonDocument::Compact);
    return content.repeated(m_description["repeat"_L1].toInteger(1));
}

} // namespace Tavelo
