#include "toolkit/yield.h"

#include "platform/jet/connection.h"

#include <QCoreApplication>

void yieldToEvents()
{
    jet::flushPendingWrites();
    QCoreApplication::processEvents();
}
