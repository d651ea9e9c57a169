#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

namespace Tavelo
{

class FileManager;
struct FileError;

/// The user's own settings of the program, by key. Each call looks at what is stored at that moment, so that another
/// process's change is seen; of two processes that write at the same moment, one may undo what the other has changed.
///
/// On this machine, where it is a Mac, they are the system's preferences of the program's bundle identifier. On any
/// other, and on a simulated Mac, they are the property list `~/Library/Preferences/io.github.tavelo.deskrig.plist`
/// with mode 0600: whole at any moment, with the values of other programs' making left as they are. A damaged file
/// holds nothing, and the next write replaces it.
class UserDefaults
{
public:
    /// `homeFolder` is a Mac path.
    UserDefaults(std::shared_ptr<const FileManager> files, const QString &homeFolder);

    /// The value of the key; nothing where there is none or it is of another type.
    std::optional<QString> text(const QString &key) const;
    std::optional<QByteArray> data(const QString &key) const;

    /// Sets the value, in place of one of whatever type. False if it could not be stored, or is one that XML cannot
    /// hold (EINVAL, EFBIG); the settings are then as they were.
    bool setText(const QString &key, const QString &value, FileError *error = nullptr) const;
    bool setData(const QString &key, const QByteArray &value, FileError *error = nullptr) const;

    /// Takes the key away. One that is not there is a success, and nothing is written.
    bool remove(const QString &key, FileError *error = nullptr) const;

private:
    QString file() const;
    QVariant value(const QString &key) const;
    bool store(const QString &key, const QVariant &value, FileError *error) const;

    std::shared_ptr<const FileManager> m_files;
    QString m_folder;
};

} // namespace Tavelo
