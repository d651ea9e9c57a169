#include "PaintRecorder.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTextLayout>

namespace Tavelo::Bench
{

class PaintRecorder::Engine : public QPaintEngine
{
public:
    explicit Engine(PaintRecorder &device) : QPaintEngine(AllFeatures), m_device(device) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &change) override
    {
        if (change.state() & DirtyPen)
            m_pen = change.pen();
        if (change.state() & DirtyBrush)
            m_brush = change.brush();
    }

    void drawPath(const QPainterPath &path) override { add().path = path; }
    void drawEllipse(const QRectF &rect) override { add().path.addEllipse(rect); }
    void drawRects(const QRectF *rects, int count) override
    {
        for (int index = 0; index < count; ++index)
            add().path.addRect(rects[index]);
    }
    void drawPixmap(const QRectF &rect, const QPixmap &pixmap, const QRectF &) override
    {
        drawImage(rect, pixmap.toImage(), {}, {});
    }
    void drawImage(const QRectF &rect, const QImage &image, const QRectF &, Qt::ImageConversionFlags) override
    {
        Primitive &primitive = add();
        primitive.rect = rect;
        primitive.image = image;
    }
    void drawTextItem(const QPointF &origin, const QTextItem &item) override
    {
        QTextLayout layout(item.text(), item.font(), &m_device);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        layout.endLayout();
        Primitive &primitive = add();
        primitive.origin = origin - QPointF(0, line.ascent());
        primitive.glyphs = layout.glyphRuns();
    }

    QList<Primitive> primitives;

private:
    Primitive &add()
    {
        primitives.append(Primitive());
        primitives.last().pen = m_pen;
        primitives.last().brush = m_brush;
        return primitives.last();
    }

    PaintRecorder &m_device;
    QPen m_pen;
    QBrush m_brush;
};

PaintRecorder::PaintRecorder(int dotsPerInch, const QSize &size)
    : m_engine(std::make_unique<Engine>(*this)), m_dotsPerInch(dotsPerInch), m_size(size)
{
}

PaintRecorder::~PaintRecorder() = default;

QPaintEngine *PaintRecorder::paintEngine() const
{
    return m_engine.get();
}

QList<Primitive> PaintRecorder::take()
{
    return std::exchange(m_engine->primitives, {});
}

void PaintRecorder::paint(QPainter &painter, const Primitive &primitive)
{
    painter.setPen(primitive.pen);
    painter.setBrush(primitive.brush);
    if (!primitive.image.isNull())
        painter.drawImage(primitive.rect, primitive.image);
    else if (!primitive.path.isEmpty())
        painter.drawPath(primitive.path);
    for (const QGlyphRun &run : primitive.glyphs)
        painter.drawGlyphRun(primitive.origin, run);
}

int PaintRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return m_dotsPerInch;
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace Tavelo::Bench
