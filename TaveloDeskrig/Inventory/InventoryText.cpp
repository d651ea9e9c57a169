#include "InventoryText.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

namespace Tavelo
{

QStringList linesOf(const QString &text)
{
    static const QRegularExpression newline(QStringLiteral("[\\n\\x0B\\f\\r\\x{85}\\x{2028}\\x{2029}]"));
    return text.split(newline, Qt::SkipEmptyParts);
}

QString withoutControls(const QString &text)
{
    static const QRegularExpression controls(QStringLiteral("[\\p{Cc}\\p{Zl}\\p{Zp}]+"));
    return QString(text).replace(controls, QStringLiteral(" "));
}

qsizetype characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

} // namespace Tavelo
