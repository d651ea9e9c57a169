#include "ItemTexts.h"
#include "Catalog.h"
#include "ItemTextTables.h"
#include "WrittenIn.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

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
