#include "base/steps.h"

#include <QThread>

bool NoSteps::wait(const QString &)
{
    constexpr int milliseconds = 100;
    constexpr int longest = 50;
    if (++m_waits > longest)
        return false;
    QThread::msleep(milliseconds);
    return true;
}
