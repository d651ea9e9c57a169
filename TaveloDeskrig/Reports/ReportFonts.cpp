#include "ReportFonts.h"

#include "OpenTypeFont.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>

#include <mutex>

namespace Tavelo::ReportFonts
{

namespace
{

/// The compiled-in Inter under a name of its own, since an Inter that is installed on the machine would come first.
const QString interFamily = QStringLiteral("Audit");

void registerInter()
{
    const QDir folder(QStringLiteral(":/fonts"));
    const QStringList names = folder.entryList();
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QByteArray font = OpenTypeFont::withFamily(file.readAll(), QStringLiteral("Inter"), interFamily);
        // The glyphs that contextual alternates put in place of others (the raised colon of "10:30") belong to no
        // character, and a PDF viewer could neither find nor copy them.
        font = OpenTypeFont::withoutFeature(font, "calt");
        QFontDatabase::addApplicationFontFromData(font);
    }
}

/// Who writes Chinese characters how.
struct ChineseCharacters {
    QString family;
    /// The library keeps a font by its first family and forgets that another had other faces to help it out; fonts of
    /// different hints it keeps apart.
    QFont::StyleHint hint;
};

ChineseCharacters chineseCharacters(AppLanguage language)
{
    switch (language) {
    case AppLanguage::korean:
        return {QStringLiteral("Noto Sans CJK KR"), QFont::System};
    case AppLanguage::chinese:
        return {QStringLiteral("Noto Sans CJK SC"), QFont::SansSerif};
    case AppLanguage::english:
    case AppLanguage::vietnamese:
    case AppLanguage::japanese:
        break;
    }
    return {QStringLiteral("Noto Sans CJK JP"), QFont::AnyStyle};
}

} // namespace

QFont font(AppLanguage language)
{
    static std::once_flag registered;
    std::call_once(registered, registerInter);
    const ChineseCharacters chinese = chineseCharacters(language);
    QStringList families;
#ifdef Q_OS_MACOS
    families << QStringLiteral(".AppleSystemUIFontRounded") << QStringLiteral("SF Pro Rounded");
#endif
    families << interFamily << chinese.family << QStringLiteral("Noto Sans");
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(chinese.hint);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace Tavelo::ReportFonts
