#include "SupabaseEndpointPolicy.h"

using namespace Qt::StringLiterals;

namespace Tavelo::SupabaseEndpointPolicy
{

namespace
{

QString trimmedOfSlashes(const QString &value)
{
    QStringView text = QStringView(value).trimmed();
    while (text.startsWith(u'/'))
        text = text.sliced(1);
    while (text.endsWith(u'/'))
        text.chop(1);
    return text.toString();
}

/// In lower case and without any other spelling, so that two of them are equal only if they are the same host; empty
/// where the URL has none.
QString host(const QUrl &url)
{
    return url.isValid() ? url.host(QUrl::FullyEncoded).toLower() : QString();
}

} // namespace

std::optional<QString> normalizedHTTPSBaseURL(const QString &value)
{
    const QString text = trimmedOfSlashes(value);
    const QUrl url(text, QUrl::StrictMode);
    if (url.scheme() != u"https" || host(url).isEmpty() || hasCredentials(url) || url.hasQuery() || url.hasFragment())
        return std::nullopt;
    return text;
}

std::optional<QString> functionsURL(const QString &baseURL, const QString &customURL)
{
    const std::optional<QString> base = normalizedHTTPSBaseURL(baseURL);
    if (!base)
        return std::nullopt;
    if (trimmedOfSlashes(customURL).isEmpty())
        return *base + u"/functions/v1"_s;
    const std::optional<QString> custom = normalizedHTTPSBaseURL(customURL);
    return custom && allows(QUrl(*custom, QUrl::StrictMode), *base) ? custom : std::nullopt;
}

bool allows(const QUrl &endpoint, const QString &baseURL)
{
    return endpoint.scheme() == u"https" && !hasCredentials(endpoint) && !host(endpoint).isEmpty() &&
           host(endpoint) == host(QUrl(baseURL, QUrl::StrictMode));
}

bool hasCredentials(const QUrl &url)
{
    return url.authority(QUrl::FullyEncoded).contains(u'@');
}

} // namespace Tavelo::SupabaseEndpointPolicy
