#pragma once

#include "AppItem.h"
#include "AppRuntime.h"
#include "CommandRunner.h"
#include "OperationLog.h"
#include "PlatformServices.h"

#include <QString>

#include <optional>

namespace Tavelo
{

/// Applications that come straight from their vendor: downloaded over HTTPS from listed hosts, taken out of their image
/// and copied into an Applications folder.
///
/// One rule holds throughout: no bundle reaches, stays in or leaves an Applications folder unless it has the pinned
/// identity of the item's `DirectInstallerSpec`. (A copy that breaks off stays as far as it came; the next
/// attempt refuses to touch it.) All failures give false and are told in the log; nothing in the cache but the download
/// outlives an attempt.
class DirectInstaller
{
public:
    /// `runner` and `log` must outlive it.
    DirectInstaller(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                    const OperationLog &log);

    /// The whole install. A genuine copy that is already there, of whatever version, is a success and stays as it is; a
    /// foreign application in its place is left alone and is a failure.
    bool installDirectApp(const AppItem &item) const;

    /// Removes each genuine copy at the item's paths. A foreign one stays and makes the result false; nothing there at
    /// all is a success.
    bool removeDirectApp(const AppItem &item) const;

    /// True when the application at the Mac path has the pinned identity.
    bool verifyDirectApp(const QString &path, const DirectInstallerSpec &spec) const;

    /// The bundle of that name in an unpacked tree: at its top, else the first one met at any depth outside other
    /// bundles, else the first bundle of any other name, whose identity then decides. Nothing if there is no bundle.
    std::optional<QString> findAppBundle(const QString &root, const QString &name) const;

    /// `/Applications` if it is writable, else the user's own.
    QString preferredApplicationsDirectory() const;

private:
    bool download(const AppItem &item, const DirectInstallerSpec &spec, const QString &file) const;
    bool installDirectDMG(const QString &downloadedFile, const AppItem &item, const DirectInstallerSpec &spec) const;
    bool installDirectZIP(const QString &downloadedFile, const AppItem &item, const DirectInstallerSpec &spec) const;
    bool installFound(const QString &folder, const QString &container, const AppItem &item,
                      const DirectInstallerSpec &spec) const;
    bool copyDirectApp(const QString &bundle, const AppItem &item, const DirectInstallerSpec &spec) const;

    PlatformServices m_services;
    AppRuntime m_runtime;
    const CommandRunner &m_runner;
    const OperationLog &m_log;
};

} // namespace Tavelo
