#pragma once

#include <QObject>
#include <QPainterPath>
#include <QString>
#include <QStringList>

#include <QtQml/qqml.h>

namespace Tavelo
{

/// The symbols of the window: what the system calls by a name ("arrow.clockwise") is a glyph of the compiled-in symbol
/// font here.
class Symbols : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The glyph in a square of one by one, whose upper left corner is at 0, 0; for a name that is not known, that of
    /// an application of any kind. Any thread may ask; all paths of a name share what drawing adds to them, so one
    /// thread draws. Needs the GUI application object.
    static QPainterPath outline(const QString &name);

    /// What is to be written on the glyph, where the font has it bare; else an empty text.
    Q_INVOKABLE static QString mark(const QString &name);

    /// The names that are known.
    static QStringList names();
};

} // namespace Tavelo
