#include "LocalCloud.h"

#include "Disturbance.h"
#include "StateFile.h"

#include <QHttpServerRequest>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>
#include <QPointer>
#include <QSslCertificate>
#include <QSslKey>
#include <QTcpSocket>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

ReceivedRequest received(const QHttpServerRequest &request)
{
    ReceivedRequest result;
    const char *const method = QMetaEnum::fromType<QHttpServerRequest::Method>().valueToKey(int(request.method()));
    result.method = QByteArray(method).toUpper();
    result.target = request.url().toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
    for (const auto &[name, value] : request.headers())
        result.headers.emplaceBack(name, value);
    result.body = request.body();
    return result;
}

} // namespace

LocalCloud::LocalCloud(const QString &folder, const QByteArray &anonKey, const Certificate &certificate)
    : m_folder(folder), m_services(folder, anonKey)
{
    sslSetup(QSslCertificate(certificate.server), QSslKey(certificate.serverKey, QSsl::Ec));
}

bool LocalCloud::handleRequest(const QHttpServerRequest &request, QTcpSocket *socket)
{
    const ReceivedRequest seen = received(request);
    record(seen);
    QJsonValue disturbances;
    ServiceAnswer answer;
    try {
        disturbances = StateFile::read(m_folder + u"/disturbances.json"_s);
        answer = m_services.answer(seen);
    } catch (const StateFile::Damaged &damaged) {
        const QString name = damaged.path.section(u'/', -1);
        answer = {500, QJsonObject{{u"error"_s, u"damaged_file"_s}, {u"detail"_s, name + u" is not JSON"_s}}};
    }
    const Disturbance disturbance(disturbances[QString::fromUtf8(seen.path())].toObject());
    const std::optional<QByteArray> bytes = disturbance.bytes(answer);
    QTimer::singleShot(disturbance.delay(), socket, [socket, bytes] {
        if (!bytes)
            return socket->abort();
        socket->write(*bytes);
        socket->disconnectFromHost();
    });
    return true;
}

void LocalCloud::missingHandler(const QHttpServerRequest &, QTcpSocket *) {}

void LocalCloud::record(const ReceivedRequest &request) const
{
    QJsonArray headers;
    for (const auto &[name, value] : request.headers)
        headers.append(QJsonArray{QString::fromUtf8(name), QString::fromUtf8(value)});
    const QJsonObject line{{u"method"_s, QString::fromUtf8(request.method)},
                           {u"target"_s, QString::fromUtf8(request.target)},
                           {u"headers"_s, headers},
                           {u"body"_s, QString::fromUtf8(request.body)}};
    StateFile::append(m_folder + u"/requests.jsonl"_s, QJsonDocument(line).toJson(QJsonDocument::Compact));
}

} // namespace Tavelo
