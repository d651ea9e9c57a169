#include "ReportLogo.h"

#include "Bundle.h"
#include "FileManager.h"
#include "ReportFonts.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QImageReader>
#include <QPainter>

#include <algorithm>

namespace Tavelo::MacReportPDF
{

namespace
{

const QString iconName = QStringLiteral("AppIcon.icns");
constexpr qint64 maximumIconFile = qint64(16) * 1024 * 1024;
constexpr int maximumSide = 5792; // its square, at four bytes a pixel, is the most that the library takes for an image
constexpr int shownSide = 360;    // pixels, for some 30 points of paper

/// An icon holds the same image in several sizes, which its reader tells only by reading them.
QImage largestImage(QImageReader &reader)
{
    QImage largest;
    for (int index = 0; reader.jumpToImage(index); ++index) {
        const QImage image = reader.read();
        if (image.width() > largest.width())
            largest = image;
    }
    return largest;
}

} // namespace

QImage decodedLogo(const QByteArray &bytes)
{
    static const QList<QByteArray> kinds{"png", "jpeg", "gif", "webp", "icns"};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray kind = QImageReader::imageFormat(&buffer);
    if (!kinds.contains(kind))
        return {};
    QImageReader reader(&buffer, kind);
    if (const QSize size = reader.size(); std::max(size.width(), size.height()) > maximumSide)
        return {};
    reader.setAutoTransform(true); // a photograph says which side is up
    QImage image = kind == "icns" ? largestImage(reader) : reader.read();
    if (std::max(image.width(), image.height()) <= shownSide)
        return image;
    return image.scaled(shownSide, shownSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QImage appLogo(const FileManager &files, const QString &resourcesDirectory)
{
    QImage logo;
    if (!resourcesDirectory.isEmpty()) {
        const QString icon = resourcesDirectory + u'/' + iconName;
        logo = decodedLogo(files.contentsUpTo(icon, maximumIconFile).value_or(QByteArray()));
    }
    if (logo.isNull())
        logo = decodedLogo(Bundle::ownResource(iconName).value_or(QByteArray()));
    return logo.isNull() ? fallbackAppLogo() : logo;
}

QImage fallbackAppLogo(int pixels)
{
    constexpr int side = 128;
    const double scale = double(pixels) / side;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);

    painter.setPen(QPen(QColor(0xD1, 0xD9, 0xE4), 2));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(3, 3, 122, 122), 24, 24);

    // The measures below count from the lower edge; the painter's from the upper.
    const auto fromBelow = [](double y, double height) { return side - y - height; };

    QFont font = ReportFonts::font(AppLanguage::english);
    font.setPixelSize(84);
    font.setWeight(QFont::Black);
    const QString letter = QStringLiteral("T");
    const QFontMetricsF metrics(font);
    const double left = side / 2. - metrics.horizontalAdvance(letter) / 2 - 2;
    const double bottom = side / 2. - metrics.height() / 2 - 4;
    constexpr double obliqueness = 0.12;
    painter.save();
    painter.translate(left, fromBelow(bottom, metrics.descent()));
    painter.shear(-obliqueness, 0);
    painter.setPen(QColor(0x4F, 0x56, 0x61));
    painter.setFont(font);
    painter.drawText(QPointF(0, 0), letter);
    painter.restore();

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0x8A, 0x00));
    for (const QPointF corner : {QPointF(94, 91), QPointF(17, 20)})
        painter.drawRoundedRect(QRectF(corner.x(), fromBelow(corner.y(), 17), 17, 17), 4, 4);
    painter.end();
    return image;
}

QRectF fittedRect(const QSizeF &imageSize, const QRectF &rect)
{
    const auto ratio = [](double room, double size) { return room / std::max(size, 1.); };
    const double scale = std::min(ratio(rect.width(), imageSize.width()), ratio(rect.height(), imageSize.height()));
    QRectF result(QPointF(), imageSize * scale);
    result.moveCenter(rect.center());
    return result;
}

} // namespace Tavelo::MacReportPDF
