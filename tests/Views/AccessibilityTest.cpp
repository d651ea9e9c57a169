#include "Stage.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

/// What a screen reader gets to know of the window.
class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasANameAndCanBePressed_data()
    {
        QTest::addColumn<int>("sheet");
        using enum SheetKind;
        const std::pair<const char *, SheetKind> sheets[] = {{"window", none},
                                                             {"settings", settings},
                                                             {"checks", systemChecks},
                                                             {"report", report},
                                                             {"cloud", cloudTools}};
        for (const auto &[name, sheet] : sheets)
            QTest::newRow(name) << static_cast<int>(sheet);
    }

    void everyControlHasANameAndCanBePressed()
    {
        QFETCH(int, sheet);
        const ProgramOnAMac mac;
        Stage stage(mac);
        stage.model().selectGroup(u"audit"_s);
        stage.settle();
        stage.model().selectGroup(u"all"_s);
        stage.model().show(Sheet(static_cast<SheetKind>(sheet)));
        stage.settle();
        int buttons = 0;
        visit(*stage.window().contentItem(), buttons);
        QVERIFY2(buttons >= 18, qPrintable(QString::number(buttons)));
    }

    void pressesActAsTheMouseDoes()
    {
        const ProgramOnAMac mac;
        Stage stage(mac);
        stage.settle();
        press(stage, u"group-media"_s);
        QCOMPARE(stage.model().selectedGroupID(), u"media"_s);
        QVERIFY(of(stage.find(u"group-media"_s))->state().selected);
        QVERIFY(!of(stage.find(u"group-office"_s))->state().selected);
        press(stage, u"log-button"_s);
        QVERIFY(stage.model().showLogDrawer());
        press(stage, u"settings-button"_s);
        QCOMPARE(stage.model().activeSheet().kind(), SheetKind::settings);
    }

private:
    static QAccessibleInterface *of(QQuickItem *item) { return QAccessible::queryAccessibleInterface(item); }

    static void press(Stage &stage, const QString &name)
    {
        QQuickItem *const item = stage.find(name);
        QVERIFY2(item, qPrintable(name));
        of(item)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        stage.pass(20);
    }

    static void visit(QQuickItem &item, int &buttons)
    {
        if (!item.isVisible())
            return;
        const bool isButton = item.inherits("QQuickAbstractButton");
        if (isButton || item.activeFocusOnTab() || item.inherits("QQuickTextInput") ||
            item.inherits("QQuickTextEdit")) {
            const QString what = item.objectName() + u" of "_s + QString::fromLatin1(item.metaObject()->className());
            QAccessibleInterface *const read = of(&item);
            QVERIFY2(read, qPrintable(what));
            QVERIFY2(!read->text(QAccessible::Name).isEmpty(), qPrintable(what));
            if (isButton)
                QVERIFY2(read->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()),
                         qPrintable(what));
            buttons += isButton;
        }
        const QList<QQuickItem *> children = item.childItems();
        for (QQuickItem *const child : children)
            visit(*child, buttons);
    }
};

QTEST_MAIN(AccessibilityTest)

#include "AccessibilityTest.moc"
