#pragma once

#include <QByteArray>

namespace Tavelo::PropertyList
{

/// How deep the values of a list are nested, to be asked before its reader, which goes down by recursion and would run
/// out of stack on a hostile one. A single value has depth 1. What is damaged, or goes round in a circle, has
/// `endlessDepth`.
inline constexpr int endlessDepth = 1 << 30;

int xmlListDepth(const QByteArray &utf8);
int binaryListDepth(const QByteArray &bytes);

} // namespace Tavelo::PropertyList
