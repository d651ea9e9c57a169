#pragma once

#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace Tavelo
{

class FileManager;

namespace MacReportPDF
{

/// The program's icon: `AppIcon.icns` in the folder at that Mac path (empty for none), else that of the program's own
/// bundle, else `fallbackAppLogo`. Never null.
QImage appLogo(const FileManager &files, const QString &resourcesDirectory);

/// A mark drawn by the program itself, in a square of so many pixels a side. Needs the GUI application object.
QImage fallbackAppLogo(int pixels = 256);

/// The largest rectangle of the image's shape in `rect`, centred. A dimension below 1 does not limit it.
QRectF fittedRect(const QSizeF &imageSize, const QRectF &rect);

/// An image of one of the kinds that logos come in (PNG, JPEG, GIF, WebP, ICNS), scaled down to what a page can show of
/// it; a null image for anything else, and for one of more than 5,792 pixels a side.
QImage decodedLogo(const QByteArray &bytes);

} // namespace MacReportPDF

} // namespace Tavelo
