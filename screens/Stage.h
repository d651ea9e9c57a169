#pragma once

#include "DeskrigViewModel.h"
#include "DeskrigWindow.h"
#include "HttpTransport.h"
#include "ProgramOnAMac.h"
#include "TemporaryMac.h"
#include "WorkPool.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <utility>

class QQuickItem;
class QQuickWindow;

namespace Tavelo
{

/// The real window over the real view model on a simulated Mac, with a clock that stands still until it is moved.
class Stage
{
public:
    /// With a `releasePolicy`, there is a cloud that answers with it, and with nothing else.
    explicit Stage(const ProgramOnAMac &mac, AppLanguage language = AppLanguage::english,
                   const QByteArray &releasePolicy = {});
    /// The cloud is the one that the Mac's environment names; the language is the one chosen last.
    Stage(const ProgramOnAMac &mac, std::unique_ptr<HttpTransport> transport);
    ~Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    DeskrigViewModel &model() { return *m_model; }
    QQuickWindow &window() { return *m_window->window(); }

    /// The item of that object name that is in sight; nothing if there is none.
    QQuickItem *find(const QString &objectName);

    /// Runs the main loop until no task is left and nothing moves.
    void settle();
    /// Runs the main loop for some real time, for tasks that are to go on.
    void pass(int milliseconds);
    void advance(std::chrono::milliseconds duration) { m_clock->advance(duration); }

    /// What the cloud was asked since the last time, but for the release policy: last part of the path, and body.
    QStringList takeRequests() { return std::exchange(*m_requests, {}); }

    void resize(QSize size);
    QImage picture();

private:
    void open(PlatformServices services, std::unique_ptr<HttpTransport> transport);

    std::shared_ptr<QStringList> m_requests = std::make_shared<QStringList>();
    std::shared_ptr<StillClock> m_clock = std::make_shared<StillClock>();
    WorkPool m_pool;
    std::unique_ptr<DeskrigViewModel> m_model;
    std::unique_ptr<DeskrigWindow> m_window;
};

} // namespace Tavelo
