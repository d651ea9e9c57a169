#include "Clock.h"

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

} // namespace Tavelo
