#include "RunningCloud.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSslConfiguration>

using namespace Qt::StringLiterals;

namespace Tavelo
{

RunningCloud::RunningCloud(const QStringList &options)
{
    restart(options);
}

void RunningCloud::restart(const QStringList &options)
{
    m_process.kill();
    m_process.waitForFinished();
    m_process.start(QStringLiteral(LOCAL_CLOUD), QStringList(m_folder.path()) + options);
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead())
            qFatal("the local cloud did not start: %s", m_process.readAllStandardError().constData());
    }
    m_url = QString::fromUtf8(m_process.readLine()).section(u'=', 1).trimmed();
}

RunningCloud::~RunningCloud()
{
    m_process.kill();
    m_process.waitForFinished();
}

void RunningCloud::trust() const
{
    // This is the system's own store, for this process.
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (!configuration.addCaCertificates(m_folder.filePath(u"authority.crt"_s)))
        qFatal("no authority");
    QSslConfiguration::setDefaultConfiguration(configuration);
}

void RunningCloud::write(const QString &file, const QByteArray &bytes) const
{
    QFile target(m_folder.filePath(file));
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(target.fileName()));
}

void RunningCloud::disturb(const QString &disturbance) const
{
    QStringList entries;
    for (const char *path : {"rest/v1/app_catalog", "functions/v1/release-policy", "functions/v1/upload-install-report",
                             "functions/v1/business-device-config", "functions/v1/manage-technician-workspace"})
        entries.append(u"\"/%1\": %2"_s.arg(QString::fromLatin1(path), disturbance));
    write(u"disturbances.json"_s, u"{%1}"_s.arg(entries.join(u',')).toUtf8());
}

QStringList RunningCloud::takeRequests() const
{
    static const QStringList ofTheLibrary{u"Host"_s,       u"Content-Length"_s, u"Connection"_s, u"Accept-Encoding"_s,
                                          u"User-Agent"_s, u"Accept-Language"_s};
    QFile file(m_folder.filePath(u"requests.jsonl"_s));
    QStringList requests;
    if (!file.open(QIODevice::ReadWrite))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    while (!file.atEnd()) {
        const QJsonObject seen = QJsonDocument::fromJson(file.readLine()).object();
        QStringList headers;
        for (const QJsonValue header : seen["headers"_L1].toArray()) {
            if (!ofTheLibrary.contains(header[0].toString()))
                headers.append(header[0].toString() + u": "_s + header[1].toString());
        }
        requests.append(u"%1 %2\n%3\n%4"_s.arg(seen["method"_L1].toString(), seen["target"_L1].toString(),
                                               headers.join(u"; "_s), seen["body"_L1].toString()));
    }
    file.resize(0);
    return requests;
}

} // namespace Tavelo
