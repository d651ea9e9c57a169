#pragma once

#include "HttpTransport.h"

#include <memory>

class QNetworkAccessManager;

namespace Tavelo
{

/// HTTPS by Qt Network. Certificates are verified against the system's own store, and a TLS error is an error. Headers
/// without an end are cut off by the request's timeout alone, since the library shows them only when they are complete.
class NetworkTransport : public HttpTransport
{
public:
    NetworkTransport();
    ~NetworkTransport() override;

    void send(const HttpRequest &request, Receive receive) override;

private:
    std::unique_ptr<QNetworkAccessManager> m_manager; ///< Made for the first request.
};

} // namespace Tavelo
