#pragma once

#include <QByteArray>
#include <QString>

/// Small changes to the bytes of an OpenType font before it is registered. Bytes that are no such font come back as
/// they are.
namespace Tavelo::OpenTypeFont
{

/// The font with that feature switched off for every script.
QByteArray withoutFeature(QByteArray font, const QByteArray &tag);

/// The font with `family` wherever its names begin with `oldFamily`, except in its PostScript name. Both have the same
/// length.
QByteArray withFamily(QByteArray font, const QString &oldFamily, const QString &family);

} // namespace Tavelo::OpenTypeFont
