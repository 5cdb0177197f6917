#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QTimer;

/// The start window and the About box. It closes by itself after five seconds in both
/// roles.
class frmAbout final : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget *owner = nullptr);

    QLabel *picLogo;
    QLabel *LblInfo;
    QPushButton *cmdVisitWebSite;
    QPushButton *cmdOK;
    QTimer *TimerClose;

    /// Without buttons, as it appears at the start of the program.
    void dressAsStartWindow();

protected:
    bool event(QEvent *event) override;

private:
    void showVersion();
};
