#include "Driving.h"

#include <QDir>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

/// Drives what lies over the window.
class SheetsTest : public WindowDriver
{
    Q_OBJECT

private Q_SLOTS:
    /// A check that was closed stays closed; one that stays open makes place.
    void checkGivesWayToReport()
    {
        openAndSettle();
        slowDown();
        click(u"system-check-button"_s);
        QVERIFY(find(u"check-list"_s));
        pass(300);
        keyAndSettle(Qt::Key_Escape);
        QCOMPARE(model().sheetKind(), SheetKind::none);
        QCOMPARE(textOf(u"status-line"_s), u"Status: Ready"_s);
        clickAndSettle(u"system-check-button"_s);
        QVERIFY(!find(u"check-list"_s) && find(u"report-list"_s));
    }

    void keepsWhatIsTypedIn()
    {
        openAndSettle();
        clickAndSettle(u"report-button"_s);
        QCOMPARE(focused(), u"inspector-field"_s);
        type(u"An"_s);
        key(Qt::Key_Tab);
        type(u"Team"_s);
        click(u"notes-field"_s);
        type(u"Fine"_s);
        keyAndSettle(Qt::Key_Escape);
        QCOMPARE(model().sheetKind(), SheetKind::none);
        open();
        QCOMPARE(model().reportProfile().json(), R"({"inspectorName":"An","team":"Team","recipient":"",)"
                                                 R"("subject":"macOS software inventory report","notes":"Fine"})");
    }

    void asksBeforeItReplacesAFile()
    {
        QVERIFY(QDir().mkpath(mac().hostPath(u"/Users/technician/Documents/Lan's 100% #1"_s)));
        open();
        model().setReportProfile({.inspectorName = u"Lan"_s, .subject = u"Audit"_s});
        model().scanMac();
        settle();
        model().openReport();
        pass(300);
        const auto ask = [&] {
            key(Qt::Key_Return); // in a field of the report
            pass(300);
            QTRY_VERIFY(isEnabled(u"save-button"_s));
            QCOMPARE(focused(), u"save-name-field"_s);
        };
        const auto written = [&](const QString &path) {
            return QTest::qWaitFor([&] { return !find(u"save-button"_s) && mac().contents(path).startsWith("%PDF"); });
        };

        ask();
        type(u"../a"_s); // in place of what is proposed, and not out of this folder
        QCOMPARE(tabRound().join(u' '),
                 u"save-up-button save-entry-Lan's 100% #1 save-cancel-button save-button save-name-field"_s);
        key(Qt::Key_Return);
        QVERIFY(written(u"/Users/technician/Documents/a.pdf"_s));

        const QString file = u"/Users/technician/Documents/Lan's 100% #1/b.PDF"_s;
        mac().write(file, "old");
        ask();
        click(u"save-up-button"_s);
        QTRY_VERIFY(find(u"save-entry-Documents"_s));
        QTest::mouseDClick(&window(), Qt::LeftButton, {}, middle(u"save-entry-Documents"_s));
        QTRY_VERIFY(find(u"save-entry-a.pdf"_s));
        key(Qt::Key_Return); // at the list's first
        QTRY_VERIFY(find(u"save-entry-b.PDF"_s));
        click(u"save-entry-b.PDF"_s);
        clickAndSettle(u"save-button"_s);
        QCOMPARE(focused(), u"replace-cancel-button"_s);
        keyAndSettle(Qt::Key_Escape);
        QCOMPARE(mac().contents(file), "old");
        QVERIFY(!find(u"replace-confirm-button"_s));
        QCOMPARE(focused(), u"save-button"_s);
        keyAndSettle(Qt::Key_Space);
        click(u"replace-confirm-button"_s);
        QVERIFY(written(file));

        ask();
        keyAndSettle(Qt::Key_Escape);
        QVERIFY(!find(u"save-button"_s));
        QCOMPARE(model().sheetKind(), SheetKind::report);
    }

