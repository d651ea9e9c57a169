#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace Tavelo
{

/// What a PDF says about itself beside its pages.
struct PdfProperties {
    QString title;
    QString author;
    QString language; ///< As "en" or "vi".
};

/// What a character in a font's table of characters stands for.
using CharacterMeaning = std::function<QString(char16_t)>;

/// A PDF as `QPdfWriter` wrote it, with its properties, fonts named as the subsets that they are, and tables of
/// characters that name what was meant. Nothing for bytes that are no PDF.
std::optional<QByteArray> finishedPdf(const QByteArray &pdf, const PdfProperties &properties,
                                      const CharacterMeaning &meaning);

/// A table of characters by glyph as `QPdfWriter` writes it (a ToUnicode character map), with the meanings in place of
/// the characters. Bytes without such a table come back as they are.
QByteArray withMeanings(const QByteArray &characterMap, const CharacterMeaning &meaning);

} // namespace Tavelo
