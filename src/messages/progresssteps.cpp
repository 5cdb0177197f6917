#include "messages/progresssteps.h"

#include "messages/frmProgress.h"
#include "toolkit/yield.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto shortWhile = std::chrono::milliseconds(100);

// A label lays out all of its text, shown or not: megabytes of it stop the program for minutes.
QString clipped(const QString &text)
{
    constexpr qsizetype longest = 300;
    return text.size() <= longest ? text : text.left(longest) % u'\u2026';
}

} // namespace

ProgressSteps::ProgressSteps(QWidget *owner, bool showBar, bool allowCancel)
    : m_owner(owner ? owner->window() : nullptr)
    , m_window(new frmProgress(m_owner))
{
    m_window->ProgressBar->setVisible(showBar);
    m_window->cmdCancel->setEnabled(allowCancel);
}

ProgressSteps::~ProgressSteps()
{
    if (!m_window)
        return;
    const bool wasShown = m_window->isVisible();
    m_window->hide();
    m_window->deleteLater();
    if (wasShown && m_owner)
        m_owner->activateWindow();
    paintNow();
}

void ProgressSteps::phase(const QString &title, int total, int stride)
{
    m_total = total;
    m_stride = std::max(1, stride);
    m_position = 0;
    if (!m_window)
        return;
    m_window->ProgressBar->setRange(1, std::max(1, total));
    m_window->ProgressBar->setValue(1);
    m_window->LblInfo->setText(title);
    m_window->lblObject->clear();
    m_window->show();
    m_sinceShown.start();
    takeInput();
}

bool ProgressSteps::step(const QString &item)
{
    ++m_position;
    if (!isDue())
        return goesOn();
    if (m_window) {
        if (m_total > 0)
            m_window->setWindowTitle(u"[%1 of %2]"_s.arg(m_position).arg(m_total));
        m_window->lblObject->setText(clipped(item));
        m_window->ProgressBar->setValue(m_position);
    }
    takeInput();
    m_sinceShown.start();
    return goesOn();
}

bool ProgressSteps::wait(const QString &reason)
{
    if (m_window)
        m_window->lblObject->setText(clipped(reason));
    takeInput(shortWhile);
    return goesOn();
}

bool ProgressSteps::isDue() const
{
    return m_position % m_stride == 0 || m_position == 1 || m_position == m_total ||
           m_sinceShown.hasExpired(shortWhile.count());
}

bool ProgressSteps::goesOn() const
{
    return !m_window || !m_window->isCancelled();
}
