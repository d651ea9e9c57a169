#pragma once

#include <QDateTime>

#include <chrono>

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
};

} // namespace Tavelo
