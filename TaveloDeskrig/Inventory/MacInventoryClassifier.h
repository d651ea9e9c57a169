#pragma once

#include "AppLicenseEvidence.h"

#include <QByteArray>
#include <QCollator>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace Tavelo
{

class FileManager;

/// Pure rules that tell what a piece of software on the Mac is. They run no command; where a rule needs the disk, it is
/// given the file manager.
namespace MacInventoryClassifier
{

/// True for an application that came with the operating system: one that lies, links resolved, in the system's own
/// folders, or whose identifier is listed. Any other Apple application, such as Xcode, counts as added.
bool isSystemApplication(const QString &path, const std::optional<QString> &bundleIdentifier, const FileManager &files);

/// Signature fields of a record.
struct SignatureFields {
    QString status;     ///< "valid", "ad-hoc", "invalid" or "unsigned".
    QString team;       ///< As printed, which may be "not set"; an em dash without.
    QString identifier; ///< As printed; an em dash without.
};

/// Reads what `codesign -dv --verbose=4` printed; `verified` tells whether `codesign --verify` accepted the bundle.
SignatureFields signatureFields(const QString &report, bool verified);

/// Who made the application: the first usable name among the signing authorities, the provisioning profile's team and
/// the copyright line; else "Team " and the team identifier; else an em dash.
QString developerName(const QString &signatureOutput, const std::optional<QString> &provisioningTeamName,
                      const std::optional<QString> &copyright, const QString &teamIdentifier);

/// A developer guessed from names alone: a known vendor, else the organisation part of the identifier, else the name
/// itself. Nothing only for a blank name.
std::optional<QString> inferredDeveloperName(const QString &applicationName, const QString &identifier,
                                             const QString &source);

/// A package-like name as a person would write it: "node-gyp" becomes "Node Gyp".
QString readableProjectName(const QString &text);

/// A formula that somebody asked for, as opposed to a mere dependency.
struct BrewVersion {
    QString name;
    QString version; ///< The first one listed; "unknown" when there is none.

    bool operator==(const BrewVersion &) const = default;
};

/// The formulas that `brew leaves` names, with what `brew list --versions` tells of them, sorted by name.
QList<BrewVersion> brewVersions(const QString &leaves, const QString &versions);

/// Licence text by formula name, from `brew info --json=v2`. A compound licence is kept as its JSON text; a formula
/// that tells none is left out. Empty for what is no such JSON.
QHash<QString, QString> brewLicenses(const QByteArray &json);

/// The licence evidence that can be told by rule, from names and metadata. `brewLicense` matters for formulas only.
AppLicenseEvidence licenseEvidence(const QString &source, const std::optional<QString> &bundleIdentifier,
                                   bool hasAppStoreReceipt, const std::optional<QString> &brewLicense);

/// What the Mac says about its own hardware; an em dash stands for what it does not say.
struct MacHardwareProfile {
    QString machineName;
    QString machineModel;
    QString chipType;
    QString physicalMemory;

    bool operator==(const MacHardwareProfile &) const = default;
};

/// Reads what `system_profiler SPHardwareDataType -json` printed; nothing for anything of another shape.
std::optional<MacHardwareProfile> hardwareProfile(const QByteArray &json);

/// The order in which names are listed: that of the user's language, case-insensitive.
QCollator nameCollator();

/// Lower-case names of the files that make a Vietnamese spelling dictionary.
const QSet<QString> &vietnameseDictionaryFileNames();

/// True when one of the folders holds, at any depth outside packages and hidden folders, a file of a Vietnamese
/// dictionary. Folders that do not exist are passed over.
bool containsVietnameseDictionary(const QStringList &folders, const FileManager &files);

} // namespace MacInventoryClassifier

} // namespace Tavelo
