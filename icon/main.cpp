// make-icon OUTPUT: the icon of the application bundle, with the program's mark in every size that a Mac asks for.

#include "ReportLogo.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QSaveFile>
#include <QtEndian>

#include <cmath>
#include <cstdio>

using namespace Tavelo;

namespace
{

struct Entry {
    const char *type;
    int side; ///< In pixels.
};

/// A size for plain screens and the next smaller one for screens of double density share their pixels.
constexpr Entry entries[]{{"ic11", 32},  {"ic12", 64},  {"ic07", 128}, {"ic13", 256},
                          {"ic08", 256}, {"ic14", 512}, {"ic09", 512}, {"ic10", 1024}};

/// A Mac's icons leave a tenth free around their square, which is 824 of 1024 pixels wide; the mark's own square with
/// its line is 124 of 128 wide.
constexpr double share = 824. / 1024 * 128 / 124;

QByteArray png(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const int margin = int(std::lround(side * (1 - share) / 2));
    QPainter(&image).drawImage(margin, margin, MacReportPDF::fallbackAppLogo(side - 2 * margin));
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    image.save(&file, "PNG");
    return file.data();
}

/// A type of four letters, the length of it all in bytes, the contents.
QByteArray block(const char *type, const QByteArray &contents)
{
    QByteArray length(4, '\0');
    qToBigEndian(quint32(contents.size()) + 8, length.data());
    return type + length + contents;
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: make-icon OUTPUT\n");
        return 2;
    }
    QByteArray blocks;
    for (const Entry &entry : entries)
        blocks += block(entry.type, png(entry.side));
    const QByteArray icon = block("icns", blocks);
    QSaveFile output(QFile::decodeName(argv[1]));
    if (output.open(QIODevice::WriteOnly) && output.write(icon) == icon.size() && output.commit())
        return 0;
    std::fprintf(stderr, "%s: %s\n", argv[1], qPrintable(output.errorString()));
    return 1;
}
