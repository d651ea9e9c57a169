#pragma once

#include "AppI18nKey.h"
#include "AppLanguage.h"

#include <QString>

namespace Tavelo
{

/// The label in the new language where `shown` is that label in any language, else `shown` itself: what a program has
/// put in a label's place speaks for itself and stays.
QString swappedLanguage(const QString &shown, AppI18nKey key, AppLanguage language);

} // namespace Tavelo
