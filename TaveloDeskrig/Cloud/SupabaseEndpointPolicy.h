#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// Which addresses the project's key may travel to: HTTPS on the project's own host, and nowhere else.
namespace Tavelo::SupabaseEndpointPolicy
{

/// The text without the blanks and slashes around it, where that is an HTTPS URL with a host and without user,
/// password, query and fragment. A path is allowed, and letters keep their case. Nothing for any other text.
std::optional<QString> normalizedHTTPSBaseURL(const QString &value);

/// The base URL of the project's functions: `customURL` where that is not empty, else "/functions/v1" below `baseURL`.
/// Nothing where either is no base URL, and where their hosts differ.
std::optional<QString> functionsURL(const QString &baseURL, const QString &customURL);

/// Whether a request may go to `endpoint`: an HTTPS URL without user and password on the host of `baseURL`. To be asked
/// for every request, the target of a redirect included.
bool allows(const QUrl &endpoint, const QString &baseURL);

/// Whether the URL carries a user or a password, also an empty one.
bool hasCredentials(const QUrl &url);

} // namespace Tavelo::SupabaseEndpointPolicy
