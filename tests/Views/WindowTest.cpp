#include "Stage.h"

#include <QDir>
#include <QFile>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

/// Drives the real window by mouse and keyboard. Any warning, of a view or of anything else, fails the test.
class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void actsAtThePress();
    void isNeverSmallerThanItsViews();
    void showsBothBannersInOrder();
    void bringsTheLogBack();
    void checkGivesWayToReport();
    void closedCheckStaysClosed();
    void asksBeforeItRemoves();
    void keepsWhatIsTypedIn();
    void refusesAnIncompleteReport();
    void asksBeforeItReplacesAFile();
    void keepsTheTitlesOverTheRows();
    void disablesWhatMustWait();
    void speaksTheChosenLanguage();
    void tabsThroughTheWindow();
    void keepsTheKeyboardInTheSheet_data();
    void keepsTheKeyboardInTheSheet();
    void worksByKeyboard();
    void keepsTheKeyboardAtThePressedRow();
    void showsTheWholeStatus();
    void followsTheLog();
    void showsOneApplicationsEvidence();

private:
    QList<QSize> m_shown; ///< The window's size at the moment it shows.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->isWindowType())
            m_shown.append(static_cast<QWindow *>(watched)->size());
        return false;
    }
    /// A click in the middle of the item of that name.
    void click(Stage &stage, const QString &name)
    {
        QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, middle(stage, name));
        stage.pass(20);
    }
    QPoint middle(Stage &stage, const QString &name)
    {
        QQuickItem *const item = stage.find(name);
        if (!item)
            qFatal("There is no %s in sight.", qPrintable(name));
        return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
    }
    void key(Stage &stage, Qt::Key key)
    {
        QTest::keyClick(&stage.window(), key);
        stage.pass(20);
    }
    void type(Stage &stage, const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(&stage.window(), character.toLatin1());
    }
    /// The name of the item that the keyboard is at, or of the nearest one around it that has one.
    QString focused(Stage &stage)
    {
        for (QQuickItem *item = stage.window().activeFocusItem(); item; item = item->parentItem()) {
            if (!item->objectName().isEmpty())
                return item->objectName();
        }
        return {};
    }
    QString status(Stage &stage) { return stage.find(u"status-line"_s)->property("text").toString(); }
    bool isEnabled(Stage &stage, const QString &name) { return stage.find(name)->isEnabled(); }
};

void WindowTest::init()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
}

void WindowTest::actsAtThePress()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, middle(stage, u"group-media"_s));
    QCOMPARE(stage.model().selectedGroupID(), u"media"_s);
    QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, middle(stage, u"group-office"_s));
    QCOMPARE(stage.model().selectedGroupID(), u"media"_s);
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, middle(stage, u"audit-sidebar-button"_s));
    QCOMPARE(stage.model().selectedGroupID(), u"audit"_s);
    QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, {600, 300});
}

void WindowTest::isNeverSmallerThanItsViews()
{
    const ProgramOnAMac mac;
    qApp->installEventFilter(this);
    Stage stage(mac);
    qApp->removeEventFilter(this);
    QCOMPARE(m_shown, QList{QSize(1120, 760)});
    QCOMPARE(stage.window().minimumSize(), QSize(1120, 760));
    QCOMPARE(stage.window().title(), u"Tavelo Deskrig"_s);
}

void WindowTest::showsBothBannersInOrder()
{
    const ProgramOnAMac mac;
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
    Stage stage(mac, AppLanguage::english, R"({"update_required": true, "title": "Update"})");
    stage.model().install(*std::find_if(stage.model().catalogItems().cbegin(), stage.model().catalogItems().cend(),
                                        [](const AppItem &item) { return item.id == u"vlc"; }));
    QVERIFY(!stage.find(u"force-update-banner"_s));
    stage.pass(600);
    QVERIFY(stage.model().updateRequired() && stage.model().isInstalling());
    const int update = middle(stage, u"force-update-banner"_s).y();
    const int operation = middle(stage, u"operation-banner"_s).y();
    QVERIFY(update < operation);
    QVERIFY(operation < middle(stage, u"item-list"_s).y());
    stage.settle();
    stage.advance(DeskrigViewModel::bannerDuration);
    stage.settle();
    QVERIFY(!stage.find(u"operation-banner"_s));
    QVERIFY(stage.find(u"force-update-banner"_s));
}

