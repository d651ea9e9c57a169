#include "DrawnCharacters.h"

namespace Tavelo
{

namespace
{

quint32 glyph(const QRawFont &font, char16_t character)
{
    return font.glyphIndexesForString(QChar(character)).value(0);
}

/// A form of letters that shaping chooses: a Latin ligature, or an Arabic letter as it stands in its word.
bool isPresentationForm(char16_t character)
{
    const auto isBetween = [character](char16_t first, char16_t last) {
        return character >= first && character <= last;
    };
    return isBetween(0xFB00, 0xFB06) || isBetween(0xFB50, 0xFDFF) || isBetween(0xFE70, 0xFEFE);
}

} // namespace

void DrawnCharacters::add(const QString &text)
{
    for (const QChar character : text)
        m_drawn.set(character.unicode());
}

QString DrawnCharacters::meaning(char16_t character, const QList<QRawFont> &fonts) const
{
    if (m_drawn.test(character))
        return QChar(character);
    for (const QRawFont &font : fonts) {
        const quint32 shared = glyph(font, character);
        if (shared == 0)
            continue;
        for (size_t other = 1; other < m_drawn.size(); ++other) {
            if (m_drawn.test(other) && glyph(font, static_cast<char16_t>(other)) == shared)
                return QChar(static_cast<char16_t>(other));
        }
    }
    const QString text = QChar(character);
    return isPresentationForm(character) ? text.normalized(QString::NormalizationForm_KC) : text;
}

} // namespace Tavelo
