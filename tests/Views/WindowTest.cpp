#include "Driving.h"

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
    void init() { failOnWarnings(); }
    void actsAtThePress();
    void isNeverSmallerThanItsViews();
    void showsBothBannersInOrder();
    void bringsTheLogBack();
    void disablesWhatMustWait();
    void tabsThroughTheWindow();
    void worksByKeyboard();
    void keepsTheKeyboardAtThePressedRow();
    void showsTheWholeStatus();
    void followsTheLog();
    void letsAMessageGo();
    void movesABannerEvenly();
    void doesWhatItsButtonsSay();

private:
    QList<QSize> m_shown; ///< The window's size at the moment it shows.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->isWindowType())
            m_shown.append(static_cast<QWindow *>(watched)->size());
        return false;
    }
};

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
    slowDown(mac);
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
    slowDown(mac);
    stage.model().selectGroup(u"media"_s);
    stage.pass(20);
    click(stage, u"install-vlc"_s);
    click(stage, u"log-button"_s);
    QVERIFY(!stage.find(u"log-drawer"_s));
    stage.settle();
    QVERIFY(stage.find(u"log-drawer"_s));
}

void WindowTest::disablesWhatMustWait()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    slowDown(mac);
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

void WindowTest::tabsThroughTheWindow()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    QCOMPARE(tabRound(stage).join(u' '),
             u"group-office group-microsoft group-printer group-meeting group-media audit-sidebar-button "
             "install-standard-button install-full-button system-check-button report-button cloud-tools-button "
             "settings-button refresh-button progress-button item-list install-libreoffice detail-libreoffice "
             "log-button group-all"_s);
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
    slowDown(mac);
    Stage stage(mac);
    stage.settle();
    stage.model().selectGroup(u"media"_s);
    stage.pass(20);
    click(stage, u"install-gimp"_s); // not the first row
    QVERIFY(!isEnabled(stage, u"install-gimp"_s));
    QCOMPARE(focused(stage), u"item-list"_s);
    key(stage, Qt::Key_Return);
    stage.settle();
    QCOMPARE(stage.model().logLines()->lines().filter(u"Bắt đầu cài: "_s).size(), 1);
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

void WindowTest::letsAMessageGo()
{
    using namespace std::chrono_literals;
    const ProgramOnAMac mac;
    Stage stage(mac, AppLanguage::japanese);
    stage.settle();
    const auto isShownAfter = [&](std::chrono::milliseconds duration) {
        stage.advance(duration);
        stage.settle();
        return stage.find(u"toast"_s) != nullptr;
    };
    stage.model().copyHomebrewInstallCommand();
    QVERIFY(isShownAfter(2199ms));
    stage.model().copyLogPath();
    QVERIFY(isShownAfter(2199ms));
    QVERIFY(!isShownAfter(1ms));
}

/// The list makes room as far as the banner is in, on all of its way.
void WindowTest::movesABannerEvenly()
{
    const ProgramOnAMac mac;
    Stage stage(mac);
    stage.settle();
    const QQuickItem *const list = stage.find(u"item-list"_s);
    const double above = list->y();
    stage.model().performPrimaryActionOf(u"vlc"_s);
    stage.settle();
    const QQuickItem *const banner = stage.find(u"operation-banner"_s);
    QQuickItem *const reveal = banner->parentItem()->parentItem();
    for (const double share : {0.75, 0.5, 0.25, 0.0, 1.0}) {
        reveal->setProperty("share", share);
        stage.settle();
        QVERIFY(qAbs(list->y() - above - share * (banner->height() + 12)) <= 1);
        QCOMPARE(reveal->opacity(), share);
        if (share > 0) // its lower edge goes with the list
            QVERIFY(qAbs(list->y() - banner->mapToItem(list->parentItem(), {0, banner->height()}).y() - 12) <= 1);
    }
}

void WindowTest::doesWhatItsButtonsSay()
{
    const ProgramOnAMac mac;
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--status"_s, u"1"_s});
    Stage stage(mac);
    stage.settle();
    const auto presets = [&] {
        QStringList said = stage.model().logLines()->lines().filter(u"Preset "_s);
        said.replaceInStrings(QRegularExpression(u"^.*Preset |:.*$"_s), {});
        return said.join(u", "_s);
    };
    const auto press = [&](const QString &name, Qt::Key with) {
        stage.find(name)->forceActiveFocus(Qt::TabFocusReason);
        key(stage, with);
        stage.settle();
    };
    click(stage, u"install-standard-button"_s);
    stage.settle();
    QCOMPARE(presets(), u"standard set"_s);
    press(u"install-full-button"_s, Qt::Key_Return);
    QCOMPARE(presets(), u"standard set, all items"_s);

    mac.takeCalls();
    click(stage, u"install-ibus-unikey"_s);
    stage.settle();
    const QStringList opened = mac.takeCalls();
    QCOMPARE(opened.filter(u"open "_s).size(), 1);
    press(u"install-ibus-unikey"_s, Qt::Key_Space);
    QCOMPARE(mac.takeCalls(), opened);
}

QTEST_MAIN(WindowTest)

#include "WindowTest.moc"
