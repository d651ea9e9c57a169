#include "Driving.h"

#include <QAccessible>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

/// What a screen reader gets to know of the window.
class AccessibilityTest : public WindowDriver
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasANameAndCanBePressed()
    {
        using enum SheetKind;
        open();
        selectGroup(u"audit"_s);
        settle();
        selectGroup(u"all"_s);
        for (const SheetKind sheet : {none, settings, systemChecks, report, cloudTools}) {
            model().show(Sheet(sheet));
            settle();
            int buttons = 0;
            visit(*window().contentItem(), buttons);
            QVERIFY2(buttons >= 18, qPrintable(u"%1 in %2"_s.arg(buttons).arg(int(sheet))));
        }
    }

    void pressesActAsTheMouseDoes()
    {
        openAndSettle();
        press(u"group-media"_s);
        QCOMPARE(model().selectedGroupID(), u"media"_s);
        QVERIFY(of(find(u"group-media"_s))->state().selected);
        QVERIFY(!of(find(u"group-office"_s))->state().selected);
        press(u"settings-button"_s);
        QCOMPARE(model().activeSheet().kind(), SheetKind::settings);
    }

private:
    static QAccessibleInterface *of(QQuickItem *item) { return QAccessible::queryAccessibleInterface(item); }

    void press(const QString &name)
    {
        QQuickItem *const item = find(name);
        QVERIFY2(item, qPrintable(name));
        of(item)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        pass(20);
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
