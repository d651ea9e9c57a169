#pragma once

#include <QObject>
#include <QString>

#include <QtQml/qqml.h>

namespace Tavelo
{

/// What the window's views take from the system around them.
class Surroundings : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool byKeyboard READ byKeyboard NOTIFY byKeyboardChanged)
    Q_PROPERTY(QString fixedFamily READ fixedFamily CONSTANT)

public:
    /// Needs the GUI application object, whose input it watches.
    explicit Surroundings(QObject *parent = nullptr);

    /// The last input was a key, not a press of the pointer; true before any input.
    bool byKeyboard() const { return m_byKeyboard; }

    /// The family of the system's font whose characters are all as wide.
    static QString fixedFamily();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void byKeyboardChanged();

private:
    bool m_byKeyboard = true;
};

} // namespace Tavelo
