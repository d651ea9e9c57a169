#include "ItemTexts.h"
#include "Catalog.h"
#include "Golden.h"
#include "ItemTextTables.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

class ItemTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyText();
    void englishStandsInForAMissingTranslation();
    void itemOutsideTheTablesKeepsItsOwnTexts();
};

void ItemTextsTest::everyText()
{
    QString lines;
    for (const AppItem &item : Catalog::items()) {
        for (const AppLanguage language : AppLanguages::supported())
            lines += u"%1 %2 | %3 | %4\n"_s.arg(item.id, rawValue(language), itemDescription(item, language),
                                                itemReplacementNote(item, language));
    }
    const QByteArray differences = differencesFromGolden(u"item-texts.txt"_s, lines.toUtf8());
    QVERIFY2(differences.isEmpty(), differences);
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
