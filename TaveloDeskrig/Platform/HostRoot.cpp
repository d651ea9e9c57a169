#include "HostRoot.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

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
    const QString folder = environment.value(variableName());
    return HostRoot(folder.trimmed().isEmpty() ? QString() : folder);
}

QString HostRoot::variableName()
{
    return QStringLiteral("TAVELO_MAC_HOST_ROOT");
}

QString HostRoot::hostPath(const QString &macPath) const
{
    if (m_folder.isEmpty())
        return macPath;
    if (!macPath.contains(QStringLiteral("..")))
        return macPath.startsWith(u'/') ? m_folder + macPath : m_folder + u'/' + macPath;
    // As on a Mac, nothing lies above the root.
    QStringList components;
    const QStringList parts = macPath.split(u'/', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (part != u"..")
            components.append(part);
        else if (!components.isEmpty())
            components.removeLast();
    }
    return m_folder + u'/' + components.join(u'/');
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
