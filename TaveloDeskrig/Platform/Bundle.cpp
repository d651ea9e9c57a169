#include "Bundle.h"

#include "FileManager.h"
#include "PropertyList.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QStringDecoder>

namespace Tavelo::Bundle
{

namespace
{

/// The names under which a bundle may hold the user's languages, the best first: as they are, without their region, and
/// the language that the bundle was developed in.
QStringList localizationNames(const FileManager &files, const QString &bundlePath, const QString &homeFolder)
{
    const QVariantMap preferences = PropertyList::readDictionary(
        files, homeFolder + QStringLiteral("/Library/Preferences/.GlobalPreferences.plist"));
    QStringList names;
    const QStringList languages = preferences.value(QStringLiteral("AppleLanguages")).toStringList();
    for (const QString &language : languages) {
        // From "zh-Hans-VN" over "zh-Hans" to "zh", each also as older bundles spell it.
        for (QString name = language; !name.isEmpty(); name = name.section(u'-', 0, -2))
            names << name << QString(name).replace(u'-', u'_');
    }
    names << infoDictionary(files, bundlePath).value(QStringLiteral("CFBundleDevelopmentRegion")).toString()
          << QStringLiteral("en") << QStringLiteral("English") << QStringLiteral("Base");
    names.removeDuplicates();
    names.removeIf([](const QString &name) { return name.isEmpty() || name.contains(u'/') || name.startsWith(u'.'); });
    return names;
}

/// The text of a `.strings` file without its backslashes.
QString unescaped(const QString &text)
{
    static const QRegularExpression escape(QStringLiteral(R"(\\(?:U([0-9A-Fa-f]{4})|(.)))"),
                                           QRegularExpression::DotMatchesEverythingOption);
    QString result;
    qsizetype end = 0;
    for (auto matches = escape.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(text).mid(end, match.capturedStart() - end);
        if (match.hasCaptured(1))
            result += QChar(match.captured(1).toUShort(nullptr, 16));
        else if (const qsizetype place = QStringLiteral("ntr").indexOf(match.captured(2)); place >= 0)
            result += QStringLiteral("\n\t\r").at(place);
        else
            result += match.captured(2);
        end = match.capturedEnd();
    }
    result += QStringView(text).mid(end);
    return result;
}

/// The executable lies in NAME.app/Contents/MacOS.
QString ownBundle()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../.."));
}

} // namespace

QVariantMap infoDictionary(const FileManager &files, const QString &bundlePath)
{
    const QString own = bundlePath + QStringLiteral("/Contents/Info.plist");
    // What was made for a phone lies in a wrapper, to which the bundle has a link.
    const QString wrapped = bundlePath + QStringLiteral("/WrappedBundle/Info.plist");
    return PropertyList::readDictionary(files, files.exists(own) ? own : wrapped);
}

std::optional<QString> identifier(const FileManager &files, const QString &bundlePath)
{
    const QVariant value = infoDictionary(files, bundlePath).value(QStringLiteral("CFBundleIdentifier"));
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

std::optional<QString> localizedText(const FileManager &files, const QString &bundlePath, const QString &key,
                                     const QString &homeFolder)
{
    const QString resources = bundlePath + QStringLiteral("/Contents/Resources/");
    if (!files.isFolder(resources))
        return std::nullopt;
    const QVariantMap allLanguages =
        PropertyList::readDictionary(files, resources + QStringLiteral("InfoPlist.loctable"));
    const QStringList names = localizationNames(files, bundlePath, homeFolder);
    for (const QString &name : names) {
        QVariant value = allLanguages.value(name).toMap().value(key);
        if (!value.isValid()) {
            const QString file = resources + name + QStringLiteral(".lproj/InfoPlist.strings");
            value =
                stringsTable(files.contentsUpTo(file, PropertyList::maximumFileSize).value_or(QByteArray())).value(key);
        }
        if (value.typeId() == QMetaType::QString)
            return value.toString();
    }
    return std::nullopt;
}

QVariantMap stringsTable(const QByteArray &bytes)
{
    if (const std::optional<QVariant> list = PropertyList::parse(bytes); list && list->canConvert<QVariantMap>())
        return list->toMap();
    // Comments are matched first, so that a pair inside one is passed over. What begins like a piece and is none is
    // matched last and passed over whole: a look from each of its characters would take hours for a hostile file.
    static const QRegularExpression pair(
        QStringLiteral(
            R"re(/\*.*?\*/|//[^\n]*)re"
            R"re(|(?:"([^"\\]*+(?:\\.[^"\\]*+)*+)"|([A-Za-z0-9_.-]++))\s*+=\s*+"([^"\\]*+(?:\\.[^"\\]*+)*+)"\s*+;)re"
            R"re(|/\*.*|"[^"\\]*+(?:\\.[^"\\]*+)*+"?|[A-Za-z0-9_.-]++)re"),
        QRegularExpression::DotMatchesEverythingOption);
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    QVariantMap table;
    for (auto matches = pair.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString name = match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
        if (!name.isEmpty())
            table.insert(unescaped(name), unescaped(match.captured(3)));
    }
    return table;
}

QVariantMap ownInfoDictionary()
{
    return infoDictionary(FileManager(), ownBundle());
}

QString ownResourcesFolder()
{
    return ownBundle() + QStringLiteral("/Contents/Resources");
}

std::optional<QByteArray> ownResource(const QString &name)
{
    return FileManager().contents(ownResourcesFolder() + u'/' + name);
}

} // namespace Tavelo::Bundle
