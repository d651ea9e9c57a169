#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>

class QObject;

namespace Tavelo
{

/// The time, as a service, so that tests can set it.
class Clock
{
public:
    Clock() = default;
    virtual ~Clock();
    Q_DISABLE_COPY_MOVE(Clock)

    /// Now, in the local time zone.
    virtual QDateTime now() const;

    /// Blocks the calling thread for that long.
    virtual void sleep(std::chrono::milliseconds duration) const;

    /// Calls back on the main loop once that long has passed; never, if `context`, an object of the main thread, has
    /// gone by then. Started on the main thread.
    virtual void callLater(std::chrono::milliseconds delay, QObject *context, std::function<void()> call) const;
};

} // namespace Tavelo
