#pragma once

#include "Clock.h"
#include "OperationLog.h"
#include "PlatformServices.h"

#include <QList>
#include <QPointer>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <mutex>

namespace Tavelo
{

/// A clock that stands still until it is moved; sleeping moves it and takes no time.
class StillClock : public Clock
{
public:
    QDateTime now() const override
    {
        const std::lock_guard lock(m_mutex);
        return m_now;
    }
    void sleep(std::chrono::milliseconds duration) const override
    {
        const std::lock_guard lock(m_mutex);
        m_now = m_now.addMSecs(duration.count());
    }

    void callLater(std::chrono::milliseconds delay, QObject *context, std::function<void()> call) const override
    {
        m_waiting.append({now().addMSecs(delay.count()), context, std::move(call)});
    }

    /// Moves the time, and makes the calls that fall due, at their times and in their order.
    void advance(std::chrono::milliseconds duration) const;

private:
    struct Call {
        QDateTime due;
        QPointer<QObject> context;
        std::function<void()> call;
    };
    mutable std::mutex m_mutex; ///< Work in the background looks at the clock too.
    mutable QDateTime m_now{QDate(2026, 1, 2), QTime(3, 4, 5)};
    mutable QList<Call> m_waiting; ///< Of the main thread.
};

/// A temporary folder of the host that is to be a Mac, whose user is `technician`; nothing lies in it yet.
class MacFolder
{
public:
    MacFolder();

    /// Where the Mac lies on the host.
    QString folder() const { return m_folder.path(); }
    QString hostPath(const QString &macPath) const { return folder() + macPath; }
    QString home() const { return QStringLiteral("/Users/technician"); }

    /// Writes a file, with the folders above it.
    void write(const QString &macPath, const QByteArray &bytes, bool executable = false) const;

    /// Bytes of a file; empty if there is none.
    QByteArray contents(const QString &macPath) const;
    bool exists(const QString &macPath) const;

    /// Permission bits of a file, as `0600`.
    int mode(const QString &macPath) const;

    /// The environment that the services are made from, and the program runs in; to be changed before.
    QProcessEnvironment environment;

    /// Real services on this Mac, with a `StillClock`.
    PlatformServices services() const;

private:
    QTemporaryDir m_folder;
};

/// An empty Mac on macOS 15.1 with the network answering, for a test to furnish with files and small tools of its own.
class TemporaryMac : public MacFolder
{
public:
    TemporaryMac();

    /// A program: the lines of a POSIX shell script. `$ROOT` in it is the Mac's folder on the host, `$last` the last
    /// argument. Each start is kept for `calls`.
    void addTool(const QString &macPath, const QByteArray &script) const;

    /// How the tools were started so far, in order: name and arguments with a `|` between them. Those of one tool,
    /// where `ofTool` (a name, or the beginning of a call) is given.
    QStringList calls(const QString &ofTool = QString()) const;

    /// Runs a shell script in the Mac's folder, for furniture that is most easily told so.
    void furnish(const QString &script) const;

    /// A bundle with an Info.plist that holds this identifier.
    void addApp(const QString &macPath, const QString &identifier) const;

    void setVersion(const QString &version) const;
};

/// What a front end would have heard. Deliver what is queued with the main queue's `service()`.
struct Recorder {
    QStringList lines; ///< As logged, with their time.
    QList<InstallProgressUpdate> progress;

    UiLog uiLog();
    UiProgress uiProgress();

    /// The lines without their "[HH:mm:ss] ".
    QStringList texts() const;
};

} // namespace Tavelo
