#pragma once

#include "InstalledMacApplication.h"

#include <QString>

namespace Tavelo
{

// How reports word the licence evidence of an application. The text report and the PDF use the same words.

/// The application's evidence. One without gets what stands for it in reports: `noEvidence` from the source "none",
/// with a sentence that says so and no stated confidence.
AppLicenseEvidence reportedEvidence(const InstalledMacApplication &application);

/// The confidence that the evidence states; where it states none, the usual one of its state.
QString confidenceWord(const AppLicenseEvidence &evidence);

/// What the evidence says about a key, in one of five words: "detected", "not-required", "manual-check",
/// "not-detected" or "absent".
QString keyStatus(AppLicenseEvidenceState state);

} // namespace Tavelo