void WindowTest::bringsTheLogBack()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    QVERIFY(!stage.find(u"log-drawer"_s));
    click(stage, u"log-button"_s);
    QVERIFY(stage.find(u"log-drawer"_s));
    click(stage, u"log-button"_s);
    QVERIFY(!stage.find(u"log-drawer"_s));
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
    stage.model().selectGroup(u"media"_s);
    stage.pass(20);
    click(stage, u"install-vlc"_s);
    click(stage, u"log-button"_s);
    QVERIFY(!stage.find(u"log-drawer"_s));
    stage.settle();
    QVERIFY(stage.find(u"log-drawer"_s));
}

void WindowTest::checkGivesWayToReport()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
    click(stage, u"system-check-button"_s);
    QCOMPARE(stage.model().sheetKind(), SheetKind::systemChecks);
    QVERIFY(stage.find(u"check-list"_s));
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::report);
    QVERIFY(!stage.find(u"check-list"_s));
    QVERIFY(stage.find(u"report-list"_s));
}

void WindowTest::closedCheckStaysClosed()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
    click(stage, u"system-check-button"_s);
    stage.pass(300);
    key(stage, Qt::Key_Escape);
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::none);
    QCOMPARE(status(stage), u"Status: Ready"_s);
}

void WindowTest::asksBeforeItRemoves()
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

void WindowTest::keepsWhatIsTypedIn()
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

void WindowTest::refusesAnIncompleteReport()
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

void WindowTest::asksBeforeItReplacesAFile()
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
    QStringList order;
    for (int step = 0; step < 5; ++step) {
        key(stage, Qt::Key_Tab);
        order.append(focused(stage));
    }
    QCOMPARE(order.join(u' '),
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

void WindowTest::keepsTheTitlesOverTheRows()
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

void WindowTest::disablesWhatMustWait()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
    stage.model().selectGroup(u"media"_s);
    stage.pass(20);
    const QStringList buttons{u"install-vlc"_s, u"install-gimp"_s, u"install-standard-button"_s,
                              u"install-full-button"_s};
    for (const QString &name : buttons)
        QVERIFY(isEnabled(stage, name));
    click(stage, u"install-vlc"_s);
    for (const QString &name : buttons)
        QVERIFY2(!isEnabled(stage, name), qPrintable(name));
    QCOMPARE(stage.find(u"install-gimp"_s)->opacity(), 0.55);
    QVERIFY(isEnabled(stage, u"detail-gimp"_s));
    QVERIFY(isEnabled(stage, u"system-check-button"_s));
    stage.settle();
    QVERIFY(isEnabled(stage, u"install-gimp"_s));
}

void WindowTest::speaksTheChosenLanguage()
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

void WindowTest::tabsThroughTheWindow()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    QStringList order{focused(stage)};
    do {
        key(stage, Qt::Key_Tab);
        order.append(focused(stage));
    } while (order.constLast() != order.constFirst() && order.size() < 40);
    QCOMPARE(order.join(u' '),
             u"group-all group-office group-microsoft group-printer group-meeting group-media audit-sidebar-button "
             "install-standard-button install-full-button system-check-button report-button cloud-tools-button "
             "settings-button refresh-button progress-button item-list install-libreoffice detail-libreoffice "
             "log-button group-all"_s);
}

void WindowTest::keepsTheKeyboardInTheSheet_data()
{
    QTest::addColumn<SheetKind>("kind");
    QTest::newRow("settings") << SheetKind::settings;
    QTest::newRow("cloud tools") << SheetKind::cloudTools;
    QTest::newRow("report") << SheetKind::report;
}

