#pragma once

#include "PlatformServices.h"

#include <QString>

namespace Tavelo
{

/// Where the program keeps its things, and which version it is. Each location has a default below the user's home and
/// an environment variable that moves it: blanks count as unset, a leading `~` is the home, and a relative path counts
/// from the working folder. All paths are absolute Mac paths.
class AppRuntime
{
public:
    explicit AppRuntime(PlatformServices services);

    QString homeDirectory() const { return m_home; }

    /// `TAVELO_MAC_CONFIG_DIR`, else `~/Library/Application Support/Tavelo Deskrig`.
    QString appSupportDir() const;

    /// `TAVELO_MAC_CACHE_DIR`, else `~/Library/Caches/tavelo-deskrig`.
    QString cacheDir() const;

    /// `tavelo-deskrig.log` in `logDir`.
    QString logFile() const;

    /// `TAVELO_MAC_LOG_DIR`, else `~/Library/Logs`.
    QString logDir() const;

    /// `TAVELO_MAC_SHORTCUT_DIR`, else `~/Applications/Tavelo Deskrig`.
    QString shortcutDir() const;

    /// `TAVELO_MAC_REPORT_FILE`, which names the file itself, else `Reports/tavelo-deskrig-report.txt` in
    /// `appSupportDir`.
    QString reportFile() const;

    /// "{short version} ({build})", the short version alone, or "dev" where the program's bundle names none.
    QString appVersion() const;

    /// A text of the program's own bundle without the blanks around it; empty where there is none.
    QString bundleString(const QString &key) const;

    /// The path with a leading `~` (alone or before a `/`) replaced by the home folder; any other path as it is.
    QString expandingTilde(const QString &path) const;

private:
    QString envURL(const QString &name, const QString &fallback) const;

    PlatformServices m_services;
    QString m_home;
};

} // namespace Tavelo
