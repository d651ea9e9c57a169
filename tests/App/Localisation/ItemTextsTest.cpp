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
    void everyText()
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

    void englishStandsInForAMissingTranslation()
    {
        const ItemTranslations translations{.english = u"Chat"_s, .korean = u"채팅"_s, .japanese = {}, .chinese = {}};
        QCOMPARE(translations.in(AppLanguage::korean), u"채팅"_s);
        QCOMPARE(translations.in(AppLanguage::japanese), u"Chat"_s);
        QCOMPARE(translations.in(AppLanguage::chinese), u"Chat"_s);
        QCOMPARE(translations.in(AppLanguage::vietnamese), QString());
    }
};

QTEST_APPLESS_MAIN(ItemTextsTest)

#include "ItemTextsTest.moc"
