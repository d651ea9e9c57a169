#pragma once

#include <QString>
#include <QStringList>

namespace Tavelo
{

/// The lines of a tool's output, without the empty ones. Every newline character of Unicode ends a line, so that no
/// line holds one.
QStringList nonEmptyLines(const QString &text);

} // namespace Tavelo
