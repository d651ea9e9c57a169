#pragma once

#include <QString>
#include <QStringList>

namespace Tavelo
{

/// The lines of a tool's output, without the empty ones. Every newline character of Unicode ends a line.
QStringList linesOf(const QString &text);

/// The text without control characters and line separators, each run of them becoming one blank, so that no bundle can
/// forge a line of a report.
QString withoutControls(const QString &text);

/// Length as a reader counts it: letters with their accents, not code units.
qsizetype characterCount(const QString &text);

} // namespace Tavelo
