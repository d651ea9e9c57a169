#include "FileManager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Tavelo
{

namespace
{

namespace fs = std::filesystem;

constexpr const char *temporaryPrefix = ".tavelo-deskrig-"; // and six letters

bool fail(FileError *error, int code)
{
    if (error)
        *error = {code, QString::fromLocal8Bit(std::strerror(code))};
    return false;
}

/// An open file that is closed on every path.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

    /// Closes it now, since a full disk on a network volume is told only here.
    bool close() { return ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

bool writeWhole(int descriptor, const QByteArray &bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written = ::write(descriptor, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR)
            return false;
        done += std::max<ssize_t>(written, 0);
    }
    return true;
}

/// Folders that the Finder shows as one file.
bool isPackage(const QString &name)
{
    static const QSet<QString> extensions = {
        QStringLiteral("app"),       QStringLiteral("appex"),       QStringLiteral("bundle"),
        QStringLiteral("component"), QStringLiteral("kext"),        QStringLiteral("mdimporter"),
        QStringLiteral("mpkg"),      QStringLiteral("pkg"),         QStringLiteral("plugin"),
        QStringLiteral("prefpane"),  QStringLiteral("qlgenerator"), QStringLiteral("rtfd"),
        QStringLiteral("saver"),     QStringLiteral("wdgt"),        QStringLiteral("workflow"),
        QStringLiteral("xpc"),
    };
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 && extensions.contains(name.mid(dot + 1).toLower());
}

bool isHidden(const fs::path &hostPath, const QString &name)
{
    if (name.startsWith(u'.'))
        return true;
#ifdef Q_OS_MACOS
    struct stat info;
    return ::lstat(hostPath.c_str(), &info) == 0 && (info.st_flags & UF_HIDDEN) != 0;
#else
    Q_UNUSED(hostPath)
    return false;
#endif
}

/// What one call of `enumerate` carries down the folders.
struct Enumeration {
    EnumerationOptions options;
    const std::function<Walk(const FolderEntry &)> &visit;

    /// The names in the folder, in order; plain texts, since a foreign folder may hold very many.
    static bool readable(const fs::path &hostFolder, std::vector<std::string> &names)
    {
        std::error_code code;
        for (fs::directory_iterator next(hostFolder, code), end; !code && next != end; next.increment(code))
            names.push_back(next->path().filename().native());
        std::sort(names.begin(), names.end());
        return !code;
    }

    /// False to stop the whole enumeration.
    bool walk(const fs::path &hostFolder, const std::vector<std::string> &names, const QString &macFolder) const
    {
        const QString prefix = macFolder.endsWith(u'/') ? macFolder : macFolder + u'/';
        for (const std::string &encodedName : names) {
            const fs::path hostPath = hostFolder / encodedName;
            const QString name = QFile::decodeName(encodedName.c_str());
            if (options.testFlag(EnumerationOption::skipHidden) && isHidden(hostPath, name))
                continue;
            std::error_code ignored;
            const bool isFolder = fs::symlink_status(hostPath, ignored).type() == fs::file_type::directory;
            const FolderEntry found{prefix + name, name, isFolder};
            const Walk step = visit(found);
            if (step == Walk::stop)
                return false;
            if (!isFolder || step == Walk::skipDescendants)
                continue;
            if (options.testFlag(EnumerationOption::skipPackageDescendants) && isPackage(name))
                continue;
            std::vector<std::string> below;
            readable(hostPath, below);
            if (!walk(hostPath, below, found.path))
                return false;
        }
        return true;
    }
};

/// Makes the folder and its missing parents on the host, but not the folder that holds the whole Mac, nor anything
/// above it. Gives 0, or why not.
int makeFolder(const QString &hostPath, const QString &macFolder, mode_t mode)
{
    if (QFileInfo(hostPath).isDir())
        return 0;
    const QString parent = hostPath.left(std::max<qsizetype>(hostPath.lastIndexOf(u'/'), 0));
    if (hostPath == macFolder)
        return ENOENT;
    if (!parent.isEmpty() && QFileInfo::exists(parent) && !QFileInfo(parent).isDir())
        return ENOTDIR;
    if (const int reason = parent.isEmpty() ? 0 : makeFolder(parent, macFolder, mode))
        return reason;
    if (::mkdir(QFile::encodeName(hostPath).constData(), mode) == 0)
        return 0;
    const int reason = errno; // another process may have been quicker
    return reason == EEXIST && QFileInfo(hostPath).isDir() ? 0 : reason;
}

} // namespace

bool FileError::isNothingThere() const
{
    return code == ENOENT;
}

FileError FileError::orInputOutput() const
{
    return code != 0 ? *this : FileError{EIO, QString::fromLocal8Bit(std::strerror(EIO))};
}

FileManager::FileManager(HostRoot root) : m_root(std::move(root)) {}

FileManager::~FileManager() = default;

bool FileManager::exists(const QString &path) const
{
    return QFileInfo::exists(m_root.hostPath(path));
}

bool FileManager::isFolder(const QString &path) const
{
    return QFileInfo(m_root.hostPath(path)).isDir();
}

bool FileManager::isReadable(const QString &path) const
{
    return ::access(QFile::encodeName(m_root.hostPath(path)).constData(), R_OK) == 0;
}

bool FileManager::isWritable(const QString &path) const
{
    return ::access(QFile::encodeName(m_root.hostPath(path)).constData(), W_OK) == 0;
}

bool FileManager::isExecutableFile(const QString &path) const
{
    const QString hostPath = m_root.hostPath(path);
    return QFileInfo(hostPath).isFile() && ::access(QFile::encodeName(hostPath).constData(), X_OK) == 0;
}

QString FileManager::resolvingSymlinks(const QString &path) const
{
    const QString resolved = QFileInfo(m_root.hostPath(path)).canonicalFilePath();
    return resolved.isEmpty() ? QDir::cleanPath(path) : m_root.macPath(resolved);
}

std::optional<QByteArray> FileManager::contents(const QString &path, FileError *error) const
{
    // Not blocking, so that a pipe planted at the path is refused instead of waited for.
    const Descriptor file(
        ::open(QFile::encodeName(m_root.hostPath(path)).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat info;
    if (!file.isOpen() || ::fstat(file.number(), &info) != 0) {
        fail(error, errno);
        return std::nullopt;
    }
    if (!S_ISREG(info.st_mode)) {
        fail(error, S_ISDIR(info.st_mode) ? EISDIR : EINVAL);
        return std::nullopt;
    }
    if (info.st_size > maximumFileSize) {
        fail(error, EFBIG);
        return std::nullopt;
    }
    QFile reader;
    if (!reader.open(file.number(), QIODevice::ReadOnly)) {
        fail(error, EIO);
        return std::nullopt;
    }
    QByteArray bytes = reader.readAll();
    if (reader.error() != QFileDevice::NoError) {
        fail(error, EIO);
        return std::nullopt;
    }
    return bytes;
}

std::optional<QByteArray> FileManager::contentsUpTo(const QString &path, qint64 limit) const
{
    return size(path) <= limit ? contents(path) : std::nullopt;
}

qint64 FileManager::size(const QString &path) const
{
    return QFileInfo(m_root.hostPath(path)).size();
}

bool FileManager::createFolder(const QString &path, mode_t mode, FileError *error) const
{
    const int reason = makeFolder(QDir::cleanPath(m_root.hostPath(path)), m_root.folder(), mode);
    return reason == 0 || fail(error, reason);
}

bool FileManager::createFile(const QString &path, mode_t mode, FileError *error) const
{
    const Descriptor file(
        ::open(QFile::encodeName(m_root.hostPath(path)).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    return file.isOpen() || fail(error, errno);
}

bool FileManager::append(const QString &path, const QByteArray &bytes, FileError *error) const
{
    // A link or a pipe planted at the path would lead the bytes to where another user wants them.
    Descriptor file(::open(QFile::encodeName(m_root.hostPath(path)).constData(),
                           O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
    struct stat info;
    if (!file.isOpen() || ::fstat(file.number(), &info) != 0)
        return fail(error, errno);
    if (!S_ISREG(info.st_mode))
        return fail(error, EINVAL);
    return (writeWhole(file.number(), bytes) && file.close()) || fail(error, errno);
}

bool FileManager::writeAtomically(const QString &path, const QByteArray &bytes, mode_t mode, FileError *error) const
{
    const QByteArray target = QFile::encodeName(m_root.hostPath(path));
    if (isFolder(path))
        return fail(error, EISDIR);
    QByteArray temporary = target.left(target.lastIndexOf('/') + 1) + temporaryPrefix + "XXXXXX";
    Descriptor file(::mkstemp(temporary.data())); // with mode 0600
    if (!file.isOpen())
        return fail(error, errno);
    const auto giveMode = [&] { return mode == 0600 || ::fchmod(file.number(), mode) == 0; };
    const auto sync = [&] { return ::fsync(file.number()) == 0 || errno == EINVAL || errno == ENOTSUP; };
    if (writeWhole(file.number(), bytes) && giveMode() && sync() && file.close() &&
        ::rename(temporary.constData(), target.constData()) == 0)
        return true;
    const int reason = errno;
    ::unlink(temporary.constData());
    return fail(error, reason);
}

void FileManager::removeAbandonedTemporaries(const QString &folder) const
{
    const fs::file_time_type yesterday = fs::file_time_type::clock::now() - std::chrono::hours(24);
    std::error_code code;
    for (fs::directory_iterator next(QFile::encodeName(m_root.hostPath(folder)).constData(), code), end;
         !code && next != end; next.increment(code)) {
        const std::string name = next->path().filename().native();
        std::error_code reason;
        if (name.starts_with(temporaryPrefix) && name.size() == std::strlen(temporaryPrefix) + 6 &&
            next->symlink_status(reason).type() == fs::file_type::regular &&
            next->last_write_time(reason) < yesterday && !reason)
            fs::remove(next->path(), reason);
    }
}

bool FileManager::setMode(const QString &path, mode_t mode, FileError *error) const
{
    const QByteArray hostPath = QFile::encodeName(m_root.hostPath(path));
    if (isFolder(path)) // the slash keeps it one: what a link leads to by now is a folder, or nothing is done
        return ::chmod((hostPath + '/').constData(), mode) == 0 || fail(error, errno);
    return ::fchmodat(AT_FDCWD, hostPath.constData(), mode, AT_SYMLINK_NOFOLLOW) == 0 ||
           fail(error, errno == EOPNOTSUPP ? ELOOP : errno); // Linux cannot set a link's mode
}

bool FileManager::remove(const QString &path, FileError *error) const
{
    std::error_code code;
    const auto removed = fs::remove_all(QFile::encodeName(m_root.hostPath(path)).constData(), code);
    if (code)
        return fail(error, code.value());
    return removed > 0 || fail(error, ENOENT);
}

std::optional<qint64> FileManager::freeBytes(const QString &path) const
{
    struct statvfs info;
    if (::statvfs(QFile::encodeName(m_root.hostPath(path)).constData(), &info) != 0)
        return std::nullopt;
    // Some file systems that have no end say so with the largest number.
    const auto blockSize = std::max<quint64>(info.f_frsize, 1);
    const quint64 countable = static_cast<quint64>(std::numeric_limits<qint64>::max()) / blockSize;
    return static_cast<qint64>(std::min<quint64>(info.f_bavail, countable) * blockSize);
}

bool FileManager::enumerate(const QString &folder, EnumerationOptions options,
                            const std::function<Walk(const FolderEntry &)> &visit) const
{
    const Enumeration enumeration{options, visit};
    const fs::path hostFolder = QFile::encodeName(m_root.hostPath(folder)).constData();
    std::vector<std::string> names;
    if (!Enumeration::readable(hostFolder, names))
        return false;
    enumeration.walk(hostFolder, names, folder);
    return true;
}

} // namespace Tavelo
