#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace Tavelo
{

/// The local cloud on a free port, over a folder of its own.
class RunningCloud
{
public:
    explicit RunningCloud(const QStringList &options = {});
    ~RunningCloud();

    QString url() const { return m_url; }
    QString authority() const { return m_folder.filePath(QStringLiteral("authority.crt")); }

    /// Writes a file of its folder: the state of a service, or what goes wrong.
    void write(const QString &file, const QByteArray &bytes) const;

    /// The requests since the last time: "METHOD TARGET", the headers that are not the library's own as "NAME: VALUE",
    /// and the body, a line each.
    QStringList takeRequests() const;

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_url;
};

} // namespace Tavelo
