#pragma once

#include "AppLanguage.h"

#include <QFont>

namespace Tavelo::ReportFonts
{

/// The font of a report, without a size: the rounded system face where there is one, else the compiled-in Inter; for
/// Chinese characters a face in whose style the report's language writes them. Registers Inter at the first call. Needs
/// the GUI application object.
QFont font(AppLanguage language);

/// Makes the fonts of a folder of the program's resources known. They are used where they lie, so they must not be
/// compressed there.
void registerCompiledIn(const QString &folder);

} // namespace Tavelo::ReportFonts
