#include "Driving.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace Tavelo
{

void WindowDriver::init()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
    m_mac.emplace();
}

void WindowDriver::cleanup()
{
    m_stage.reset();
    m_mac.reset();
}

QString WindowDriver::textOf(const QString &name)
{
    const QQuickItem *const item = find(name);
    return item ? item->property("text").toString() : u"nothing"_s;
}

QPoint WindowDriver::middle(const QString &name)
{
    const QQuickItem *item = nullptr;
    if (!QTest::qWaitFor([&] { return (item = find(name)) != nullptr; }))
        qFatal("There is no %s in sight.", qPrintable(name));
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
}

QString WindowDriver::focused()
{
    for (QQuickItem *item = window().activeFocusItem(); item; item = item->parentItem()) {
        if (!item->objectName().isEmpty())
            return item->objectName();
    }
    return {};
}

void WindowDriver::click(const QString &name)
{
    QTest::mouseClick(&window(), Qt::LeftButton, {}, middle(name));
    pass(20);
}

void WindowDriver::key(Qt::Key key)
{
    QTest::keyClick(&window(), key);
    pass(20);
}

void WindowDriver::clickAndSettle(const QString &name)
{
    click(name);
    settle();
}

void WindowDriver::keyAndSettle(Qt::Key which)
{
    key(which);
    settle();
}

void WindowDriver::hold(Qt::Key key)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, key, {}, {}, true);
        QCoreApplication::sendEvent(&window(), &event);
    }
    pass(20);
}

void WindowDriver::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(&window(), character.toLatin1());
}

QStringList WindowDriver::tabRound(const std::function<void(const QString &name)> &at)
{
    const QQuickItem *const first = window().activeFocusItem();
    QStringList round;
    do {
        key(Qt::Key_Tab);
        round.append(focused());
        if (at)
            at(round.constLast());
    } while (window().activeFocusItem() != first && round.size() < 40);
    return round;
}

void WindowDriver::selectGroup(const QString &group)
{
    model().selectGroup(group);
    pass(20);
}

void WindowDriver::slowDown()
{
    m_mac->furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
}

} // namespace Tavelo
