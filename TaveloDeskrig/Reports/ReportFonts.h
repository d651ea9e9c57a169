#pragma once

#include "AppLanguage.h"

#include <QFont>

namespace Tavelo::ReportFonts
{

/// The font of a report, without a size: the rounded system face where there is one, else the compiled-in Inter; for
/// Chinese characters a face in whose style the report's language writes them. Registers Inter at the first call. Needs
/// the GUI application object.
QFont font(AppLanguage language);

} // namespace Tavelo::ReportFonts
