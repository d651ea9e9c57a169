#include "MacAppStoreReceiptInspector.h"

#include "FileManager.h"
#include "ReceiptDER.h"
#include "ReceiptSecurity.h"

#include <QDateTime>
#include <QRegularExpression>

namespace Tavelo::MacAppStoreReceiptInspector
{

namespace
{

using Kind = MacAppStoreReceiptStatus::Kind;

constexpr int bundleIdentifierType = 2;
constexpr quint8 utf8StringTag = 12;
constexpr int creationDateType = 12;
constexpr quint8 ia5StringTag = 22;

/// In bytes. Genuine receipts have a few thousand, those with many in-app purchases some hundred thousand.
constexpr qint64 largestReceipt = qint64(4) * 1024 * 1024;

MacAppStoreReceiptStatus invalid(const QString &reason)
{
    return {.kind = Kind::invalid, .bundleIdentifier = {}, .reason = reason};
}

MacAppStoreReceiptStatus inaccessible(const QString &reason)
{
    return {.kind = Kind::inaccessible, .bundleIdentifier = {}, .reason = reason};
}

/// A date and time of the Internet (RFC 3339), with or without a fraction of a second; an invalid one for other text.
QDateTime internetDateTime(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d(\.\d+)?(Z|[+-]\d\d:?\d\d)$)"));
    return form.match(text).hasMatch() ? QDateTime::fromString(text, Qt::ISODateWithMs) : QDateTime();
}

} // namespace

MacAppStoreReceiptStatus inspect(const QString &receiptPath, const QString &expectedBundleIdentifier,
                                 const FileManager &files, const ReceiptSecurity &security)
{
    if (!files.exists(receiptPath))
        return {};
    if (!files.isReadable(receiptPath))
        return inaccessible(
            QStringLiteral("The Mac App Store receipt exists but cannot be read with the current permissions."));
    if (files.size(receiptPath) > largestReceipt)
        return invalid(QStringLiteral("The receipt is not a valid CMS message."));
    const std::optional<QByteArray> bytes = files.contents(receiptPath);
    if (!bytes)
        return inaccessible(
            QStringLiteral("The Mac App Store receipt could not be read with the current permissions."));
    if (bytes->isEmpty())
        return invalid(QStringLiteral("The Mac App Store receipt is empty."));

    if (!security.isAvailable())
        return invalid(QStringLiteral("macOS could not initialize the receipt verifier."));
    const std::unique_ptr<SignedReceipt> receipt = security.decode(*bytes);
    if (!receipt)
        return invalid(QStringLiteral("The receipt is not a valid CMS message."));
    const std::optional<QByteArray> payload = receipt->content();
    if (!payload)
        return invalid(QStringLiteral("The signed receipt payload is missing."));

    const std::optional<QString> identifier =
        ReceiptDER::stringAttribute(bundleIdentifierType, utf8StringTag, *payload);
    if (!identifier)
        return invalid(QStringLiteral("The signed receipt does not contain a readable bundle identifier."));
    if (*identifier != expectedBundleIdentifier)
        return invalid(QStringLiteral("The signed receipt bundle identifier does not match this application."));

    const auto integrityVerified = [&](const QString &reason) {
        return MacAppStoreReceiptStatus{
            .kind = Kind::integrityVerified, .bundleIdentifier = *identifier, .reason = reason};
    };
    if (!security.hasReceiptPolicy())
        return integrityVerified(QStringLiteral("macOS could not create the Mac App Store receipt trust policy."));
    if (!receipt->signerIsValid())
        return invalid(QStringLiteral("The receipt CMS signature failed integrity verification."));

    const QDateTime created =
        internetDateTime(ReceiptDER::stringAttribute(creationDateType, ia5StringTag, *payload).value_or(QString()));
    if (!created.isValid())
        return integrityVerified(QStringLiteral("The signed receipt creation date could not be decoded for historical "
                                                "certificate evaluation."));
    if (!receipt->signerIsTrusted(created))
        return integrityVerified(QStringLiteral("The historical Apple signer chain could not be re-established at the "
                                                "embedded receipt creation date."));
    return {.kind = Kind::verified, .bundleIdentifier = *identifier, .reason = {}};
}

} // namespace Tavelo::MacAppStoreReceiptInspector
