#include "FileManager.h"
#include "MacAppStoreReceiptInspector.h"
#include "ReceiptSecurity.h"

namespace
{

/// A Mac on which every file holds the bytes.
class OneFile : public Tavelo::FileManager
{
public:
    QByteArray bytes;

    bool exists(const QString &) const override { return true; }
    bool isReadable(const QString &) const override { return true; }
    std::optional<QByteArray> contents(const QString &, Tavelo::FileError *) const override { return bytes; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    static OneFile files;
    static const Tavelo::ReceiptSecurity security;
    files.bytes = QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    Tavelo::MacAppStoreReceiptInspector::inspect(QStringLiteral("/receipt"), QStringLiteral("org.example.app"), files,
                                                 security);
    // Further than the inspector goes for a receipt of another application.
    if (const auto receipt = security.decode(files.bytes)) {
        receipt->content();
        receipt->signerIsValid();
        receipt->signerIsTrusted(QDateTime(QDate(2016, 6, 1), QTime(), Qt::UTC));
    }
    return 0;
}
