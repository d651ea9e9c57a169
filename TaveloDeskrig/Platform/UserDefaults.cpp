#include "UserDefaults.h"

#include "FileManager.h"
#include "PropertyList.h"

#include <cerrno>

#ifdef Q_OS_MACOS
#include <QSettings>
#endif

namespace Tavelo
{

namespace
{

constexpr mode_t folderMode = 0700;
constexpr mode_t fileMode = 0600;

bool fail(FileError *error, int code)
{
    if (error)
        *error = {code, qt_error_string(code)};
    return false;
}

#ifdef Q_OS_MACOS
/// The library turns these names into the domain `io.github.tavelo.deskrig`.
class SystemPreferences : public QSettings
{
public:
    SystemPreferences()
        : QSettings(NativeFormat, UserScope, QStringLiteral("tavelo.github.io"), QStringLiteral("deskrig"))
    {
        setFallbacksEnabled(false);
    }

    /// The library swaps dots and slashes in keys.
    static QString key(QString name) { return name.replace(u'.', u'/'); }
};
#endif

} // namespace

UserDefaults::UserDefaults(std::shared_ptr<const FileManager> files, const QString &homeFolder)
    : m_files(std::move(files)), m_folder(homeFolder + QStringLiteral("/Library/Preferences"))
{
}

std::optional<QString> UserDefaults::text(const QString &key) const
{
    const QVariant found = value(key);
    return found.typeId() == QMetaType::QString ? std::optional(found.toString()) : std::nullopt;
}

std::optional<QByteArray> UserDefaults::data(const QString &key) const
{
    const QVariant found = value(key);
    return found.typeId() == QMetaType::QByteArray ? std::optional(found.toByteArray()) : std::nullopt;
}

bool UserDefaults::setText(const QString &key, const QString &value, FileError *error) const
{
    return store(key, value, error);
}

bool UserDefaults::setData(const QString &key, const QByteArray &value, FileError *error) const
{
    return store(key, value, error);
}

bool UserDefaults::remove(const QString &key, FileError *error) const
{
    return !value(key).isValid() || store(key, {}, error);
}

QString UserDefaults::file() const
{
    return m_folder + QStringLiteral("/io.github.tavelo.deskrig.plist");
}

QVariant UserDefaults::value(const QString &key) const
{
#ifdef Q_OS_MACOS
    if (!m_files->root().isSimulated())
        return SystemPreferences().value(SystemPreferences::key(key));
#endif
    return PropertyList::readDictionary(*m_files, file()).value(key);
}

/// Takes the key away where the value is invalid.
bool UserDefaults::store(const QString &key, const QVariant &value, FileError *error) const
{
#ifdef Q_OS_MACOS
    if (!m_files->root().isSimulated()) {
        SystemPreferences preferences;
        if (value.isValid())
            preferences.setValue(SystemPreferences::key(key), value);
        else
            preferences.remove(SystemPreferences::key(key));
        preferences.sync();
        return preferences.status() == QSettings::NoError || fail(error, EIO);
    }
#endif
    FileError reason;
    const std::optional<QByteArray> present = m_files->contents(file(), &reason);
    if (!present && !reason.isNothingThere()) {
        // What cannot be read now may be sound, and must not be lost.
        if (error)
            *error = reason;
        return false;
    }
    const QByteArray bytes = PropertyList::xmlWith(present.value_or(QByteArray()), key, value);
    if (bytes.size() > PropertyList::maximumFileSize)
        return fail(error, EFBIG);
    // Not every character has a place in XML.
    if (PropertyList::parse(bytes).value_or(QVariant()).toMap().value(key) != value)
        return fail(error, EINVAL);
    return m_files->createFolder(m_folder, folderMode, error) &&
           m_files->writeAtomically(file(), bytes, fileMode, error);
}

} // namespace Tavelo
