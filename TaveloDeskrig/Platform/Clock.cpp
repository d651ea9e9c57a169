#include "Clock.h"

#include <QTimer>

#include <thread>

namespace Tavelo
{

Clock::~Clock() = default;

QDateTime Clock::now() const
{
    return QDateTime::currentDateTime();
}

void Clock::sleep(std::chrono::milliseconds duration) const
{
    std::this_thread::sleep_for(duration);
}

void Clock::callLater(std::chrono::milliseconds delay, QObject *context, std::function<void()> call) const
{
    QTimer::singleShot(delay, Qt::PreciseTimer, context, std::move(call));
}

} // namespace Tavelo
