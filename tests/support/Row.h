#pragma once

#include <QTest>

namespace Tavelo
{

/// The columns of a test's data: `columns<QString, int>("text", "length")`.
template <typename... Cells, typename... Names>
void columns(Names... names)
{
    (QTest::addColumn<Cells>(names), ...);
}

/// A row of a test's data; literals are text.
template <typename... Cells>
void row(const char *name, Cells... cells)
{
    (QTest::newRow(name) << ... << cells);
}

} // namespace Tavelo
