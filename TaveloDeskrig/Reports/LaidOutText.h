#pragma once

#include <QFont>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTextOption>

#include <list>
#include <memory>

class QPaintDevice;
class QPainter;
class QPointF;
class QTextLayout;

namespace Tavelo
{

/// One paragraph broken into lines. Lengths are dots of the device.
class LaidOutParagraph
{
public:
    LaidOutParagraph(const QString &text, const QFont &font, QPaintDevice &device, double width,
                     QTextOption::WrapMode mode);
    ~LaidOutParagraph();
    Q_DISABLE_COPY_MOVE(LaidOutParagraph)

    QString text() const;
    int lineCount() const;
    double lineWidth(int index) const;

    /// From the first character of a line to the end of the paragraph.
    QString textFromLine(int index) const;

    /// The beginning of the first line, as much as fits in that width.
    QString beginning(double width) const;

    /// Draws one line with its baseline through `origin`.
    void drawLine(QPainter &painter, int index, const QPointF &origin) const;

private:
    std::unique_ptr<QTextLayout> m_layout;
};

/// A text as paragraphs, cleaned: composed characters, no control characters, no overrides of the writing direction.
struct LaidOutText {
    std::list<LaidOutParagraph> paragraphs;

    int lineCount() const;

    /// Whether no line is wider.
    bool isWithin(double width) const;
};

/// Lays texts out in the sizes and weights of one face, and keeps what it has laid out for a while: a report says many
/// things more than once.
class TextLayouter
{
public:
    explicit TextLayouter(QPaintDevice &device) : m_device(device) {}

    /// The text broken between words into lines of that width in dots.
    std::shared_ptr<const LaidOutText> wrapped(const QString &text, const QFont &font, double width);

    /// The text as one paragraph of one line.
    std::shared_ptr<const LaidOutText> inOneLine(const QString &text, const QFont &font);

private:
    struct Key {
        QString text;
        double fontSize;
        int fontWeight;
        double width;

        bool operator==(const Key &) const = default;
        friend size_t qHash(const Key &key, size_t seed) { return qHashMulti(seed, key.text, key.fontSize, key.width); }
    };

    std::shared_ptr<const LaidOutText> laidOut(const QStringList &paragraphs, const QFont &font, double width,
                                               QTextOption::WrapMode mode) const;
    template <typename LayOut>
    std::shared_ptr<const LaidOutText> kept(const Key &key, LayOut layOut);

    QPaintDevice &m_device;
    QHash<Key, std::shared_ptr<const LaidOutText>> m_kept;
    qsizetype m_keptCharacters = 0;
};

} // namespace Tavelo
