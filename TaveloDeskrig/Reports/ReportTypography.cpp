#include "ReportTypography.h"

#include "ReportFonts.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Tavelo
{

namespace
{

constexpr double lineSpacing = 1; // points between two lines

constexpr QChar ellipsis = u'…';

} // namespace

ReportTypography::ReportTypography(QPaintDevice &device, AppLanguage language)
    : m_device(device), m_layouter(device), m_font(ReportFonts::font(language)),
      m_dotsPerPoint(static_cast<double>(device.logicalDpiX()) / 72)
{
}

const ReportTypography::Face &ReportTypography::face(const TextStyle &style) const
{
    const auto known = m_faces.find(style);
    if (known != m_faces.end())
        return known->second;
    QFont font = m_font;
    font.setPointSizeF(style.size);
    font.setWeight(style.weight);
    const QFont onDevice(font, &m_device);
    const QFontMetricsF metrics(onDevice, &m_device);
    const Face face{onDevice, metrics.ascent() / m_dotsPerPoint,
                    (metrics.ascent() + metrics.descent() + metrics.leading()) / m_dotsPerPoint,
                    metrics.horizontalAdvance(ellipsis) / m_dotsPerPoint};
    return m_faces.emplace(style, face).first->second;
}

/// A line counts as visible with two thirds of its height: the boxes were sized for text whose lines lie a little
/// closer, and what is cut away below a baseline is mostly empty. The first line always is.
int ReportTypography::visibleLines(const Face &face, double height) const
{
    const double pitch = face.lineHeight + lineSpacing;
    return std::max(1, static_cast<int>(std::floor((height - face.lineHeight * 2 / 3) / pitch)) + 1);
}

double ReportTypography::width(const QString &text, const TextStyle &style) const
{
    return m_layouter.inOneLine(text, face(style).font)->paragraphs.front().lineWidth(0) / m_dotsPerPoint;
}

double ReportTypography::height(const QString &text, double width, const TextStyle &style) const
{
    QHash<QString, double> &heights = m_heights[{style, width}];
    const auto known = heights.constFind(text);
    if (known != heights.constEnd())
        return *known;
    const Face &face = this->face(style);
    const int lines = m_layouter.wrapped(text, face.font, width * m_dotsPerPoint)->lineCount();
    return *heights.insert(text, std::ceil(lines * face.lineHeight + (lines - 1) * lineSpacing));
}

void ReportTypography::draw(QPainter &painter, const QString &text, const QRectF &rect, const TextStyle &style,
                            const QColor &color, LineBreaking breaking, Qt::Alignment alignment, double widest)
{
    const Face &face = this->face(style);
    const double width = rect.width() * m_dotsPerPoint;
    int drawn = 0;
    const auto drawLine = [&](const LaidOutParagraph &paragraph, int line) {
        const double free = width - paragraph.lineWidth(line);
        const double offset = alignment & Qt::AlignRight ? free : alignment & Qt::AlignHCenter ? free / 2 : 0;
        const double baseline = rect.y() + face.ascent + drawn * (face.lineHeight + lineSpacing);
        if (line == 0)
            m_drawn.add(paragraph.text());
        paragraph.drawLine(painter, line, {rect.x() * m_dotsPerPoint + offset, baseline * m_dotsPerPoint});
        ++drawn;
    };
    const auto drawElided = [&](const LaidOutText &line) {
        const QString beginning = line.paragraphs.front().beginning(width - face.ellipsisWidth * m_dotsPerPoint);
        drawLine(m_layouter.inOneLine(beginning + ellipsis, face.font)->paragraphs.front(), 0);
    };

    painter.setPen(color);
    if (breaking == LineBreaking::truncating) {
        const auto line = m_layouter.inOneLine(text, face.font);
        constexpr double rounding = 0.5; // dots: the width may be this line's own
        if (line->paragraphs.front().lineWidth(0) <= width + rounding)
            drawLine(line->paragraphs.front(), 0);
        else
            drawElided(*line);
        return;
    }

    // Lines at the wider width that fit in the narrower one are the lines of both.
    const auto wideLines = m_layouter.wrapped(text, face.font, std::max(width, widest * m_dotsPerPoint));
    auto lines = wideLines->isWithin(width) ? wideLines : m_layouter.wrapped(text, face.font, width);
    const int visible = visibleLines(face, rect.height());
    if (lines->lineCount() > visible)
        lines = wideLines;
    const bool cut = lines->lineCount() > visible;
    for (const LaidOutParagraph &paragraph : lines->paragraphs) {
        for (int line = 0; line < paragraph.lineCount(); ++line) {
            if (cut && drawn + 1 == visible) {
                drawElided(*m_layouter.inOneLine(paragraph.textFromLine(line), face.font));
                return;
            }
            drawLine(paragraph, line);
        }
    }
}

QString ReportTypography::meaning(char16_t character) const
{
    QList<QRawFont> fonts;
    for (const QString &family : m_font.families())
        fonts << QRawFont::fromFont(QFont(family));
    return m_drawn.meaning(character, fonts);
}

} // namespace Tavelo
