#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QStringList>

namespace Tavelo
{

/// A server's certificate and the authority that signed it, as PEM.
///
/// The authority's key is gone once the certificate is made: whoever trusts it trusts this one server and nothing else,
/// even if the folder is stolen.
struct Certificate {
    QByteArray authority;
    QByteArray server;
    QByteArray serverKey;

    /// Valid from now on for that many days, for names and IPv4 addresses.
    static Certificate make(const QStringList &names, int days);

    /// Whether it is whole, holds these names and no others, and is still good at that time.
    bool serves(QStringList names, const QDateTime &at) const;
};

} // namespace Tavelo
