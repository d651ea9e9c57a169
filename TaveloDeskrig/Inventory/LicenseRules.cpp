// What can be told about licences and hardware from metadata alone.

#include "MacInventoryClassifier.h"

#include "ClassifierTables.h"
#include "InstalledMacApplication.h"
#include "InventoryText.h"
#include "ScanCandidates.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo::MacInventoryClassifier
{

namespace
{

/// A licence as Homebrew's metadata tells it; nothing where it tells none.
std::optional<QString> licenseText(const QJsonValue &license)
{
    if (license.isString()) {
        const QString text = license.toString().trimmed();
        return text.isEmpty() ? std::nullopt : std::optional(text);
    }
    if (license.isObject())
        return QString::fromUtf8(QJsonDocument(license.toObject()).toJson(QJsonDocument::Compact));
    if (license.isArray())
        return QString::fromUtf8(QJsonDocument(license.toArray()).toJson(QJsonDocument::Compact));
    return std::nullopt;
}

/// True for metadata that says that a formula is not free, or does not say what it is.
bool isProprietaryOrInconclusive(const QString &brewLicense)
{
    const QString license = brewLicense.toLower();
    return license.contains("proprietary"_L1) || license.contains("cannot-represent"_L1) ||
           license.contains("unknown"_L1);
}

} // namespace

QList<BrewVersion> brewVersions(const QString &leaves, const QString &versions)
{
    QSet<QString> wanted;
    const QStringList leafLines = linesOf(leaves);
    for (const QString &line : leafLines)
        wanted.insert(line.trimmed());
    wanted.remove(QString());

    QList<BrewVersion> result;
    const QStringList versionLines = linesOf(versions);
    for (const QString &line : versionLines) {
        const QStringList parts = line.split(u' ', Qt::SkipEmptyParts);
        if (!parts.isEmpty() && wanted.contains(parts.at(0)))
            result.append({parts.at(0), parts.value(1, u"unknown"_s)});
    }
    const QCollator collator = nameCollator();
    std::stable_sort(result.begin(), result.end(), [&](const BrewVersion &left, const BrewVersion &right) {
        return collator.compare(left.name, right.name) < 0;
    });
    return result;
}

QHash<QString, QString> brewLicenses(const QByteArray &json)
{
    QHash<QString, QString> licenses;
    const QJsonArray formulas = QJsonDocument::fromJson(json).object().value("formulae"_L1).toArray();
    for (const QJsonValue formula : formulas) {
        const QJsonValue name = formula["name"_L1];
        const std::optional<QString> license = licenseText(formula["license"_L1]);
        if (name.isString() && license)
            licenses.insert(name.toString(), *license);
    }
    return licenses;
}

AppLicenseEvidence licenseEvidence(const QString &source, const std::optional<QString> &bundleIdentifier,
                                   bool hasAppStoreReceipt, const std::optional<QString> &brewLicense)
{
    using State = AppLicenseEvidenceState;
    using Confidence = LicenseEvidenceConfidence;
    if (hasAppStoreReceipt) {
        return {
            .state = State::acquisitionReceipt,
            .source = u"mac-app-store-receipt"_s,
            .detail =
                u"A Mac App Store receipt file is present but was not cryptographically inspected by this legacy call path."_s,
            .confidence = Confidence::indicative,
            .signals = {{{u"app-store-receipt"_s, u"mac-app-store-receipt"_s, LicenseEvidenceVerification::notVerified,
                          u"Receipt file presence only."_s}}},
        };
    }
    const QString identifier = bundleIdentifier.value_or(QString()).toLower();
    if (ClassifierTables::accountBasedBundleIdentifiers().contains(identifier)) {
        return {
            .state = State::accountBased,
            .source = u"account-based-app-policy"_s,
            .detail =
                u"This application normally uses an online account or subscription instead of a locally readable product key. Online entitlement was not queried."_s,
            .confidence = Confidence::informational,
        };
    }
    if (ClassifierTables::keyFreeBundleIdentifiers().contains(identifier) ||
        identifier.startsWith("com.google.chrome.app."_L1)) {
        return {
            .state = State::freeOrOpenSource,
            .source = u"key-free-app-policy"_s,
            .detail =
                u"This application is recognized as free or open-source software that normally does not use a local product key."_s,
            .confidence = Confidence::informational,
        };
    }
    if (source == InventorySource::homebrewFormula && brewLicense) {
        const bool needsReview = isProprietaryOrInconclusive(*brewLicense);
        const QString detail =
            needsReview
                ? u"Homebrew license metadata is proprietary or inconclusive. Verify the vendor entitlement or terms: "_s
                : u"Homebrew metadata declares license: "_s;
        return {
            .state = needsReview ? State::needsEntitlementReview : State::freeOrOpenSource,
            .source = u"homebrew-license-metadata"_s,
            .detail = detail + withoutControls(*brewLicense) + u'.',
            .confidence = Confidence::informational,
        };
    }
    if (source == InventorySource::installerReceipt) {
        // Certain of what it says, which is that nothing is known.
        return {
            .state = State::noEvidence,
            .source = u"installer-receipt-only"_s,
            .detail = u"An installer receipt proves installation only; it does not prove a license entitlement."_s,
            .confidence = Confidence::informational,
        };
    }
    return {
        .state = State::noEvidence,
        .source = u"none"_s,
        .detail =
            u"No OS-readable purchase receipt or reconciled entitlement was found. Check the vendor account, subscription, invoice, or contract."_s,
        .confidence = Confidence::none,
    };
}

std::optional<MacHardwareProfile> hardwareProfile(const QByteArray &json)
{
    const QJsonArray entries = QJsonDocument::fromJson(json).object().value("SPHardwareDataType"_L1).toArray();
    if (entries.isEmpty() ||
        !std::all_of(entries.begin(), entries.end(), [](const QJsonValue &entry) { return entry.isObject(); }))
        return std::nullopt;
    const QJsonObject hardware = entries.first().toObject();
    const auto text = [&](QLatin1StringView key) { return hardware.value(key).toString(u"—"_s).trimmed(); };
    return MacHardwareProfile{
        .machineName = text("machine_name"_L1),
        .machineModel = text("machine_model"_L1),
        .chipType = text("chip_type"_L1),
        .physicalMemory = text("physical_memory"_L1),
    };
}

} // namespace Tavelo::MacInventoryClassifier
