#include "messages/status.h"

#include "session/identity.h"
#include "toolkit/imagelist.h"
#include "toolkit/pointer.h"
#include "toolkit/statusbar.h"
#include "toolkit/yield.h"

#include <QPointer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int textPanel = 1;
constexpr int keepPicture = 0;
constexpr int busyPicture = 17;
constexpr int readyPicture = 18;

struct Target
{
    QPointer<StatusBar> bar;
    QPointer<QWidget> window;
};

Target &target()
{
    static Target registered;
    return registered;
}

void showText(QLatin1StringView text, int picture)
{
    StatusBar *bar = target().bar;
    if (!bar)
        return;
    bar->setPanelText(textPanel, text);
    if (picture != keepPicture)
        bar->setPanelPicture(textPanel, imageLists().ImageListToolbar, picture);
}

void showMainCaption()
{
    if (target().window)
        target().window->setWindowTitle(mainCaption());
}

} // namespace

void setStatusTarget(StatusBar *bar, QWidget *window)
{
    target() = {bar, window};
}

void showStatusReading()
{
    showHourglass(true);
    showText("Reading Data. Please stand by"_L1, busyPicture);
    if (target().bar)
        target().bar->repaint();
    paintNow();
}

void showStatusWriting()
{
    showHourglass(true);
    showText("Writing Data. Please stand by"_L1, busyPicture);
    showMainCaption();
    paintNow();
}

void showStatusPrinting()
{
    showText("Printing Data. Please stand by"_L1, keepPicture);
    showMainCaption();
    paintNow();
}

void showStatusReady()
{
    showText("Ready"_L1, readyPicture);
    showMainCaption();
    paintNow();
}
