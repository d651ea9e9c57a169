#include "ItemTexts.h"
#include "Catalog.h"
#include "ItemTextTables.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

bool uses(const QString &text, const QList<QChar::Script> &scripts)
{
    return std::any_of(text.begin(), text.end(), [&scripts](QChar c) { return scripts.contains(c.script()); });
}

/// Whether the text is written as that language is, which no two of the five share.
bool isWrittenIn(AppLanguage language, const QString &text)
{
    const bool hangul = uses(text, {QChar::Script_Hangul});
    const bool kana = uses(text, {QChar::Script_Hiragana, QChar::Script_Katakana});
    const bool han = uses(text, {QChar::Script_Han});
    switch (language) {
    case AppLanguage::english:
        return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c < u'\x7f'; });
    case AppLanguage::vietnamese:
        return !hangul && !kana && !han && !isWrittenIn(AppLanguage::english, text);
    case AppLanguage::korean:
        return hangul && !kana;
    case AppLanguage::japanese:
        return kana && !hangul;
    case AppLanguage::chinese:
        return han && !kana && !hangul;
    }
    return false;
}

} // namespace

class ItemTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsInItsLanguage();
    void englishStandsInForAMissingTranslation();
    void itemOutsideTheTablesKeepsItsOwnTexts();
};

void ItemTextsTest::everyTextIsInItsLanguage()
{
    static const QSet<QString> withoutNotes{u"thunderbird"_s, u"flameshot"_s, u"telegram"_s, u"slack"_s,
                                            u"vlc"_s,         u"gimp"_s,      u"inkscape"_s, u"ocrmypdf"_s,
                                            u"remmina"_s,     u"keepassxc"_s};
    for (const AppItem &item : Catalog::items()) {
        for (const AppLanguage language : AppLanguages::supported()) {
            const QString text = itemDescription(item, language);
            QVERIFY2(isWrittenIn(language, text), qPrintable(item.id + u": "_s + text));
            const QString note = itemReplacementNote(item, language);
            const AppLanguage written = withoutNotes.contains(item.id) ? AppLanguage::vietnamese : language;
            QVERIFY2(isWrittenIn(written, note), qPrintable(item.id + u": "_s + note));
        }
    }
    // Nor is there a text for an item that does not exist.
    QCOMPARE(itemDescriptions().size(), Catalog::items().size());
    QCOMPARE(replacementNotes().size(), Catalog::items().size() - withoutNotes.size());
}

void ItemTextsTest::englishStandsInForAMissingTranslation()
{
    const ItemTranslations translations{.english = u"Chat"_s, .korean = u"채팅"_s, .japanese = {}, .chinese = {}};
    QCOMPARE(translations.in(AppLanguage::korean), u"채팅"_s);
    QCOMPARE(translations.in(AppLanguage::japanese), u"Chat"_s);
    QCOMPARE(translations.in(AppLanguage::chinese), u"Chat"_s);
    QCOMPARE(translations.in(AppLanguage::vietnamese), QString());
}

void ItemTextsTest::itemOutsideTheTablesKeepsItsOwnTexts()
{
    AppItem item;
    item.id = u"house-tool"_s;
    item.description = u"Của riêng"_s;
    item.replacementNote = u"Ghi chú"_s;
    QCOMPARE(itemDescription(item, AppLanguage::english), item.description);
    QCOMPARE(itemReplacementNote(item, AppLanguage::english), item.replacementNote);
}

QTEST_APPLESS_MAIN(ItemTextsTest)

#include "ItemTextsTest.moc"
