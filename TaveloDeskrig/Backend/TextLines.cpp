#include "TextLines.h"

#include <QRegularExpression>

namespace Tavelo
{

QStringList nonEmptyLines(const QString &text)
{
    static const QRegularExpression newline(QStringLiteral("[\\n\\x0B\\f\\r\\x{85}\\x{2028}\\x{2029}]"));
    return text.split(newline, Qt::SkipEmptyParts);
}

} // namespace Tavelo
