#include "Bundle.h"

#include "FileManager.h"
#include "PropertyList.h"

#include <QCoreApplication>
#include <QDir>

namespace Tavelo::Bundle
{

QVariantMap infoDictionary(const FileManager &files, const QString &bundlePath)
{
    return PropertyList::readDictionary(files, bundlePath + QStringLiteral("/Contents/Info.plist"));
}

std::optional<QString> identifier(const FileManager &files, const QString &bundlePath)
{
    const QVariant value = infoDictionary(files, bundlePath).value(QStringLiteral("CFBundleIdentifier"));
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

QVariantMap ownInfoDictionary()
{
    // The executable lies in NAME.app/Contents/MacOS.
    const QString bundle = QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../.."));
    return infoDictionary(FileManager(), bundle);
}

} // namespace Tavelo::Bundle
