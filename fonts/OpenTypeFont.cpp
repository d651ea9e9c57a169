#include "OpenTypeFont.h"

#include <QtEndian>

#include <optional>

namespace Tavelo::OpenTypeFont
{

namespace
{

/// A number of a table; 0 behind the end of the bytes.
template <typename Number>
Number number(const QByteArray &bytes, qsizetype offset)
{
    if (offset < 0 || offset + static_cast<qsizetype>(sizeof(Number)) > bytes.size())
        return 0;
    return qFromBigEndian<Number>(bytes.constData() + offset);
}

/// Where the table begins; nothing if the font has none.
std::optional<qsizetype> tableOffset(const QByteArray &font, const QByteArray &tag)
{
    constexpr qsizetype firstEntry = 12;
    constexpr qsizetype entrySize = 16;
    const int count = number<quint16>(font, 4);
    for (int index = 0; index < count; ++index) {
        const qsizetype entry = firstEntry + index * entrySize;
        if (font.mid(entry, 4) == tag)
            return number<quint32>(font, entry + 8);
    }
    return std::nullopt;
}

QByteArray utf16BigEndian(const QString &text)
{
    QByteArray bytes(text.size() * 2, '\0');
    qToBigEndian<quint16>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

} // namespace

QByteArray withoutFeature(QByteArray font, const QByteArray &tag)
{
    const std::optional<qsizetype> substitutions = tableOffset(font, "GSUB");
    if (!substitutions)
        return font;
    constexpr qsizetype featureListField = 6;
    constexpr qsizetype recordSize = 6;
    const qsizetype list = *substitutions + number<quint16>(font, *substitutions + featureListField);
    const int count = number<quint16>(font, list);
    for (int index = 0; index < count; ++index) {
        const qsizetype record = list + 2 + index * recordSize;
        if (font.mid(record, 4) == tag)
            font.replace(record, 4, "none"); // a tag that nothing asks for
    }
    return font;
}

QByteArray withFamily(QByteArray font, const QString &oldFamily, const QString &family)
{
    const std::optional<qsizetype> names = tableOffset(font, "name");
    if (!names)
        return font;
    constexpr qsizetype firstRecord = 6;
    constexpr qsizetype recordSize = 12;
    constexpr quint16 postScriptName = 6;
    const QByteArray before = utf16BigEndian(oldFamily);
    const QByteArray after = utf16BigEndian(family);
    const int count = number<quint16>(font, *names + 2);
    const qsizetype texts = *names + number<quint16>(font, *names + 4);
    for (int index = 0; index < count; ++index) {
        const qsizetype record = *names + firstRecord + index * recordSize;
        const qsizetype text = texts + number<quint16>(font, record + 10);
        if (number<quint16>(font, record + 6) != postScriptName && font.mid(text, before.size()) == before)
            font.replace(text, before.size(), after);
    }
    return font;
}

} // namespace Tavelo::OpenTypeFont
