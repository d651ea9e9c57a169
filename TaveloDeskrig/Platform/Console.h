#pragma once

#include <QString>

#include <optional>

namespace Tavelo
{

/// The terminal of the command line: the program's standard streams, in UTF-8.
class Console
{
public:
    Console() = default;
    virtual ~Console();
    Q_DISABLE_COPY_MOVE(Console)

    /// Writes the text as it stands, at once. A stream that nobody reads any more swallows it.
    virtual void write(const QString &text) const;
    virtual void writeError(const QString &text) const;

    /// One line of standard input without its line end; nothing at the end of input. Reads not a byte further, since
    /// the next child inherits the stream.
    virtual std::optional<QString> readLine() const;
};

} // namespace Tavelo
