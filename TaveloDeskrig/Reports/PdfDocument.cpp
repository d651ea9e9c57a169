#include "PdfDocument.h"

#include <QRegularExpression>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

#include <exception>

namespace Tavelo
{

namespace
{

QByteArray hexadecimal(const QString &text)
{
    QByteArray digits;
    for (const QChar unit : text)
        digits += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0').toUpper();
    return digits;
}

QPDFObjectHandle unicodeString(const QString &text)
{
    return QPDFObjectHandle::newUnicodeString(text.toStdString());
}

void useMeanings(QPDFObjectHandle characterMap, const CharacterMeaning &meaning)
{
    const std::shared_ptr<Buffer> data = characterMap.getStreamData();
    const QByteArray map(reinterpret_cast<const char *>(data->getBuffer()), static_cast<qsizetype>(data->getSize()));
    characterMap.replaceStreamData(withMeanings(map, meaning).toStdString(), QPDFObjectHandle::newNull(),
                                   QPDFObjectHandle::newNull());
}

/// Puts six letters before the font's name, by which a reader knows that the document holds only a part of the font.
void nameAsSubset(QPDFObjectHandle font, int number)
{
    std::string tag = "AAAAAA+";
    for (size_t place = 6; place-- > 0; number /= 26)
        tag.at(place) = static_cast<char>('A' + number % 26);
    const auto rename = [&tag](QPDFObjectHandle object, const std::string &key) {
        if (object.isDictionary() && object.getKey(key).isName())
            object.replaceKey(key, QPDFObjectHandle::newName('/' + tag + object.getKey(key).getName().substr(1)));
    };
    rename(font, "/BaseFont");
    for (QPDFObjectHandle descendant : font.getKey("/DescendantFonts").aitems()) {
        rename(descendant, "/BaseFont");
        rename(descendant.getKey("/FontDescriptor"), "/FontName");
    }
}

} // namespace

QByteArray withMeanings(const QByteArray &characterMap, const CharacterMeaning &meaning)
{
    // "<0001> <0003> [<0041> <0042> <0043>]" names a character for each glyph, "<0001> <0003> <0041>" the first of a
    // run.
    static const QRegularExpression range(
        QStringLiteral("<([0-9A-Fa-f]{4})>\\s*<([0-9A-Fa-f]{4})>\\s*(?:<([0-9A-Fa-f]{4})>|\\[([^\\]]*)\\])"));
    static const QRegularExpression entry(QStringLiteral("<([0-9A-Fa-f]{4})>"));
    const QString map = QString::fromLatin1(characterMap);
    const qsizetype begin = map.indexOf(QRegularExpression(QStringLiteral("\\d+ beginbfrange")));
    const qsizetype end = map.indexOf(QStringLiteral("endbfrange"), begin);
    if (begin < 0 || end < 0)
        return characterMap;

    const auto number = [](const QString &digits) { return digits.toUShort(nullptr, 16); };
    QList<QByteArray> rows;
    for (auto ranges = range.globalMatch(map.mid(begin, end - begin)); ranges.hasNext();) {
        const QRegularExpressionMatch match = ranges.next();
        const int first = number(match.captured(1));
        const int last = number(match.captured(2));
        auto entries = entry.globalMatch(match.captured(4));
        for (int glyph = first; glyph <= last; ++glyph) {
            char16_t character = 0;
            if (match.hasCaptured(3))
                character = static_cast<char16_t>(number(match.captured(3)) + glyph - first);
            else if (entries.hasNext())
                character = number(entries.next().captured(1));
            rows << '<' + hexadecimal(QChar(glyph)) + "> <" + hexadecimal(meaning(character)) + ">\n";
        }
    }
    constexpr qsizetype rowsInABlock = 100; // the most that the format allows
    QByteArray blocks;
    for (qsizetype index = 0; index < rows.size(); index += rowsInABlock) {
        const QList<QByteArray> block = rows.mid(index, rowsInABlock);
        blocks += QByteArray::number(block.size()) + " beginbfchar\n" + block.join() + "endbfchar\n";
    }
    return map.left(begin).toLatin1() + blocks + map.mid(end + qsizetype(qstrlen("endbfrange"))).trimmed().toLatin1() +
           '\n';
}

std::optional<QByteArray> finishedPdf(const QByteArray &pdf, const PdfProperties &properties,
                                      const CharacterMeaning &meaning)
{
    try {
        QPDF document;
        document.setSuppressWarnings(true);
        document.processMemoryFile("report", pdf.constData(), static_cast<size_t>(pdf.size()));

        QPDFObjectHandle catalog = document.getRoot();
        catalog.replaceKey("/Lang", unicodeString(properties.language));
        QPDFObjectHandle preferences = QPDFObjectHandle::newDictionary();
        preferences.replaceKey("/DisplayDocTitle", QPDFObjectHandle::newBool(true));
        catalog.replaceKey("/ViewerPreferences", preferences);
        QPDFObjectHandle information = document.getTrailer().getKey("/Info");
        information.replaceKey("/Title", unicodeString(properties.title));
        information.replaceKey("/Author", unicodeString(properties.author));

        int fonts = 0;
        std::vector<QPDFObjectHandle> objects = document.getAllObjects();
        for (QPDFObjectHandle &object : objects) {
            if (!object.isDictionaryOfType("/Font", "/Type0"))
                continue;
            nameAsSubset(object, fonts++);
            if (object.getKey("/ToUnicode").isStream())
                useMeanings(object.getKey("/ToUnicode"), meaning);
        }

        QPDFWriter writer(document);
        writer.setOutputMemory();
        writer.setStreamDataMode(qpdf_s_preserve);
        writer.setObjectStreamMode(qpdf_o_preserve);
        writer.write();
        const std::shared_ptr<Buffer> bytes = writer.getBufferSharedPointer();
        return QByteArray(reinterpret_cast<const char *>(bytes->getBuffer()), static_cast<qsizetype>(bytes->getSize()));
    } catch (const std::exception &) { // the library's way to say that the bytes are not a whole PDF
        return std::nullopt;
    }
}

} // namespace Tavelo
