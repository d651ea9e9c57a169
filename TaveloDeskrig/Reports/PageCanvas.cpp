#include "PageCanvas.h"

#include <QPainter>
#include <QPen>

namespace Tavelo
{

namespace
{

constexpr double cardLineWidth = 0.7; // points

} // namespace

PageCanvas::PageCanvas(QPainter &painter, ReportTypography &typography) : m_painter(painter), m_typography(typography)
{
}

void PageCanvas::fill(const QRectF &rect, const QColor &color)
{
    m_painter.fillRect(inDots(rect), color);
}

void PageCanvas::fillOval(const QRectF &rect, const QColor &color)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawEllipse(inDots(rect));
}

void PageCanvas::fillRounded(const QRectF &rect, double radius, const QColor &fill)
{
    const double dots = radius * m_typography.dotsPerPoint();
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(fill);
    m_painter.drawRoundedRect(inDots(rect), dots, dots);
}

void PageCanvas::card(const QRectF &rect, double radius, const QColor &fill, const QColor &stroke)
{
    const double dots = radius * m_typography.dotsPerPoint();
    m_painter.setPen(QPen(stroke, cardLineWidth * m_typography.dotsPerPoint()));
    m_painter.setBrush(fill);
    m_painter.drawRoundedRect(inDots(rect), dots, dots);
}

void PageCanvas::image(const QRectF &rect, const QImage &image)
{
    m_painter.drawImage(inDots(rect), image);
}

void PageCanvas::text(const QString &text, const QRectF &rect, const TextStyle &style, const QColor &color,
                      LineBreaking breaking, Qt::Alignment alignment, double widest)
{
    m_typography.draw(m_painter, text, rect, style, color, breaking, alignment, widest);
}

QRectF PageCanvas::inDots(const QRectF &rect) const
{
    const double dots = m_typography.dotsPerPoint();
    return {rect.x() * dots, rect.y() * dots, rect.width() * dots, rect.height() * dots};
}

} // namespace Tavelo
