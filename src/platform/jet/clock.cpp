#include "platform/jet/clock.h"

#include <utility>

namespace jet {
namespace {

std::function<QDateTime()> &clock()
{
    static std::function<QDateTime()> clock = &QDateTime::currentDateTime;
    return clock;
}

} // namespace

void setClock(std::function<QDateTime()> newClock)
{
    clock() = newClock ? std::move(newClock) : &QDateTime::currentDateTime;
}

QDateTime clockTime()
{
    return clock()();
}

} // namespace jet
