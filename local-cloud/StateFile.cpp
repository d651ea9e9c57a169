#include "StateFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace Tavelo::StateFile
{

namespace
{

void require(bool good, const QString &path)
{
    if (!good)
        qFatal("The local cloud cannot write %s", qPrintable(path));
}

} // namespace

QJsonValue read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QJsonValue::Undefined;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (document.isArray())
        return document.array();
    if (!document.isObject())
        throw Damaged{path};
    return document.object();
}

void write(const QString &path, const QJsonValue &value)
{
    replace(path, (value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject())).toJson());
}

void replace(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit(), path);
}

void replacePrivate(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                file.write(bytes) == bytes.size() && file.commit(),
            path);
}

void append(const QString &path, const QByteArray &line)
{
    QFile file(path);
    require(file.open(QIODevice::Append) && file.write(line + '\n') > line.size(), path);
}

} // namespace Tavelo::StateFile
