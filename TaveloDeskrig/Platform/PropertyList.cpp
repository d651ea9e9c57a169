#include "PropertyList.h"

#include "FileManager.h"
#include "PropertyListBounds.h"

#include <QDateTime>
#include <QMetaType>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>

#include <plist/plist.h>

namespace Tavelo::PropertyList
{

namespace
{

/// The text in UTF-8, which is what the reader takes every text for, without a byte order mark.
QByteArray xmlInUtf8(QByteArrayView data)
{
    // A Mac passes over blanks before the declaration.
    const auto *const start =
        std::find_if_not(data.begin(), data.end(), [](char c) { return std::strchr(" \t\r\n", c) && c; });
    QByteArray bytes(start, data.end() - start);
    static const QRegularExpression declaration(QStringLiteral("^<\\?xml[^>]*encoding\\s*=\\s*[\"']([A-Za-z0-9._-]+)"));
    static const QRegularExpression anyDeclaration(QStringLiteral("^\\s*<\\?xml[^>]*>"));
    std::optional<QStringConverter::Encoding> encoding = QStringConverter::encodingForData(bytes, u'<');
    if (!encoding) {
        const QString name = declaration.match(QString::fromLatin1(bytes.left(200))).captured(1);
        encoding = QStringConverter::encodingForName(name.toLatin1().constData());
        if (!encoding || *encoding == QStringConverter::Utf8)
            return bytes;
    }
    QStringDecoder decoder(*encoding);
    QString text = decoder(bytes); // drops the mark
    text.remove(anyDeclaration);   // it names an encoding that no longer holds
    return text.toUtf8();
}

/// The text without its comments. A Mac takes what XML forbids in them, such as two hyphens.
QByteArray withoutComments(const QByteArray &xml)
{
    constexpr QByteArrayView comment = "<!--", commentEnd = "-->", verbatim = "<![CDATA[", verbatimEnd = "]]>";
    QByteArray result;
    qsizetype kept = 0;
    for (qsizetype index = xml.indexOf('<'); index >= 0; index = xml.indexOf('<', index + 1)) {
        const QByteArrayView rest = QByteArrayView(xml).sliced(index);
        const bool isComment = rest.startsWith(comment);
        if (!isComment && !rest.startsWith(verbatim))
            continue;
        const qsizetype end =
            isComment ? xml.indexOf(commentEnd, index + comment.size()) : xml.indexOf(verbatimEnd, index);
        if (end < 0)
            break;
        if (isComment) {
            result += QByteArrayView(xml).sliced(kept, index - kept);
            kept = end + commentEnd.size();
        }
        index = end;
    }
    return result += QByteArrayView(xml).sliced(kept);
}

using Node = std::unique_ptr<void, decltype(&plist_free)>;

QVariant fromNode(plist_t node);

QVariant fromDictionary(plist_t node)
{
    QVariantMap map;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const std::unique_ptr<void, decltype(&std::free)> owner(iterator, std::free);
    for (;;) {
        char *key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, iterator, &key, &value);
        if (!value) {
            std::free(key);
            return map;
        }
        const std::unique_ptr<char, decltype(&std::free)> keyOwner(key, std::free);
        map.insert(QString::fromUtf8(key), fromNode(value));
    }
}

QVariant fromArray(plist_t node)
{
    QVariantList list;
    const uint32_t size = plist_array_get_size(node);
    for (uint32_t index = 0; index < size; ++index)
        list.append(fromNode(plist_array_get_item(node, index)));
    return list;
}

QVariant fromNode(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return QVariant(value != 0);
    }
    case PLIST_UINT: {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return QVariant(static_cast<qlonglong>(value));
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return QVariant(value);
    }
    case PLIST_STRING: {
        uint64_t length = 0;
        const char *text = plist_get_string_ptr(node, &length);
        return QVariant(QString::fromUtf8(text, static_cast<qsizetype>(length)));
    }
    case PLIST_DATA: {
        uint64_t length = 0;
        const char *bytes = plist_get_data_ptr(node, &length);
        return QVariant(QByteArray(bytes, static_cast<qsizetype>(length)));
    }
    case PLIST_DATE:
        return QVariant(QDateTime());
    case PLIST_DICT:
        return fromDictionary(node);
    case PLIST_ARRAY:
        return fromArray(node);
    default:
        return {};
    }
}

plist_t toNode(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return plist_new_bool(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return plist_new_uint(value.toULongLong());
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), static_cast<uint64_t>(bytes.size()));
    }
    case QMetaType::QVariantMap: {
        plist_t node = plist_new_dict();
        const QVariantMap map = value.toMap();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            plist_dict_set_item(node, entry.key().toUtf8().constData(), toNode(entry.value()));
        return node;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        plist_t node = plist_new_array();
        const QVariantList list = value.toList();
        for (const QVariant &entry : list)
            plist_array_append_item(node, toNode(entry));
        return node;
    }
    default:
        return plist_new_string(value.toString().toUtf8().constData());
    }
}

/// Null for bytes that are not a property list within the bounds.
Node nodeOf(const QByteArray &bytes)
{
    plist_t root = nullptr;
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<int32_t>::max())
        return {nullptr, plist_free};
    if (plist_is_binary(bytes.constData(), static_cast<uint32_t>(bytes.size()))) {
        if (isBinaryWithinBounds(bytes))
            plist_from_bin(bytes.constData(), static_cast<uint32_t>(bytes.size()), &root);
    } else {
        const QByteArray text = withoutComments(xmlInUtf8(bytes));
        if (isXmlWithinBounds(text))
            plist_from_xml(text.constData(), static_cast<uint32_t>(text.size()), &root);
    }
    return {root, plist_free};
}

QByteArray xmlOf(const Node &root)
{
    char *text = nullptr;
    uint32_t length = 0;
    plist_to_xml(root.get(), &text, &length);
    QByteArray bytes(text, static_cast<qsizetype>(length));
    std::free(text);
    return bytes;
}

} // namespace

std::optional<QVariant> parse(const QByteArray &bytes)
{
    const Node root = nodeOf(bytes);
    return root ? std::optional(fromNode(root.get())) : std::nullopt;
}

std::optional<QVariant> read(const FileManager &files, const QString &path)
{
    const std::optional<QByteArray> bytes = files.contentsUpTo(path, maximumFileSize);
    return bytes ? parse(*bytes) : std::nullopt;
}

QVariantMap readDictionary(const FileManager &files, const QString &path)
{
    return read(files, path).value_or(QVariant()).toMap();
}

QByteArray xml(const QVariant &value)
{
    return xmlOf({toNode(value), plist_free});
}

QByteArray xmlWith(const QByteArray &bytes, const QString &key, const QVariant &value)
{
    Node root = nodeOf(bytes);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT)
        root.reset(plist_new_dict());
    const QByteArray name = key.toUtf8();
    plist_dict_remove_item(root.get(), name.constData());
    if (value.isValid())
        plist_dict_set_item(root.get(), name.constData(), toNode(value));
    return xmlOf(root);
}

} // namespace Tavelo::PropertyList
