#include "toolkit/pointer.h"

#include <QApplication>

namespace {
bool hourglassShown = false;
}

void showHourglass(bool on)
{
    if (on == hourglassShown)
        return;
    hourglassShown = on;
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

bool isHourglassShown()
{
    return hourglassShown;
}