    void keepsTheTitlesOverTheRows()
    {
        mac().furnish(u"populate"_s, {});
        openAndSettle();
        model().openReport();
        pass(300);
        QVERIFY(!find(u"report-titles"_s));
        model().scanMac();
        settle();
        QCOMPARE(textOf(u"scanned-at"_s), u"Scanned: 2 Jan 2026, 03:04"_s);
        const QQuickItem *const titles = find(u"report-titles"_s);
        QCOMPARE(titles->y() + titles->height(), titles->parentItem()->property("contentY").toDouble() * -1);
        key(Qt::Key_PageDown);
        key(Qt::Key_PageDown);
        QCOMPARE(titles->y(), 0);
    }

    void speaksTheChosenLanguage()
    {
        openAndSettle();
        clickAndSettle(u"settings-button"_s);
        key(Qt::Key_Backtab);
        QCOMPARE(focused(), u"language-picker"_s);
        key(Qt::Key_Return);
        key(Qt::Key_Down);
        QCOMPARE(model().language(), AppLanguage::english); // the menu is still open
        key(Qt::Key_Enter);
        QCOMPARE(textOf(u"group-all"_s), u"Tổng quan"_s);
    }

    void keepsTheKeyboardInTheSheet()
    {
        openAndSettle();
        for (const SheetKind kind : {SheetKind::settings, SheetKind::cloudTools, SheetKind::report}) {
            model().openSheet(kind);
            pass(300);
            const QQuickItem *const sheet = find(u"sheet"_s);
            const QStringList round = tabRound([&](const QString &name) {
                QVERIFY2(sheet->isAncestorOf(window().activeFocusItem()), qPrintable(name));
            });
            QVERIFY(round.size() > 1 && round.size() < 30);
            keyAndSettle(Qt::Key_Escape);
            QCOMPARE(model().sheetKind(), SheetKind::none);
            QCOMPARE(focused(), u"group-all"_s);
        }
    }

    void asksTheCloud()
    {
        openAndSettle(AppLanguage::english, "{}");
        clickAndSettle(u"cloud-tools-button"_s);
        QStringList buttons;
        char letter = 'a';
        tabRound([&](const QString &name) {
            if (window().activeFocusItem()->inherits("QQuickTextInput")) {
                type(QString(QLatin1Char(letter++)));
                hold(Qt::Key_Return);
            } else if (name.endsWith(u"-button") && !name.contains(u"close")) {
                keyAndSettle(Qt::Key_Space); // the upload looks at the Mac first
                buttons.append(name);
            }
        });
        QStringList told = stage().takeRequests();
        const QStringList byKeyboard = told;
        QVERIFY(told.value(1).startsWith(u"upload-install-report {"));
        told.removeAt(1);
        QCOMPARE(told.join(u'\n').toUtf8(), R"(app_catalog
manage-technician-workspace {"action":"update_branding","display_name":"a"}
manage-technician-workspace {"action":"save_profile","item_ids":["c"],"name":"b"}
manage-technician-workspace {"action":"get"}
business-device-config {"action":"fetch","asset_code":"","department":""}
business-device-config {"action":"update","asset_code":"e","department":"d"})");
        for (const QString &name : buttons)
            clickAndSettle(name);
        QCOMPARE(stage().takeRequests(), byKeyboard);
    }

    void showsOneApplicationsEvidence()
    {
        mac().furnish(u"populate"_s, {});
        openAndSettle();
        clickAndSettle(u"audit-sidebar-button"_s);
        QVERIFY(model().hasReportSnapshot());
        find(u"audit-list"_s)->forceActiveFocus(Qt::TabFocusReason);
        key(Qt::Key_Down);
        keyAndSettle(Qt::Key_Return);
        QCOMPARE(model().sheetKind(), SheetKind::auditDetail);
        QCOMPARE(model().sheetHead().title, model().reportApplications()->records().at(1).name);
        hold(Qt::Key_Return);
        QCOMPARE(model().sheetKind(), SheetKind::auditDetail);
        keyAndSettle(Qt::Key_Return);
        QCOMPARE(model().sheetKind(), SheetKind::none);
    }
};

QTEST_MAIN(SheetsTest)

#include "SheetsTest.moc"
