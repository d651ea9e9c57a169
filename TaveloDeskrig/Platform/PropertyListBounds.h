#pragma once

#include <QByteArray>

/// What a property list must keep to before its reader sees it. The reader goes down by recursion, copies an object at
/// each reference to it and stops the process at some damage: a list of a few hundred bytes could take all stack,
/// memory or time. Genuine lists stay far below these bounds.
namespace Tavelo::PropertyList
{

inline constexpr int maximumDepth = 256;       ///< Levels of arrays and dictionaries within each other.
inline constexpr int maximumNodes = 1'000'000; ///< Values and keys, each counted as often as it is referred to.

/// What a tag may take, in bytes: the time to read one grows with the square of its attributes, and a list has none but
/// its version.
inline constexpr qsizetype longestTag = 1024;
/// What the reader may move, in bytes: for each entity (`&lt;`), all of its text. A second's work, and a thousand times
/// what genuine lists need.
inline constexpr qint64 mostMoved = qint64(4) * 1024 * 1024 * 1024;

/// True for well-formed XML within the bounds. It is to hold no comment.
bool isXmlWithinBounds(const QByteArray &utf8);

/// True for a binary list of whole objects within the bounds, without circles, whose keys are texts without NUL
/// characters.
bool isBinaryWithinBounds(const QByteArray &bytes);

} // namespace Tavelo::PropertyList
