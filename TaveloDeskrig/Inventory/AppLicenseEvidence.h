#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

namespace Tavelo
{

/// What can be concluded about an application's licence, from the strongest evidence to the weakest.
enum class AppLicenseEvidenceState {
    verifiedReceipt,          ///< A store receipt whose signature chain and identity were verified.
    receiptIntegrityVerified, ///< A store receipt with an intact signature, whose chain cannot be fully trusted here.
    acquisitionReceipt,       ///< A receipt that only shows acquisition.
    licenseArtifact,          ///< A local licence artifact of the vendor.
    accountBased,             ///< Licensed through an online account.
    freeOrOpenSource,         ///< Needs no key, or open source.
    installationEvidence,     ///< Shows that it was installed, nothing more.
    needsEntitlementReview,   ///< Something points at a commercial entitlement, to be checked by hand.
    accessRestricted,         ///< A location could not be read.
    noEvidence,               ///< Nothing was found.
    explicitUnlicensed,       ///< The application itself states that it is not licensed.
};

/// How much a conclusion is worth.
enum class LicenseEvidenceConfidence { verified, strong, indicative, informational, none };

/// How far a single observation was checked.
enum class LicenseEvidenceVerification { verified, structurallyValid, detected, notVerified, inaccessible, failed };

/// The case name as text, which is also what a snapshot holds.
QString rawValue(AppLicenseEvidenceState state);
QString rawValue(LicenseEvidenceConfidence confidence);
QString rawValue(LicenseEvidenceVerification verification);

/// The value with that raw text, compared exactly; nothing for any other text.
std::optional<AppLicenseEvidenceState> appLicenseEvidenceState(QStringView rawValue);
std::optional<LicenseEvidenceConfidence> licenseEvidenceConfidence(QStringView rawValue);
std::optional<LicenseEvidenceVerification> licenseEvidenceVerification(QStringView rawValue);

/// Every confidence, from `verified` to `none`.
const QList<LicenseEvidenceConfidence> &allLicenseEvidenceConfidences();

/// One observation. Its texts are machine words and English sentences; they never hold a value of a preference, a
/// licence or a receipt.
struct LicenseEvidenceSignal {
    QString kind;   ///< Class of observation, such as "license-metadata".
    QString source; ///< What was looked at, such as "app-preferences".
    LicenseEvidenceVerification verification = LicenseEvidenceVerification::notVerified;
    QString detail; ///< One English sentence.

    bool operator==(const LicenseEvidenceSignal &) const = default;
};

/// The licence evidence of one application: a conclusion and what it rests on. It is never a claim of entitlement.
struct AppLicenseEvidence {
    AppLicenseEvidenceState state = AppLicenseEvidenceState::noEvidence;
    QString source;                                           ///< Machine word of the rule or artifact that decided.
    QString detail;                                           ///< One English sentence for the technician.
    std::optional<LicenseEvidenceConfidence> confidence = {}; ///< Nothing only in records of older versions.
    /// Nothing in records of older versions, and where a rule decided by name alone.
    std::optional<QList<LicenseEvidenceSignal>> signals = {};

    bool operator==(const AppLicenseEvidence &) const = default;
};

size_t qHash(const LicenseEvidenceSignal &signal, size_t seed = 0);
size_t qHash(const AppLicenseEvidence &evidence, size_t seed = 0);

/// The JSON form. Optional fields without a value have no key.
QJsonObject toJson(const LicenseEvidenceSignal &signal);
QJsonObject toJson(const AppLicenseEvidence &evidence);

/// Reads the JSON form. A missing key, a value of the wrong type or an unknown raw text gives nothing; the optional
/// fields may be missing or null.
std::optional<LicenseEvidenceSignal> licenseEvidenceSignal(const QJsonObject &object);
std::optional<AppLicenseEvidence> appLicenseEvidence(const QJsonObject &object);

} // namespace Tavelo
