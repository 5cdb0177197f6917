#include "shell/frmOptions.h"

#include "base/error.h"
#include "messages/guard.h"
#include "session/connectionstring.h"
#include "session/modRegistry.h"
#include "shell/frmMain.h"
#include "store/clsUsers.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "toolkit/imagelist.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "views/savedialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int optionsPicture = 14; // of ImageListToolbar
constexpr int fieldWidthInCharacters = 56;

/// A tab with one frame; gives the frame's grid.
QGridLayout *addPage(QTabWidget &tabs, QLatin1StringView caption, QLatin1StringView frameName,
                     QLatin1StringView frameCaption)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    auto *frame = new QGroupBox(frameCaption);
    frame->setObjectName(frameName);
    layout->addWidget(frame);
    layout->addStretch();
    tabs.addTab(page, caption);
    auto *grid = new QGridLayout(frame);
    grid->setColumnStretch(0, 1);
    return grid;
}

QLineEdit *addLine(QGridLayout &grid, QLatin1StringView labelName, QLatin1StringView caption,
                   QLatin1StringView name)
{
    auto *label = new QLabel(caption);
    label->setObjectName(labelName);
    label->setWordWrap(true);
    auto *line = new QLineEdit;
    line->setObjectName(name);
    line->setAccessibleName(caption);
    line->setMinimumWidth(fieldWidthInCharacters * line->fontMetrics().averageCharWidth());
    selectAllOnFocus(*line);
    label->setBuddy(line);
    grid.addWidget(label, grid.rowCount(), 0, 1, 2);
    grid.addWidget(line, grid.rowCount(), 0);
    return line;
}

QCheckBox *addCheck(QGridLayout &grid, QLatin1StringView name, QLatin1StringView caption)
{
    auto *check = new QCheckBox(caption);
    check->setObjectName(name);
    grid.addWidget(check, grid.rowCount(), 0, 1, 2);
    return check;
}

QPushButton *makeButton(QLatin1StringView name, QLatin1StringView caption)
{
    auto *button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

} // namespace

frmOptions::frmOptions(frmMain &window) : QDialog(&window), TabStrip(new QTabWidget), m_window(window)
{
    Form form(*this, "frmOptions"_L1);
    picLogoContainer = form.banner(0);
    picLogoContainer->setPicture(imageLists().ImageListToolbar, optionsPicture);
    picContext = picLogoContainer->picContext;
    LblInfo = picLogoContainer->LblInfo;
    LblInfo->setText(u"Select the Program Options you need"_s);
    TabStrip->setObjectName("TabStrip"_L1);
    form.add(*TabStrip);
    buildPages();
    cmdOK = form.defaultButton("cmdOK"_L1, "&OK"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
    setWindowTitle(u"Program Options"_s);

    connect(cmdBrowseDataBase, &QPushButton::clicked, this, [this] { guarded(this, [this] { browse(); }); });
    connect(cmdTestConnection, &QPushButton::clicked, this,
            [this] { guarded(this, [this] { testConnection(); }); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { guarded(this, [this] { OK(); }); });
    guarded(this, [this] { RenderOptions(); });
    txtFileName->setFocus();
}

void frmOptions::buildPages()
{
    QGridLayout *store = addPage(*TabStrip, "Database"_L1, "frameSetDataBase"_L1, "Database"_L1);
    txtFileName = addLine(*store, "lbLNane"_L1, "Database Filename"_L1, "txtFileName"_L1);
    cmdBrowseDataBase = makeButton("cmdBrowseDataBase"_L1, "&Browse..."_L1);
    store->addWidget(cmdBrowseDataBase, store->rowCount() - 1, 1);
    cmdTestConnection = makeButton("cmdTestConnection"_L1, "Test Connection"_L1);
    store->addWidget(cmdTestConnection, store->rowCount(), 0, Qt::AlignLeft);

    QGridLayout *controllers =
        addPage(*TabStrip, "Domain Controllers"_L1, "frameDomainController"_L1, "Domain Controller"_L1);
    txtDefaultDomainController =
        addLine(*controllers, "Label1"_L1,
                "Default Domain Controller (PDC or BDC Name to be used for Live System Views)"_L1,
                "txtDefaultDomainController"_L1);
    chkAlwaysAskForServerImport =
        addCheck(*controllers, "chkAlwaysAskForServerImport"_L1, "Always ask for Server"_L1);

    QGridLayout *appearance = addPage(*TabStrip, "Appearance"_L1, "frameAppearance"_L1, "Appearance"_L1);
    chkShowGridLines = addCheck(*appearance, "chkShowGridLines"_L1, "Show GridLines"_L1);
    chkShowNTIcon = addCheck(*appearance, "chkShowNTIcon"_L1, "Show Windows NT Icon on NT Views"_L1);
    chkMaximizeWindows = addCheck(*appearance, "chkMaximizeWindows"_L1, "Always Maximize Windows"_L1);
    chkShowSideBar = addCheck(*appearance, "chkShowSideBar"_L1, "Show Application Sidebar"_L1);
}

void frmOptions::RenderOptions()
{
    txtFileName->setText(modRegistry::getDataBase());
    txtDefaultDomainController->setText(modRegistry::getDefaultDC());
    chkAlwaysAskForServerImport->setChecked(modRegistry::getAlwaysAskServer());
    chkShowGridLines->setChecked(modRegistry::getShowGridLines());
    chkShowNTIcon->setChecked(modRegistry::getShowNTIcon());
    chkMaximizeWindows->setChecked(modRegistry::getMaximizeWindows());
    chkShowSideBar->setChecked(modRegistry::getShowSideBar());
}

void frmOptions::SaveOptions() const
{
    modRegistry::saveDataBase(txtFileName->text());
    modRegistry::saveDefaultDC(txtDefaultDomainController->text());
    modRegistry::saveMaximizeWindows(chkMaximizeWindows->isChecked());
    modRegistry::saveShowSideBar(chkShowSideBar->isChecked());
    modRegistry::saveShowNTIcon(chkShowNTIcon->isChecked());
    modRegistry::saveShowGridLines(chkShowGridLines->isChecked());
    modRegistry::saveAlwaysAskServer(chkAlwaysAskForServerImport->isChecked());
}

void frmOptions::browse()
{
    m_window.Dialog.filter = u"Access DataBase | *.mdb"_s;
    if (attempt([this] { m_window.Dialog.showOpen(this); }))
        txtFileName->setText(m_window.Dialog.fileName);
}

void frmOptions::testConnection()
{
    const Hourglass hourglass;
    const QString before = modRegistry::getDataBase();
    const auto restore = qScopeGuard([&] { attempt([&] { modRegistry::saveDataBase(before); }); });
    // The connection text is always made of the setting.
    modRegistry::saveDataBase(txtFileName->text());
    if (attempt([] { clsUsers().TestConnection(getConnectionString()); }))
        messageBox(this, u"The connection to the Database has been sucessfully established"_s,
                   box::InformationIcon);
    else
        messageBox(this,
                   currentError().description %
                       "\r\n\r\nThe connection to the database could not be established\r\n"
                       "Check your settings in the Main Menu under Tools > Options..."_L1,
                   box::StopIcon);
}

void frmOptions::OK()
{
    if (txtFileName->text().isEmpty()) {
        TabStrip->setCurrentIndex(0);
        refuse(this,
               u"The input is incomplete. Please provide the requested Data. Only Description Fields are not "
               "mandatory"_s,
               txtFileName);
        return;
    }
    SaveOptions();
    m_window.prepareMainWindow();
    accept();
}
