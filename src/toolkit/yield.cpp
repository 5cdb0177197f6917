#include "toolkit/yield.h"

#include "platform/jet/connection.h"

#include <QCoreApplication>

#include <exception>

void yieldToEvents()
{
    // A store that cannot be written must not keep Cancel from being clicked.
    std::exception_ptr failure;
    try {
        jet::flushPendingWrites();
    } catch (...) {
        failure = std::current_exception();
    }
    QCoreApplication::processEvents();
    if (failure)
        std::rethrow_exception(failure);
}
