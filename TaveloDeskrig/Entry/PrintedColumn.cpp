#include "PrintedColumn.h"

#include <QTextBoundaryFinder>

namespace Tavelo
{

QString printedColumn(const QString &text, int width)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    qsizetype end = 0;
    while (count < width && finder.toNextBoundary() >= 0) {
        end = finder.position();
        ++count;
    }
    return text.left(end) + QString(width - count, u' ');
}

} // namespace Tavelo
