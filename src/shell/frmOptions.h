#pragma once

#include <QDialog>

class Banner;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class frmMain;

/// Edits the settings of the program. The status bar and the sidebar of the main window follow at once.
class frmOptions final : public QDialog
{
    Q_OBJECT

public:
    explicit frmOptions(frmMain &window);

    Banner *picLogoContainer;
    QLabel *picContext;
    QLabel *LblInfo;
    QTabWidget *TabStrip;
    QLineEdit *txtFileName;
    QPushButton *cmdBrowseDataBase;
    QPushButton *cmdTestConnection;
    QLineEdit *txtDefaultDomainController;
    QCheckBox *chkAlwaysAskForServerImport;
    QCheckBox *chkShowGridLines;
    QCheckBox *chkShowNTIcon;
    QCheckBox *chkMaximizeWindows;
    QCheckBox *chkShowSideBar;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;

    /// Fills the controls from the settings.
    void RenderOptions();
    /// Writes the controls to the settings.
    void SaveOptions() const;
    /// Tries the path that is typed. The setting is as it was afterwards.
    void testConnection();

private:
    void buildPages();
    void browse();
    void OK();

    frmMain &m_window;
};
