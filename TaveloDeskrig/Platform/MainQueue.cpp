#include "MainQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

namespace Tavelo
{

void MainQueue::post(std::function<void()> call)
{
    QMetaObject::invokeMethod(&m_receiver, std::move(call), Qt::QueuedConnection);
}

bool MainQueue::isMainThread() const
{
    return m_receiver.thread() == QThread::currentThread();
}

void MainQueue::service()
{
    if (isMainThread())
        QCoreApplication::sendPostedEvents(&m_receiver, QEvent::MetaCall);
}

} // namespace Tavelo
