#include "MacInventoryClassifier.h"

#include "ClassifierTables.h"
#include "FileManager.h"
#include "InstalledMacApplication.h"
#include "InventoryText.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Tavelo::MacInventoryClassifier
{

namespace
{

const QString dash = unknownSignatureText.toString();

/// The rest of the first line that begins with the prefix; an em dash where there is none.
QString value(const QStringList &lines, QLatin1StringView prefix)
{
    const auto line =
        std::find_if(lines.cbegin(), lines.cend(), [&](const QString &each) { return each.startsWith(prefix); });
    const QString rest = line == lines.cend() ? QString() : line->mid(prefix.size()).trimmed();
    return rest.isEmpty() ? dash : rest;
}

QRegularExpression unicodeExpression(const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption);
}

/// The name in the first authority that has one, which is the leaf certificate's.
QString authorityName(const QString &report)
{
    static const QRegularExpression teamCode = unicodeExpression(uR"(\s+\([A-Z0-9]{10}\)$)"_s);
    const QLatin1StringView prefix = "Authority="_L1;
    const QStringList lines = linesOf(report);
    for (const QString &line : lines) {
        if (!line.startsWith(prefix))
            continue;
        QString name = line.mid(prefix.size()).trimmed();
        if (ClassifierTables::ignoredSigningAuthorities().contains(name))
            continue;
        if (const qsizetype colon = name.indexOf(u':'); colon >= 0)
            name = name.mid(colon + 1).trimmed();
        name.remove(teamCode);
        if (!name.isEmpty())
            return name;
    }
    return {};
}

QString withoutPunctuationAround(const QString &text)
{
    const auto isKept = [](QChar character) { return !character.isSpace() && !character.isPunct(); };
    const auto first = std::find_if(text.cbegin(), text.cend(), isKept);
    const auto last = std::find_if(text.crbegin(), std::make_reverse_iterator(first), isKept);
    return QString(first, last.base() - first);
}

/// The holder that a copyright line names; empty for a line that names none or is a whole sentence.
QString copyrightHolder(const QString &copyright)
{
    static const QRegularExpression word = unicodeExpression(uR"((?i)^(copyright|bản quyền)\s*)"_s);
    static const QRegularExpression mark = unicodeExpression(uR"((?i)^\s*\(?c\)?\s*)"_s);
    static const QRegularExpression years = unicodeExpression(uR"(\b(19|20)\d{2}(?:\s*[-–]\s*(19|20)\d{2})?\b)"_s);
    static const std::array rightsMarkers = {u". All rights"_s, u". Mọi quyền"_s, u". Todos los"_s, u". Alle Rechte"_s};
    constexpr qsizetype longestName = 120; // characters; beyond it the line is a sentence, not a name

    QString holder = copyright;
    holder = holder.replace(QChar::Nbsp, u' ').trimmed();
    holder.remove(word).remove(u'©').remove(mark).remove(years);
    for (const QString &marker : rightsMarkers) {
        if (const qsizetype place = holder.indexOf(marker, 0, Qt::CaseInsensitive); place >= 0)
            holder.truncate(place);
    }
    holder = withoutPunctuationAround(holder);
    return characterCount(holder) <= longestName ? holder : QString();
}

bool matches(const QString &token, const QString &lowerName, const QString &lowerIdentifier)
{
    return lowerIdentifier.startsWith(token) || lowerIdentifier.contains(u'.' + token + u'.') || lowerName == token ||
           lowerName.startsWith(token + u'-');
}

} // namespace

bool isSystemApplication(const QString &path, const std::optional<QString> &bundleIdentifier, const FileManager &files)
{
    const QString resolved = files.resolvingSymlinks(path);
    if (resolved == "/System"_L1 || resolved.startsWith("/System/"_L1) ||
        resolved.startsWith("/Library/Apple/System/"_L1))
        return true;
    return bundleIdentifier &&
           ClassifierTables::operatingSystemBundleIdentifiers().contains(bundleIdentifier->toLower());
}

SignatureFields signatureFields(const QString &report, bool verified)
{
    const QStringList lines = linesOf(report);
    QString status;
    if (verified)
        status = value(lines, "Signature="_L1) == "adhoc"_L1 ? u"ad-hoc"_s : u"valid"_s;
    else
        status = report.contains("not signed"_L1, Qt::CaseInsensitive) ? u"unsigned"_s : u"invalid"_s;
    return {status, value(lines, "TeamIdentifier="_L1), value(lines, "Identifier="_L1)};
}

QString developerName(const QString &signatureOutput, const std::optional<QString> &provisioningTeamName,
                      const std::optional<QString> &copyright, const QString &teamIdentifier)
{
    if (QString authority = authorityName(signatureOutput); !authority.isEmpty())
        return authority;
    if (QString team = provisioningTeamName.value_or(QString()).trimmed(); !team.isEmpty())
        return team;
    if (QString holder = copyrightHolder(copyright.value_or(QString())); !holder.isEmpty())
        return holder;
    const QString team = teamIdentifier.trimmed();
    return team.isEmpty() || team == dash || team == "not set"_L1 ? dash : "Team "_L1 + team;
}

std::optional<QString> inferredDeveloperName(const QString &applicationName, const QString &identifier,
                                             const QString &source)
{
    const QString lowerName = applicationName.toLower();
    const QString lowerIdentifier = identifier.toLower();
    for (const ClassifierTables::VendorRule &rule : ClassifierTables::vendorRules()) {
        if (std::any_of(rule.tokens.cbegin(), rule.tokens.cend(),
                        [&](const QString &token) { return matches(token, lowerName, lowerIdentifier); }))
            return rule.vendor;
    }
    if (source == InventorySource::homebrewFormula)
        return readableProjectName(applicationName);
    const QStringList parts = identifier.split(u'.');
    if (parts.size() >= 2 && ClassifierTables::domainPrefixes().contains(parts.at(0).toLower()) &&
        !ClassifierTables::genericOrganisations().contains(parts.at(1).toLower()) && !parts.at(1).trimmed().isEmpty())
        return readableProjectName(parts.at(1));
    const QString name = applicationName.trimmed();
    return name.isEmpty() ? std::nullopt : std::optional(readableProjectName(name));
}

QString readableProjectName(const QString &text)
{
    QStringList pieces =
        QString(text).replace(u'_', u' ').replace(u'-', u' ').simplified().split(u' ', Qt::SkipEmptyParts);
    if (pieces.isEmpty())
        return text;
    for (QString &piece : pieces) {
        const qsizetype first = piece.at(0).isHighSurrogate() ? 2 : 1;
        piece =
            ClassifierTables::projectNameWords().value(piece.toLower(), piece.left(first).toUpper() + piece.mid(first));
    }
    return pieces.join(u' ');
}

QCollator nameCollator()
{
    const QLocale locale = QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale();
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

const QSet<QString> &vietnameseDictionaryFileNames()
{
    static const QSet<QString> names = {QStringLiteral("vi_vn.dic"), QStringLiteral("vi_vn.aff")};
    return names;
}

bool containsVietnameseDictionary(const QStringList &folders, const FileManager &files)
{
    return std::any_of(folders.cbegin(), folders.cend(), [&](const QString &folder) {
        bool found = false;
        files.enumerate(folder, EnumerationOption::skipHidden | EnumerationOption::skipPackageDescendants,
                        [&](const FolderEntry &entry) {
                            found = vietnameseDictionaryFileNames().contains(entry.name.toLower());
                            return found ? Walk::stop : Walk::onwards;
                        });
        return found;
    });
}

} // namespace Tavelo::MacInventoryClassifier
