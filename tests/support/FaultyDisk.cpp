// The functions below take the place of the C library's for the whole test, its shared libraries included, since the
// program that runs comes first where a name is looked up.

#include "FaultyDisk.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Tavelo::FaultyDisk;

struct State {
    std::string folder;
    FaultyDisk::Fault fault;
    std::atomic<int> count = 0;
};
std::atomic<State *> current = nullptr;

enum class Need { nothing, space };

template <typename Function>
Function *next(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

std::string pathOf(int descriptor)
{
    char path[4096];
    const ssize_t length =
        current ? ::readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path, sizeof path) : 0;
    return {path, static_cast<size_t>(std::max<ssize_t>(length, 0))};
}

std::string pathIn(int folder, const char *path)
{
    if (!current) // then nothing is allocated, as right after a fork
        return {};
    return *path == '/' ? path : folder == AT_FDCWD ? std::string() : pathOf(folder) + '/' + path;
}

/// Counts the call. Gives the error that it is to end with, or 0; `half` is done before that.
template <typename Half = void (*)()>
int failure(
    const std::string &path, Need need = Need::nothing, const Half &half = [] {})
{
    State *state = current;
    if (!state || !path.starts_with(state->folder))
        return 0;
    const auto [kind, code, at] = state->fault;
    const int number = ++state->count;
    const bool isFull = kind == FaultyDisk::Kind::full;
    if (isFull ? number < at || need != Need::space : number != at)
        return 0;
    half();
    if (kind == FaultyDisk::Kind::death)
        ::_exit(FaultyDisk::deathStatus);
    return code;
}

int failing(int code)
{
    errno = code;
    return -1;
}

/// The C library's own call with these arguments, unless it is to fail.
template <typename... Arguments>
int unlessFailing(int code, const char *name, Arguments... arguments)
{
    return code != 0 ? failing(code) : next<int(Arguments...)>(name)(arguments...);
}

int openIn(int folder, const char *path, int flags, va_list arguments)
{
    const mode_t mode = flags & (O_CREAT | __O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
    const int code = failure(pathIn(folder, path), flags & O_CREAT ? Need::space : Need::nothing);
    return code != 0 ? failing(code) : next<int(int, const char *, int, ...)>("openat")(folder, path, flags, mode);
}

} // namespace

namespace Tavelo
{

FaultyDisk::FaultyDisk(const QString &folder, const Fault &fault)
{
    current = new State{QFile::encodeName(folder).toStdString(), fault};
}

FaultyDisk::~FaultyDisk()
{
    delete current.exchange(nullptr);
}

bool FaultyDisk::struck() const
{
    return current.load()->count >= current.load()->fault.at;
}

} // namespace Tavelo

extern "C" {

int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int descriptor = openIn(AT_FDCWD, path, flags, arguments);
    va_end(arguments);
    return descriptor;
}

/// The same, since files have sizes of 64 bits here.
int open64(const char *path, int flags, ...) __attribute__((alias("open")));

int openat(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int descriptor = openIn(folder, path, flags, arguments);
    va_end(arguments);
    return descriptor;
}

int mkstemp(char *path)
{
    return unlessFailing(failure(path, Need::space), "mkstemp", path);
}

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    auto *real = next<ssize_t(int, const void *, size_t)>("write");
    const int code = failure(pathOf(descriptor), Need::space,
                             [&] { [[maybe_unused]] const auto done = real(descriptor, bytes, size / 2); });
    return code != 0 ? failing(code) : real(descriptor, bytes, size);
}

int fsync(int descriptor)
{
    return unlessFailing(failure(pathOf(descriptor), Need::space), "fsync", descriptor);
}

int close(int descriptor)
{
    const auto closing = [&] { unlessFailing(0, "close", descriptor); };
    return unlessFailing(failure(pathOf(descriptor), Need::nothing, closing), "close", descriptor);
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return unlessFailing(failure(pathOf(descriptor)), "fchmod", descriptor, mode);
}

int chmod(const char *path, mode_t mode) noexcept
{
    return unlessFailing(failure(path), "chmod", path, mode);
}

int fchmodat(int folder, const char *path, mode_t mode, int flags) noexcept
{
    return unlessFailing(failure(pathIn(folder, path)), "fchmodat", folder, path, mode, flags);
}

int rename(const char *from, const char *to) noexcept
{
    return unlessFailing(failure(to), "rename", from, to);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return unlessFailing(failure(path, Need::space), "mkdir", path, mode);
}

int unlink(const char *path) noexcept
{
    return unlessFailing(failure(path), "unlink", path);
}

int unlinkat(int folder, const char *path, int flags) noexcept
{
    return unlessFailing(failure(pathIn(folder, path)), "unlinkat", folder, path, flags);
}
}
