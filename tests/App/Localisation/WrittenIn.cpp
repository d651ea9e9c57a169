#include "WrittenIn.h"

#include <QList>

#include <algorithm>

namespace Tavelo
{

namespace
{

constexpr int longestLabel = 6; // in characters that Japanese may string together without a syllable sign

bool uses(const QString &text, const QList<QChar::Script> &scripts)
{
    return std::any_of(text.begin(), text.end(), [&scripts](QChar c) { return scripts.contains(c.script()); });
}

bool isHan(QChar c)
{
    return c.script() == QChar::Script_Han;
}

bool isPlain(const QString &text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c < u'\x7f' || !c.isLetter(); });
}

} // namespace

bool isWrittenIn(AppLanguage language, const QString &text)
{
    const bool hangul = uses(text, {QChar::Script_Hangul});
    const bool kana = uses(text, {QChar::Script_Hiragana, QChar::Script_Katakana});
    const auto han = std::count_if(text.begin(), text.end(), isHan);
    switch (language) {
    case AppLanguage::english:
        return isPlain(text);
    case AppLanguage::vietnamese:
        return !hangul && !kana && han == 0 && !text.isEmpty() && !isPlain(text);
    case AppLanguage::korean:
        return hangul && !kana;
    case AppLanguage::japanese:
        return !hangul && (kana || (han > 0 && han <= longestLabel && !text.contains(u'。')));
    case AppLanguage::chinese:
        return han > 0 && !kana && !hangul;
    }
    return false;
}

} // namespace Tavelo