void WindowTest::keepsTheKeyboardInTheSheet()
{
    QFETCH(const SheetKind, kind);
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    stage.model().openSheet(kind);
    stage.pass(300);
    const QString first = focused(stage);
    const QQuickItem *const sheet = stage.find(u"sheet"_s);
    int steps = 0;
    do {
        key(stage, Qt::Key_Tab);
        QVERIFY2(sheet->isAncestorOf(stage.window().activeFocusItem()), qPrintable(focused(stage)));
    } while (focused(stage) != first && ++steps < 30);
    QVERIFY(steps > 0 && steps < 30);
    key(stage, Qt::Key_Escape);
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::none);
    QCOMPARE(focused(stage), u"group-all"_s);
}

void WindowTest::worksByKeyboard()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    key(stage, Qt::Key_Down); // from the list of groups' first entry to the next
    key(stage, Qt::Key_Return);
    QCOMPARE(stage.model().selectedGroupID(), u"office"_s);
    while (focused(stage) != u"item-list")
        key(stage, Qt::Key_Tab);
    for (const QString &chosen : {u"ibus-unikey"_s, u"office-fonts"_s, u"evince"_s}) {
        key(stage, Qt::Key_Down);
        QVERIFY(stage.find(u"detail-"_s + chosen)->activeFocusOnTab());
    }
    key(stage, Qt::Key_Return);
    stage.settle();
    QVERIFY(mac.exists(u"/Applications/Skim.app"_s));
    key(stage, Qt::Key_Backspace);
    stage.pass(300);
    key(stage, Qt::Key_Tab);
    key(stage, Qt::Key_Return);
    stage.settle();
    QVERIFY(!mac.exists(u"/Applications/Skim.app"_s));
}

void WindowTest::keepsTheKeyboardAtThePressedRow()
{
    const ProgramOnAMac mac;
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
    Stage stage(mac);
    stage.settle();
    stage.model().selectGroup(u"media"_s);
    stage.pass(20);
    click(stage, u"install-gimp"_s); // not the first row
    QVERIFY(!isEnabled(stage, u"install-gimp"_s));
    QCOMPARE(focused(stage), u"item-list"_s);
    const QString action = stage.model().currentAction();
    key(stage, Qt::Key_Return);
    QCOMPARE(stage.model().currentAction(), action);
    stage.settle();
    key(stage, Qt::Key_Delete);
    QCOMPARE(stage.model().pendingUninstall()->id, u"gimp"_s);
    stage.model().cancelUninstall();
    stage.model().selectGroup(u"office"_s);
    QCOMPARE(stage.find(u"item-list"_s)->property("currentIndex").toInt(), 0);
}

void WindowTest::showsTheWholeStatus()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    QQuickItem *const pill = stage.find(u"status-libreoffice"_s);
    QQuickItem *const label = pill->childItems().constFirst();
    for (const AppLanguage language : AppLanguages::supported()) {
        stage.model().setLanguage(language);
        for (const auto status : {InstallStatus::missing, InstallStatus::installed, InstallStatus::working,
                                  InstallStatus::failed, InstallStatus::blocked}) {
            const QString text = AppStrings(language).statusText(status, u"100%"_s);
            pill->setProperty("text", text);
            QVERIFY2(label->property("contentWidth").toDouble() <= label->width(), qPrintable(text));
            QVERIFY2(!label->property("truncated").toBool(), qPrintable(text));
        }
    }
}

void WindowTest::followsTheLog()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    stage.model().setShowLogDrawer(true);
    for (int line = 0; line < 600; ++line) {
        stage.model().appendLog(u"%1 "_s.arg(line).repeated(line % 60));
        if (line > 480)
            stage.pass(1);
    }
    stage.pass(100);
    QCOMPARE(stage.model().logLines()->rowCount(), 500);
    QQuickItem *const list = stage.find(u"log-list"_s);
    QVERIFY(list->property("atYEnd").toBool());
    QCOMPARE(list->property("count").toInt(), 500);
}

void WindowTest::showsOneApplicationsEvidence()
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
    key(stage, Qt::Key_Return);
    stage.settle();
    QCOMPARE(stage.model().sheetKind(), SheetKind::none);
}

QTEST_MAIN(WindowTest)

#include "WindowTest.moc"
