#include "Driving.h"

#include <QDir>
#include <QFile>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

/// Drives what lies over the window by mouse and keyboard. Any warning, of a view or of anything else, fails the test.
class SheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnWarnings(); }
    void checkGivesWayToReport();
    void closedCheckStaysClosed();
    void asksBeforeItRemoves();
    void keepsWhatIsTypedIn();
    void refusesAnIncompleteReport();
    void asksBeforeItReplacesAFile();
    void keepsTheTitlesOverTheRows();
    void speaksTheChosenLanguage();
    void keepsTheKeyboardInTheSheet_data();
    void keepsTheKeyboardInTheSheet();
    void asksTheCloud();
    void showsOneApplicationsEvidence();
};

void SheetsTest::checkGivesWayToReport()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    slowDown(mac);
    click(stage, u"system-check-button"_s);
    QCOMPARE(stage.model().sheetKind(), SheetKind::systemChecks);
    QVERIFY(stage.find(u"check-list"_s));
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::report);
    QVERIFY(!stage.find(u"check-list"_s));
    QVERIFY(stage.find(u"report-list"_s));
}

void SheetsTest::closedCheckStaysClosed()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    slowDown(mac);
    click(stage, u"system-check-button"_s);
    stage.pass(300);
    key(stage, Qt::Key_Escape);
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::none);
    QCOMPARE(status(stage), u"Status: Ready"_s);
}

void SheetsTest::asksBeforeItRemoves()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    stage.model().selectGroup(u"media"_s);
    stage.pass(20);
    QVERIFY(!isEnabled(stage, u"remove-vlc"_s));
    click(stage, u"install-vlc"_s);
    stage.settle();
    QVERIFY(mac.exists(u"/Applications/VLC.app"_s));
    click(stage, u"remove-vlc"_s);
    stage.pass(300);
    key(stage, Qt::Key_Escape);
    stage.settle();
    QVERIFY(!stage.find(u"remove-confirm-button"_s));
    QVERIFY(mac.exists(u"/Applications/VLC.app"_s));
    click(stage, u"remove-vlc"_s);
    stage.pass(300);
    QCOMPARE(focused(stage), u"remove-cancel-button"_s);
    click(stage, u"remove-confirm-button"_s);
    stage.settle();
    QVERIFY(!mac.exists(u"/Applications/VLC.app"_s));
}

void SheetsTest::keepsWhatIsTypedIn()
{
    const ProgramOnAMac mac;
    {
        Stage stage(mac);
        stage.settle();
        click(stage, u"report-button"_s);
        stage.pass(300);
        QCOMPARE(focused(stage), u"inspector-field"_s);
        type(stage, u"An"_s);
        key(stage, Qt::Key_Tab);
        type(stage, u"Team"_s);
        click(stage, u"notes-field"_s);
        type(stage, u"Fine"_s);
        key(stage, Qt::Key_Escape);
        stage.settle();
        QCOMPARE(stage.model().sheetKind(), SheetKind::none);
    }
    Stage stage(mac);
    const MacReportProfile profile = stage.model().reportProfile();
    QCOMPARE(profile.inspectorName, u"An"_s);
    QCOMPARE(profile.team, u"Team"_s);
    QCOMPARE(profile.notes, u"Fine"_s);
    QCOMPARE(profile.subject, u"macOS software inventory report"_s);
}

void SheetsTest::refusesAnIncompleteReport()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    stage.model().openReport();
    stage.pass(300);
    click(stage, u"export-button"_s);
    QCOMPARE(stage.model().toast().text, u"Scan the computer before exporting PDF."_s);
    click(stage, u"scan-again-button"_s);
    stage.settle();
    QCOMPARE(stage.find(u"scanned-at"_s)->property("text").toString(), u"Scanned: 02/01/2026 03:04"_s);
    click(stage, u"export-button"_s);
    QCOMPARE(stage.model().toast().text, u"Enter the inspector name and report title."_s);
    QCOMPARE(stage.model().sheetKind(), SheetKind::report);
}

