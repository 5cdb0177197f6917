#include "toolkit/yield.h"

#include "platform/jet/connection.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

void paintNow()
{
    jet::flushPendingWrites();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void takeInput(std::chrono::milliseconds time)
{
    jet::flushPendingWrites();
    const QDeadlineTimer end(time);
    QCoreApplication::processEvents();
    while (!end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, int(end.remainingTime()));
}
