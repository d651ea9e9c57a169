// The licence and account stores that vendors keep outside their bundles.

#include "MacLicenseEvidenceCollector.h"

#include "FileManager.h"
#include "LicenseEvidenceSignals.h"
#include "PropertyList.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo::MacLicenseEvidenceCollector
{

namespace
{

/// Where one vendor keeps what tells of a licence or an account.
struct VendorStore {
    QStringList identifierWords; ///< Lower-case; an application of the vendor holds one of them in its identifier,
    QStringList nameWords;       ///< or one of these in its name.
    QStringList paths;
    QString source;
    QString detail;

    bool belongsTo(const QString &lowerIdentifier, const QString &lowerName) const
    {
        const auto holds = [](const QString &text, const QStringList &words) {
            return std::any_of(words.cbegin(), words.cend(),
                               [&text](const QString &word) { return text.contains(word); });
        };
        return holds(lowerIdentifier, identifierWords) || holds(lowerName, nameWords);
    }
};

QList<VendorStore> licenseStores(const QString &home, const QString &library)
{
    return {
        {
            .identifierWords = {u"com.microsoft.word"_s, u"com.microsoft.excel"_s, u"com.microsoft.powerpoint"_s,
                                u"com.microsoft.outlook"_s, u"com.microsoft.onenote"_s},
            .nameWords = {},
            .paths = {library + "/Preferences/com.microsoft.office.licensingV2.plist"_L1,
                      library + "/Preferences/com.microsoft.office.licensing.plist"_L1,
                      library + "/Application Support/Microsoft/Office/Licenses"_L1},
            .source = u"microsoft-license-store"_s,
            .detail =
                u"A Microsoft Office licensing-store artifact was detected. It indicates local licensing metadata, not a verified active subscription."_s,
        },
        {
            .identifierWords = {u"adobe"_s},
            .nameWords = {u"adobe"_s, u"acrobat"_s},
            .paths = {library + "/Application Support/Adobe/SLStore"_L1,
                      library + "/Application Support/Adobe/SLCache"_L1,
                      home + "/Library/Application Support/Adobe/OOBE"_L1},
            .source = u"adobe-license-store"_s,
            .detail =
                u"An Adobe activation/account store was detected. It indicates local licensing metadata, not a verified current entitlement."_s,
        },
        {
            .identifierWords = {u"setapp"_s},
            .nameWords = {u"setapp"_s},
            .paths = {home + "/Library/Application Support/Setapp"_L1},
            .source = u"setapp-account-store"_s,
            .detail =
                u"A Setapp account/subscription store was detected. Online subscription status was not queried."_s,
        },
    };
}

QList<VendorStore> accountStores(const QString &home)
{
    return {
        {
            .identifierWords = {u"teamviewer"_s},
            .nameWords = {u"teamviewer"_s},
            .paths = {home + "/Library/Application Support/TeamViewer"_L1,
                      home + "/Library/Preferences/com.teamviewer.TeamViewer.plist"_L1},
            .source = u"teamviewer-account-store"_s,
            .detail = u"A TeamViewer account/configuration store was detected. Online plan status was not queried."_s,
        },
        {
            .identifierWords = {u"anydesk"_s},
            .nameWords = {u"anydesk"_s},
            .paths = {home + "/Library/Preferences/com.philandro.anydesk.plist"_L1},
            .source = u"anydesk-account-store"_s,
            .detail = u"An AnyDesk account/configuration artifact was detected. Online plan status was not queried."_s,
        },
    };
}

/// The value of the key, ignoring case.
QJsonValue valueIgnoringCase(const QJsonObject &object, QLatin1StringView key)
{
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (entry.key().compare(key, Qt::CaseInsensitive) == 0)
            return entry.value();
    }
    return QJsonValue::Undefined;
}

/// True when some object in the value holds a licence and a signature that are both non-empty texts. The parser's
/// limit on nesting bounds the recursion.
bool holdsSignedLicense(const QJsonValue &value)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        return std::any_of(array.begin(), array.end(), holdsSignedLicense);
    }
    const QJsonObject object = value.toObject();
    const auto isFilled = [&object](QLatin1StringView key) {
        return !valueIgnoringCase(object, key).toString().trimmed().isEmpty();
    };
    return (isFilled("license"_L1) && isFilled("signature"_L1)) ||
           std::any_of(object.begin(), object.end(), holdsSignedLicense);
}

/// Parallels keeps its licence in a file whose structure, at least, can be checked.
void addParallels(Findings &findings, const FileManager &files, const QString &library)
{
    const QString path = library + "/Preferences/Parallels/licenses.json"_L1;
    const QString source = u"parallels-license-store"_s;
    if (!files.exists(path))
        return;
    if (!files.isReadable(path)) {
        noteInaccessible(findings, source);
        return;
    }
    const QJsonDocument document =
        QJsonDocument::fromJson(files.contentsUpTo(path, PropertyList::maximumFileSize).value_or(QByteArray()));
    if (holdsSignedLicense(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()))) {
        findings.signals.append(
            {u"vendor-license-artifact"_s, source, LicenseEvidenceVerification::structurallyValid,
             u"A Parallels license record containing non-empty license and signature fields was detected. Values were not collected. Vendor cryptographic validation still requires Parallels."_s});
        return;
    }
    findings.signals.append(
        {u"vendor-license-artifact"_s, source, LicenseEvidenceVerification::failed,
         u"A Parallels license file exists, but its expected license/signature structure was not found."_s});
}

/// Notes the first readable path of the store, and each unreadable one before it.
void addLicenseStore(Findings &findings, const FileManager &files, const VendorStore &store)
{
    for (const QString &path : store.paths) {
        if (!files.exists(path))
            continue;
        if (files.isReadable(path)) {
            findings.signals.append(
                {u"vendor-license-artifact"_s, store.source, LicenseEvidenceVerification::detected, store.detail});
            return;
        }
        noteInaccessible(findings, store.source);
    }
}

/// Notes the store if one of its paths exists: an account needs no more than that.
void addAccountStore(Findings &findings, const FileManager &files, const VendorStore &store)
{
    if (std::any_of(store.paths.cbegin(), store.paths.cend(),
                    [&files](const QString &path) { return files.exists(path); }))
        findings.signals.append(
            {u"account-metadata"_s, store.source, LicenseEvidenceVerification::detected, store.detail});
}

} // namespace

Findings vendorSignals(const QString &applicationName, const QString &bundleIdentifier, const FileManager &files,
                       const QString &homeDirectory, const QString &systemLibraryURL)
{
    Findings findings;
    const QString identifier = bundleIdentifier.toLower();
    const QString name = applicationName.toLower();
    if (identifier.contains("parallels"_L1) || name.contains("parallels"_L1))
        addParallels(findings, files, systemLibraryURL);
    const QList<VendorStore> licenses = licenseStores(homeDirectory, systemLibraryURL);
    for (const VendorStore &store : licenses) {
        if (store.belongsTo(identifier, name))
            addLicenseStore(findings, files, store);
    }
    const QList<VendorStore> accounts = accountStores(homeDirectory);
    for (const VendorStore &store : accounts) {
        if (store.belongsTo(identifier, name))
            addAccountStore(findings, files, store);
    }
    return findings;
}

} // namespace Tavelo::MacLicenseEvidenceCollector
