// Ties what the installers recorded, Homebrew's and the system's, to applications.

#include "MacLicenseEvidenceCollector.h"

#include "InventoryText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo::MacLicenseEvidenceCollector
{

namespace
{

/// Words that many identifiers hold, and that therefore tie nothing together.
const QSet<QString> &stopWords()
{
    static const QSet<QString> words = {
        u"app"_s, u"apps"_s,    u"application"_s, u"applications"_s, u"com"_s, u"org"_s,
        u"net"_s, u"desktop"_s, u"mac"_s,         u"macos"_s,        u"osx"_s, u"pkg"_s,
    };
    return words;
}

/// The lower-case words of a text: its runs of letters, with their accents, and numbers.
QStringList tokens(const QString &text)
{
    QStringList words;
    QString word;
    const QList<uint> characters = text.normalized(QString::NormalizationForm_C).toLower().toUcs4();
    for (const char32_t character : characters) {
        if (QChar::isLetterOrNumber(character) || (QChar::isMark(character) && !word.isEmpty())) {
            word += QChar::fromUcs4(character);
        } else if (!word.isEmpty()) {
            words.append(word);
            word.clear();
        }
    }
    if (!word.isEmpty())
        words.append(word);
    return words;
}

/// The lower-case file names of the bundles that a cask's artifacts put in place.
QStringList appNames(const QJsonArray &artifacts)
{
    QStringList names;
    for (const QJsonValue artifact : artifacts) {
        const QString path = artifact["app"_L1][0].toString();
        const QStringList components = path.split(u'/', Qt::SkipEmptyParts);
        if (!components.isEmpty())
            names.append(components.last().toLower());
    }
    return names;
}

} // namespace

QHash<QString, HomebrewCaskApplication> homebrewCaskApplications(const QByteArray &json)
{
    QHash<QString, HomebrewCaskApplication> applications;
    const QJsonArray casks = QJsonDocument::fromJson(json).object().value("casks"_L1).toArray();
    for (const QJsonValue cask : casks) {
        const QJsonValue token = cask["token"_L1];
        if (!token.isString())
            continue;
        const HomebrewCaskApplication application{
            .token = token.toString(),
            .installedVersion = cask["installed"_L1].toString(cask["version"_L1].toString(u"unknown"_s)),
            .appNames = appNames(cask["artifacts"_L1].toArray()),
        };
        for (const QString &name : application.appNames)
            applications.insert(name, application);
    }
    return applications;
}

QStringList matchingInstallerReceipts(const QString &applicationName, const QString &bundleIdentifier,
                                      const QStringList &receiptIdentifiers)
{
    constexpr qsizetype shortestWord = 4; // characters; shorter ones meet by chance

    QSet<QString> words;
    const QStringList all = tokens(bundleIdentifier) + tokens(applicationName);
    for (const QString &word : all) {
        if (characterCount(word) >= shortestWord && !stopWords().contains(word))
            words.insert(word);
    }
    QStringList matching;
    if (words.isEmpty())
        return matching;
    for (const QString &receipt : receiptIdentifiers) {
        const QStringList receiptWords = tokens(receipt);
        if (std::any_of(receiptWords.cbegin(), receiptWords.cend(),
                        [&](const QString &word) { return words.contains(word); }))
            matching.append(receipt);
    }
    matching.sort();
    return matching;
}

} // namespace Tavelo::MacLicenseEvidenceCollector
