#pragma once

#include <QSet>
#include <QString>
#include <QUrl>

#include <optional>

/// Where a release policy may send the user for an update, whatever a tampered policy says: to a disk image on the
/// publisher's own download host.
namespace Tavelo::ReleaseDownloadPolicy
{

/// The publisher's download host, in lower case. It is the build setting `TAVELO_DOWNLOAD_HOST`.
const QSet<QString> &allowedHosts();

/// The link, where it is an HTTPS URL without user and password that leads to a `.dmg` on an allowed host; nothing for
/// any other text. What is opened is this URL, not the text that it was read from.
std::optional<QUrl> validatedURL(const QString &value);

} // namespace Tavelo::ReleaseDownloadPolicy
