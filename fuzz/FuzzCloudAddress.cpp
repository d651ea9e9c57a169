#include "ReleaseDownloadPolicy.h"
#include "SupabaseClient.h"
#include "SupabaseEndpointPolicy.h"

namespace
{

/// Whether the URL, as it would be sent, leads to that host: judged by its text alone.
bool leadsTo(const QUrl &url, const QString &host)
{
    const QString text = url.toString(QUrl::FullyEncoded);
    const QString beginning = QStringLiteral("https://") + host;
    return text.startsWith(beginning) &&
           (text.size() == beginning.size() || QStringLiteral(":/?#").contains(text.at(beginning.size())));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    using namespace Tavelo;
    const QString base = QStringLiteral("https://h.example");
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString text = QString::fromUtf8(bytes);
    // A redirect's address, an address in a file, a release policy's link.
    const QUrl redirect = QUrl(base + QStringLiteral("/a/b")).resolved(QUrl::fromEncoded(bytes, QUrl::StrictMode));
    if (SupabaseEndpointPolicy::allows(redirect, base) && !leadsTo(redirect, QStringLiteral("h.example")))
        std::abort();
    if (const auto config = SupabaseClient::makeConfig(text, QStringLiteral("k"), {})) {
        if (!SupabaseEndpointPolicy::allows(QUrl(config->functionsURL), config->url))
            std::abort();
    }
    if (const auto config = SupabaseClient::makeConfig(base, QStringLiteral("k"), text)) {
        if (!leadsTo(QUrl(config->functionsURL), QStringLiteral("h.example")))
            std::abort();
    }
    if (const auto url = ReleaseDownloadPolicy::validatedURL(text)) {
        if (!leadsTo(*url, *ReleaseDownloadPolicy::allowedHosts().cbegin()))
            std::abort();
    }
    return 0;
}
