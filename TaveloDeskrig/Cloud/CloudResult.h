#pragma once

#include <QString>

namespace Tavelo
{

/// What came of a cloud action.
struct CloudResult {
    bool ok = false;
    QString message; ///< A finished sentence for the user, in Vietnamese.

    bool operator==(const CloudResult &) const = default;
};

} // namespace Tavelo
