#pragma once

#include "AppLanguage.h"

#include <QString>

namespace Tavelo
{

/// Whether the text is written as that language is, which no two of the five share. Words of another script may stand
/// between its own.
bool isWrittenIn(AppLanguage language, const QString &text);

} // namespace Tavelo
