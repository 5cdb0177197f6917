#include "folders/frmFolderDefaultPermissions.h"

#include "messages/showresult.h"
#include "session/connectionstring.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "views/savedialog.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int bannerPictureNumber = 12;

constexpr auto information =
    "Each Folder that is exported gets these Permissions before all others, so that it can still be "
    "administered.\r\n\r\n"
    "Accounts of the Server:\tBUILTIN\\Administrators, NT AUTHORITY\\System\r\n"
    "Accounts of a Domain:\tDomain\\Username, Domain\\GlobalGroup\r\n\r\n"
    "The Names of System Accounts depend on the Language of the Server.\r\n\r\n"
    "R\t\tRead\r\nCH\t\tChange\r\nFull Control\tFull Control"_L1;

} // namespace

frmFolderDefaultPermissions::frmFolderDefaultPermissions(QWidget *owner, RowTarget source, Store store)
    : QDialog(owner)
    , m_source(std::move(source))
    , m_store(std::move(store))
{
    Form form(*this, "frmFolderDefaultPermissions"_L1);
    picLogoContainer = form.banner(bannerPictureNumber);
    LblInfo = picLogoContainer->LblInfo;
    LblInfo->setText(u"Add or Edit Default Folder Permission"_s);
    FrameDefaultFolderPermission =
        form.frame("FrameDefaultFolderPermission"_L1, "Permitted Object on Folders"_L1);
    cboUserName = form.combo("lblUserName"_L1, "Account"_L1, "cboUserName"_L1);
    cmdInfo = form.buttonBeside("cmdInfo"_L1, "I&nformation"_L1);
    cboPermission = form.combo("lblPermission"_L1, "Permission"_L1, "cboPermission"_L1);
    cmdSave = form.defaultButton("cmdSave"_L1, "&Save"_L1);
    cmdClose = form.closeButton("cmdClose"_L1, "&Cancel"_L1);
    setWindowTitle(u"Add/Edit Default Folder Permissions"_s);
    LoadComboBoxData();

    connect(cmdInfo, &QPushButton::clicked, this,
            [this] { showResult(this, information, u"Default Folder Permissions"_s); });
    connect(cmdSave, &QPushButton::clicked, this, &frmFolderDefaultPermissions::Save);
    cboUserName->setFocus();
}

void frmFolderDefaultPermissions::LoadComboBoxData()
{
    cboPermission->addItems({u"R"_s, u"CH"_s, u"Full Control"_s});
    cboUserName->addItems({u"BUILTIN\\Administrators"_s, u"NT AUTHORITY\\System"_s});
    cboPermission->setCurrentIndex(-1);
    cboUserName->setCurrentIndex(-1);
}

void frmFolderDefaultPermissions::load(const QString &account, const QString &permission)
{
    cboUserName->setEditText(account);
    cboPermission->setEditText(permission);
}

void frmFolderDefaultPermissions::Save()
{
    const QString account = cboUserName->currentText();
    const QString permission = cboPermission->currentText();
    const bool isPermission =
        cboPermission->findText(permission, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0;
    if (account.isEmpty() || !isPermission) {
        refuse(this,
               u"The input is incomplete. Please provide the requested Data. Only Description Fields are not "
               "mandatory"_s,
               account.isEmpty() ? cboUserName : cboPermission);
        return;
    }
    saveAndAccept(
        *this,
        [&] {
            m_store(getConnectionString(), account, permission);
            UpdateSource();
        },
        cboUserName);
}

void frmFolderDefaultPermissions::UpdateSource() const
{
    m_source.put({cboUserName->currentText(), cboPermission->currentText()});
}
