#pragma once

#include "DeskrigViewModel.h"
#include "HttpTransport.h"
#include "PlatformServices.h"
#include "TemporaryMac.h"
#include "WorkPool.h"

#include <QSet>
#include <QStringList>

#include <memory>

namespace Tavelo
{

/// A network on which nobody answers until the test does.
struct HeldTransport : HttpTransport {
    void send(const HttpRequest &, Receive receive) override { waiting.append(std::move(receive)); }

    /// Answers the oldest request with this body.
    void answer(const QByteArray &body)
    {
        HttpResponse response;
        response.body = body;
        waiting.takeFirst()(response);
    }

    QList<Receive> waiting;
};

/// The view model with a clock that the test moves, and a transcript of all that it publishes.
class WatchedViewModel : public QObject
{
    Q_OBJECT

public:
    explicit WatchedViewModel(PlatformServices services,
                              std::unique_ptr<HttpTransport> transport = std::make_unique<HeldTransport>());
    ~WatchedViewModel() override;

    DeskrigViewModel &operator*() { return *m_model; }
    DeskrigViewModel *operator->() { return m_model.get(); }
    void destroy() { m_model.reset(); }

    /// Runs the main loop until no task is left.
    void settle();
    /// Waits for the tasks, whose results stay on their way.
    void waitForTasks() { m_pool.waitForDone(); }
    void advance(std::chrono::milliseconds duration) { m_clock->advance(duration); }

    /// What was published since the last time, in order: "field = value" for a field, "log: line" for a line of the
    /// view model's own, without its time.
    QStringList take() { return std::exchange(m_transcript, {}); }

private Q_SLOTS:
    void fieldChanged();

private:
    void watch();
    void note(const QString &field, const QString &value);

    std::shared_ptr<StillClock> m_clock = std::make_shared<StillClock>();
    PlatformServices m_services;
    WorkPool m_pool;
    QStringList m_transcript;
    QHash<QString, InstallStatus> m_statuses;
    std::unique_ptr<DeskrigViewModel> m_model;
};

} // namespace Tavelo
