#pragma once

#include "AppLanguage.h"

#include <QStringList>

namespace Tavelo::ReportFonts
{

/// The families of a report, the first that has a character giving its glyph: the rounded system face where there is
/// one, the compiled-in Inter, and for Chinese characters the face in whose style the report's language writes them.
/// Registers Inter at the first call. Needs the GUI application object.
QStringList families(AppLanguage language);

} // namespace Tavelo::ReportFonts
