#include "ReceiptDER.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const qsizetype index : {qsizetype(0), bytes.size() / 2})
        Tavelo::ReceiptDER::node(bytes, index);
    Tavelo::ReceiptDER::stringAttribute(2, 12, bytes);
    Tavelo::ReceiptDER::stringAttribute(12, 22, bytes);
    return 0;
}
