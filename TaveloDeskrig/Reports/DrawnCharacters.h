#pragma once

#include <QList>
#include <QRawFont>
#include <QString>

#include <bitset>

namespace Tavelo
{

/// The characters that a document was drawn with. Several characters may share a glyph (a blank and a tab, 日 and the
/// radical of that shape, a full-width slash and the sign of division); a PDF names only one of them for it, and a
/// viewer finds and copies the text well only when that is the one that was meant.
class DrawnCharacters
{
public:
    void add(const QString &text);

    /// The text that a glyph named after `character` stands for, in one of the fonts: the drawn character with the same
    /// glyph, the letters of a ligature, else the character itself.
    QString meaning(char16_t character, const QList<QRawFont> &fonts) const;

private:
    std::bitset<0x10000> m_drawn;
};

} // namespace Tavelo
