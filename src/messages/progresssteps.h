#pragma once

#include "base/steps.h"

#include <QElapsedTimer>
#include <QPointer>

class QWidget;
class frmProgress;

/// Shows the steps of long work in the progress window, from the first phase to the end of its own life. The
/// window is modal to the whole program: only its Cancel takes input, and that in step() and wait(), so an
/// item that has begun is always finished. With a stride, what a tenth of a second has passed for is shown,
/// too.
class ProgressSteps final : public Steps
{
public:
    explicit ProgressSteps(QWidget *owner, bool showBar = true, bool allowCancel = true);
    ~ProgressSteps();
    ProgressSteps(const ProgressSteps &) = delete;
    ProgressSteps &operator=(const ProgressSteps &) = delete;

    void phase(const QString &title, int total, int stride = 1) override;
    [[nodiscard]] bool step(const QString &item) override;
    [[nodiscard]] bool wait(const QString &reason) override;

private:
    [[nodiscard]] bool isDue() const;
    [[nodiscard]] bool goesOn() const;

    QPointer<QWidget> m_owner;
    QPointer<frmProgress> m_window;
    QElapsedTimer m_sinceShown;
    int m_total = 0;
    int m_stride = 1;
    int m_position = 0;
};
