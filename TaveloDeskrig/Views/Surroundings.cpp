#include "Surroundings.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFontDatabase>

namespace Tavelo
{

Surroundings::Surroundings(QObject *parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

QString Surroundings::fixedFamily()
{
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

bool Surroundings::eventFilter(QObject *watched, QEvent *event)
{
    const bool key = event->type() == QEvent::KeyPress;
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
    if ((key || press) && m_byKeyboard != key) {
        m_byKeyboard = key;
        Q_EMIT byKeyboardChanged();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Tavelo
