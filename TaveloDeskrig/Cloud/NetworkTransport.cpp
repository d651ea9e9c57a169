#include "NetworkTransport.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

QNetworkRequest networkRequest(const HttpRequest &request)
{
    QNetworkRequest result(request.url);
    result.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    result.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // One request at a time has nothing to gain from it, and headers keep their order and spelling without.
    result.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    for (const auto &[name, value] : request.headers)
        result.setRawHeader(name, value);
    // A connection that the server may have closed in the meantime would need a second attempt.
    result.setRawHeader("Connection", "close");
    return result;
}

/// One answer on its way in. Lives as long as its reply.
class Reception : public QObject
{
public:
    Reception(QNetworkReply *reply, std::chrono::milliseconds timeout, HttpTransport::Receive receive)
        : QObject(reply), m_reply(reply), m_receive(std::move(receive))
    {
        connect(reply, &QNetworkReply::requestSent, this, [this] { m_underway = true; });
        connect(reply, &QNetworkReply::encrypted, this, [this] { keepFromSendingAgain(); });
        connect(reply, &QNetworkReply::readyRead, this, [this] { read(); });
        // Later, so that whoever receives the answer may do away with the transport.
        connect(
            reply, &QNetworkReply::finished, this, [this] { finish(); }, Qt::QueuedConnection);
        QTimer::singleShot(timeout, this, [this] { interrupt(qt_error_string(ETIMEDOUT)); });
    }

private:
    /// Where the server hangs up without an answer, the library connects anew and sends the request again, whatever its
    /// method. Here a new connection is ready and has carried nothing yet.
    void keepFromSendingAgain()
    {
        if (std::exchange(m_underway, true))
            interrupt(qt_error_string(ECONNRESET));
    }

    void read()
    {
        constexpr qint64 portion = 65536;
        constexpr qint64 limit = HttpTransport::maximumBodySize;
        for (QByteArray bytes = m_reply->read(portion); !bytes.isEmpty(); bytes = m_reply->read(portion)) {
            m_response.body += bytes;
            if (m_response.body.size() > limit)
                return interrupt(u"Phản hồi Supabase lớn hơn %1 MiB."_s.arg(limit / 1024 / 1024));
        }
    }

    void interrupt(const QString &reason)
    {
        m_response.error = reason;
        m_reply->abort(); // leads to finish(), unless it came from there
    }

    void finish()
    {
        const QVariant status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        if (!m_response.error && m_reply->isOpen())
            read();
        // The library has errors for a status of 400 and more too. They are answers here, and lie beyond those of the
        // network and of proxies.
        const QNetworkReply::NetworkError error = m_reply->error();
        const bool answered =
            error == QNetworkReply::NoError || (status.toInt() >= 400 && error > QNetworkReply::UnknownProxyError &&
                                                error != QNetworkReply::ProtocolFailure);
        if (!m_response.error && !answered)
            m_response.error = m_reply->errorString();
        m_response.status = status.isValid() ? status.toInt() : 200;
        m_response.location = m_reply->rawHeader("Location");
        m_reply->deleteLater();
        const HttpTransport::Receive receive = std::move(m_receive); // this object may go in the meantime
        const HttpResponse response = std::move(m_response);
        receive(response);
    }

    QNetworkReply *m_reply;
    HttpTransport::Receive m_receive;
    HttpResponse m_response;
    bool m_underway = false;
};

} // namespace

NetworkTransport::NetworkTransport() = default;

NetworkTransport::~NetworkTransport() = default;

void NetworkTransport::send(const HttpRequest &request, Receive receive)
{
    if (!m_manager)
        m_manager = std::make_unique<QNetworkAccessManager>();
    const QNetworkRequest prepared = networkRequest(request);
    QNetworkReply *const reply = request.body ? m_manager->sendCustomRequest(prepared, request.method, *request.body)
                                              : m_manager->sendCustomRequest(prepared, request.method);
    new Reception(reply, request.timeout, std::move(receive));
}

} // namespace Tavelo
