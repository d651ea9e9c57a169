#include "ReleaseDownloadPolicy.h"

#include "SupabaseEndpointPolicy.h"

using namespace Qt::StringLiterals;

namespace Tavelo::ReleaseDownloadPolicy
{

namespace
{

/// Of the last component, in lower case; a name that begins with its only dot has none.
QString pathExtension(const QUrl &url)
{
    const QString name = url.fileName();
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1).toLower() : QString();
}

} // namespace

const QSet<QString> &allowedHosts()
{
    static const QSet<QString> hosts{QStringLiteral(TAVELO_DOWNLOAD_HOST).toLower()};
    return hosts;
}

std::optional<QUrl> validatedURL(const QString &value)
{
    QUrl url(value, QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != u"https" || url.host().isEmpty() ||
        !allowedHosts().contains(url.host(QUrl::FullyEncoded).toLower()) ||
        SupabaseEndpointPolicy::hasCredentials(url) || pathExtension(url) != u"dmg")
        return std::nullopt;
    return url;
}

} // namespace Tavelo::ReleaseDownloadPolicy
