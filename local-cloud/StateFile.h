#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

/// The files in the local cloud's folder. What cannot be written ends the program: its answers would be lies.
namespace Tavelo::StateFile
{

/// A file that is there and holds no JSON array or object, as while somebody writes in it.
struct Damaged {
    QString path;
};

/// The JSON array or object in the file; undefined where there is no file. Throws `Damaged`.
QJsonValue read(const QString &path);

void write(const QString &path, const QJsonValue &value);

/// Replaces the file as a whole.
void replace(const QString &path, const QByteArray &bytes);

/// The same for a file that only its owner can read or write.
void replacePrivate(const QString &path, const QByteArray &bytes);

/// Adds a line to a file.
void append(const QString &path, const QByteArray &line);

} // namespace Tavelo::StateFile
