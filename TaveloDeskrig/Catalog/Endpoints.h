#pragma once

#include <QString>

/// The one place for every host and address of the outside world, so that a vendor that moves is one line to change and
/// an administrator who opens a firewall has one list to read. Hosts are bare and in lower case; URLs have no trailing
/// slash.
namespace Tavelo::Endpoints
{

/// Homebrew's formula API. Its name is what the network check resolves: a Mac that cannot is of no use to `brew`.
inline const QString dnsProbeHost = QStringLiteral("formulae.brew.sh");
/// Where a person without Homebrew is sent.
inline const QString homebrewSiteURL = QStringLiteral("https://brew.sh");

/// Published files of source repositories, as "https://" + host + path.
inline const QString rawFileHost = QStringLiteral("raw.githubusercontent.com");
/// The command that Homebrew's site gives for its own installation, for a terminal. The program only copies it.
inline const QString homebrewInstallCommand =
    QStringLiteral("/bin/bash -c \"$(curl -fsSL https://%1/Homebrew/install/HEAD/install.sh)\"").arg(rawFileHost);

// Vendor downloads. Each vendor has a host that is asked for the current version and a content host that it redirects
// to. A download may touch these two and no other.

inline const QString thunderbirdDownloadHost = QStringLiteral("download.mozilla.org");
inline const QString thunderbirdContentHost = QStringLiteral("download-installer.cdn.mozilla.net");

inline const QString telegramDownloadHost = QStringLiteral("telegram.org");
inline const QString telegramContentHost = QStringLiteral("td.telegram.org");

inline const QString slackDownloadHost = QStringLiteral("slack.com");
inline const QString slackContentHost = QStringLiteral("downloads.slack-edge.com");

// Roots of the web applications that shortcuts open.

inline const QString microsoft365WebURL = QStringLiteral("https://www.microsoft365.com");
inline const QString teamsWebURL = QStringLiteral("https://teams.microsoft.com");
inline const QString meetWebURL = QStringLiteral("https://meet.google.com");
inline const QString zaloWebURL = QStringLiteral("https://chat.zalo.me");

} // namespace Tavelo::Endpoints
