#pragma once

#include <QDialog>

class Banner;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Picks the kind and the file of an import. It stays open after one, for the next.
class frmImport final : public QDialog
{
    Q_OBJECT

public:
    explicit frmImport(QWidget *owner = nullptr);

    Banner *picLogoContainer;
    QLabel *LblInfo;
    QGroupBox *Frame1;
    QComboBox *cboImportType;
    QPushButton *cmdInfo;
    QLineEdit *txtFileName;
    QPushButton *cmdBrowse;
    QPushButton *cmdPreview;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    /// Runs the chosen import.
    void OK();

private:
    void arrange();
    void browse();
};
