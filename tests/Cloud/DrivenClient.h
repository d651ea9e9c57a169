#pragma once

#include "NetworkTransport.h"
#include "SupabaseClient.h"

#include <QTest>

namespace Tavelo
{

/// The result, once the main loop has brought it.
template <typename Result>
Result awaited(const QFuture<Result> &future)
{
    return QTest::qWaitFor([&future] { return future.isFinished(); }, 30000) ? future.result() : Result();
}

/// A client of the local cloud whose actions have short names, so that steps can be data.
class DrivenClient
{
public:
    DrivenClient(const PlatformServices &services, const QString &url,
                 std::unique_ptr<HttpTransport> transport = std::make_unique<NetworkTransport>())
        : client(
              services, std::move(transport), [this](const QString &line) { m_logged.append(line); },
              SupabaseClient::makeConfig(url, QStringLiteral("local-anon-key"), {}))
    {
    }

    /// The result of an action. Its message has the lines that were logged below it, and is a release policy's version.
    CloudResult perform(const QString &action)
    {
        m_logged.clear();
        CloudResult result;
        if (action != u"policy")
            result = awaited(start(action));
        else if (const auto policy = awaited(client.releasePolicy()))
            result = {true, policy->latestVersion};
        if (!result.message.isEmpty())
            m_logged.prepend(result.message);
        return {result.ok, m_logged.join(u'\n')};
    }

    const SupabaseClient client;

private:
    QFuture<CloudResult> start(const QString &action) const
    {
        using namespace Qt::StringLiterals;
        const auto row = [](const QString &id, const QString &status) {
            return QMap<QString, QString>{{u"item_id"_s, id},
                                          {u"name"_s, id.toUpper()},
                                          {u"group_key"_s, u"media"_s},
                                          {u"kind"_s, u"cask"_s},
                                          {u"status"_s, status}};
        };
        return action == u"sync" ? client.syncCatalog()
               : action == u"upload"
                   ? client.uploadReport({row(u"vlc"_s, u"installed"_s), row(u"gimp"_s, u"missing"_s)})
               : action == u"fetch"     ? client.businessDeviceConfig(u"fetch"_s, {}, {})
               : action == u"update"    ? client.businessDeviceConfig(u"update"_s, u"Kế toán"_s, u"A-1"_s)
               : action == u"workspace" ? client.syncTechnicianWorkspace()
               : action == u"branding"  ? client.updateTechnicianBranding(u"Cửa hàng"_s, std::nullopt)
               : action == u"logo" ? client.updateTechnicianBranding(u"Cửa hàng"_s, u"data:image/png;base64,AA=="_s)
               : action == u"profile" ? client.saveTechnicianProfile(u" Văn phòng\n"_s, u" vlc,, ,gimp\n"_s)
                                      : client.saveTechnicianProfile(u"Tất cả"_s, {});
    }

    QStringList m_logged;
};

} // namespace Tavelo