void SheetsTest::asksBeforeItReplacesAFile()
{
    const ProgramOnAMac mac;
    QVERIFY(QDir().mkpath(mac.hostPath(u"/Users/technician/Documents/Lan's 100% #1"_s)));
    Stage stage(mac);
    stage.model().setReportProfile({.inspectorName = u"Lan"_s, .subject = u"Audit"_s});
    stage.model().scanMac();
    stage.settle();
    stage.model().openReport();
    stage.pass(300);
    const auto ask = [&] {
        key(stage, Qt::Key_Return); // in a field of the report
        stage.pass(300);
        QTRY_VERIFY(isEnabled(stage, u"save-button"_s));
        QCOMPARE(focused(stage), u"save-name-field"_s);
    };
    const auto written = [&](const QString &path) {
        return QTest::qWaitFor([&] { return !stage.find(u"save-button"_s) && mac.contents(path).startsWith("%PDF"); });
    };

    ask();
    type(stage, u"../a"_s); // in place of what is proposed, and not out of this folder
    QCOMPARE(tabRound(stage).join(u' '),
             u"save-up-button save-entry-Lan's 100% #1 save-cancel-button save-button save-name-field"_s);
    key(stage, Qt::Key_Return);
    QVERIFY(written(u"/Users/technician/Documents/a.pdf"_s));

    const QString file = u"/Users/technician/Documents/Lan's 100% #1/b.PDF"_s;
    QFile old(mac.hostPath(file));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3 && old.flush());
    ask();
    click(stage, u"save-up-button"_s);
    QTRY_VERIFY(stage.find(u"save-entry-Documents"_s));
    QTest::mouseDClick(&stage.window(), Qt::LeftButton, {}, middle(stage, u"save-entry-Documents"_s));
    QTRY_VERIFY(stage.find(u"save-entry-a.pdf"_s));
    key(stage, Qt::Key_Return); // at the list's first
    QTRY_VERIFY(stage.find(u"save-entry-b.PDF"_s));
    click(stage, u"save-entry-b.PDF"_s);
    click(stage, u"save-button"_s);
    stage.pass(300);
    QCOMPARE(focused(stage), u"replace-cancel-button"_s);
    key(stage, Qt::Key_Escape);
    stage.pass(300);
    QCOMPARE(mac.contents(file), "old");
    QVERIFY(!stage.find(u"replace-confirm-button"_s));
    QCOMPARE(focused(stage), u"save-button"_s);
    key(stage, Qt::Key_Space);
    stage.pass(300);
    click(stage, u"replace-confirm-button"_s);
    QVERIFY(written(file));

    ask();
    key(stage, Qt::Key_Escape);
    stage.settle();
    QVERIFY(!stage.find(u"save-button"_s));
    QCOMPARE(stage.model().sheetKind(), SheetKind::report);
}

void SheetsTest::keepsTheTitlesOverTheRows()
{
    const ProgramOnAMac mac;
    mac.furnish(u"populate"_s, {});
    Stage stage(mac);
    stage.settle();
    stage.model().openReport();
    stage.pass(300);
    QVERIFY(!stage.find(u"report-titles"_s));
    stage.model().scanMac();
    stage.settle();
    const QQuickItem *const titles = stage.find(u"report-titles"_s);
    QCOMPARE(titles->y() + titles->height(), titles->parentItem()->property("contentY").toDouble() * -1);
    key(stage, Qt::Key_PageDown);
    key(stage, Qt::Key_PageDown);
    QCOMPARE(titles->y(), 0);
}

