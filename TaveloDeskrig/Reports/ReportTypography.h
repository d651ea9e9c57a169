#pragma once

#include "AppLanguage.h"
#include "DrawnCharacters.h"
#include "LaidOutText.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QRectF>
#include <QString>

#include <compare>
#include <map>
#include <utility>

class QPainter;
class QPaintDevice;

namespace Tavelo
{

/// A size in points and a weight of the report's face.
struct TextStyle {
    double size = 0;
    QFont::Weight weight = QFont::Medium;

    auto operator<=>(const TextStyle &) const = default;
};

enum class LineBreaking {
    wrapping,   ///< Lines break between words; where there are more than fit, the last that does ends in an ellipsis.
    truncating, ///< One line, which ends in an ellipsis where it is too long.
};

/// Measures and draws the text of a report. All lengths are points; inside, text is laid out in the dots of the device,
/// since at a dot per point the advances of small text would be rounded to whole points.
///
/// Lines stand at one distance whatever other faces help out with a character, so that a foreign name does not push a
/// table out of order. `LaidOutText` tells how text is cleaned before that.
class ReportTypography
{
public:
    /// `device` gives the resolution and must outlive it. `language` is that of the report, which decides how Chinese
    /// characters look.
    ReportTypography(QPaintDevice &device, AppLanguage language);

    double dotsPerPoint() const { return m_dotsPerPoint; }

    /// Width of the text on one line.
    double width(const QString &text, const TextStyle &style) const;

    /// Height of the text wrapped at that width, rounded up to a whole point. Empty text is one line high.
    double height(const QString &text, double width, const TextStyle &style) const;

    /// Draws the text from the top of `rect`. A painter of the same device; nothing is drawn outside the width of
    /// `rect`, or of `widest` where lines of the width of `rect` do not hold all of the text.
    void draw(QPainter &painter, const QString &text, const QRectF &rect, const TextStyle &style, const QColor &color,
              LineBreaking breaking, Qt::Alignment alignment = Qt::AlignLeft, double widest = 0);

    /// What a character that a document names for a glyph stands for; see `DrawnCharacters`.
    QString meaning(char16_t character) const;

private:
    /// A style on the device: its font, and its measures in points.
    struct Face {
        QFont font;
        double ascent;
        double lineHeight;
        double ellipsisWidth;
    };
    const Face &face(const TextStyle &style) const;
    int visibleLines(const Face &face, double height) const;

    QPaintDevice &m_device;
    mutable TextLayouter m_layouter;
    QFont m_font;
    double m_dotsPerPoint;
    mutable std::map<TextStyle, Face> m_faces;
    /// By style and width, and text: asked for when the pages are made, and again when a block is drawn.
    mutable std::map<std::pair<TextStyle, double>, QHash<QString, double>> m_heights;
    DrawnCharacters m_drawn;
};

} // namespace Tavelo
