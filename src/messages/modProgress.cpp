#include "messages/modProgress.h"

#include "messages/frmProgress.h"
#include "messages/status.h"
#include "toolkit/listview.h"
#include "toolkit/yield.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Progress
{
    bool cancelled = false;
    int total = 0;
    QPointer<frmProgress> window;
};

Progress &progress()
{
    static Progress state;
    return state;
}

// A label lays out all of its text, shown or not: megabytes of it stop the program for minutes.
QString clipped(const QString &text)
{
    constexpr qsizetype longest = 300;
    return text.size() <= longest ? text : text.left(longest) % u'\u2026';
}

} // namespace

void startProgress(int start, int total, const QString &title, bool showBar, bool allowCancel)
{
    progress().total = total;
    if (!progress().window)
        progress().window = new frmProgress(ownerOfNewWindows());
    frmProgress *window = progress().window;
    window->ProgressBar->setRange(start, std::max(start, total));
    window->ProgressBar->setValue(start);
    window->LblInfo->setText(title);
    window->lblObject->clear();
    window->ProgressBar->setVisible(showBar);
    window->cmdCancel->setEnabled(allowCancel);
    window->show();
    yieldToEvents();
}

bool stepProgress(const QString &itemText, int current)
{
    if (frmProgress *window = progress().window) {
        window->setWindowTitle(u"[%1 of %2]"_s.arg(current).arg(progress().total));
        window->lblObject->setText(clipped(itemText));
        window->ProgressBar->setValue(current);
    }
    yieldToEvents();
    return isProgressCancelled();
}

bool isProgressCancelled()
{
    return progress().cancelled;
}

void setProgressCancelled(bool cancelled)
{
    progress().cancelled = cancelled;
}

void endProgress()
{
    progress().cancelled = false;
    if (frmProgress *window = progress().window) {
        progress().window.clear();
        window->hide();
        window->deleteLater();
    }
    yieldToEvents();
    // A click that was still on its way is no word on the next batch.
    progress().cancelled = false;
}

int countSelected(const ListView &list)
{
    return list.selectedCount();
}
