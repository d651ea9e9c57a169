#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace Tavelo
{

class FileManager;

/// What an application bundle says about itself.
namespace Bundle
{

/// The dictionary in `Contents/Info.plist` of the bundle at a Mac path; an empty one if there is none.
QVariantMap infoDictionary(const FileManager &files, const QString &bundlePath);

/// `CFBundleIdentifier` of the bundle at a Mac path; nothing where it is missing or not text.
std::optional<QString> identifier(const FileManager &files, const QString &bundlePath);

/// The information dictionary of the program's own bundle, which lies on this machine and not in a simulated Mac; an
/// empty one where the executable runs outside a bundle. Needs the application object.
QVariantMap ownInfoDictionary();

} // namespace Bundle

} // namespace Tavelo
