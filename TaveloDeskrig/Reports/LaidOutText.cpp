#include "LaidOutText.h"

#include <QPainter>
#include <QRegularExpression>
#include <QTextLayout>

#include <algorithm>

namespace Tavelo
{

namespace
{

/// So much is kept: about 12 MiB of glyphs, and all the texts of a report of 1,000 applications.
constexpr qsizetype maximumKeptCharacters = 250'000;

/// A character that needs no cleaning, wherever it stands: neither a control nor half of another one, nor one that
/// could be composed with its neighbour.
bool isPlain(QChar character)
{
    const char16_t code = character.unicode();
    const auto isBetween = [code](char16_t first, char16_t last) { return code >= first && code <= last; };
    return isBetween(0x20, 0x7E) || isBetween(0xA0, 0x2FF) || isBetween(0x1E00, 0x1EFF) || isBetween(0x2010, 0x2027) ||
           isBetween(0x2190, 0x2BFF) || isBetween(0x4E00, 0x9FFF) || isBetween(0xAC00, 0xD7A3);
}

/// The paragraphs of a text, each clean.
QStringList paragraphs(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), isPlain))
        return {text};
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|[\n\v\f\r\u0085\u2028\u2029]"));
    static const QRegularExpression control(QStringLiteral("\\p{Cc}"));
    static const QRegularExpression directionOverride(QStringLiteral("[\u202A-\u202E\u2066-\u2069]"));
    QString clean = QString::fromUtf8(text.toUtf8()).normalized(QString::NormalizationForm_C); // no half of a character
    clean.remove(directionOverride);
    QStringList lines = clean.split(lineEnd);
    for (QString &line : lines)
        line.replace(control, QStringLiteral(" "));
    return lines;
}

} // namespace

LaidOutParagraph::LaidOutParagraph(const QString &text, const QFont &font, QPaintDevice &device, double width,
                                   QTextOption::WrapMode mode)
    : m_layout(std::make_unique<QTextLayout>(text, font, &device))
{
    QTextOption option;
    option.setWrapMode(mode);
    option.setTextDirection(Qt::LeftToRight);
    m_layout->setTextOption(option);
    m_layout->setCacheEnabled(true);
    m_layout->beginLayout();
    for (QTextLine line = m_layout->createLine(); line.isValid(); line = m_layout->createLine())
        line.setLineWidth(width);
    m_layout->endLayout();
}

LaidOutParagraph::~LaidOutParagraph() = default;

QString LaidOutParagraph::text() const
{
    return m_layout->text();
}

int LaidOutParagraph::lineCount() const
{
    return m_layout->lineCount();
}

double LaidOutParagraph::lineWidth(int index) const
{
    return m_layout->lineAt(index).naturalTextWidth();
}

QString LaidOutParagraph::textFromLine(int index) const
{
    return m_layout->text().mid(m_layout->lineAt(index).textStart());
}

QString LaidOutParagraph::beginning(double width) const
{
    return m_layout->text().left(m_layout->lineAt(0).xToCursor(width, QTextLine::CursorOnCharacter));
}

void LaidOutParagraph::drawLine(QPainter &painter, int index, const QPointF &origin) const
{
    const QTextLine line = m_layout->lineAt(index);
    line.draw(&painter, origin - QPointF(line.x(), line.y() + line.ascent()));
}

int LaidOutText::lineCount() const
{
    int lines = 0;
    for (const LaidOutParagraph &paragraph : paragraphs)
        lines += paragraph.lineCount();
    return lines;
}

bool LaidOutText::isWithin(double width) const
{
    for (const LaidOutParagraph &paragraph : paragraphs) {
        for (int line = 0; line < paragraph.lineCount(); ++line) {
            if (paragraph.lineWidth(line) > width)
                return false;
        }
    }
    return true;
}

std::shared_ptr<const LaidOutText> TextLayouter::wrapped(const QString &text, const QFont &font, double width)
{
    return kept({text, font.pointSizeF(), font.weight(), width},
                [&] { return laidOut(paragraphs(text), font, width, QTextOption::WrapAtWordBoundaryOrAnywhere); });
}

std::shared_ptr<const LaidOutText> TextLayouter::inOneLine(const QString &text, const QFont &font)
{
    constexpr double endless = 0x7fffff;  // dots; the most that a layout counts to
    constexpr qsizetype longest = 10'000; // more characters than a page is wide, and fewer than add up to that width
    const QString seen = text.left(longest);
    return kept({seen, font.pointSizeF(), font.weight(), endless},
                [&] { return laidOut({paragraphs(seen).join(u' ')}, font, endless, QTextOption::NoWrap); });
}

std::shared_ptr<const LaidOutText> TextLayouter::laidOut(const QStringList &paragraphs, const QFont &font, double width,
                                                         QTextOption::WrapMode mode) const
{
    const auto text = std::make_shared<LaidOutText>();
    for (const QString &paragraph : paragraphs)
        text->paragraphs.emplace_back(paragraph, font, m_device, width, mode);
    return text;
}

template <typename LayOut>
std::shared_ptr<const LaidOutText> TextLayouter::kept(const Key &key, LayOut layOut)
{
    const auto known = m_kept.constFind(key);
    if (known != m_kept.constEnd())
        return *known;
    m_keptCharacters += key.text.size();
    if (m_keptCharacters > maximumKeptCharacters) {
        m_kept.clear();
        m_keptCharacters = key.text.size();
    }
    return *m_kept.insert(key, layOut());
}

} // namespace Tavelo
