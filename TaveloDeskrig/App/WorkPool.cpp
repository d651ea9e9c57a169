#include "WorkPool.h"

#include <utility>

namespace Tavelo
{

WorkPool::WorkPool(int threads)
{
    m_threads.setMaxThreadCount(threads);
}

void WorkPool::start(std::function<void()> work)
{
    if (m_holdsBack)
        m_held.push_back(std::move(work));
    else
        m_threads.start(std::move(work));
}

void WorkPool::letGo()
{
    m_holdsBack = false;
    for (auto &work : std::exchange(m_held, {}))
        m_threads.start(std::move(work));
}

void WorkPool::clear()
{
    m_held.clear();
    m_threads.clear();
}

} // namespace Tavelo
