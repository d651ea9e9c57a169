// What an application leaves in its own preferences and support folders.

#include "MacLicenseEvidenceCollector.h"

#include "FileManager.h"
#include "InventoryText.h"
#include "LicenseEvidenceSignals.h"
#include "PropertyList.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Tavelo::MacLicenseEvidenceCollector
{

namespace
{

/// True for a text that can stand as one component of a path.
bool isFileName(const QString &text)
{
    return !text.isEmpty() && text != "."_L1 && text != ".."_L1 && !text.contains(u'/') && !text.contains(QChar::Null);
}

template <typename Words>
bool holdsOneOf(const QString &text, const Words &words)
{
    return std::any_of(words.begin(), words.end(), [&text](QLatin1StringView word) { return text.contains(word); });
}

/// Letters and digits of the text, in lower case, so that "License_Key" and "licenseKey" read the same.
QString normalised(const QString &key)
{
    QString result;
    const QList<uint> characters = key.toLower().toUcs4();
    for (const char32_t character : characters) {
        if (QChar::isLetterOrNumber(character))
            result += QChar::fromUcs4(character);
    }
    return result;
}

bool isLicenseMetadataKey(const QString &key)
{
    static constexpr std::array excluded = {"agreement"_L1, "accepted"_L1, "eula"_L1,  "privacy"_L1,
                                            "migration"_L1, "window"_L1,   "dialog"_L1};
    static constexpr std::array included = {
        "licensekey"_L1,         "licencekey"_L1,    "productkey"_L1,      "serialnumber"_L1, "activationstatus"_L1,
        "activationtoken"_L1,    "entitlement"_L1,   "purchasereceipt"_L1, "receiptdata"_L1,  "licenseinfo"_L1,
        "subscriptionstatus"_L1, "licensestatus"_L1, "registrationkey"_L1,
    };
    const QString text = normalised(key);
    return !holdsOneOf(text, excluded) && holdsOneOf(text, included);
}

bool isLicenseArtifactName(const QString &fileName)
{
    static constexpr std::array excluded = {"agreement"_L1,    "eula"_L1,        "readme"_L1,     "license.txt"_L1,
                                            "licenses.txt"_L1, "third-party"_L1, "third_party"_L1};
    static constexpr std::array included = {"activation"_L1,       "entitlement"_L1, "subscription"_L1,
                                            "purchase-receipt"_L1, "license-key"_L1, "licence-key"_L1};
    const QString name = fileName.toLower();
    return !holdsOneOf(name, excluded) && holdsOneOf(name, included);
}

/// Collects the licence-related key names of a property list. Foreign lists can be of any size: the walk takes in only
/// so much of one. The value of a key that counts is not looked at.
void collectLicenseKeys(const QVariant &value, int depth, QSet<QString> &names)
{
    constexpr int deepest = 6;
    constexpr qsizetype enoughNames = 12;
    constexpr qsizetype elementsPerArray = 50;
    if (depth > deepest || names.size() >= enoughNames)
        return;
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            if (isLicenseMetadataKey(entry.key()))
                names.insert(entry.key());
            else
                collectLicenseKeys(entry.value(), depth + 1, names);
        }
    } else if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList elements = value.toList().mid(0, elementsPerArray);
        for (const QVariant &element : elements)
            collectLicenseKeys(element, depth + 1, names);
    }
}

QSet<QString> matchingLicenseKeys(const QVariant &propertyList)
{
    QSet<QString> names;
    collectLicenseKeys(propertyList, 0, names);
    return names;
}

/// The name of the first licence-related file or folder, not far below the folder; nothing if there is none among what
/// can be looked through quickly.
std::optional<QString> firstLicenseArtifactName(const QString &folder, const FileManager &files)
{
    constexpr int mostEntries = 300;
    constexpr qsizetype deepest = 3; // path components below the folder
    std::optional<QString> name;
    int entries = 0;
    files.enumerate(folder, EnumerationOption::skipHidden | EnumerationOption::skipPackageDescendants,
                    [&](const FolderEntry &entry) {
                        if (++entries > mostEntries)
                            return Walk::stop;
                        if (QStringView(entry.path).mid(folder.size()).count(u'/') > deepest)
                            return Walk::skipDescendants;
                        if (!isLicenseArtifactName(entry.name))
                            return Walk::onwards;
                        name = entry.name;
                        return Walk::stop;
                    });
    return name;
}

void addPreferences(Findings &findings, const FileManager &files, const QString &path)
{
    const QString source = u"app-preferences"_s;
    if (!files.exists(path))
        return;
    if (!files.isReadable(path)) {
        noteInaccessible(findings, source);
        return;
    }
    const QSet<QString> found = matchingLicenseKeys(PropertyList::read(files, path).value_or(QVariant()));
    if (found.isEmpty())
        return;
    QStringList names = found.values();
    names.sort();
    findings.signals.append({u"license-metadata"_s, source, LicenseEvidenceVerification::detected,
                             "App-scoped preferences contain license-related field names: "_L1 +
                                 withoutControls(names.mid(0, 5).join(", "_L1)) +
                                 ". Field values were not collected or reported."_L1});
}

void addSupportFolder(Findings &findings, const FileManager &files, const QString &path)
{
    const QString source = u"app-support-artifacts"_s;
    if (!files.exists(path))
        return;
    if (!files.isFolder(path) || !files.isReadable(path)) {
        noteInaccessible(findings, source);
        return;
    }
    if (const std::optional<QString> name = firstLicenseArtifactName(path, files)) {
        findings.signals.append({u"license-metadata"_s, source, LicenseEvidenceVerification::detected,
                                 "An app-scoped license/activation artifact filename was detected: "_L1 +
                                     withoutControls(*name) + ". File contents were not collected."_L1});
    }
}

} // namespace

Findings preferenceSignals(const QString &applicationName, const QString &bundleIdentifier, const FileManager &files,
                           const QString &homeDirectory)
{
    Findings findings;
    const QString library = homeDirectory + "/Library"_L1;
    const QString support = library + "/Application Support/"_L1;
    const bool hasName = isFileName(applicationName);
    const bool hasIdentifier = isFileName(bundleIdentifier);
    if (hasIdentifier) {
        addPreferences(findings, files, library + "/Preferences/"_L1 + bundleIdentifier + ".plist"_L1);
        addPreferences(findings, files, "/Library/Preferences/"_L1 + bundleIdentifier + ".plist"_L1);
    }
    if (hasName)
        addSupportFolder(findings, files, support + applicationName);
    if (hasIdentifier)
        addSupportFolder(findings, files, support + bundleIdentifier);
    if (hasName && hasIdentifier)
        addSupportFolder(findings, files,
                         library + "/Containers/"_L1 + bundleIdentifier + "/Data/Library/Application Support/"_L1 +
                             applicationName);
    return findings;
}

} // namespace Tavelo::MacLicenseEvidenceCollector
