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

    /// Ends it and starts it again over the same folder.
    void restart(const QStringList &options);

    QString url() const { return m_url; }

    /// Makes this process trust it, as a user's system does that has its authority.
    void trust() const;

    /// Writes a file of its folder: the state of a service.
    void write(const QString &file, const QByteArray &bytes) const;

    /// What goes wrong with every service from now on, as an object of `disturbances.json`; "{}" for nothing.
    void disturb(const QString &disturbance) const;

    /// The requests since the last time, each of three lines: "METHOD TARGET", the headers that are not the library's
    /// own as "NAME: VALUE; …", and the body.
    QStringList takeRequests() const;

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_url;
};

} // namespace Tavelo
