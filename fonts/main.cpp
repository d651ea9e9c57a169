// prepare-font FONT FAMILY NEW_FAMILY OUTPUT: the font as it is compiled in. It goes by a family of its own, since a
// font of the same name that is installed on a machine would come first; both names have the same length.

#include "OpenTypeFont.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>

#include <cstdio>

using namespace Tavelo;

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QFile::decodeName(argv[index]);
    QFile input(arguments.value(0));
    QSaveFile output(arguments.value(3));
    if (arguments.size() != 4 || arguments.at(1).size() != arguments.at(2).size() || !input.open(QIODevice::ReadOnly) ||
        !output.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "usage: prepare-font FONT FAMILY NEW_FAMILY OUTPUT\n");
        return 2;
    }
    const QByteArray original = input.readAll();
    QByteArray font = OpenTypeFont::withFamily(original, arguments.at(1), arguments.at(2));
    if (font == original) {
        std::fprintf(stderr, "%s does not call itself %s\n", argv[1], argv[2]);
        return 1;
    }
    // The glyphs that contextual alternates put in place of others (the raised colon of "10:30"), and those of
    // compositions (a dotless i under a mark), belong to no character or to another, and a PDF viewer could neither
    // find nor copy the text. Compositions that are characters need no feature, and looking for the rest takes most of
    // the time of a text.
    for (const char *const tag : {"calt", "ccmp"})
        font = OpenTypeFont::withoutFeature(font, tag);
    return output.write(font) == font.size() && output.commit() ? 0 : 1;
}
