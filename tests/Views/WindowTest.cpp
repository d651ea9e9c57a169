#include "Driving.h"
#include "ReportFonts.h"

#include <QImage>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

int apart(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) + qAbs(qGreen(one) - qGreen(other)) + qAbs(qBlue(one) - qBlue(other));
}

} // namespace

/// Drives the real window.
class WindowTest : public WindowDriver
{
    Q_OBJECT

private Q_SLOTS:
    void actsAtThePress()
    {
        openAndSettle();
        QTest::mousePress(&window(), Qt::LeftButton, {}, middle(u"group-media"_s));
        QCOMPARE(model().selectedGroupID(), u"media"_s);
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, middle(u"group-office"_s));
        QCOMPARE(model().selectedGroupID(), u"media"_s);
        QTest::mousePress(&window(), Qt::LeftButton, {}, middle(u"audit-sidebar-button"_s));
        QCOMPARE(model().selectedGroupID(), u"audit"_s);
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, {600, 300});
    }

    void isNeverSmallerThanItsViews()
    {
        qApp->installEventFilter(this);
        open();
        qApp->removeEventFilter(this);
        QCOMPARE(m_shown, QList{QSize(1120, 760)});
        QCOMPARE(window().minimumSize(), QSize(1120, 760));
        QCOMPARE(window().title(), u"Tavelo Deskrig"_s);
    }

    /// Every symbol in sight is there in its color, and whole.
    void drawsItsSymbols()
    {
        openAndSettle();
        const QImage picture = stage().picture();
        QStringList drawn;
        const std::function<void(QQuickItem &, QRect)> visit = [&](QQuickItem &item, QRect sight) {
            if (!item.isVisible() || !item.isEnabled())
                return;
            const QRect place = item.mapRectToScene(item.boundingRect()).toRect();
            if (item.clip())
                sight &= place;
            if (item.inherits("Tavelo::SymbolIcon") && sight.contains(place)) {
                const QString symbol = item.property("symbol").toString();
                const QRgb color = item.property("color").value<QColor>().rgb();
                const QRgb ground = picture.pixel(place.topLeft());
                int ink = 0;
                for (int y = place.top(); y <= place.bottom(); ++y) {
                    for (int x = place.left(); x <= place.right(); ++x)
                        ink += apart(picture.pixel(x, y), color) < apart(picture.pixel(x, y), ground);
                }
                QVERIFY2(ink >= 6, qPrintable(symbol));
                QVERIFY2(item.width() >= item.implicitWidth() && item.height() >= item.implicitHeight(),
                         qPrintable(symbol));
                drawn.append(symbol);
            }
            const QList<QQuickItem *> children = item.childItems();
            for (QQuickItem *const child : children)
                visit(*child, sight);
        };
        visit(*window().contentItem(), picture.rect());
        for (const QString &symbol :
             {u"square.grid.2x2"_s, u"shield.lefthalf.filled"_s, u"arrow.clockwise"_s, u"trash"_s})
            QVERIFY2(drawn.contains(symbol), qPrintable(drawn.join(u' ')));
    }

    void showsBothBannersInOrder()
    {
        slowDown();
        open(AppLanguage::english, R"({"update_required": true, "title": "Update"})");
        model().performPrimaryActionOf(u"vlc"_s);
        QVERIFY(!find(u"force-update-banner"_s));
        pass(600);
        QVERIFY(model().updateRequired() && model().isInstalling());
        const int update = middle(u"force-update-banner"_s).y();
        const int operation = middle(u"operation-banner"_s).y();
        QVERIFY(update < operation);
        QVERIFY(operation < middle(u"item-list"_s).y());
        settle();
        stage().advance(DeskrigViewModel::bannerDuration);
        settle();
        QVERIFY(!find(u"operation-banner"_s));
        QVERIFY(find(u"force-update-banner"_s));
    }

    /// While an item is installed nothing else can be, the keyboard stays at its row, and the log comes back by itself.
    void worksOnOneThingAtATime()
    {
        openAndSettle();
        slowDown();
        selectGroup(u"media"_s);
        const QStringList buttons{u"install-vlc"_s, u"install-gimp"_s, u"install-standard-button"_s,
                                  u"install-full-button"_s};
        for (const QString &name : buttons)
            QVERIFY(isEnabled(name));
        click(u"install-gimp"_s); // not the first row
        for (const QString &name : buttons)
            QVERIFY2(!isEnabled(name), qPrintable(name));
        QCOMPARE(find(u"install-vlc"_s)->opacity(), 0.55);
        QVERIFY(isEnabled(u"detail-gimp"_s) && isEnabled(u"system-check-button"_s));
        QCOMPARE(focused(), u"item-list"_s);
        key(Qt::Key_Return);
        QVERIFY(find(u"log-drawer"_s));
        model().setShowLogDrawer(false);
        QVERIFY(!find(u"log-drawer"_s));
        settle();
        QVERIFY(find(u"log-drawer"_s) && isEnabled(u"install-vlc"_s));
        QCOMPARE(model().logLines()->lines().filter(u"Bắt đầu cài: "_s).size(), 1);
        key(Qt::Key_Delete);
        QCOMPARE(model().pendingUninstall()->id, u"gimp"_s);
        model().cancelUninstall();
        model().selectGroup(u"office"_s);
        QCOMPARE(find(u"item-list"_s)->property("currentIndex").toInt(), 0);
    }

    /// Where the keyboard is, a button has its ring.
    void tabsThroughTheWindow()
    {
        openAndSettle();
        const auto atTheEdge = [&](const QQuickItem *item) {
            return stage().picture().pixelColor(item->mapToScene({-2, item->height() / 2}).toPoint());
        };
        int rings = 0;
        const auto look = [&](const QString &name) {
            const QQuickItem *const item = window().activeFocusItem();
            const QVariant ring = item->property("ringColor");
            if (!ring.isValid())
                return;
            QVERIFY2(atTheEdge(item) == ring.value<QColor>(), qPrintable(name));
            ++rings;
        };
        const QStringList round = tabRound(look);
        QVERIFY(atTheEdge(find(u"settings-button"_s)) !=
                find(u"settings-button"_s)->property("ringColor").value<QColor>());
        QCOMPARE(rings, round.size() - 1); // all but the list
        QCOMPARE(round.join(u' '),
                 u"group-office group-microsoft group-printer group-meeting group-media audit-sidebar-button "
                 "install-standard-button install-full-button system-check-button report-button cloud-tools-button "
                 "settings-button refresh-button progress-button item-list install-libreoffice detail-libreoffice "
                 "log-button group-all"_s);
    }

    void worksByKeyboard()
    {
        openAndSettle();
        key(Qt::Key_Down); // from the list of groups' first entry to the next
        key(Qt::Key_Return);
        QCOMPARE(model().selectedGroupID(), u"office"_s);
        while (focused() != u"item-list")
            key(Qt::Key_Tab);
        for (const QString &chosen : {u"ibus-unikey"_s, u"office-fonts"_s, u"evince"_s}) {
            key(Qt::Key_Down);
            QVERIFY(find(u"detail-"_s + chosen)->activeFocusOnTab());
        }
        keyAndSettle(Qt::Key_Return);
        QVERIFY(mac().exists(u"/Applications/Skim.app"_s));
        keyAndSettle(Qt::Key_Backspace);
        key(Qt::Key_Tab);
        keyAndSettle(Qt::Key_Return);
        QVERIFY(!mac().exists(u"/Applications/Skim.app"_s));
    }

    void showsTheWholeStatus()
    {
        openAndSettle();
        QQuickItem *const pill = find(u"status-libreoffice"_s);
        QQuickItem *const label = pill->childItems().constFirst();
        for (const AppLanguage language : AppLanguages::supported()) {
            model().setLanguage(language);
            QCOMPARE(label->property("font").value<QFont>().families(), ReportFonts::font(language).families());
            for (const auto status : {InstallStatus::missing, InstallStatus::installed, InstallStatus::working,
                                      InstallStatus::failed, InstallStatus::blocked}) {
                const QString text = AppStrings(language).statusText(status, u"100%"_s);
                pill->setProperty("text", text);
                QVERIFY2(label->property("contentWidth").toDouble() <= label->width(), qPrintable(text));
                QVERIFY2(!label->property("truncated").toBool(), qPrintable(text));
            }
        }
    }

    void closedDialogsFollowTheLanguage()
    {
        openAndSettle();
        model().askToUninstallItem(u"libreoffice"_s);
        settle();
        const QQuickItem *const title =
            find(u"remove-cancel-button"_s)->parentItem()->parentItem()->childItems().constFirst();
        const auto families = [&] {
            return title->childItems().constFirst()->property("font").value<QFont>().families();
        };
        QCOMPARE(families(), ReportFonts::font(AppLanguage::english).families());
        model().cancelUninstall();
        settle();
        model().setLanguage(AppLanguage::korean);
        QCOMPARE(families(), ReportFonts::font(AppLanguage::korean).families());
    }

    void followsTheLog()
    {
        openAndSettle();
        click(u"log-button"_s);
        for (int line = 0; line < 600; ++line) {
            model().appendLog(u"%1 "_s.arg(line).repeated(line % 60));
            if (line > 480)
                pass(1);
        }
        pass(100);
        QVERIFY(find(u"log-list"_s)->property("atYEnd").toBool());
        QCOMPARE(find(u"log-list"_s)->property("count").toInt(), 500);
        click(u"log-button"_s);
        QVERIFY(!find(u"log-drawer"_s));
    }

    /// The list makes room as far as the banner is in, on all of its way.
    void movesABannerEvenly()
    {
        openAndSettle();
        const QQuickItem *const list = find(u"item-list"_s);
        const double above = list->y();
        model().performPrimaryActionOf(u"vlc"_s);
        settle();
        const QQuickItem *const banner = find(u"operation-banner"_s);
        QQuickItem *const reveal = banner->parentItem()->parentItem();
        for (const double share : {0.75, 0.5, 0.25, 0.0, 1.0}) {
            reveal->setProperty("share", share);
            settle();
            QVERIFY(qAbs(list->y() - above - share * (banner->height() + 12)) <= 1);
            QCOMPARE(reveal->opacity(), share);
            if (share > 0) // its lower edge goes with the list
                QVERIFY(qAbs(list->y() - banner->mapToItem(list->parentItem(), {0, banner->height()}).y() - 12) <= 1);
        }
    }

private:
    QList<QSize> m_shown; ///< The window's size at the moment it shows.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->isWindowType())
            m_shown.append(static_cast<QWindow *>(watched)->size());
        return false;
    }
};

QTEST_MAIN(WindowTest)

#include "WindowTest.moc"
