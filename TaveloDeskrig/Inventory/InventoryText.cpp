#include "InventoryText.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace Tavelo
{

QStringList linesOf(const QString &text)
{
    const auto endsLine = [](QChar character) {
        const char16_t code = character.unicode();
        return (code >= u'\n' && code <= u'\r') || code == 0x85 || code == 0x2028 || code == 0x2029;
    };
    QStringList lines;
    for (auto begin = text.cbegin(); begin != text.cend();) {
        const auto end = std::find_if(begin, text.cend(), endsLine);
        if (end != begin)
            lines << QString(begin, end - begin);
        begin = end == text.cend() ? end : end + 1;
    }
    return lines;
}

QString withoutControls(const QString &text)
{
    const auto isOrdinary = [](QChar unit) {
        const char16_t code = unit.unicode();
        return code >= 0x20 && !(code >= 0x7F && code < 0xA0) && code != 0x2028 && code != 0x2029 &&
               !unit.isSurrogate();
    };
    if (std::all_of(text.cbegin(), text.cend(), isOrdinary))
        return text;
    const auto isControl = [](char32_t character) {
        const QChar::Category category = QChar::category(character);
        return category == QChar::Other_Control || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph;
    };
    // Character by character: an expression would leave a text alone that holds half of a surrogate pair.
    QString result;
    bool inRun = false;
    const QList<uint> characters = text.toUcs4();
    for (const char32_t character : characters) {
        const bool control = isControl(character);
        if (!control)
            result +=
                QChar::fromUcs4(QChar::isSurrogate(character) ? char32_t(QChar::ReplacementCharacter) : character);
        else if (!inRun)
            result += u' ';
        inRun = control;
    }
    return result;
}

qsizetype characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

} // namespace Tavelo
