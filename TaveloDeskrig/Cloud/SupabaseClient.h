#pragma once

#include "AppItem.h"
#include "AppRuntime.h"
#include "CloudResult.h"
#include "HttpTransport.h"
#include "PlatformServices.h"
#include "ReleasePolicy.h"
#include "SupabaseConfig.h"

#include <QFuture>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Tavelo
{

/// What came of one request.
struct JsonAnswer {
    bool ok = false;
    QJsonValue body; ///< As `WireValue::parseJSON` reads it; if not `ok`, `WireValue::responseErrorText` words it.
};

/// The one object that talks to the cloud: a project of Supabase, reached by HTTPS. Without a configuration every
/// action says so, and the program goes on.
///
/// Made and destroyed on the main thread. A call may be started from any thread and returns at once; the network's work
/// is done on the main thread's loop. Take the result where it is wanted, with a context object:
///
///     client.syncCatalog().then(viewModel, [=](const CloudResult &result) { … });
///
/// Nothing throws, nothing is tried twice. A call that is under way when the client is destroyed is cancelled: what was
/// to follow it never runs, and its future has no result: who waits on another thread asks `isCanceled` before
/// `result`. The main thread must not wait for a future. A context object must outlive the client, or own it.
class SupabaseClient
{
public:
    /// Entered on any thread. An empty one drops the lines.
    using Log = std::function<void(const QString &line)>;
    /// The rows of a report, as `MacBackend::installStatusSnapshot` gives them.
    using ReportItems = QList<QMap<QString, QString>>;

    /// How long a request may take in all, with its redirects.
    static constexpr std::chrono::milliseconds requestTimeout = std::chrono::seconds(20);
    /// How many redirects are followed, all of them within the project's host.
    static constexpr int maximumRedirects = 5;

    SupabaseClient(const PlatformServices &services, std::unique_ptr<HttpTransport> transport, Log log,
                   std::optional<SupabaseConfig> config);
    ~SupabaseClient();
    Q_DISABLE_COPY_MOVE(SupabaseClient)

    /// The configuration of this copy. `TAVELO_SUPABASE_URL` and `TAVELO_SUPABASE_ANON_KEY` decide where both are set,
    /// for good or bad, with `TAVELO_SUPABASE_FUNCTIONS_URL`. Else the first that holds one of these: `supabase.json`
    /// in `AppRuntime::appSupportDir` and in `~/.config/tavelo-deskrig`, `config/supabase.json` in the program's
    /// bundle and beside the working folder; a file over 1 MiB holds none. Nothing if there is none. Needs the
    /// application object, by which the bundle is found.
    static std::optional<SupabaseConfig> loadConfig(const PlatformServices &services);

    /// The configuration in its normal form; nothing for addresses that `SupabaseEndpointPolicy` refuses, for a key
    /// that is empty or no header can carry, and for a template that nobody has filled in.
    static std::optional<SupabaseConfig> makeConfig(const QString &url, const QString &anonKey,
                                                    const QString &functionsURL);

    /// The rows that were received last, for `Catalog::applyingCloudOverlay` and `Catalog::applyingBusinessPolicies`;
    /// none where nothing, or nothing sound, is kept.
    static QList<QJsonObject> cachedCatalogRows(const PlatformServices &services);
    static QList<QJsonObject> cachedBusinessPolicyRows(const PlatformServices &services);

    /// The built-in catalog under both of them. Reads two files and needs no network.
    static QList<AppItem> cachedCatalog(const PlatformServices &services);

    /// What the publisher says of this version; nothing for whatever reason it cannot be told, which is logged.
    QFuture<std::optional<ReleasePolicy>> releasePolicy() const;

    /// Fetches the published catalog rows into their cache.
    QFuture<CloudResult> syncCatalog() const;

    /// Sends what is installed on this Mac.
    QFuture<CloudResult> uploadReport(const ReportItems &items) const;

    /// Fetches the organisation's policies into their cache. The action is "fetch", or "update" to tell the department
    /// and the asset code of this Mac too.
    QFuture<CloudResult> businessDeviceConfig(const QString &action, const QString &department,
                                              const QString &assetCode) const;

    /// Fetches the repair shop's workspace into its cache.
    QFuture<CloudResult> syncTechnicianWorkspace() const;

    /// Changes the shop's name, and its logo where one is given (a "data:" URL), then fetches the workspace.
    QFuture<CloudResult> updateTechnicianBranding(const QString &displayName,
                                                  const std::optional<QString> &logoDataURL) const;

    /// Keeps a setup profile of the item ids in a text with commas between them, then fetches the workspace. An
    /// empty text sends no ids.
    QFuture<CloudResult> saveTechnicianProfile(const QString &name, const QString &itemIDsText) const;

    /// The frame of every request: the project's key goes with it, and so it goes to the project's host alone. A
    /// redirect is judged like a request, and ends the call where it leads elsewhere.
    QFuture<JsonAnswer> requestJSON(const QString &url, const QByteArray &method,
                                    const std::optional<QJsonObject> &payload) const;

private:
    QFuture<JsonAnswer> callFunction(const QString &path, const QJsonObject &payload) const;
    QFuture<CloudResult> changeWorkspace(const QJsonObject &payload, const QString &words) const;
    CloudResult catalogReceived(const JsonAnswer &answer) const;
    CloudResult businessConfigReceived(const JsonAnswer &answer) const;
    CloudResult workspaceReceived(const JsonAnswer &answer) const;

    PlatformServices m_services;
    AppRuntime m_runtime;
    Log m_log;
    std::optional<SupabaseConfig> m_config;
    std::shared_ptr<HttpTransport> m_transport; ///< Requests under way watch it and do not keep it.
    std::unique_ptr<MainQueue> m_unsent;        ///< Requests that wait for the main thread; they go with the client.
};

} // namespace Tavelo
