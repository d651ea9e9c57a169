#pragma once

#include "ReportTypography.h"

#include <QColor>
#include <QImage>
#include <QRectF>

#include <optional>

class QPainter;

namespace Tavelo
{

/// What a report's page is drawn with. All lengths are points, from the page's upper left corner to the right and down.
class PageCanvas
{
public:
    /// Both must outlive it. The painter's own unit is the dot of the device.
    PageCanvas(QPainter &painter, ReportTypography &typography);

    const ReportTypography &typography() const { return m_typography; }

    void fill(const QRectF &rect, const QColor &color);
    void fillOval(const QRectF &rect, const QColor &color);

    /// A rectangle with round corners. The line lies on its edge, half inside.
    void fillRounded(const QRectF &rect, double radius, const QColor &fill);
    void card(const QRectF &rect, double radius, const QColor &fill, const QColor &stroke);

    void image(const QRectF &rect, const QImage &image);

    /// Text from the top of the rectangle; see `ReportTypography::draw`.
    void text(const QString &text, const QRectF &rect, const TextStyle &style, const QColor &color,
              LineBreaking breaking = LineBreaking::wrapping, Qt::Alignment alignment = Qt::AlignLeft,
              double widest = 0);

private:
    QRectF inDots(const QRectF &rect) const;

    QPainter &m_painter;
    ReportTypography &m_typography;
};

} // namespace Tavelo