void SheetsTest::speaksTheChosenLanguage()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    click(stage, u"settings-button"_s);
    stage.pass(300);
    key(stage, Qt::Key_Backtab);
    QCOMPARE(focused(stage), u"language-picker"_s);
    key(stage, Qt::Key_Return);
    key(stage, Qt::Key_Down);
    QCOMPARE(stage.model().language(), AppLanguage::english); // the menu is still open
    key(stage, Qt::Key_Enter);
    QCOMPARE(stage.model().language(), AppLanguage::vietnamese);
    click(stage, u"settings-done-button"_s);
    stage.settle();
    QCOMPARE(stage.find(u"install-vlc"_s), nullptr);
    QCOMPARE(stage.find(u"install-office-fonts"_s)->property("text").toString(), u"Cài"_s);
    QCOMPARE(stage.find(u"group-all"_s)->property("text").toString(), u"Tổng quan"_s);
}

void SheetsTest::keepsTheKeyboardInTheSheet_data()
{
    QTest::addColumn<SheetKind>("kind");
    QTest::newRow("settings") << SheetKind::settings;
    QTest::newRow("cloud tools") << SheetKind::cloudTools;
    QTest::newRow("report") << SheetKind::report;
}

void SheetsTest::keepsTheKeyboardInTheSheet()
{
    QFETCH(const SheetKind, kind);
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    stage.model().openSheet(kind);
    stage.pass(300);
    const QQuickItem *const sheet = stage.find(u"sheet"_s);
    const QStringList round = tabRound(stage, [&](const QString &name) {
        QVERIFY2(sheet->isAncestorOf(stage.window().activeFocusItem()), qPrintable(name));
    });
    QVERIFY(round.size() > 1 && round.size() < 30);
    key(stage, Qt::Key_Escape);
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::none);
    QCOMPARE(focused(stage), u"group-all"_s);
}

void SheetsTest::asksTheCloud()
{
    const ProgramOnAMac mac;
    Stage stage(mac, AppLanguage::english, "{}");
    stage.settle();
    click(stage, u"cloud-tools-button"_s);
    stage.pass(300);
    QStringList buttons;
    char letter = 'a';
    tabRound(stage, [&](const QString &name) {
        if (stage.window().activeFocusItem()->inherits("QQuickTextInput")) {
            type(stage, QString(QLatin1Char(letter++)));
            hold(stage, Qt::Key_Return);
        } else if (name.endsWith(u"-button") && !name.contains(u"close")) {
            key(stage, Qt::Key_Space);
            stage.settle(); // the upload looks at the Mac first
            buttons.append(name);
        }
    });
    const QStringList byKeyboard = stage.takeRequests();
    QStringList told = byKeyboard;
    QVERIFY(told.value(1).startsWith(u"upload-install-report {"));
    told.removeAt(1);
    QCOMPARE(told.join(u'\n').toUtf8(), R"(app_catalog
manage-technician-workspace {"action":"update_branding","display_name":"a"}
manage-technician-workspace {"action":"save_profile","item_ids":["c"],"name":"b"}
manage-technician-workspace {"action":"get"}
business-device-config {"action":"fetch","asset_code":"","department":""}
business-device-config {"action":"update","asset_code":"e","department":"d"})");
    for (const QString &name : buttons) {
        click(stage, name);
        stage.settle();
    }
    QCOMPARE(stage.takeRequests(), byKeyboard);
}

void SheetsTest::showsOneApplicationsEvidence()
{
    const ProgramOnAMac mac;
    mac.furnish(u"populate"_s, {});
    Stage stage(mac);
    stage.settle();
    click(stage, u"audit-sidebar-button"_s);
    stage.settle();
    QVERIFY(stage.model().hasReportSnapshot());
    stage.find(u"audit-list"_s)->forceActiveFocus(Qt::TabFocusReason);
    key(stage, Qt::Key_Down);
    key(stage, Qt::Key_Return);
    stage.pass(300);
    QCOMPARE(stage.model().sheetKind(), SheetKind::auditDetail);
    QCOMPARE(stage.model().sheetHead().title, stage.model().reportApplications()->records().at(1).name);
    hold(stage, Qt::Key_Return);
    QCOMPARE(stage.model().sheetKind(), SheetKind::auditDetail);
    key(stage, Qt::Key_Return);
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::none);
}

QTEST_MAIN(SheetsTest)

#include "SheetsTest.moc"
