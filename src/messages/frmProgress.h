#pragma once

#include <QDialog>

class Banner;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;

/// The progress window of a batch. Modeless; it lives from startProgress() to
/// endProgress(), so its close box and Esc ask the batch to stop instead of closing it.
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

    void reject() override;
};
