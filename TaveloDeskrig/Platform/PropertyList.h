#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace Tavelo
{

class FileManager;

/// Property lists, XML and binary. Dictionaries are `QVariantMap`, arrays `QVariantList`, text `QString`, data
/// `QByteArray`, integers `qlonglong`, the rest `double` and `bool`. A date is an invalid `QDateTime`: nothing here
/// reads one.
namespace PropertyList
{

/// Nothing for bytes that are not a property list, and for one beyond the bounds of `PropertyListBounds.h`. A value
/// that none of the types stands for (a key-archive UID, a null) is an invalid `QVariant` in its place.
std::optional<QVariant> parse(const QByteArray &bytes);

/// The largest file that is taken for a property list, in bytes. Those of applications stay below a tenth of it.
inline constexpr qint64 maximumFileSize = qint64(8) * 1024 * 1024;

/// The parsed file; nothing if it cannot be read, is too large or is not a property list.
std::optional<QVariant> read(const FileManager &files, const QString &path);

/// The dictionary in the file; an empty one if there is none.
QVariantMap readDictionary(const FileManager &files, const QString &path);

/// The XML form. The value may hold the types told above, but no date.
QByteArray xml(const QVariant &value);

/// The dictionary in `bytes` in the XML form, with that value at the key in place of what was there; an invalid value
/// takes the key away. All else stays as it is, also what no type here stands for. Bytes that hold no dictionary count
/// as an empty one.
QByteArray xmlWith(const QByteArray &bytes, const QString &key, const QVariant &value);

} // namespace PropertyList

} // namespace Tavelo
