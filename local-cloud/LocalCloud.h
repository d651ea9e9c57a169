#pragma once

#include "Certificate.h"
#include "Services.h"

#include <QAbstractHttpServer>
#include <QByteArray>
#include <QString>

namespace Tavelo
{

/// The services behind HTTPS. Every request is written down in `requests.jsonl` of the folder, and `disturbances.json`
/// says which answers go wrong.
class LocalCloud : public QAbstractHttpServer
{
public:
    LocalCloud(const QString &folder, const QByteArray &anonKey, const Certificate &certificate);

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override;
    void missingHandler(const QHttpServerRequest &request, QTcpSocket *socket) override;

private:
    void record(const ReceivedRequest &request) const;

    QString m_folder;
    Services m_services;
};

} // namespace Tavelo
