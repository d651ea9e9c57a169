#include "TemporaryMac.h"

#include "PropertyList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <sys/stat.h>

#include <algorithm>

namespace Tavelo
{

void StillClock::advance(std::chrono::milliseconds duration) const
{
    const QDateTime end = now().addMSecs(duration.count());
    const auto setNow = [this](const QDateTime &time) {
        const std::lock_guard lock(m_mutex);
        m_now = time;
    };
    for (;;) {
        const auto next = std::min_element(m_waiting.begin(), m_waiting.end(),
                                           [](const Call &a, const Call &b) { return a.due < b.due; });
        if (next == m_waiting.end() || next->due > end)
            break;
        const Call call = *next;
        m_waiting.erase(next);
        setNow(call.due);
        if (call.context)
            call.call();
    }
    setNow(end);
}

MacFolder::MacFolder()
{
    environment.insert(QStringLiteral("TAVELO_MAC_HOST_ROOT"), folder());
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    environment.insert(QStringLiteral("USER"), QStringLiteral("technician"));
}

void MacFolder::write(const QString &macPath, const QByteArray &bytes, bool executable) const
{
    QDir().mkpath(QFileInfo(hostPath(macPath)).path());
    QFile file(hostPath(macPath));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    if (executable)
        file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
}

QByteArray MacFolder::contents(const QString &macPath) const
{
    QFile file(hostPath(macPath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool MacFolder::exists(const QString &macPath) const
{
    return QFileInfo::exists(hostPath(macPath));
}

int MacFolder::mode(const QString &macPath) const
{
    struct stat info = {};
    return ::stat(QFile::encodeName(hostPath(macPath)).constData(), &info) == 0
               ? static_cast<int>(info.st_mode & 07777U)
               : -1;
}

PlatformServices MacFolder::services() const
{
    PlatformServices services = PlatformServices::make(environment);
    services.clock = std::make_shared<StillClock>();
    return services;
}

TemporaryMac::TemporaryMac()
{
    QDir(folder()).mkpath(QStringLiteral("Applications"));
    QDir(folder()).mkpath(home().mid(1));
    setVersion(QStringLiteral("15.1"));
    write(QStringLiteral("/etc/hosts"), "127.0.0.1 formulae.brew.sh\n");
}

void TemporaryMac::addTool(const QString &macPath, const QByteArray &script) const
{
    write(macPath,
          "#!/bin/sh\nROOT=$TAVELO_MAC_HOST_ROOT\n(IFS='|'; printf '%s\\n' \"${0##*/}|$*\" >>\"$ROOT/calls\")\n"
          "for last; do :; done\n" +
              script + '\n',
          true);
}

QStringList TemporaryMac::calls(const QString &ofTool) const
{
    QStringList calls = QString::fromUtf8(contents(QStringLiteral("/calls"))).split(u'\n', Qt::SkipEmptyParts);
    calls.removeIf([&](const QString &call) { return !ofTool.isEmpty() && !call.startsWith(ofTool + u'|'); });
    return calls;
}

void TemporaryMac::furnish(const QString &script) const
{
    QProcess shell;
    shell.setWorkingDirectory(folder());
    shell.setProcessChannelMode(QProcess::ForwardedChannels);
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-ec"), script});
    if (!shell.waitForFinished() || shell.exitCode() != 0)
        qFatal("cannot furnish: %s", qPrintable(script));
}

void TemporaryMac::addApp(const QString &macPath, const QString &identifier) const
{
    write(macPath + QStringLiteral("/Contents/Info.plist"),
          PropertyList::xml(QVariantMap{{QStringLiteral("CFBundleIdentifier"), identifier}}));
}

void TemporaryMac::setVersion(const QString &version) const
{
    write(QStringLiteral("/System/Library/CoreServices/SystemVersion.plist"),
          PropertyList::xml(QVariantMap{{QStringLiteral("ProductVersion"), version}}));
}

UiLog Recorder::uiLog()
{
    return [this](const QString &line) { lines.append(line); };
}

UiProgress Recorder::uiProgress()
{
    return [this](const InstallProgressUpdate &update) { progress.append(update); };
}

QStringList Recorder::texts() const
{
    QStringList texts;
    for (const QString &line : lines)
        texts.append(line.mid(11));
    return texts;
}

} // namespace Tavelo
