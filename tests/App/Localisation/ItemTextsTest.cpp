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
    void everyDescriptionIsTranslated();
    void notesAreTranslatedOrFallBack();
    void englishStandsInForAMissingTranslation();
    void itemOutsideTheTablesKeepsItsOwnTexts();
    void changedVietnameseShowsOnlyInVietnamese();
    void languagesFromText_data();
    void languagesFromText();
};

void ItemTextsTest::everyDescriptionIsTranslated()
{
    for (const AppItem &item : Catalog::items()) {
        for (const AppLanguage language : AppLanguages::supported()) {
            const QString text = itemDescription(item, language);
            QVERIFY2(isWrittenIn(language, text), qPrintable(item.id + u": "_s + text));
        }
    }
    QCOMPARE(itemDescriptions().size(), Catalog::items().size());
}

void ItemTextsTest::notesAreTranslatedOrFallBack()
{
    static const QSet<QString> untranslated{u"thunderbird"_s, u"flameshot"_s, u"telegram"_s, u"slack"_s,
                                            u"vlc"_s,         u"gimp"_s,      u"inkscape"_s, u"ocrmypdf"_s,
                                            u"remmina"_s,     u"keepassxc"_s};
    for (const AppItem &item : Catalog::items()) {
        for (const AppLanguage language : AppLanguages::supported()) {
            const QString text = itemReplacementNote(item, language);
            const AppLanguage written = untranslated.contains(item.id) ? AppLanguage::vietnamese : language;
            QVERIFY2(isWrittenIn(written, text), qPrintable(item.id + u": "_s + text));
            QCOMPARE(text == item.replacementNote, written == AppLanguage::vietnamese);
        }
    }
    QCOMPARE(replacementNotes().size(), Catalog::items().size() - untranslated.size());
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
    for (const AppLanguage language : AppLanguages::supported()) {
        QCOMPARE(itemDescription(item, language), item.description);
        QCOMPARE(itemReplacementNote(item, language), item.replacementNote);
    }
}

void ItemTextsTest::changedVietnameseShowsOnlyInVietnamese()
{
    AppItem item = Catalog::items().first();
    const QString english = itemDescription(item, AppLanguage::english);
    item.description = u"Mô tả khác"_s;
    QCOMPARE(itemDescription(item, AppLanguage::vietnamese), u"Mô tả khác"_s);
    QCOMPARE(itemDescription(item, AppLanguage::english), english);
}

void ItemTextsTest::languagesFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("position"); // Among the supported languages; -1 where there is none.

    QTest::newRow("en") << u"en"_s << qsizetype(0);
    QTest::newRow("vi") << u"vi"_s << qsizetype(1);
    QTest::newRow("ko") << u"ko"_s << qsizetype(2);
    QTest::newRow("ja") << u"ja"_s << qsizetype(3);
    QTest::newRow("zh") << u"zh"_s << qsizetype(4);
    QTest::newRow("not spoken") << u"fr"_s << qsizetype(-1);
    QTest::newRow("capitals") << u"VI"_s << qsizetype(-1);
    QTest::newRow("with a region") << u"en-US"_s << qsizetype(-1);
    QTest::newRow("nothing") << QString() << qsizetype(-1);
}

void ItemTextsTest::languagesFromText()
{
    QFETCH(const QString, text);
    QFETCH(const qsizetype, position);

    const std::optional<AppLanguage> language = appLanguage(text);
    QCOMPARE(language ? AppLanguages::supported().indexOf(*language) : qsizetype(-1), position);
    if (language)
        QCOMPARE(rawValue(*language), text);
}

QTEST_APPLESS_MAIN(ItemTextsTest)

#include "ItemTextsTest.moc"
