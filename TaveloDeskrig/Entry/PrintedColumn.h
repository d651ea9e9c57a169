#pragma once

#include <QString>

namespace Tavelo
{

/// The text as a column of that many characters, as a reader counts them: shorter text gets blanks on the right, longer
/// text is cut.
QString printedColumn(const QString &text, int width);

} // namespace Tavelo
