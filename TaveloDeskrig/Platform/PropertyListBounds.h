#pragma once

#include <QByteArray>

/// What a property list must keep to before its reader sees it. The reader goes down by recursion, copies an object at
/// each reference to it and stops the process at some damage: a list of a few hundred bytes could take all stack,
/// memory or time. Genuine lists stay far below these bounds.
namespace Tavelo::PropertyList
{

inline constexpr int maximumDepth = 256;       ///< Levels of arrays and dictionaries within each other.
inline constexpr int maximumNodes = 1'000'000; ///< Values and keys, each counted as often as it is referred to.

/// True for well-formed XML within the bounds.
bool isXmlWithinBounds(const QByteArray &utf8);

/// True for a binary list of whole objects within the bounds, without circles, whose keys are texts without NUL
/// characters.
bool isBinaryWithinBounds(const QByteArray &bytes);

} // namespace Tavelo::PropertyList
