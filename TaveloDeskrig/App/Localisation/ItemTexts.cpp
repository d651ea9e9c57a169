#include "ItemTexts.h"

#include "ItemTextTables.h"

namespace Tavelo
{

namespace
{

QString itemText(const QHash<QString, ItemTranslations> &table, const QString &itemID, const QString &vietnamese,
                 AppLanguage language)
{
    const QString translation = table.value(itemID).in(language);
    return translation.isEmpty() ? vietnamese : translation;
}

} // namespace

QString itemDescription(const AppItem &item, AppLanguage language)
{
    return itemText(itemDescriptions(), item.id, item.description, language);
}

QString itemReplacementNote(const AppItem &item, AppLanguage language)
{
    return itemText(replacementNotes(), item.id, item.replacementNote, language);
}

} // namespace Tavelo
