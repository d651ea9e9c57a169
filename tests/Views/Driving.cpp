#include "Driving.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace Tavelo
{

void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
}

QPoint middle(Stage &stage, const QString &name)
{
    const QQuickItem *const item = stage.find(name);
    if (!item)
        qFatal("There is no %s in sight.", qPrintable(name));
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
}

void click(Stage &stage, const QString &name)
{
    QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, middle(stage, name));
    stage.pass(20);
}

void key(Stage &stage, Qt::Key key)
{
    QTest::keyClick(&stage.window(), key);
    stage.pass(20);
}

void hold(Stage &stage, Qt::Key key)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, key, {}, {}, true);
        QCoreApplication::sendEvent(&stage.window(), &event);
    }
    stage.pass(20);
}

void type(Stage &stage, const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(&stage.window(), character.toLatin1());
}

QString focused(Stage &stage)
{
    for (QQuickItem *item = stage.window().activeFocusItem(); item; item = item->parentItem()) {
        if (!item->objectName().isEmpty())
            return item->objectName();
    }
    return {};
}

QStringList tabRound(Stage &stage, const std::function<void(const QString &name)> &at)
{
    const QQuickItem *const first = stage.window().activeFocusItem();
    QStringList round;
    do {
        key(stage, Qt::Key_Tab);
        round.append(focused(stage));
        if (at)
            at(round.constLast());
    } while (stage.window().activeFocusItem() != first && round.size() < 40);
    return round;
}

bool isEnabled(Stage &stage, const QString &name)
{
    return stage.find(name)->isEnabled();
}

QString status(Stage &stage)
{
    return stage.find(u"status-line"_s)->property("text").toString();
}

void slowDown(const ProgramOnAMac &mac)
{
    mac.furnish(u"break-tool"_s, {u"brew"_s, u"--delay"_s, u"1"_s});
}

} // namespace Tavelo
