#include "ReportEvidence.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

LicenseEvidenceConfidence usualConfidence(AppLicenseEvidenceState state)
{
    switch (state) {
    case AppLicenseEvidenceState::verifiedReceipt:
        return LicenseEvidenceConfidence::verified;
    case AppLicenseEvidenceState::receiptIntegrityVerified:
    case AppLicenseEvidenceState::acquisitionReceipt:
    case AppLicenseEvidenceState::licenseArtifact:
        return LicenseEvidenceConfidence::strong;
    case AppLicenseEvidenceState::accountBased:
    case AppLicenseEvidenceState::needsEntitlementReview:
        return LicenseEvidenceConfidence::indicative;
    case AppLicenseEvidenceState::freeOrOpenSource:
    case AppLicenseEvidenceState::installationEvidence:
        return LicenseEvidenceConfidence::informational;
    case AppLicenseEvidenceState::accessRestricted:
    case AppLicenseEvidenceState::noEvidence:
    case AppLicenseEvidenceState::explicitUnlicensed:
        break;
    }
    return LicenseEvidenceConfidence::none;
}

} // namespace

AppLicenseEvidence reportedEvidence(const InstalledMacApplication &application)
{
    return application.licenseEvidence.value_or(
        AppLicenseEvidence{.state = AppLicenseEvidenceState::noEvidence,
                           .source = u"none"_s,
                           .detail = u"No operating-system license entitlement evidence was collected."_s});
}

QString confidenceWord(const AppLicenseEvidence &evidence)
{
    return rawValue(evidence.confidence.value_or(usualConfidence(evidence.state)));
}

QString keyStatus(AppLicenseEvidenceState state)
{
    switch (state) {
    case AppLicenseEvidenceState::verifiedReceipt:
    case AppLicenseEvidenceState::receiptIntegrityVerified:
    case AppLicenseEvidenceState::acquisitionReceipt:
    case AppLicenseEvidenceState::licenseArtifact:
        return u"detected"_s;
    case AppLicenseEvidenceState::accountBased:
    case AppLicenseEvidenceState::freeOrOpenSource:
        return u"not-required"_s;
    case AppLicenseEvidenceState::installationEvidence:
    case AppLicenseEvidenceState::needsEntitlementReview:
    case AppLicenseEvidenceState::accessRestricted:
        return u"manual-check"_s;
    case AppLicenseEvidenceState::noEvidence:
        return u"not-detected"_s;
    case AppLicenseEvidenceState::explicitUnlicensed:
        break;
    }
    return u"absent"_s;
}

} // namespace Tavelo
