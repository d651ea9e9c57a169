// Where the configuration comes from.
#include "SupabaseClient.h"

#include "Bundle.h"
#include "FileManager.h"
#include "SupabaseEndpointPolicy.h"
#include "SystemFacts.h"
#include "WireValue.h"

#include <QDir>
#include <QJsonDocument>
#include <QProcessEnvironment>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

constexpr qint64 maximumFileSize = qint64(1024) * 1024;

std::optional<SupabaseConfig> configIn(const std::optional<QByteArray> &bytes)
{
    if (!bytes || bytes->size() > maximumFileSize)
        return std::nullopt;
    const QJsonObject file = QJsonDocument::fromJson(*bytes).object();
    return SupabaseClient::makeConfig(WireValue::firstString(file, {u"supabase_url"_s, u"url"_s}),
                                      WireValue::firstString(file, {u"anon_key"_s, u"supabase_anon_key"_s}),
                                      WireValue::string(file.value("functions_url"_L1)));
}

bool fitsHeader(const QString &value)
{
    return std::none_of(value.begin(), value.end(),
                        [](QChar letter) { return letter.category() == QChar::Other_Control; });
}

} // namespace

std::optional<SupabaseConfig> SupabaseClient::loadConfig(const PlatformServices &services)
{
    const QProcessEnvironment &environment = services.facts->environment();
    const QString url = environment.value(u"TAVELO_SUPABASE_URL"_s);
    const QString key = environment.value(u"TAVELO_SUPABASE_ANON_KEY"_s);
    if (!url.isEmpty() && !key.isEmpty())
        return makeConfig(url, key, environment.value(u"TAVELO_SUPABASE_FUNCTIONS_URL"_s));

    const AppRuntime runtime(services);
    const auto configAt = [&services](const QString &path) {
        return configIn(services.files->contentsUpTo(path, maximumFileSize));
    };
    if (auto config = configAt(runtime.appSupportDir() + u"/supabase.json"_s))
        return config;
    if (auto config = configAt(runtime.homeDirectory() + u"/.config/tavelo-deskrig/supabase.json"_s))
        return config;
    if (auto config = configIn(Bundle::ownResource(u"config/supabase.json"_s)))
        return config;
    return configAt(QDir::cleanPath(services.facts->workingFolder() + u"/../config/supabase.json"_s));
}

std::optional<SupabaseConfig> SupabaseClient::makeConfig(const QString &url, const QString &anonKey,
                                                         const QString &functionsURL)
{
    const std::optional<QString> base = SupabaseEndpointPolicy::normalizedHTTPSBaseURL(url);
    const QString key = anonKey.trimmed();
    if (!base || key.isEmpty() || !fitsHeader(key))
        return std::nullopt;
    if (base->contains(u"YOUR_PROJECT"_s) || key.contains(u"YOUR_SUPABASE"_s))
        return std::nullopt;
    const std::optional<QString> functions = SupabaseEndpointPolicy::functionsURL(*base, functionsURL);
    return functions ? std::optional(SupabaseConfig{*base, key, *functions}) : std::nullopt;
}

} // namespace Tavelo
