#pragma once

#include "AppLicenseEvidence.h"
#include "HomebrewCaskApplication.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Tavelo
{

class FileManager;
class ReceiptSecurity;

/// Gathers what the local disk tells about the licence of one application and condenses it into one conclusion.
///
/// It is an audit of other vendors' software: it reports and gates nothing. It reads the names of fields and files and
/// never keeps a value, and what it finds is evidence of a stated strength, never a claim of entitlement. Nothing fails
/// it: a location that cannot be read is itself an observation.
namespace MacLicenseEvidenceCollector
{

/// The application to look into, with what is known of how it was installed. All paths are Mac paths. A name or
/// identifier that would leave its folder (`/`, `.`, `..`) stands for no location.
struct Request {
    QString appURL;
    QString applicationName;
    QString bundleIdentifier; ///< The bundle's file name where it has no identifier.
    QString source;
    std::optional<HomebrewCaskApplication> cask = {};
    QStringList installerReceiptIdentifiers = {}; ///< Those that belong to the application.
    QString homeDirectory;
    QString systemLibraryURL;
};

/// The conclusion, with every observation that was made on the way to it.
AppLicenseEvidence evidence(const Request &request, const FileManager &files, const ReceiptSecurity &security);

/// What a group of locations showed.
struct Findings {
    QList<LicenseEvidenceSignal> signals;
    bool inaccessible = false; ///< One of the locations exists but cannot be read.
};

/// Looks for the licence and account stores that a few vendors keep outside their bundles, where the application's name
/// or identifier points at such a vendor.
Findings vendorSignals(const QString &applicationName, const QString &bundleIdentifier, const FileManager &files,
                       const QString &homeDirectory, const QString &systemLibraryURL);

/// Looks for licence-related field names in the application's preferences, the user's and the Mac's, and for
/// licence-related file names in its support folders.
Findings preferenceSignals(const QString &applicationName, const QString &bundleIdentifier, const FileManager &files,
                           const QString &homeDirectory);

/// The casks in what `brew info --json=v2` printed, by lower-case file name of each application bundle that they
/// install; where two casks install the same, the later one stands. Empty for what is no such JSON.
QHash<QString, HomebrewCaskApplication> homebrewCaskApplications(const QByteArray &json);

/// The package identifiers that share a distinctive word with the application's name or identifier, in ascending order.
QStringList matchingInstallerReceipts(const QString &applicationName, const QString &bundleIdentifier,
                                      const QStringList &receiptIdentifiers);

} // namespace MacLicenseEvidenceCollector

} // namespace Tavelo
