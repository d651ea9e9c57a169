#pragma once

#include <QString>

namespace Tavelo
{

/// Which project of the cloud this copy talks to.
struct SupabaseConfig {
    QString url;          ///< The project's base URL: HTTPS, without a slash at its end.
    QString anonKey;      ///< The project's public key, sent with each request.
    QString functionsURL; ///< The base URL of the project's functions, on the same host.

    bool operator==(const SupabaseConfig &) const = default;
};

} // namespace Tavelo
