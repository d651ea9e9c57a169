"""prepare-font.py FONT FAMILY OUTPUT: the font as it is compiled in.

It goes by a family of its own, since a font of the same name that is installed on a machine would come first. Of the
features only those stay that place glyphs: the others put glyphs in place of characters (a raised colon in "10:30", a
dotless i under a mark), which a PDF viewer could neither find nor copy, and looking for them takes most of the time of
a text. The outlines become TrueType's, which are read five times as fast as those of PostScript.
"""

import sys

from fontTools import subset
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTFont, newTable

MAX_ERROR_OF_EM = 1 / 2000


def keep_what_is_used(font):
    options = subset.Options(layout_features=["kern", "mark", "mkmk"], name_IDs=["*"], notdef_outline=True)
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=font.getBestCmap())
    subsetter.subset(font)


def convert_outlines(font):
    glyph_set = font.getGlyphSet()
    glyphs = newTable("glyf")
    glyphs.glyphOrder = font.getGlyphOrder()
    glyphs.glyphs = {}
    max_error = MAX_ERROR_OF_EM * font["head"].unitsPerEm
    for name in glyphs.glyphOrder:
        pen = TTGlyphPen(glyph_set)
        glyph_set[name].draw(Cu2QuPen(pen, max_error, reverse_direction=True))
        glyph = glyphs.glyphs[name] = pen.glyph()
        glyph.recalcBounds(glyphs)
        advance, _ = font["hmtx"].metrics[name]
        font["hmtx"].metrics[name] = advance, getattr(glyph, "xMin", 0)
    font["glyf"] = glyphs
    font["loca"] = newTable("loca")
    limits = font["maxp"]
    limits.tableVersion = 0x00010000
    limits.maxZones = 1  # no instructions, so nothing of what they need
    limits.maxTwilightPoints = limits.maxStorage = limits.maxFunctionDefs = limits.maxInstructionDefs = 0
    limits.maxStackElements = limits.maxSizeOfInstructions = limits.maxComponentElements = 0
    font["post"].formatType = 3  # without names of glyphs
    for table in "CFF ", "VORG":
        if table in font:
            del font[table]
    font.sfntVersion = "\0\1\0\0"


def rename(font, family):
    old_family = font["name"].getBestFamilyName()
    for record in font["name"].names:
        if record.nameID in (1, 3, 4, 16, 21):
            record.string = record.toUnicode().replace(old_family, family)
        elif record.nameID == 6:
            record.string = record.toUnicode().replace(old_family, family.replace(" ", ""))


def main(source, family, output):
    font = TTFont(source, recalcTimestamp=False)
    keep_what_is_used(font)
    convert_outlines(font)
    rename(font, family)
    font.save(output)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__.splitlines()[0])
    main(*sys.argv[1:])
