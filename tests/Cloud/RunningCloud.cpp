#include "RunningCloud.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace Tavelo
{

RunningCloud::RunningCloud(const QStringList &options)
{
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

void RunningCloud::write(const QString &file, const QByteArray &bytes) const
{
    QFile target(m_folder.filePath(file));
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(target.fileName()));
}

QStringList RunningCloud::takeRequests() const
{
    static const QStringList ofTheLibrary{u"Host"_s,       u"Content-Length"_s, u"Connection"_s, u"Accept-Encoding"_s,
                                          u"User-Agent"_s, u"Accept-Language"_s};
    QFile file(m_folder.filePath(u"requests.jsonl"_s));
    QStringList lines;
    if (!file.open(QIODevice::ReadWrite))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    while (!file.atEnd()) {
        const QJsonObject seen = QJsonDocument::fromJson(file.readLine()).object();
        lines.append(seen["method"_L1].toString() + u' ' + seen["target"_L1].toString());
        const QJsonArray headers = seen["headers"_L1].toArray();
        for (const QJsonValue header : headers) {
            if (!ofTheLibrary.contains(header[0].toString()))
                lines.append(header[0].toString() + u": "_s + header[1].toString());
        }
        lines.append(seen["body"_L1].toString());
    }
    file.resize(0);
    return lines;
}

} // namespace Tavelo
