#pragma once

#include "AppLanguage.h"

#include <QString>
#include <QStringView>

namespace Tavelo
{

/// One text in every language. They stand together, so that a change of meaning is made in all of them; leaving one out
/// is a compiler warning, and tables list them in this order. A text that takes arguments holds %1, %2 …, which every
/// language may put in its own order; they must be filled by one call of `QString::arg` with all arguments, or a "%1"
/// inside an argument would be filled again.
struct Texts {
    QStringView english;
    QStringView vietnamese;
    QStringView korean;
    QStringView japanese;
    QStringView chinese; ///< Simplified.

    QString in(AppLanguage language) const;
};

/// The row of a table of texts by enum value.
template <typename Key>
struct KeyedTexts {
    Key key;
    QStringView name; ///< The key's own name.
    Texts texts;

    /// The text in that language, else in English, else the key's name.
    QString in(AppLanguage language) const
    {
        for (const AppLanguage each : {language, AppLanguage::english}) {
            if (QString text = texts.in(each); !text.isEmpty())
                return text;
        }
        return name.toString();
    }
};

/// Whether the row of every key up to the last one stands at the key's own place, so that a table can be indexed by it.
template <typename Table, typename Key>
constexpr bool isIndexedByKey(const Table &table, Key last)
{
    int place = 0;
    for (const auto &row : table) {
        if (static_cast<int>(row.key) != place++)
            return false;
    }
    return place == static_cast<int>(last) + 1;
}

} // namespace Tavelo
