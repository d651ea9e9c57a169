#pragma once

#include <QString>

#include <initializer_list>

namespace Tavelo
{

/// Makes a data row of each line of a file in tests/data: the row's name, then a text for each column, with `|` between
/// them and blanks around. `␠` stands for a blank, `␊` for a line end; lines that begin with `#` are remarks.
void rowsOfTable(const QString &file, std::initializer_list<const char *> columns);

} // namespace Tavelo
