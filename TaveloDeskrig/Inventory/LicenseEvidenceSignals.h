#pragma once

#include "MacLicenseEvidenceCollector.h"

namespace Tavelo::MacLicenseEvidenceCollector
{

/// Notes a location that exists and cannot be read.
inline void noteInaccessible(Findings &findings, const QString &source)
{
    findings.inaccessible = true;
    findings.signals.append(
        {QStringLiteral("access"), source, LicenseEvidenceVerification::inaccessible,
         QStringLiteral(
             "A relevant local evidence location exists but is not readable with the current permissions.")});
}

} // namespace Tavelo::MacLicenseEvidenceCollector
