#pragma once

#include <QString>

namespace Tavelo
{

/// What is known of an application's store receipt.
struct MacAppStoreReceiptStatus {
    enum class Kind {
        verified,          ///< Intact, trusted at its creation, and of this application.
        integrityVerified, ///< Intact and of this application; `reason` says why trust could not be told.
        invalid,           ///< `reason` says why.
        inaccessible,      ///< `reason` says why.
        absent,
    };

    Kind kind = Kind::absent;
    QString bundleIdentifier; ///< As signed; for the first two kinds.
    QString reason;           ///< A finished English sentence; for the middle three kinds.

    bool operator==(const MacAppStoreReceiptStatus &) const = default;
};

} // namespace Tavelo
