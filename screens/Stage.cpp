#include "Stage.h"

#include "UserDefaults.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// Answers the question for the release policy, and notes any other and leaves it without an answer.
class PolicyTransport : public HttpTransport
{
public:
    PolicyTransport(QByteArray policy, std::shared_ptr<QStringList> requests)
        : m_policy(std::move(policy)), m_requests(std::move(requests))
    {
    }

    void send(const HttpRequest &request, Receive receive) override
    {
        if (request.url.path().contains("release-policy"_L1) && !m_policy.isEmpty())
            QMetaObject::invokeMethod(
                &m_later, [policy = m_policy, receive] { receive({.error = {}, .location = {}, .body = policy}); },
                Qt::QueuedConnection);
        else {
            m_requests->append(
                QString(request.url.fileName() + u' ' + QString::fromUtf8(request.body.value_or(""))).trimmed());
            m_waiting.append(std::move(receive));
        }
    }

private:
    QByteArray m_policy;
    std::shared_ptr<QStringList> m_requests;
    QList<Receive> m_waiting;
    QObject m_later;
};

QQuickItem *findIn(QQuickItem *item, const QString &objectName)
{
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == objectName)
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *const child : children) {
        if (QQuickItem *const found = findIn(child, objectName))
            return found;
    }
    return nullptr;
}

/// Whether a dialog is on its way in or out. One on its way out still takes the clicks.
bool isAnyDialogMoving(const QQuickWindow &window)
{
    const QList<QObject *> parts = window.findChildren<QObject *>();
    return std::any_of(parts.begin(), parts.end(), [](const QObject *part) {
        return part->inherits("QQuickPopup") && part->property("visible") != part->property("opened");
    });
}

} // namespace

Stage::Stage(const ProgramOnAMac &mac, AppLanguage language, const QByteArray &releasePolicy)
{
    QProcessEnvironment environment = mac.environment;
    if (!releasePolicy.isEmpty()) {
        environment.insert(u"TAVELO_SUPABASE_URL"_s, u"https://localhost"_s);
        environment.insert(u"TAVELO_SUPABASE_ANON_KEY"_s, u"key"_s);
    }
    const PlatformServices services = PlatformServices::make(environment);
    services.defaults->setText(AppLanguages::storedKey.toString(), rawValue(language));
    open(services, std::make_unique<PolicyTransport>(releasePolicy, m_requests));
}

Stage::Stage(const ProgramOnAMac &mac, std::unique_ptr<HttpTransport> transport)
{
    open(mac.services(), std::move(transport));
}

void Stage::open(PlatformServices services, std::unique_ptr<HttpTransport> transport)
{
    services.clock = m_clock;
    m_pool.holdBack();
    m_model = std::make_unique<DeskrigViewModel>(services, std::move(transport), m_pool);
    bool isDrawn = false;
    m_window = std::make_unique<DeskrigWindow>(*m_model, [&isDrawn] { isDrawn = true; });
    if (!m_window->window())
        qFatal("The window could not be made.");
    if (!QTest::qWaitForWindowExposed(m_window->window()) || !QTest::qWaitFor([&] { return isDrawn; }))
        qFatal("The window does not show.");
    m_pool.letGo();
}

Stage::~Stage()
{
    m_window.reset();
    m_model.reset();
    m_pool.waitForDone();
}

QQuickItem *Stage::find(const QString &objectName)
{
    return findIn(window().contentItem(), objectName);
}

void Stage::settle()
{
    do {
        QCoreApplication::processEvents();
    } while (!m_pool.waitForDone(5));
    pass(400); // more than any animation takes, unless the machine has much else to do
    if (!QTest::qWaitFor([this] { return !isAnyDialogMoving(window()); }))
        qFatal("A dialog keeps moving.");
}

void Stage::pass(int milliseconds)
{
    QTest::qWait(milliseconds);
}

void Stage::resize(QSize size)
{
    window().resize(size);
    pass(50);
}

QImage Stage::picture()
{
    return window().grabWindow();
}

} // namespace Tavelo
