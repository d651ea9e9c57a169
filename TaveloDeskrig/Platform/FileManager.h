#pragma once

#include "HostRoot.h"

#include <QByteArray>
#include <QFlags>
#include <QString>

#include <functional>
#include <optional>

#include <sys/types.h>

namespace Tavelo
{

/// Why a file operation failed. The text is the system's own, as `strerror` words it.
struct FileError {
    int code = 0; ///< An `errno` value; 0 means no error.
    QString text;

    /// The file or folder was not there.
    bool isNothingThere() const;

    /// The error, or EIO where the system told none.
    FileError orInputOutput() const;
};

/// An entry met while a folder is enumerated.
struct FolderEntry {
    QString path;          ///< Mac path.
    QString name;          ///< Last component of the path.
    bool isFolder = false; ///< False for a symbolic link, whatever it points to.
};

/// How to go on after an entry.
enum class Walk { onwards, skipDescendants, stop };

enum class EnumerationOption {
    skipHidden = 1,             ///< Leaves out entries whose name begins with a dot, and what lies below them.
    skipPackageDescendants = 2, ///< Gives an application or another package, but nothing inside it.
};
Q_DECLARE_FLAGS(EnumerationOptions, EnumerationOption)

/// All access to the Mac's files. Every path, in and out, is a Mac path.
///
/// An operation that can fail gives false or nothing, and tells why through `error` where one is passed. Virtual, so
/// that a test can refuse one operation and leave the rest real.
class FileManager
{
public:
    /// The largest file that is read as a whole, in bytes. Nothing that the program reads comes near it.
    static constexpr qint64 maximumFileSize = qint64(256) * 1024 * 1024;

    explicit FileManager(HostRoot root = {});
    virtual ~FileManager();
    Q_DISABLE_COPY_MOVE(FileManager)

    /// These follow symbolic links. Nothing there, or a dangling link, is false.
    virtual bool exists(const QString &path) const;
    virtual bool isFolder(const QString &path) const;
    virtual bool isReadable(const QString &path) const;
    virtual bool isWritable(const QString &path) const;
    /// A regular file that this user may execute.
    virtual bool isExecutableFile(const QString &path) const;

    /// The path with every symbolic link followed and without `.`, `..` and doubled slashes. Where nothing is there,
    /// the path itself without these.
    virtual QString resolvingSymlinks(const QString &path) const;

    /// The whole of a regular file; nothing for a folder, what cannot be read, and a file over `maximumFileSize`
    /// (EFBIG).
    virtual std::optional<QByteArray> contents(const QString &path, FileError *error = nullptr) const;

    /// The same for a file of at most `limit` bytes; nothing for a larger one, which is then not read at all.
    std::optional<QByteArray> contentsUpTo(const QString &path, qint64 limit) const;

    /// Size of a file in bytes; 0 if there is none.
    virtual qint64 size(const QString &path) const;

    /// Creates the folder and its missing parents, with that mode (less the umask). A folder that is there already is a
    /// success and keeps its mode.
    virtual bool createFolder(const QString &path, mode_t mode = 0777, FileError *error = nullptr) const;

    /// Creates an empty file with that mode (less the umask). A file that is there already is an error (EEXIST).
    virtual bool createFile(const QString &path, mode_t mode, FileError *error = nullptr) const;

    /// Adds `bytes` to the end of an existing file with one write, so that lines of several writers never mix. (A full
    /// disk may take a part of them; the rest is an error.) A link is not followed (ELOOP), and only a regular file is
    /// written to.
    virtual bool append(const QString &path, const QByteArray &bytes, FileError *error = nullptr) const;

    /// Replaces the file as a whole: the bytes go to a private temporary file (mode 0600, named `.tavelo-deskrig-` and
    /// six letters) in the same folder, which is given `mode`, synced where the file system can, and renamed. Whatever
    /// happens, the path holds the old file or the new one. A link to a file is replaced, not followed; a folder, or a
    /// link to one, is an error (EISDIR).
    virtual bool writeAtomically(const QString &path, const QByteArray &bytes, mode_t mode,
                                 FileError *error = nullptr) const;

    /// Removes from a folder of the program's own what was left there by a program that was killed within
    /// `writeAtomically`: temporary files that nobody has touched for a day.
    virtual void removeAbandonedTemporaries(const QString &folder) const;

    /// A link to a folder is followed; the mode of what another link leads to stays as it is.
    virtual bool setMode(const QString &path, mode_t mode, FileError *error = nullptr) const;

    /// Removes a file, a link or a folder with all that is in it; links are removed, not followed. Nothing there is an
    /// error (ENOENT).
    virtual bool remove(const QString &path, FileError *error = nullptr) const;

    /// Bytes that this user may still write on the file system of `path`; nothing if it cannot be told.
    virtual std::optional<qint64> freeBytes(const QString &path) const;

    /// Visits what lies below `folder`, depth first and by name within a folder, without following links. A folder that
    /// cannot be read is passed over. False if `folder` itself cannot be read.
    virtual bool enumerate(const QString &folder, EnumerationOptions options,
                           const std::function<Walk(const FolderEntry &)> &visit) const;

    const HostRoot &root() const { return m_root; }

private:
    HostRoot m_root;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(EnumerationOptions)

} // namespace Tavelo
