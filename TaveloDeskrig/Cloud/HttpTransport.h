#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace Tavelo
{

struct HttpRequest {
    QUrl url;
    QByteArray method;
    QList<std::pair<QByteArray, QByteArray>> headers; ///< Sent in this order.
    std::optional<QByteArray> body;
    std::chrono::milliseconds timeout{}; ///< For all of it, from the name's look-up to the last byte of the answer.
};

struct HttpResponse {
    std::optional<QString> error; ///< Why there is no answer, in the system's own words. The rest then means nothing.
    int status = 200;             ///< Also where the answer was not one of HTTP.
    QByteArray location;          ///< The header of that name as received; empty if there was none.
    QByteArray body;
};

/// The one way out to the network. What goes through it is sent once, as it is given: no redirect is followed, nothing
/// is sent again, and no cookie or credential is added.
///
/// Belongs to the main thread. An answer comes later, on that thread and never from within `send`; requests that are
/// under way when the transport goes are dropped without one.
class HttpTransport
{
public:
    using Receive = std::function<void(const HttpResponse &response)>;

    /// The largest body that is received, in bytes; a larger one is an error and is not read to its end. A genuine
    /// answer has some thousand, or with a shop's logo in it some hundred thousand.
    static constexpr qint64 maximumBodySize = qint64(4) * 1024 * 1024;

    HttpTransport() = default;
    virtual ~HttpTransport();
    Q_DISABLE_COPY_MOVE(HttpTransport)

    virtual void send(const HttpRequest &request, Receive receive) = 0;
};

} // namespace Tavelo
