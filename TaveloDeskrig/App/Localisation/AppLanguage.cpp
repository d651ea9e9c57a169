#include "AppLanguage.h"

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

const QList<AppLanguage> &AppLanguages::supported()
{
    static const QList<AppLanguage> languages{AppLanguage::english, AppLanguage::vietnamese, AppLanguage::korean,
                                              AppLanguage::japanese, AppLanguage::chinese};
    return languages;
}

} // namespace Tavelo
