#include "Console.h"

#include <QByteArray>

#include <algorithm>
#include <cerrno>

#include <poll.h>
#include <unistd.h>

namespace Tavelo
{

namespace
{

/// Waits for a stream that somebody made non-blocking. False for any other trouble, which is final.
bool becomesReady(int stream, short event)
{
    if (errno == EINTR)
        return true;
    if (errno != EAGAIN && errno != EWOULDBLOCK)
        return false;
    pollfd waiting{stream, event, 0};
    return ::poll(&waiting, 1, -1) > 0 || errno == EINTR;
}

void put(int stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written = ::write(stream, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (written < 0 && !becomesReady(stream, POLLOUT))
            return;
        done += std::max<ssize_t>(written, 0);
    }
}

} // namespace

Console::~Console() = default;

void Console::write(const QString &text) const
{
    put(STDOUT_FILENO, text);
}

void Console::writeError(const QString &text) const
{
    put(STDERR_FILENO, text);
}

std::optional<QString> Console::readLine() const
{
    QByteArray line;
    for (;;) {
        char next = 0;
        const ssize_t count = ::read(STDIN_FILENO, &next, 1);
        if (count < 0 && becomesReady(STDIN_FILENO, POLLIN))
            continue;
        if (count <= 0)
            return line.isEmpty() ? std::nullopt : std::optional(QString::fromUtf8(line));
        if (next == '\n')
            return QString::fromUtf8(line);
        line += next;
    }
}

} // namespace Tavelo
