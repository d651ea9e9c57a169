#include "AppRuntime.h"

#include "SystemFacts.h"

#include <QProcessEnvironment>
#include <QRegularExpression>

namespace Tavelo
{

AppRuntime::AppRuntime(PlatformServices services)
    : m_services(std::move(services)), m_home(m_services.facts->homeFolder())
{
}

QString AppRuntime::appSupportDir() const
{
    return envURL(QStringLiteral("TAVELO_MAC_CONFIG_DIR"),
                  m_home + QStringLiteral("/Library/Application Support/Tavelo Deskrig"));
}

QString AppRuntime::cacheDir() const
{
    return envURL(QStringLiteral("TAVELO_MAC_CACHE_DIR"), m_home + QStringLiteral("/Library/Caches/tavelo-deskrig"));
}

QString AppRuntime::logFile() const
{
    return logDir() + QStringLiteral("/tavelo-deskrig.log");
}

QString AppRuntime::logDir() const
{
    return envURL(QStringLiteral("TAVELO_MAC_LOG_DIR"), m_home + QStringLiteral("/Library/Logs"));
}

QString AppRuntime::shortcutDir() const
{
    return envURL(QStringLiteral("TAVELO_MAC_SHORTCUT_DIR"), m_home + QStringLiteral("/Applications/Tavelo Deskrig"));
}

QString AppRuntime::reportFile() const
{
    return envURL(QStringLiteral("TAVELO_MAC_REPORT_FILE"),
                  appSupportDir() + QStringLiteral("/Reports/tavelo-deskrig-report.txt"));
}

QString AppRuntime::appVersion() const
{
    const QString version = bundleString(QStringLiteral("CFBundleShortVersionString"));
    const QString build = bundleString(QStringLiteral("CFBundleVersion"));
    if (version.isEmpty())
        return QStringLiteral("dev");
    return build.isEmpty() ? version : QStringLiteral("%1 (%2)").arg(version, build);
}

QString AppRuntime::expandingTilde(const QString &path) const
{
    return path == u"~" || path.startsWith(u"~/") ? m_home + path.mid(1) : path;
}

QString AppRuntime::envURL(const QString &name, const QString &fallback) const
{
    const QString value = m_services.facts->environment().value(name);
    if (value.trimmed().isEmpty())
        return fallback;
    QString path = expandingTilde(value);
    if (!path.startsWith(u'/')) {
        const QString workingFolder = m_services.facts->workingFolder();
        if (workingFolder.isEmpty()) // it was removed
            return fallback;
        path.prepend(workingFolder + u'/');
    }
    // Slashes too many would show. What `..` leads to is for the file system to say, since it may follow a link.
    static const QRegularExpression slashes(QStringLiteral("/{2,}"));
    path.replace(slashes, QStringLiteral("/"));
    if (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

QString AppRuntime::bundleString(const QString &key) const
{
    const QVariant value = m_services.ownBundleInfo.value(key);
    return value.typeId() == QMetaType::QString ? value.toString().trimmed() : QString();
}

} // namespace Tavelo
