#pragma once

#include "MacAppStoreReceiptStatus.h"

#include <QString>

namespace Tavelo
{

class FileManager;
class ReceiptSecurity;

/// How far the store receipt that an application carries can be trusted.
namespace MacAppStoreReceiptInspector
{

/// Judges the receipt at the Mac path. The message's integrity is judged as of today, the trust in its signer as of the
/// receipt's creation, since the certificates of genuine receipts expire. The identifier is compared exactly, and
/// before any signature is looked at. All failures are statuses, with a finished English sentence.
MacAppStoreReceiptStatus inspect(const QString &receiptPath, const QString &expectedBundleIdentifier,
                                 const FileManager &files, const ReceiptSecurity &security);

} // namespace MacAppStoreReceiptInspector

} // namespace Tavelo
