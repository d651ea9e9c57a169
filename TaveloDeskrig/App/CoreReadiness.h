#pragma once

#include "AppStrings.h"
#include "SystemChecks.h"

#include <QList>
#include <QString>

namespace Tavelo
{

/// Whether the Mac is ready for the work, in a pill and a line.
struct CoreReadiness {
    QString label = QStringLiteral("CHECK"); ///< "CHECK" before anything is known, then "OK", "SETUP" or "FAIL".
    SystemCheck::Level level = SystemCheck::Level::warn;
    QString detail;

    /// Judges by the checks that concern the whole work, not one item: the first failure, else all warnings, else all
    /// is well. Checks that are not among these are passed over.
    static CoreReadiness of(const QList<SystemCheck> &checks, const AppStrings &strings);
};

} // namespace Tavelo
