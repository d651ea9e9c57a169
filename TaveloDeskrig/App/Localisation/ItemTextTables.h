#pragma once

#include "AppLanguage.h"

#include <QHash>
#include <QString>

namespace Tavelo
{

/// One text of a catalog item in every language but Vietnamese, which the item itself carries. An empty text means that
/// there is no translation. The languages of a text stand together, so that a change of meaning is made in all of them.
struct ItemTranslations {
    QString english;
    QString korean;
    QString japanese;
    QString chinese;

    /// The text in that language, else in English; empty when there is neither, and for Vietnamese.
    QString in(AppLanguage language) const;
};

// Both tables are keyed by item id, built at the first call, and never change.

const QHash<QString, ItemTranslations> &itemDescriptions();

/// Where a note says little more than that the vendor's own application is installed, there is no translation.
const QHash<QString, ItemTranslations> &replacementNotes();

} // namespace Tavelo
