#pragma once

#include <QObject>
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
    Q_PROPERTY(QString family READ family CONSTANT)

public:
    using QObject::QObject;

    /// The glyph's character; for a name that is not known, that of an application of any kind.
    Q_INVOKABLE static QString glyph(const QString &name);

    /// What is to be written on the glyph, where the font has it bare; else an empty text.
    Q_INVOKABLE static QString mark(const QString &name);

    /// The names that are known.
    static QStringList names();

    /// The font's family. Registers the font at the first call; needs the GUI application object.
    static QString family();
};

} // namespace Tavelo
