#pragma once

#include "AppLicenseEvidence.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace Tavelo
{

/// What the audit shows for a signature status.
enum class AuditEvidenceState { verified, review, local, detected };

/// The case name as text.
QString rawValue(AuditEvidenceState state);

/// The words of `InstalledMacApplication::source`.
namespace InventorySource
{
inline constexpr QStringView macAppStore = u"Mac App Store";
inline constexpr QStringView userApplications = u"user Applications";
inline constexpr QStringView applications = u"/Applications";
inline constexpr QStringView homebrewFormula = u"Homebrew formula";
inline constexpr QStringView installerReceipt = u"installer receipt";
} // namespace InventorySource

/// The words of `InstalledMacApplication::signatureStatus`.
namespace SignatureStatus
{
inline constexpr QStringView valid = u"valid";
inline constexpr QStringView invalid = u"invalid";
inline constexpr QStringView unsignedCode = u"unsigned";
inline constexpr QStringView adHoc = u"ad-hoc";
inline constexpr QStringView notApplicable = u"not-applicable"; ///< Of formulas.
inline constexpr QStringView receiptOnly = u"receipt-only";     ///< Of installer receipts.
} // namespace SignatureStatus

/// Stands in a signature field for which nothing is known.
inline constexpr QStringView unknownSignatureText = u"\u2014";

/// Software that did not come with the system: an application, a Homebrew formula or an installer receipt. The texts
/// are machine words; what a person reads is made from them elsewhere.
struct InstalledMacApplication {
    QString name;    ///< Display name; of a formula its name, of a receipt the package identifier as it stands.
    QString version; ///< "unknown" when none could be read.
    /// Bundle identifier, or the bundle's file name when it has none; "homebrew.formula." and the name of a formula;
    /// the package identifier of a receipt.
    QString identifier;
    QString source;            ///< One of `InventorySource`.
    QString signatureStatus;   ///< One of `SignatureStatus`.
    QString teamIdentifier;    ///< As `codesign` tells it, which may be "not set"; `unknownSignatureText` without.
    QString signingIdentifier; ///< As `codesign` tells it; `unknownSignatureText` without.
    /// `unknownSignatureText` and what begins with "Team " are only stopgaps.
    std::optional<QString> developerName = {};
    std::optional<AppLicenseEvidence> licenseEvidence = {}; ///< Nothing only in records of older versions.

    /// Told by `signatureStatus` alone.
    AuditEvidenceState auditEvidenceState() const;

    /// The best name for who made it. Never empty: where nothing is known it says so, in Vietnamese in every language
    /// of the interface.
    QString resolvedDeveloperName() const;

    bool operator==(const InstalledMacApplication &) const = default;
};

size_t qHash(const InstalledMacApplication &application, size_t seed = 0);

/// The JSON form. Optional fields without a value have no key.
QJsonObject toJson(const InstalledMacApplication &application);

/// Reads the JSON form. A missing key, a value of the wrong type or an unknown raw text, here or in the evidence, gives
/// nothing; the optional fields may be missing or null.
std::optional<InstalledMacApplication> installedMacApplication(const QJsonObject &object);

} // namespace Tavelo
