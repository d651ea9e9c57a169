#include "PropertyList.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    Tavelo::PropertyList::parse(bytes);
    Tavelo::PropertyList::xmlWith(bytes, QStringLiteral("key"), true);
    return 0;
}
