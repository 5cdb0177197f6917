#pragma once

#include "reports/modPrinter.h"

#include <QDialog>

class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

/// Picks a printer and the number of copies.
class frmSelectPrinter final : public QDialog
{
    Q_OBJECT

public:
    explicit frmSelectPrinter(QWidget *owner);

    QGroupBox *frameSelectPrinter;
    QComboBox *cboPrinter;
    QLineEdit *txtNumberOfCopies;
    QPushButton *cmdAddCopy;
    QPushButton *cmdSubtractCopy;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    /// Without a printer and with one copy after a cancel.
    [[nodiscard]] const modPrinter::Choice &choice() const { return m_choice; }

private:
    void changeCopies(int by);
    void takeChoice();

    modPrinter::Choice m_choice;
};
