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

/// Lists nested deeper than this many levels read as damaged; genuine ones stay below ten.
inline constexpr int maximumDepth = 256;

/// Nothing for bytes that are not a property list, and for one with a key-archive UID or too deep a nesting.
std::optional<QVariant> parse(const QByteArray &bytes);

/// The parsed file; nothing if it cannot be read or is not a property list.
std::optional<QVariant> read(const FileManager &files, const QString &path);

/// The dictionary in the file; an empty one if there is none.
QVariantMap readDictionary(const FileManager &files, const QString &path);

/// The XML form. The value may hold the types told above, but no date.
QByteArray xml(const QVariant &value);

} // namespace PropertyList

} // namespace Tavelo
