#include "MacLicenseEvidenceCollector.h"

#include "InventoryText.h"
#include "MacAppStoreReceiptInspector.h"
#include "MacInventoryClassifier.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo::MacLicenseEvidenceCollector
{

namespace
{

using State = AppLicenseEvidenceState;
using Confidence = LicenseEvidenceConfidence;
using Verification = LicenseEvidenceVerification;

LicenseEvidenceSignal receiptSignal(Verification verification, const QString &detail)
{
    return {u"app-store-receipt"_s, u"mac-app-store-receipt"_s, verification, detail};
}

/// A receipt that settles the matter by itself.
AppLicenseEvidence receiptEvidence(State state, Confidence confidence, Verification verification, const QString &detail)
{
    return {.state = state,
            .source = u"mac-app-store-receipt"_s,
            .detail = detail,
            .confidence = confidence,
            .signals = {{receiptSignal(verification, detail)}}};
}

/// Looks at the store receipt: the final evidence where it stands the test, else nothing, and what is wrong with it
/// goes to `findings`.
std::optional<AppLicenseEvidence> storeReceipt(const Request &request, const FileManager &files,
                                               const ReceiptSecurity &security, Findings &findings)
{
    const MacAppStoreReceiptStatus status = MacAppStoreReceiptInspector::inspect(
        request.appURL + "/Contents/_MASReceipt/receipt"_L1, request.bundleIdentifier, files, security);
    switch (status.kind) {
    case MacAppStoreReceiptStatus::Kind::verified:
        return receiptEvidence(
            State::verifiedReceipt, Confidence::verified, Verification::verified,
            u"The CMS signature is intact, the Apple receipt signing chain is trusted at receipt creation time, and the signed bundle identifier matches this application."_s);
    case MacAppStoreReceiptStatus::Kind::integrityVerified:
        return receiptEvidence(State::receiptIntegrityVerified, Confidence::strong, Verification::structurallyValid,
                               "The CMS signature integrity and signed bundle identifier were verified. "_L1 +
                                   status.reason + " No purchase ownership or current entitlement is claimed."_L1);
    case MacAppStoreReceiptStatus::Kind::invalid:
        findings.signals.append(receiptSignal(Verification::failed, status.reason));
        break;
    case MacAppStoreReceiptStatus::Kind::inaccessible:
        findings.signals.append(receiptSignal(Verification::inaccessible, status.reason));
        findings.inaccessible = true;
        break;
    case MacAppStoreReceiptStatus::Kind::absent:
        break;
    }
    return std::nullopt;
}

/// How the application was installed, which says nothing about its licence.
QList<LicenseEvidenceSignal> provenanceSignals(const Request &request)
{
    QList<LicenseEvidenceSignal> found;
    const auto add = [&found](const QString &source, const QString &detail) {
        found.append({u"installation-provenance"_s, source, Verification::detected, detail});
    };
    if (request.cask) {
        add(u"homebrew-cask"_s, "Installed through Homebrew cask '"_L1 + withoutControls(request.cask->token) +
                                    "' (recorded version "_L1 + withoutControls(request.cask->installedVersion) +
                                    "). This proves installation provenance, not license entitlement."_L1);
    }
    if (!request.installerReceiptIdentifiers.isEmpty()) {
        const QStringList named = request.installerReceiptIdentifiers.mid(0, 4);
        add(u"installer-receipt"_s, "Related installer receipt detected: "_L1 + withoutControls(named.join(", "_L1)) +
                                        ". Installer receipts prove installation only."_L1);
    }
    return found;
}

/// The first of those that say the same, in the order given.
QList<LicenseEvidenceSignal> unique(const QList<LicenseEvidenceSignal> &all)
{
    QSet<LicenseEvidenceSignal> seen;
    QList<LicenseEvidenceSignal> kept;
    for (const LicenseEvidenceSignal &signal : all) {
        if (!seen.contains(signal))
            kept.append(signal);
        seen.insert(signal);
    }
    return kept;
}

/// What the observations amount to, without the observations themselves; from the strongest to the weakest.
AppLicenseEvidence conclusion(const Request &request, const Findings &findings)
{
    const auto first = [&findings](auto matches) {
        const auto found = std::find_if(findings.signals.cbegin(), findings.signals.cend(), matches);
        return found == findings.signals.cend() ? nullptr : &*found;
    };
    if (const LicenseEvidenceSignal *artifact = first([](const LicenseEvidenceSignal &signal) {
            return signal.kind == "vendor-license-artifact"_L1 &&
                   signal.verification == Verification::structurallyValid;
        }))
        return {State::licenseArtifact, artifact->source, artifact->detail, Confidence::strong};
    if (const LicenseEvidenceSignal *metadata = first([](const LicenseEvidenceSignal &signal) {
            return signal.kind == "license-metadata"_L1 || signal.kind == "vendor-license-artifact"_L1;
        })) {
        return {
            State::needsEntitlementReview, metadata->source,
            u"Local license-related metadata was detected, but it cannot be cryptographically tied to a current entitlement. Review the evidence list."_s,
            Confidence::indicative};
    }
    if (const LicenseEvidenceSignal *account =
            first([](const LicenseEvidenceSignal &signal) { return signal.kind == "account-metadata"_L1; })) {
        return {
            State::accountBased, account->source,
            u"App-scoped account metadata was detected. The vendor's online subscription or commercial entitlement was not queried."_s,
            Confidence::indicative};
    }
    AppLicenseEvidence policy =
        MacInventoryClassifier::licenseEvidence(request.source, request.bundleIdentifier, false, std::nullopt);
    if (policy.state != State::noEvidence)
        return policy;
    if (first([](const LicenseEvidenceSignal &signal) { return signal.verification == Verification::failed; })) {
        return {State::needsEntitlementReview, u"failed-local-verification"_s,
                u"A local entitlement artifact was found but failed technical verification."_s, Confidence::none};
    }
    if (findings.inaccessible) {
        return {State::accessRestricted, u"local-access-restricted"_s,
                u"At least one relevant local evidence location could not be inspected with the current permissions."_s,
                Confidence::none};
    }
    if (request.cask || !request.installerReceiptIdentifiers.isEmpty()) {
        return {
            State::installationEvidence, request.cask ? u"homebrew-cask"_s : u"installer-receipt"_s,
            u"Installation provenance was detected, but no local activation or entitlement evidence was verified."_s,
            Confidence::informational};
    }
    return {
        State::noEvidence, u"multi-layer-local-scan"_s,
        u"No verified receipt, vendor license artifact, or app-scoped activation metadata was detected locally. Account, subscription, invoice, MDM, or vendor-side evidence may still exist."_s,
        Confidence::none};
}

} // namespace

AppLicenseEvidence evidence(const Request &request, const FileManager &files, const ReceiptSecurity &security)
{
    Findings findings;
    if (std::optional<AppLicenseEvidence> final = storeReceipt(request, files, security, findings))
        return *std::move(final);
    for (const Findings &more :
         {vendorSignals(request.applicationName, request.bundleIdentifier, files, request.homeDirectory,
                        request.systemLibraryURL),
          preferenceSignals(request.applicationName, request.bundleIdentifier, files, request.homeDirectory)}) {
        findings.signals.append(more.signals);
        findings.inaccessible = findings.inaccessible || more.inaccessible;
    }
    findings.signals.append(provenanceSignals(request));

    AppLicenseEvidence result = conclusion(request, findings);
    result.signals = unique(findings.signals + result.signals.value_or(QList<LicenseEvidenceSignal>()));
    return result;
}

} // namespace Tavelo::MacLicenseEvidenceCollector
