#pragma once

#include "AppLanguage.h"

#include <QString>

namespace Tavelo
{

/// The lines of the text report that are written in its language. The headings end in a colon; the PDF finds the
/// sections of a report by them, so a report of any language can be read back. The other labels of a report are English
/// in every language.
struct ReportTexts {
    QString timeLabel;
    QString systemChecksHeading;
    QString additionalSoftwareHeading;
    QString noneLine; ///< Stands in place of the list when no software was found.
    QString catalogHeading;
    QString installed;
    QString unsupported;
    QString notInstalled;
    QString recommendationsHeading;
    QString recommendation1;
    QString recommendation2;
    QString limitsHeading;
    QString limits1;
    QString limits2;
    QString limits3;
};

/// The lines in that language. Built at the first call; never changes.
const ReportTexts &reportTexts(AppLanguage language);

} // namespace Tavelo
