#pragma once

#include <QBrush>
#include <QGlyphRun>
#include <QImage>
#include <QList>
#include <QPaintDevice>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QRectF>

#include <memory>

class QPaintEngine;
class QPainter;

namespace Tavelo::Bench
{

/// One thing that was painted, with all that painting it again needs; text as glyphs at their places.
struct Primitive {
    QPen pen;
    QBrush brush;
    QPainterPath path; ///< Empty for text and images.
    QRectF rect;       ///< Of an image.
    QImage image;
    QPointF origin; ///< Of text.
    QList<QGlyphRun> glyphs;
};

/// A device of that resolution and size in dots, which keeps what is painted on it.
class PaintRecorder : public QPaintDevice
{
public:
    PaintRecorder(int dotsPerInch, const QSize &size);
    ~PaintRecorder() override;
    Q_DISABLE_COPY_MOVE(PaintRecorder)

    QPaintEngine *paintEngine() const override;

    /// What was painted since the last call.
    QList<Primitive> take();

    /// Paints it again.
    static void paint(QPainter &painter, const Primitive &primitive);

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
    int m_dotsPerInch;
    QSize m_size;
};

} // namespace Tavelo::Bench
