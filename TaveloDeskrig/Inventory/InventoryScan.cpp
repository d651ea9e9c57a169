#include "InventoryScan.h"

#include "FileManager.h"
#include "InventoryText.h"
#include "MacInventoryClassifier.h"
#include "MacLicenseEvidenceCollector.h"
#include "PropertyList.h"
#include "ScanCandidates.h"

#include <QCollator>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace Tavelo
{

namespace
{

const QString unknown = QStringLiteral("unknown");
const QString dash = unknownSignatureText.toString();

/// What Homebrew knows.
struct HomebrewTables {
    QList<MacInventoryClassifier::BrewVersion> formulas;
    QHash<QString, QString> licenses;              // by formula name
    QHash<QString, HomebrewCaskApplication> casks; // by lower-case bundle file name
};

/// A receipt of the operating system itself.
bool isSystemReceipt(const QString &lowerCaseIdentifier)
{
    return lowerCaseIdentifier == u"com.apple.pkg.rosettaupdateauto" ||
           lowerCaseIdentifier.startsWith(u"com.apple.pkg.") || lowerCaseIdentifier.startsWith(u"com.apple.files.") ||
           lowerCaseIdentifier.startsWith(u"com.apple.cdm.");
}

bool isOnlyFallback(const QString &developer)
{
    return developer == dash || developer.startsWith(u"Team ");
}

/// True for a report as `codesign` writes it of a bundle: its path, its identifier and its format come first, and no
/// field is there twice. A path, an executable's name or an identifier with a line break in it would add lines of its
/// own.
bool isWholeReport(const QString &report)
{
    const QStringList lines = report.split(u'\n');
    const QStringList first = {QStringLiteral("Executable="), QStringLiteral("Identifier="), QStringLiteral("Format=")};
    for (qsizetype index = 0; index < first.size(); ++index) {
        if (!lines.value(index).startsWith(first.at(index)))
            return false;
    }
    const QStringList fields = first + QStringList{QStringLiteral("Signature="), QStringLiteral("TeamIdentifier=")};
    const QStringList allLines = linesOf(report);
    if (allLines.size() != report.split(u'\n', Qt::SkipEmptyParts).size())
        return false; // a line separator of another kind
    return std::all_of(fields.cbegin(), fields.cend(), [&](const QString &field) {
        return std::count_if(allLines.cbegin(), allLines.cend(),
                             [&](const QString &line) { return line.startsWith(field); }) <= 1;
    });
}

QString lastComponent(const QString &path)
{
    return path.section(u'/', -1);
}

/// One scan, from its first folder to its sorted list.
class Scan
{
public:
    Scan(const FileManager &files, const ReceiptSecurity &security, const InventoryTools &tools, const QString &home,
         const InventoryScan::Progress &progress, const InventoryScan::IsCancelled &isCancelled)
        : m_files(files), m_security(security), m_tools(tools), m_home(home), m_progress(progress),
          m_isCancelled(isCancelled)
    {
    }

    QList<InstalledMacApplication> run()
    {
        const std::optional<QList<ScanCandidate>> candidates = scanCandidates(m_files, m_home, m_isCancelled);
        if (!candidates || m_isCancelled())
            return {};
        const HomebrewTables homebrew = homebrewTables();
        if (m_isCancelled())
            return {};
        const std::optional<QStringList> receipts = installerReceipts();
        if (!receipts)
            return {};

        QHash<QString, QStringList> matches; // by lower-case identifier of the application
        QSet<QString> accountedFor;
        for (const ScanCandidate &candidate : *candidates) {
            const QStringList matching =
                MacLicenseEvidenceCollector::matchingInstallerReceipts(candidate.name, candidate.identifier, *receipts);
            matches.insert(candidate.identifier.toLower(), matching);
            accountedFor.unite(QSet<QString>(matching.cbegin(), matching.cend()));
        }
        QStringList receiptsAlone;
        for (const QString &receipt : *receipts) {
            if (!accountedFor.contains(receipt) && !matches.contains(receipt.toLower()))
                receiptsAlone.append(receipt);
        }

        m_total = candidates->size() + homebrew.formulas.size() + receiptsAlone.size();
        m_records.reserve(m_total);
        tellProgress();
        addAll(*candidates, [&](const ScanCandidate &candidate) {
            add(candidate.identifier.toLower(),
                application(candidate, homebrew, matches.value(candidate.identifier.toLower())));
        });
        addAll(homebrew.formulas, [&](const MacInventoryClassifier::BrewVersion &version) {
            const InstalledMacApplication record = formula(version, homebrew);
            add(record.identifier, record);
        });
        addAll(receiptsAlone, [&](const QString &identifier) {
            add(QStringLiteral("pkg.") + identifier.toLower(), receipt(identifier));
        });
        return sorted();
    }

private:
    HomebrewTables homebrewTables() const
    {
        const std::optional<QString> brew = m_tools.brewPath();
        if (!brew)
            return {};
        const QByteArray info =
            m_tools
                .runCapture({*brew, QStringLiteral("info"), QStringLiteral("--json=v2"), QStringLiteral("--installed")})
                .toUtf8();
        const QString leaves = m_tools.runCapture({*brew, QStringLiteral("leaves")});
        const QString versions = m_tools.runCapture({*brew, QStringLiteral("list"), QStringLiteral("--versions")});
        return {.formulas = MacInventoryClassifier::brewVersions(leaves, versions),
                .licenses = MacInventoryClassifier::brewLicenses(info),
                .casks = MacLicenseEvidenceCollector::homebrewCaskApplications(info)};
    }

    /// The receipts that did not come with the system, each once; nothing when cancelled.
    std::optional<QStringList> installerReceipts() const
    {
        QStringList receipts;
        QSet<QString> seen;
        const QStringList lines =
            linesOf(m_tools.runCapture({QStringLiteral("/usr/sbin/pkgutil"), QStringLiteral("--pkgs")}));
        for (const QString &line : lines) {
            if (m_isCancelled())
                return std::nullopt;
            const QString identifier = line.trimmed();
            const QString lowerCase = identifier.toLower();
            if (identifier.isEmpty() || isSystemReceipt(lowerCase) || seen.contains(lowerCase))
                continue;
            seen.insert(lowerCase);
            receipts.append(identifier);
        }
        return receipts;
    }

    InstalledMacApplication application(const ScanCandidate &candidate, const HomebrewTables &homebrew,
                                        const QStringList &receipts)
    {
        const Signature signature = signatureEvidence(candidate.path, candidate.copyright);
        QString developer = signature.developer;
        // A team's name, once seen, serves its later applications.
        if (developer.startsWith(u"Team ") && m_teamNames.contains(signature.team))
            developer = m_teamNames.value(signature.team);
        else if (!isOnlyFallback(developer) && signature.team != dash && signature.team != u"not set")
            m_teamNames.insert(signature.team, developer);
        if (isOnlyFallback(developer))
            developer =
                MacInventoryClassifier::inferredDeveloperName(candidate.name, candidate.identifier, candidate.source)
                    .value_or(developer);

        const auto cask = homebrew.casks.constFind(lastComponent(candidate.path).toLower());
        return {.name = candidate.name,
                .version = candidate.version,
                .identifier = candidate.identifier,
                .source = candidate.source,
                .signatureStatus = signature.status,
                .teamIdentifier = signature.team,
                .signingIdentifier = signature.identifier,
                .developerName = developer,
                .licenseEvidence = MacLicenseEvidenceCollector::evidence(
                    {.appURL = candidate.path,
                     .applicationName = candidate.name,
                     .bundleIdentifier = candidate.identifier,
                     .source = candidate.source,
                     .cask = cask == homebrew.casks.constEnd() ? std::nullopt : std::optional(*cask),
                     .installerReceiptIdentifiers = receipts,
                     .homeDirectory = m_home,
                     .systemLibraryURL = QStringLiteral("/Library")},
                    m_files, m_security)};
    }

    struct Signature {
        QString status;
        QString team;
        QString identifier;
        QString developer;
    };

    Signature signatureEvidence(const QString &path, const std::optional<QString> &copyright) const
    {
        const QString codesign = QStringLiteral("/usr/bin/codesign");
        const QString report =
            m_tools.runCaptureCombined({codesign, QStringLiteral("-dv"), QStringLiteral("--verbose=4"), path});
        const bool verified =
            m_tools.runQuiet({codesign, QStringLiteral("--verify"), QStringLiteral("--strict"), path}) == 0;
        auto [status, team, identifier] = MacInventoryClassifier::signatureFields(report, verified);
        QString usableReport = report;
        if (!isWholeReport(report)) {
            // What the bundle slipped in cannot be told from what the tool says, so that nothing of it counts.
            status = MacInventoryClassifier::signatureFields(report, false).status;
            team = identifier = dash;
            usableReport.clear();
        }
        const QString developer =
            MacInventoryClassifier::developerName(usableReport, provisioningTeamName(path), copyright, team);
        return {status, withoutControls(team), withoutControls(identifier), withoutControls(developer)};
    }

    /// The team's name in the bundle's provisioning profile. The profile is read, not trusted: the name is for display.
    std::optional<QString> provisioningTeamName(const QString &path) const
    {
        const QString profile = path + QStringLiteral("/Contents/embedded.provisionprofile");
        if (!m_files.exists(profile))
            return std::nullopt;
        const QString content =
            m_tools.runCapture({QStringLiteral("/usr/bin/openssl"), QStringLiteral("cms"), QStringLiteral("-verify"),
                                QStringLiteral("-inform"), QStringLiteral("DER"), QStringLiteral("-in"), profile,
                                QStringLiteral("-noverify"), QStringLiteral("-nosigs")});
        const QVariant name =
            PropertyList::parse(content.toUtf8()).value_or(QVariant()).toMap().value(QStringLiteral("TeamName"));
        return name.typeId() == QMetaType::QString ? std::optional(name.toString()) : std::nullopt;
    }

    static InstalledMacApplication formula(const MacInventoryClassifier::BrewVersion &version,
                                           const HomebrewTables &homebrew)
    {
        const QString name = withoutControls(version.name);
        const QString identifier = QStringLiteral("homebrew.formula.") + name;
        const auto license = homebrew.licenses.constFind(version.name);
        return {.name = name,
                .version = withoutControls(version.version),
                .identifier = identifier,
                .source = InventorySource::homebrewFormula.toString(),
                .signatureStatus = SignatureStatus::notApplicable.toString(),
                .teamIdentifier = dash,
                .signingIdentifier = dash,
                .developerName = MacInventoryClassifier::inferredDeveloperName(
                    name, identifier, InventorySource::homebrewFormula.toString()),
                .licenseEvidence = MacInventoryClassifier::licenseEvidence(
                    InventorySource::homebrewFormula.toString(), std::nullopt, false,
                    license == homebrew.licenses.constEnd() ? std::nullopt : std::optional(*license))};
    }

    InstalledMacApplication receipt(const QString &identifier) const
    {
        const QStringList lines = linesOf(
            m_tools.runCapture({QStringLiteral("/usr/sbin/pkgutil"), QStringLiteral("--pkg-info"), identifier}));
        const QString prefix = QStringLiteral("version: ");
        const auto line =
            std::find_if(lines.cbegin(), lines.cend(), [&](const QString &each) { return each.startsWith(prefix); });
        const QString shown = withoutControls(identifier);
        return {.name = shown,
                .version = line == lines.cend() ? unknown : withoutControls(line->mid(prefix.size()).trimmed()),
                .identifier = shown,
                .source = InventorySource::installerReceipt.toString(),
                .signatureStatus = SignatureStatus::receiptOnly.toString(),
                .teamIdentifier = dash,
                .signingIdentifier = dash,
                .developerName = MacInventoryClassifier::inferredDeveloperName(
                    shown, shown, InventorySource::installerReceipt.toString()),
                .licenseEvidence = MacInventoryClassifier::licenseEvidence(InventorySource::installerReceipt.toString(),
                                                                           std::nullopt, false, std::nullopt)};
    }

    template <class Sources, class AddOne>
    void addAll(const Sources &sources, AddOne addOne)
    {
        for (const auto &source : sources) {
            if (m_isCancelled())
                return;
            addOne(source);
            ++m_done;
            tellProgress();
        }
    }

    /// A later record of the same key takes the place of an earlier one.
    void add(const QString &key, const InstalledMacApplication &record)
    {
        const auto place = m_places.constFind(key);
        if (place != m_places.constEnd()) {
            m_records[*place] = record;
            return;
        }
        m_places.insert(key, m_records.size());
        m_records.append(record);
    }

    void tellProgress() const
    {
        if (m_progress)
            m_progress(m_done, m_total);
    }

    QList<InstalledMacApplication> sorted() const
    {
        const QCollator collator = MacInventoryClassifier::nameCollator();
        QList<InstalledMacApplication> records = m_records;
        std::stable_sort(records.begin(), records.end(),
                         [&](const InstalledMacApplication &left, const InstalledMacApplication &right) {
                             return collator.compare(left.name, right.name) < 0;
                         });
        return records;
    }

    const FileManager &m_files;
    const ReceiptSecurity &m_security;
    const InventoryTools &m_tools;
    const QString &m_home;
    const InventoryScan::Progress &m_progress;
    const InventoryScan::IsCancelled &m_isCancelled;

    QHash<QString, QString> m_teamNames; // developer names by team identifier
    QList<InstalledMacApplication> m_records;
    QHash<QString, qsizetype> m_places;
    qsizetype m_done = 0;
    qsizetype m_total = 0;
};

} // namespace

InventoryScan::InventoryScan(const FileManager &files, const ReceiptSecurity &security, InventoryTools tools,
                             QString homeDirectory)
    : m_files(files), m_security(security), m_tools(std::move(tools)), m_homeDirectory(std::move(homeDirectory))
{
}

QList<InstalledMacApplication> InventoryScan::installedAdditionalApplications(const Progress &progress,
                                                                              const IsCancelled &isCancelled) const
{
    return Scan(m_files, m_security, m_tools, m_homeDirectory, progress, isCancelled).run();
}

} // namespace Tavelo
