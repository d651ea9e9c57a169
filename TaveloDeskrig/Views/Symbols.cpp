#include "Symbols.h"

#include <QHash>
#include <QRawFont>
#include <QTransform>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

constexpr char16_t anyApplication = 0xF614;

const QHash<QString, char16_t> &glyphs()
{
    static const QHash<QString, char16_t> table{
        {u"archivebox"_s, 0xF03C},
        {u"arrow.clockwise"_s, 0xF450},
        {u"arrow.down.circle.fill"_s, 0xF047},
        {u"arrow.down.doc.fill"_s, 0xF21D},
        {u"arrow.down.to.line"_s, 0xF1DA},
        {u"arrow.up"_s, 0xF05D},
        {u"briefcase"_s, 0xF0D6},
        {u"bubble.left.and.bubble.right"_s, 0xF28C},
        {u"camera.viewfinder"_s, 0xF2F2},
        {u"checkmark"_s, 0xF12C},
        {u"checkmark.circle.fill"_s, 0xF5E0},
        {u"checkmark.seal"_s, 0xF565},
        {u"checkmark.seal.fill"_s, 0xF565},
        {u"chevron.right"_s, 0xF142},
        {u"chevron.up.chevron.down"_s, 0xF54F},
        {u"cloud.fill"_s, 0xF15F},
        {u"cloud.slash"_s, 0xF164},
        {u"desktopcomputer"_s, 0xF379},
        {u"display.2"_s, 0xF37A},
        {u"doc.fill"_s, 0xF219},
        {u"doc.on.doc"_s, 0xF18F},
        {u"doc.richtext"_s, 0xF21A},
        {u"doc.text"_s, 0xF219},
        {u"doc.text.magnifyingglass"_s, 0xF21E},
        {u"doc.viewfinder"_s, 0xF21E},
        {u"envelope"_s, 0xF1F0},
        {u"exclamationmark.shield.fill"_s, 0xF498},
        {u"exclamationmark.triangle.fill"_s, 0xF026},
        {u"externaldrive.badge.timemachine"_s, 0xF06F},
        {u"folder.fill"_s, 0xF24B},
        {u"gearshape"_s, 0xF493},
        {u"gearshape.fill"_s, 0xF493},
        {u"globe"_s, 0xF59F},
        {u"info.circle"_s, 0xF2FD},
        {u"internaldrive"_s, 0xF2CA},
        {u"key"_s, 0xF30B},
        {u"keyboard"_s, 0xF30C},
        {u"line.3.horizontal"_s, 0xF35C},
        {u"link"_s, 0xF339},
        {u"magnifyingglass"_s, 0xF349},
        {u"magnifyingglass.circle"_s, 0xF349},
        {u"message"_s, 0xF365},
        {u"note.text"_s, 0xF39E},
        {u"number"_s, 0xF423},
        {u"paintbrush"_s, 0xF0E3},
        {u"paperplane"_s, 0xF48A},
        {u"paperplane.fill"_s, 0xF48A},
        {u"pencil.and.outline"_s, 0xF64F},
        {u"person.crop.circle.fill"_s, 0xF009},
        {u"play.rectangle"_s, 0xF40B},
        {u"printer"_s, 0xF42A},
        {u"scanner"_s, 0xF19D},
        {u"scribble.variable"_s, 0xF559},
        {u"shield.lefthalf.filled"_s, 0xF483},
        {u"shippingbox"_s, 0xF3D4},
        {u"signature"_s, 0xF3EA},
        {u"square.grid.2x2"_s, 0xF570},
        {u"square.stack.3d.down.right"_s, 0xF328},
        {u"square.stack.3d.up.fill"_s, 0xF328},
        {u"text.viewfinder"_s, 0xF60E},
        {u"textformat"_s, 0xF284},
        {u"trash"_s, 0xF1C0},
        {u"video"_s, 0xF567},
        {u"video.bubble.left"_s, 0xF36B},
        {u"xmark"_s, 0xF156},
        {u"xmark.octagon.fill"_s, 0xF15C},
    };
    return table;
}

QPainterPath makeOutline(const QRawFont &font, char16_t glyph)
{
    const quint32 index = font.glyphIndexesForString(QChar(glyph)).value(0);
    if (index == 0)
        return {};
    const qreal scale = 1 / font.pixelSize();
    return QTransform::fromScale(scale, scale).translate(0, font.ascent()).map(font.pathForGlyph(index));
}

QHash<char16_t, QPainterPath> makeOutlines()
{
    constexpr qreal pixels = 256; // outlines come in steps of a pixel's 64th
    const QRawFont font(u":/symbols/materialdesignicons-webfont.ttf"_s, pixels, QFont::PreferNoHinting);
    QHash<char16_t, QPainterPath> outlines{{anyApplication, makeOutline(font, anyApplication)}};
    for (const char16_t glyph : glyphs())
        outlines.insert(glyph, makeOutline(font, glyph));
    return outlines;
}

} // namespace

QPainterPath Symbols::outline(const QString &name)
{
    static const QHash<char16_t, QPainterPath> outlines = makeOutlines();
    return outlines.value(glyphs().value(name, anyApplication));
}

QString Symbols::mark(const QString &name)
{
    return name == u"exclamationmark.shield.fill" ? u"!"_s : QString();
}

QStringList Symbols::names()
{
    return glyphs().keys();
}

} // namespace Tavelo
