#include "ScanCandidates.h"

#include "Bundle.h"
#include "FileManager.h"
#include "InstalledMacApplication.h"
#include "InventoryText.h"
#include "MacInventoryClassifier.h"

#include <QHash>
#include <QVariant>

namespace Tavelo
{

namespace
{

std::optional<QString> text(const QVariantMap &dictionary, const QString &key)
{
    const QVariant value = dictionary.value(key);
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

/// Where a link into the operating system leads; such an entry is not an added application.
bool leadsIntoTheSystem(const QString &resolvedPath)
{
    return resolvedPath == u"/System" || resolvedPath.startsWith(u"/System/") ||
           resolvedPath.startsWith(u"/usr/libexec/") || resolvedPath.startsWith(u"/Library/Apple/System/");
}

ScanCandidate candidate(const FileManager &files, const FolderEntry &entry, const QString &homeDirectory)
{
    const QVariantMap info = Bundle::infoDictionary(files, entry.path);
    const QString baseName = entry.name.left(entry.name.lastIndexOf(u'.'));
    std::optional<QString> copyright =
        Bundle::localizedText(files, entry.path, QStringLiteral("NSHumanReadableCopyright"), homeDirectory);
    if (!copyright)
        copyright = text(info, QStringLiteral("NSHumanReadableCopyright"));

    ScanCandidate found;
    found.path = entry.path;
    found.name = withoutControls(text(info, QStringLiteral("CFBundleDisplayName"))
                                     .value_or(text(info, QStringLiteral("CFBundleName")).value_or(baseName)));
    found.version = withoutControls(
        text(info, QStringLiteral("CFBundleShortVersionString"))
            .value_or(text(info, QStringLiteral("CFBundleVersion")).value_or(QStringLiteral("unknown"))));
    // All that have none would count as one application.
    const QString identifier = text(info, QStringLiteral("CFBundleIdentifier")).value_or(QString());
    found.identifier = withoutControls(identifier.trimmed().isEmpty() ? entry.name : identifier);
    if (copyright)
        found.copyright = withoutControls(*copyright);
    found.hasAppStoreReceipt = files.exists(entry.path + QStringLiteral("/Contents/_MASReceipt/receipt"));
    if (found.hasAppStoreReceipt)
        found.source = InventorySource::macAppStore.toString();
    else
        found.source =
            (entry.path.startsWith(homeDirectory) ? InventorySource::userApplications : InventorySource::applications)
                .toString();
    return found;
}

bool isBetter(const ScanCandidate &candidate, const ScanCandidate &kept)
{
    return (!kept.hasAppStoreReceipt && candidate.hasAppStoreReceipt) ||
           (kept.source == InventorySource::userApplications && candidate.source != InventorySource::userApplications);
}

} // namespace

std::optional<QList<ScanCandidate>> scanCandidates(const FileManager &files, const QString &homeDirectory,
                                                   const std::function<bool()> &isCancelled)
{
    QList<ScanCandidate> candidates;
    QHash<QString, qsizetype> places; // by lower-case identifier
    bool cancelled = false;
    const auto visit = [&](const FolderEntry &entry) {
        if (!entry.name.endsWith(u".app", Qt::CaseInsensitive))
            return Walk::onwards;
        cancelled = isCancelled();
        if (cancelled)
            return Walk::stop;
        if (leadsIntoTheSystem(files.resolvingSymlinks(entry.path)))
            return Walk::onwards;
        ScanCandidate found = candidate(files, entry, homeDirectory);
        if (MacInventoryClassifier::isSystemApplication(entry.path, found.identifier, files))
            return Walk::onwards;
        const QString key = found.identifier.toLower();
        const auto place = places.constFind(key);
        if (place == places.constEnd()) {
            places.insert(key, candidates.size());
            candidates.append(std::move(found));
        } else if (isBetter(found, candidates.at(*place))) {
            candidates[*place] = std::move(found);
        }
        return Walk::onwards;
    };
    for (const QString &root : {QStringLiteral("/Applications"), homeDirectory + QStringLiteral("/Applications")}) {
        if (isCancelled())
            return std::nullopt;
        files.enumerate(root, EnumerationOption::skipHidden | EnumerationOption::skipPackageDescendants, visit);
        if (cancelled)
            return std::nullopt;
    }
    return candidates;
}

} // namespace Tavelo
