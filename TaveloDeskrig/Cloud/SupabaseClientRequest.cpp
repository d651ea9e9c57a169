// The frame of every request.
#include "SupabaseClient.h"

#include "MainQueue.h"
#include "SupabaseEndpointPolicy.h"
#include "WireValue.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPromise>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

QString refusedEndpoint()
{
    return u"Endpoint Supabase phải dùng HTTPS và cùng host với project đã cấu hình."_s;
}

QFuture<JsonAnswer> failed(const QString &text)
{
    return QtFuture::makeReadyFuture(JsonAnswer{false, text});
}

/// JSON has no word for the other numbers, and the library would send null for them.
bool hasFiniteNumbers(const QJsonValue &value)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        return std::all_of(array.begin(), array.end(), [](const QJsonValue &each) { return hasFiniteNumbers(each); });
    }
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        return std::all_of(object.begin(), object.end(), [](const QJsonValue &each) { return hasFiniteNumbers(each); });
    }
    return std::isfinite(value.toDouble());
}

JsonAnswer answerTo(const HttpResponse &response)
{
    const bool ok = response.status >= 200 && response.status <= 299;
    if (const std::optional<QJsonValue> parsed = WireValue::parseJSON(response.body))
        return {ok, *parsed};
    return {ok, ok ? QJsonValue(QJsonObject()) : QJsonValue(u"HTTP %1"_s.arg(response.status))};
}

/// A request on its way, through its redirects to its answer. Runs on the main thread, apart from its start.
class Exchange : public std::enable_shared_from_this<Exchange>
{
public:
    Exchange(std::weak_ptr<HttpTransport> transport, QString baseURL, HttpRequest request)
        : m_transport(std::move(transport)), m_baseURL(std::move(baseURL)), m_request(std::move(request))
    {
        m_promise.start();
    }

    QFuture<JsonAnswer> future() const { return m_promise.future(); }

    void send()
    {
        if (!SupabaseEndpointPolicy::allows(m_request.url, m_baseURL))
            return finish({false, refusedEndpoint()});
        // Without a transport the client has gone, and so the promise goes unfulfilled.
        if (const std::shared_ptr<HttpTransport> transport = m_transport.lock())
            transport->send(m_request,
                            [self = shared_from_this()](const HttpResponse &response) { self->receive(response); });
    }

private:
    void receive(const HttpResponse &response)
    {
        if (response.error)
            return finish({false, *response.error});
        if (!isRedirect(response))
            return finish(answerTo(response));
        if (++m_redirects > SupabaseClient::maximumRedirects)
            return finish({false, u"Supabase chuyển hướng quá %1 lần."_s.arg(SupabaseClient::maximumRedirects)});
        follow(response);
        send();
    }

    static bool isRedirect(const HttpResponse &response)
    {
        constexpr int codes[] = {301, 302, 303, 307, 308};
        return !response.location.isEmpty() &&
               std::find(std::begin(codes), std::end(codes), response.status) != std::end(codes);
    }

    /// Makes the request that the redirect asks for; `send` judges its address.
    void follow(const HttpResponse &response)
    {
        const QUrl target = QUrl::fromEncoded(response.location, QUrl::StrictMode);
        m_request.url = target.isValid() ? m_request.url.resolved(target) : QUrl();
        m_request.timeout = std::chrono::milliseconds(m_deadline.remainingTime());
        // As everywhere on the web: only 307 and 308 ask for the same request again.
        if (response.status == 303 || (response.status < 303 && m_request.method == "POST")) {
            m_request.method = "GET";
            m_request.body.reset();
            m_request.headers.removeIf([](const auto &header) { return header.first == "Content-Type"; });
        }
    }

    void finish(const JsonAnswer &answer)
    {
        m_promise.addResult(answer);
        m_promise.finish();
    }

    std::weak_ptr<HttpTransport> m_transport;
    QString m_baseURL;
    HttpRequest m_request;
    QDeadlineTimer m_deadline{SupabaseClient::requestTimeout};
    int m_redirects = 0;
    QPromise<JsonAnswer> m_promise;
};

} // namespace

QFuture<JsonAnswer> SupabaseClient::requestJSON(const QString &url, const QByteArray &method,
                                                const std::optional<QJsonObject> &payload) const
{
    if (!m_config)
        return failed(u"Chưa cấu hình Supabase."_s);
    HttpRequest request;
    request.url = QUrl(url, QUrl::StrictMode);
    request.method = method;
    request.timeout = requestTimeout;
    if (!SupabaseEndpointPolicy::allows(request.url, m_config->url))
        return failed(refusedEndpoint());
    const QByteArray key = m_config->anonKey.toUtf8();
    request.headers = {{"apikey", key}, {"Authorization", "Bearer " + key}, {"Accept", "application/json"}};
    if (payload) {
        if (!hasFiniteNumbers(*payload))
            return failed(u"Payload JSON không hợp lệ: %1"_s.arg(u"Invalid number value in JSON write"_s));
        request.body = QJsonDocument(*payload).toJson(QJsonDocument::Compact);
        request.headers.emplaceBack("Content-Type", "application/json");
    }
    const auto exchange = std::make_shared<Exchange>(m_transport, m_config->url, std::move(request));
    QFuture<JsonAnswer> answer = exchange->future();
    m_unsent->post([exchange] { exchange->send(); });
    return answer;
}

} // namespace Tavelo
