#include "ReportFonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QResource>

#include <mutex>

namespace Tavelo::ReportFonts
{

namespace
{

/// What the compiled-in Inter calls itself (see Reports/CMakeLists.txt).
const QString interFamily = QStringLiteral("Tavelo Deskrig Text");

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

void registerCompiledIn()
{
    const QString folder = QStringLiteral(":/fonts/");
    const QStringList names = QDir(folder).entryList();
    for (const QString &name : names) {
        const QResource font(folder + name);
        Q_ASSERT(font.compressionAlgorithm() == QResource::NoCompression);
        QFontDatabase::addApplicationFontFromData(
            QByteArray::fromRawData(reinterpret_cast<const char *>(font.data()), font.size()));
    }
}

} // namespace

QFont font(AppLanguage language)
{
    static std::once_flag registered;
    std::call_once(registered, registerCompiledIn);
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
