#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Tavelo
{

/// The little of ASN.1 that a store receipt's payload needs. Reads untrusted bytes: anything odd gives nothing.
///
/// The payload is a SET of SEQUENCEs, each of an INTEGER type, an INTEGER version and an OCTET STRING that holds
/// another DER value.
namespace ReceiptDER
{

struct Node {
    quint8 tag = 0;
    qsizetype contentStart = 0; ///< Index of the first byte of the content.
    qsizetype contentEnd = 0;   ///< Index behind the content, where the next sibling begins.

    bool operator==(const Node &) const = default;
};

/// The value that begins at that index; nothing if it does not fit in the bytes, has the indefinite form or more than
/// four bytes of length.
std::optional<Node> node(const QByteArray &bytes, qsizetype index);

/// The text of the first attribute of that type, which must be a whole value with that tag, in UTF-8.
std::optional<QString> stringAttribute(int type, quint8 expectedTag, const QByteArray &data);

} // namespace ReceiptDER

} // namespace Tavelo
