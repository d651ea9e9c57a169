#include "SystemFacts.h"

#include "FileManager.h"
#include "PropertyList.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <memory>

#include <netdb.h>
#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>
#ifdef Q_OS_MACOS
#include <sys/sysctl.h>
#endif

namespace Tavelo
{

namespace
{

bool listedInHostsFile(const QByteArray &hosts, const QString &hostName)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QStringList lines = QString::fromUtf8(hosts).split(u'\n');
    for (const QString &line : lines) {
        const QStringList words = line.section(u'#', 0, 0).split(blanks, Qt::SkipEmptyParts);
        if (words.size() > 1 && words.mid(1).contains(hostName, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

/// Names that make a folder of their own below `/Users`, and nothing else.
bool isFolderName(const QString &name)
{
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/');
}

} // namespace

SystemFacts::SystemFacts(std::shared_ptr<const FileManager> files, const QProcessEnvironment &environment)
    : m_files(std::move(files)), m_environment(environment)
{
    // The library decodes a value when it is first asked for it, and keeps it. Done now, so that threads may share it.
    const QStringList names = m_environment.keys();
    for (const QString &name : names)
        m_environment.value(name);
}

SystemFacts::~SystemFacts() = default;

QString SystemFacts::workingFolder() const
{
    return m_files->root().isSimulated() ? QStringLiteral("/") : QDir::currentPath();
}

OSVersion SystemFacts::osVersion() const
{
    const QVariantMap dictionary =
        PropertyList::readDictionary(*m_files, QStringLiteral("/System/Library/CoreServices/SystemVersion.plist"));
    const QStringList parts = dictionary.value(QStringLiteral("ProductVersion")).toString().split(u'.');
    return {parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt()};
}

QString SystemFacts::machineName() const
{
#ifdef Q_OS_MACOS
    size_t length = 0;
    if (::sysctlbyname("hw.machine", nullptr, &length, nullptr, 0) != 0)
        return {};
    QByteArray name(static_cast<qsizetype>(length), '\0');
    if (::sysctlbyname("hw.machine", name.data(), &length, nullptr, 0) != 0)
        return {};
    return QString::fromUtf8(name.constData());
#else
    struct utsname info;
    if (::uname(&info) != 0)
        return {};
    const QString name = QString::fromUtf8(info.machine);
    return name == u"aarch64" ? QStringLiteral("arm64") : name;
#endif
}

bool SystemFacts::resolves(const QString &hostName) const
{
    if (m_files->root().isSimulated())
        return listedInHostsFile(m_files->contents(QStringLiteral("/etc/hosts")).value_or(QByteArray()), hostName);
    addrinfo *addresses = nullptr;
    if (::getaddrinfo(hostName.toUtf8().constData(), nullptr, nullptr, &addresses) != 0)
        return false;
    ::freeaddrinfo(addresses);
    return true;
}

bool SystemFacts::isRoot() const
{
    return ::geteuid() == 0;
}

std::optional<QString> SystemFacts::computerName() const
{
    QVariant value = PropertyList::readDictionary(
        *m_files, QStringLiteral("/Library/Preferences/SystemConfiguration/preferences.plist"));
    for (const auto &key : {QStringLiteral("System"), QStringLiteral("System"), QStringLiteral("ComputerName")})
        value = value.toMap().value(key);
    const QString name = value.toString();
    return value.typeId() == QMetaType::QString && !name.isEmpty() ? std::optional(name) : std::nullopt;
}

QString SystemFacts::homeFolder() const
{
    if (m_files->root().isSimulated()) {
        const QString user = m_environment.value(QStringLiteral("USER"));
        return QStringLiteral("/Users/") + (isFolderName(user) ? user : QStringLiteral("technician"));
    }
    const QString home = m_environment.value(QStringLiteral("HOME"));
    if (home.startsWith(u'/'))
        return QDir::cleanPath(home);
    const passwd *entry = ::getpwuid(::getuid());
    return entry ? QFile::decodeName(entry->pw_dir) : QStringLiteral("/");
}

} // namespace Tavelo
