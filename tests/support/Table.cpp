#include "Table.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace Tavelo
{

void rowsOfTable(const QString &file, std::initializer_list<const char *> columns)
{
    QFile table(QStringLiteral(TABLES "/") + file);
    if (!table.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(table.fileName()));
    for (const char *column : columns)
        QTest::addColumn<QString>(column);
    const QStringList lines = QString::fromUtf8(table.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList cells = line.split(u'|');
        if (line.startsWith(u'#'))
            continue;
        if (cells.size() != static_cast<qsizetype>(columns.size()) + 1)
            qFatal("%s: not a row: %s", qPrintable(file), qPrintable(line));
        QTestData &data = QTest::newRow(qPrintable(cells.constFirst().trimmed()));
        for (const QString &cell : cells.sliced(1))
            data << cell.trimmed().replace(u"␠"_s, u" "_s).replace(u"␊"_s, u"\n"_s);
    }
}

} // namespace Tavelo
