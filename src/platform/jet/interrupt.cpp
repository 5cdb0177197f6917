#include "platform/jet/interrupt.h"

#include <chrono>
#include <utility>

namespace jet {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto pause = std::chrono::milliseconds(50);

std::function<bool()> question;
Clock::time_point lastAsked;

} // namespace

Interruptible::Interruptible(std::function<bool()> cancelled)
    : m_outer(std::exchange(question, std::move(cancelled)))
{
    lastAsked = {};
}

Interruptible::~Interruptible()
{
    question = std::move(m_outer);
}

bool Interruptible::active()
{
    return bool(question);
}

bool Interruptible::cancelled()
{
    if (!question || Clock::now() - lastAsked < pause)
        return false;
    const bool answer = question();
    lastAsked = Clock::now();
    return answer;
}

} // namespace jet
