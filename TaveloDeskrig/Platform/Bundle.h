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

/// A text of the bundle's information in the user's language: from `InfoPlist.loctable` or the `InfoPlist.strings` of
/// the first of the user's languages that the bundle has (the list in the global preferences of `homeFolder`), else of
/// the language the bundle was developed in. Nothing where no localisation holds the key as text.
std::optional<QString> localizedText(const FileManager &files, const QString &bundlePath, const QString &key,
                                     const QString &homeFolder);

/// The texts of a `.strings` file by key: a property list, or lines of `"key" = "text";` in UTF-8 or UTF-16. Bytes of
/// neither kind hold none.
QVariantMap stringsTable(const QByteArray &bytes);

/// The information dictionary of the program's own bundle, which lies on this machine and not in a simulated Mac; an
/// empty one where the executable runs outside a bundle. Needs the application object.
QVariantMap ownInfoDictionary();

/// `Contents/Resources` of the program's own bundle, on this machine; it need not be there. Needs the application
/// object.
QString ownResourcesFolder();

/// A file of `Contents/Resources` of the program's own bundle; nothing where there is none, or no bundle. Needs the
/// application object.
std::optional<QByteArray> ownResource(const QString &name);

} // namespace Bundle

} // namespace Tavelo
