#pragma once

#include <QDialog>

class QComboBox;
class QGroupBox;
class QPushButton;

/// Picks a server from the machines of the network; any other name can be typed.
class frmSelectServer final : public QDialog
{
    Q_OBJECT

public:
    explicit frmSelectServer(QWidget *owner);

    QGroupBox *frameSelectServer;
    QComboBox *cboServer;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
    QPushButton *cmdDefault;

    /// Empty after a cancel.
    [[nodiscard]] const QString &selectedServer() const { return m_selected; }

private:
    QString m_selected;
};
