#include "HostRoot.h"

#include <QDir>
#include <QFileInfo>

namespace Tavelo
{

HostRoot::HostRoot(const QString &folder)
{
    if (folder.isEmpty())
        return;
    // Resolved once, so that resolved paths below it can be told apart from paths outside.
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    m_folder = canonical.isEmpty() ? QDir::cleanPath(QDir().absoluteFilePath(folder)) : canonical;
}

HostRoot HostRoot::fromEnvironment(const QProcessEnvironment &environment)
{
    return HostRoot(environment.value(QStringLiteral("TAVELO_MAC_HOST_ROOT")));
}

QString HostRoot::hostPath(const QString &macPath) const
{
    if (m_folder.isEmpty())
        return macPath;
    return macPath.startsWith(u'/') ? m_folder + macPath : m_folder + u'/' + macPath;
}

QString HostRoot::macPath(const QString &hostPath) const
{
    if (m_folder.isEmpty())
        return hostPath;
    if (hostPath == m_folder)
        return QStringLiteral("/");
    return hostPath.startsWith(m_folder + u'/') ? hostPath.mid(m_folder.size()) : hostPath;
}

} // namespace Tavelo
