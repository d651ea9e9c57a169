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

QString chineseCharacterFamily(AppLanguage language)
{
    switch (language) {
    case AppLanguage::korean:
        return QStringLiteral("Noto Sans CJK KR");
    case AppLanguage::chinese:
        return QStringLiteral("Noto Sans CJK SC");
    case AppLanguage::english:
    case AppLanguage::vietnamese:
    case AppLanguage::japanese:
        break;
    }
    return QStringLiteral("Noto Sans CJK JP");
}

} // namespace

QStringList families(AppLanguage language)
{
    static std::once_flag registered;
    std::call_once(registered, registerInter);
    QStringList wanted;
#ifdef Q_OS_MACOS
    wanted << QStringLiteral(".AppleSystemUIFontRounded") << QStringLiteral("SF Pro Rounded");
#endif
    return wanted << interFamily << chineseCharacterFamily(language) << QStringLiteral("Noto Sans");
}

} // namespace Tavelo::ReportFonts
