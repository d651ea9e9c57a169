#include "LanguageSwap.h"

#include "AppStrings.h"

#include <algorithm>

namespace Tavelo
{

QString swappedLanguage(const QString &shown, AppI18nKey key, AppLanguage language)
{
    const auto &all = AppLanguages::supported();
    const bool isLabel =
        std::any_of(all.cbegin(), all.cend(), [&](AppLanguage each) { return AppStrings(each).text(key) == shown; });
    return isLabel ? AppStrings(language).text(key) : shown;
}

} // namespace Tavelo
