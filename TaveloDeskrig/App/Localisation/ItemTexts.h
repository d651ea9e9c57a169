#pragma once

#include "AppItem.h"
#include "AppLanguage.h"

#include <QString>

namespace Tavelo
{

// The longer texts of a catalog item. The item itself carries them in Vietnamese, which is what a Vietnamese reader
// gets, also of an item that is not in the fixed catalog. Any other language gets its translation, else the English
// one, else the item's own Vietnamese.

/// What the item is, in one sentence.
QString itemDescription(const AppItem &item, AppLanguage language);

/// Why the item stands for the Linux one. Some items have no translated note.
QString itemReplacementNote(const AppItem &item, AppLanguage language);

} // namespace Tavelo
