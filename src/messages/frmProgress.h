#pragma once

#include <QDialog>

class Banner;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;

/// The progress window of long work (see ProgressSteps). No other window takes input while it is shown. Its
/// close box and Esc ask the work to stop instead of closing it.
class frmProgress final : public QDialog
{
    Q_OBJECT

public:
    explicit frmProgress(QWidget *owner = nullptr);

    QGroupBox *frameStatus;
    Banner *picLogoContainer;
    QLabel *picInfo;
    QLabel *LblInfo;
    QLabel *lblObject;
    QProgressBar *ProgressBar;
    QPushButton *cmdCancel;

    [[nodiscard]] bool isCancelled() const { return m_cancelled; }

    void reject() override;

private:
    bool m_cancelled = false;
};
