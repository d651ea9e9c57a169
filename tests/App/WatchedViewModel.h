#pragma once

#include "DeskrigViewModel.h"
#include "HttpTransport.h"
#include "ProcessLauncher.h"
#include "ProgramOnAMac.h"
#include "WorkPool.h"

#include <QSemaphore>
#include <QStringList>

#include <atomic>
#include <memory>

namespace Tavelo
{

/// A Mac whose organisation allows a few items only, in a program that knows of a cloud.
struct SmallMac : ProgramOnAMac {
    explicit SmallMac(const QByteArray &allowed = R"("microsoft-365", "onlyoffice-mime", "scanner-tools", "vlc",
                                                     "deja-dup")");
};

/// The real processes, but the calls of one tool wait at a gate until the test lets them pass.
class GatedLauncher : public ProcessLauncher
{
public:
    /// No tool waits where none is named.
    GatedLauncher(const PlatformServices &services, const QString &tool);

    ProcessResult run(const ProcessSetup &setup) const override;

    /// Lets as many calls pass, now or when they come.
    void letPass(int calls) const { m_gate.release(calls); }

    mutable std::atomic<int> arrived = 0; ///< Calls of the tool so far.
    mutable std::atomic<int> startedOnMainThread = 0;

private:
    QString m_tool;
    std::shared_ptr<MainQueue> m_mainQueue;
    mutable QSemaphore m_gate;
};

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

/// The view model with a clock that the test moves, and a transcript of all that it publishes. Its network is held,
/// unless the test brings another; the calls of the tool whose path ends in `gated` wait at the launcher's gate.
class WatchedViewModel : public QObject
{
    Q_OBJECT

public:
    explicit WatchedViewModel(PlatformServices services, const QString &gated = {},
                              std::unique_ptr<HttpTransport> transport = std::make_unique<HeldTransport>());
    ~WatchedViewModel() override;

    DeskrigViewModel &operator*() { return *m_model; }
    DeskrigViewModel *operator->() { return m_model.get(); }
    void destroy() { m_model.reset(); }
    const GatedLauncher &launcher() const { return *m_launcher; }
    HeldTransport &network() { return *m_network; }

    /// Runs the main loop until no task is left.
    void settle();
    /// Opens the gate for good and settles; what was published by then.
    QStringList settled();
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
    std::shared_ptr<GatedLauncher> m_launcher;
    HeldTransport *m_network = nullptr;
    PlatformServices m_services;
    WorkPool m_pool;
    QStringList m_transcript;
    QHash<QString, InstallStatus> m_statuses;
    std::unique_ptr<DeskrigViewModel> m_model;
};

} // namespace Tavelo
