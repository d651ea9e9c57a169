#pragma once

#include "Stage.h"

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace Tavelo
{

/// A test that drives the real window by mouse and keyboard.
class WindowDriver : public QObject
{
protected:
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
    bool isEnabled(Stage &stage, const QString &name) { return stage.find(name)->isEnabled(); }
};

} // namespace Tavelo
