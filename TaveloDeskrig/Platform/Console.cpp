#include "Console.h"

#include <QByteArray>

#include <cerrno>
#include <cstdio>

#include <unistd.h>

namespace Tavelo
{

namespace
{

void put(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

Console::~Console() = default;

void Console::write(const QString &text) const
{
    put(stdout, text);
}

void Console::writeError(const QString &text) const
{
    put(stderr, text);
}

std::optional<QString> Console::readLine() const
{
    QByteArray line;
    for (;;) {
        char next = 0;
        const ssize_t count = ::read(STDIN_FILENO, &next, 1);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return line.isEmpty() ? std::nullopt : std::optional(QString::fromUtf8(line));
        if (next == '\n')
            return QString::fromUtf8(line);
        line += next;
    }
}

} // namespace Tavelo
