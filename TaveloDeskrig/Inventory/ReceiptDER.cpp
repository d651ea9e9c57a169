#include "ReceiptDER.h"

#include <QStringDecoder>

#include <limits>

namespace Tavelo::ReceiptDER
{

namespace
{

constexpr quint8 integerTag = 0x02;
constexpr quint8 octetStringTag = 0x04;
constexpr quint8 sequenceTag = 0x30;
constexpr quint8 setTag = 0x31;
constexpr int longestLength = 4; // bytes

quint8 byteAt(const QByteArray &bytes, qsizetype index)
{
    return static_cast<quint8>(bytes.at(index));
}

/// A number too large for its type stays at the largest one, which is no attribute's.
quint64 bigEndian(const QByteArray &bytes, const Node &node)
{
    quint64 value = 0;
    for (qsizetype index = node.contentStart; index < node.contentEnd; ++index) {
        if (value > (std::numeric_limits<quint64>::max() >> 8))
            return std::numeric_limits<quint64>::max();
        value = value << 8 | byteAt(bytes, index);
    }
    return value;
}

std::optional<QString> utf8Text(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

} // namespace

std::optional<Node> node(const QByteArray &bytes, qsizetype index)
{
    if (index < 0 || bytes.size() - index < 2)
        return std::nullopt;
    const quint8 lengthByte = byteAt(bytes, index + 1);
    Node node{.tag = byteAt(bytes, index), .contentStart = index + 2, .contentEnd = 0};
    qsizetype length = lengthByte;
    if (lengthByte >= 0x80) {
        const int lengthBytes = lengthByte & 0x7f;
        if (lengthBytes == 0 || lengthBytes > longestLength || bytes.size() - node.contentStart < lengthBytes)
            return std::nullopt;
        length = 0;
        for (int count = 0; count < lengthBytes; ++count)
            length = length << 8 | byteAt(bytes, node.contentStart++);
    }
    if (length > bytes.size() - node.contentStart)
        return std::nullopt;
    node.contentEnd = node.contentStart + length;
    return node;
}

std::optional<QString> stringAttribute(int type, quint8 expectedTag, const QByteArray &data)
{
    const std::optional<Node> set = node(data, 0);
    if (!set || set->tag != setTag)
        return std::nullopt;
    for (qsizetype index = set->contentStart; index < set->contentEnd;) {
        const std::optional<Node> element = node(data, index);
        if (!element || element->tag != sequenceTag || element->contentEnd > set->contentEnd)
            return std::nullopt;
        index = element->contentEnd;

        const std::optional<Node> attributeType = node(data, element->contentStart);
        if (!attributeType || attributeType->tag != integerTag)
            continue;
        const std::optional<Node> version = node(data, attributeType->contentEnd);
        if (!version || version->tag != integerTag)
            continue;
        const std::optional<Node> value = node(data, version->contentEnd);
        if (!value || value->tag != octetStringTag || value->contentEnd > element->contentEnd)
            continue;
        if (bigEndian(data, *attributeType) != static_cast<quint64>(type))
            continue;

        const QByteArray octets = data.mid(value->contentStart, value->contentEnd - value->contentStart);
        const std::optional<Node> inner = node(octets, 0);
        if (!inner || inner->tag != expectedTag || inner->contentEnd != octets.size())
            return std::nullopt;
        return utf8Text(octets.mid(inner->contentStart));
    }
    return std::nullopt;
}

} // namespace Tavelo::ReceiptDER
