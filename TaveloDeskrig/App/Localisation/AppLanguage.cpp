#include "AppLanguage.h"

#include "UserDefaults.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

QString rawValue(AppLanguage language)
{
    switch (language) {
    case AppLanguage::english:
        return u"en"_s;
    case AppLanguage::vietnamese:
        return u"vi"_s;
    case AppLanguage::korean:
        return u"ko"_s;
    case AppLanguage::japanese:
        return u"ja"_s;
    case AppLanguage::chinese:
        return u"zh"_s;
    }
    Q_UNREACHABLE();
}

std::optional<AppLanguage> appLanguage(QStringView rawValue)
{
    for (const AppLanguage language : AppLanguages::supported()) {
        if (Tavelo::rawValue(language) == rawValue)
            return language;
    }
    return std::nullopt;
}

QString nativeName(AppLanguage language)
{
    switch (language) {
    case AppLanguage::english:
        return u"English"_s;
    case AppLanguage::vietnamese:
        return u"Tiếng Việt"_s;
    case AppLanguage::korean:
        return u"한국어"_s;
    case AppLanguage::japanese:
        return u"日本語"_s;
    case AppLanguage::chinese:
        return u"简体中文"_s;
    }
    Q_UNREACHABLE();
}

QString englishName(AppLanguage language)
{
    switch (language) {
    case AppLanguage::english:
        return u"English"_s;
    case AppLanguage::vietnamese:
        return u"Vietnamese"_s;
    case AppLanguage::korean:
        return u"Korean"_s;
    case AppLanguage::japanese:
        return u"Japanese"_s;
    case AppLanguage::chinese:
        return u"Chinese, Simplified"_s;
    }
    Q_UNREACHABLE();
}

const QList<AppLanguage> &AppLanguages::supported()
{
    static const QList<AppLanguage> languages{AppLanguage::english, AppLanguage::vietnamese, AppLanguage::korean,
                                              AppLanguage::japanese, AppLanguage::chinese};
    return languages;
}

AppLanguage AppLanguages::storedDefault(const UserDefaults &defaults)
{
    const QString stored = defaults.text(storedKey.toString()).value_or(QString());
    return appLanguage(stored).value_or(AppLanguage::english);
}

} // namespace Tavelo
