#include "sync/frmUser.h"

#include "base/error.h"
#include "messages/guard.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "store/clsUsers.h"
#include "store/userstatements.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "toolkit/messagebox.h"
#include "views/families.h"
#include "views/livehooks.h"
#include "views/modServer.h"
#include "views/savedialog.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

using enum FieldKind;

// clang-format off
constexpr FieldRow accountRows[] = {
    {"txtUserName"_L1,        "Username"_L1,                   "UserName"_L1},
    {"txtServerName"_L1,      "Server (Domain Controller)"_L1, "ServerName"_L1, Text, "cmdGetServer"_L1, "Select..."_L1},
    {"txtUserID"_L1,          "UserID"_L1,                     "UserID"_L1, Number},
    {"txtPrimaryGroupID"_L1,  "Primary Group ID"_L1,           "PrimaryGroupID"_L1, Number},
    {"txtFullName"_L1,        "Full Name"_L1,                  "FullName"_L1},
    {"chkAccLocked"_L1,       "Account Locked"_L1,             "AccLocked"_L1, Check},
    {"chkAccDisabled"_L1,     "Account Disabled"_L1,           "AccDisabled"_L1, Check},
    {"chkNoExpirePwd"_L1,     "Password Never Expires"_L1,     "NoExpirePwd"_L1, Check},
    {"chkNoChangePwd"_L1,     "No Change Password"_L1,         "NoChangePwd"_L1, Check},
    {"chkPasswordExpired"_L1, "Password Expired"_L1,           "PasswordExpired"_L1, Check},
    {"txtPassword"_L1,        "Password"_L1,                   "Password"_L1, Password},
    {"txtPasswordAge"_L1,     "Password Age"_L1,               "PasswordAge"_L1},
    {"txtPrivilege"_L1,       "Privilege"_L1,                  "Privilege"_L1, Number},
    {"txtLastLogon"_L1,       "Last Logon"_L1,                 "LastLogon"_L1},
    {"txtLastLogoff"_L1,      "Last Logoff"_L1,                "LastLogoff"_L1},
    {"txtAcctExpires"_L1,     "Account Expires"_L1,            "AcctExpires"_L1},
    {"txtBadPwCount"_L1,      "Bad Password Count"_L1,         "BadPwCount"_L1, Number},
    {"txtNumLogons"_L1,       "Number of Logons"_L1,           "NumLogons"_L1, Number},
    {"txtLogonServer"_L1,     "Logon Server"_L1,               "LogonServer"_L1},
    {"txtSID"_L1,             "SID"_L1,                        "SID"_L1},
    {"txtLogonHours"_L1,      "Logon Hours"_L1,                "LogonHours"_L1},
};

constexpr FieldRow commentRows[] = {
    {"txtComment"_L1,     "Comment"_L1,       "Comment"_L1, Memo},
    {"txtUserComment"_L1, "User Comments"_L1, "UserComment"_L1, Memo},
};

constexpr FieldRow miscRows[] = {
    {"txtHomeDir"_L1,      "Home Directory"_L1,       "HomeDir"_L1, Text, "cmdBrowse"_L1, "Browse..."_L1},
    {"txtScriptPath"_L1,   "Script Path"_L1,          "ScriptPath"_L1},
    {"txtFlags"_L1,        "Flags"_L1,                "FLAGS"_L1, Number},
    {"txtAuthFlags"_L1,    "Auth. Flags"_L1,          "AuthFlags"_L1, Number},
    {"txtParms"_L1,        "Parameters"_L1,           "Parms"_L1},
    {"txtWorkstations"_L1, "Workstations"_L1,         "Workstations"_L1},
    {"txtMaxStorage"_L1,   "Max Storage"_L1,          "MaxStorage"_L1, Number},
    {"txtUnitsPerWeek"_L1, "Units per Week"_L1,       "UnitsPerWeek"_L1, Number},
    {"txtCountryCode"_L1,  "Country Code"_L1,         "CountryCode"_L1, Number},
    {"txtCodePage"_L1,     "Code Page"_L1,            "CodePage"_L1, Number},
    {"txtProfile"_L1,      "Profile"_L1,              "Profile"_L1},
    {"cboHomeDirDrive"_L1, "Home Directory Drive"_L1, "HomeDirDrive"_L1, Choice},
};

constexpr FieldRow personRows[] = {
    {"txtLastName"_L1,     "Last Name"_L1,          "LastName"_L1},
    {"txtFirstName"_L1,    "First Name"_L1,         "FirstName"_L1},
    {"txtSalutation"_L1,   "Salutation"_L1,         "Salutation"_L1},
    {"txtTitle"_L1,        "Title"_L1,              "Title"_L1},
    {"txtDepartment"_L1,   "Department"_L1,         "Department"_L1},
    {"txtDivision"_L1,     "Division"_L1,           "Division"_L1},
    {"txtCostCenter"_L1,   "Cost Center"_L1,        "CostCenter"_L1},
    {"txtJobTitle"_L1,     "Job Title"_L1,          "JobTitle"_L1},
    {"txtPhoneNumber"_L1,  "Phone Number"_L1,       "PhoneNumber"_L1},
    {"txtDirectDial"_L1,   "Direct Dial Number"_L1, "DirectDial"_L1},
    {"txtMobileNumber"_L1, "Mobile Number"_L1,      "MobileNumber"_L1},
    {"txtEmailAddress"_L1, "Email Address"_L1,      "EmailAddress"_L1},
};

constexpr FieldPage pages[] = {
    {"NT Account Info"_L1,       "frameAccount"_L1,      accountRows, 2},
    {"Comments"_L1,              "frameUser"_L1,         commentRows},
    {"NT Miscellaneous Info"_L1, "frameMisc"_L1,         miscRows, 2},
    {"User Information"_L1,      "frameExtendedInfo"_L1, personRows},
};
// clang-format on

constexpr int userPicture = 3;
constexpr int personPage = 3;
constexpr auto driveLetters = "G:;H:;I:;J:;K:;L:;M:;N:;O:;P:;Q:;R:;S:;T:;U:;V:;W:;X:;Y:;Z:"_L1;

QTabWidget *makeTabs()
{
    auto *tabs = new QTabWidget;
    tabs->setObjectName("TabStrip"_L1);
    return tabs;
}

} // namespace

frmUser::frmUser(QWidget *owner, Action action, RowTarget source)
    : QDialog(owner)
    , TabStrip(makeTabs())
    , m_action(action)
    , m_source(std::move(source))
    , m_form(*TabStrip, pages)
{
    Form form(*this, "frmUser"_L1);
    picLogoContainer = form.banner(userPicture);
    LblInfo = picLogoContainer->LblInfo;
    form.add(*TabStrip);
    cmdSave = form.defaultButton("cmdSave"_L1, "&Save"_L1);
    cmdClose = form.closeButton("cmdClose"_L1, "&Cancel"_L1);
    AddDriveLetters();
    offerServers(*m_form.button("cmdGetServer"_L1), *static_cast<QLineEdit *>(m_form.field(u"ServerName")));
    offerFolders(*m_form.button("cmdBrowse"_L1), *static_cast<QLineEdit *>(m_form.field(u"HomeDir")));
    connect(cmdSave, &QPushButton::clicked, this, &frmUser::Save);
    if (action == Action::NewUser)
        for (const FieldPage &page : pages)
            for (const FieldRow &row : page.rows)
                if (row.kind == Number)
                    m_form.setText(QString(row.column), u"0"_s);
    // It names the row in the store and in every relationship.
    static_cast<QLineEdit *>(m_form.field(u"UserID"))->setReadOnly(action != Action::NewUser);
    dress();
    m_form.show(u"UserName");
}

void frmUser::AddDriveLetters()
{
    static_cast<QComboBox *>(m_form.field(u"HomeDirDrive"))->addItems(QString(driveLetters).split(u';'));
    m_form.setText(u"HomeDirDrive", QString());
}

void frmUser::dress()
{
    const QString account = m_form.text(u"ServerName") % u'\\' % m_form.text(u"UserName");
    switch (m_action) {
    case Action::NewUser:
        LblInfo->setText(u"Add New User"_s);
        break;
    case Action::EditUser:
        LblInfo->setText(account % " Edit User"_L1);
        break;
    case Action::NTUserExtendedInfo:
        setWindowTitle(account % " Live System User Info"_L1);
        LblInfo->setText(
            u"Live User Info. If you want to change User Information, first change it in the Database, "
            "then Export the User to Live System"_s);
        cmdClose->setText(u"&Close"_s);
        cmdSave->setEnabled(false);
        if (TabStrip->count() > personPage)
            TabStrip->removeTab(personPage);
        return;
    }
    setWindowTitle(LblInfo->text());
}

void frmUser::load(jet::Recordset &user)
{
    m_form.load(user);
    m_userId = int(user.value(u"UserID").toInteger());
    dress();
}

bool frmUser::inputCheck()
{
    for (const QStringView column : {u"UserName", u"ServerName"}) {
        if (!m_form.text(column).isEmpty())
            continue;
        m_form.show(column);
        return refuse(this, u"You must specify at least Username and Server"_s, m_form.field(column));
    }
    return true;
}

UserRecord frmUser::read() const
{
    UserRecord user;
    for (const UserColumn &column : userColumns()) {
        const QString name(column.name);
        if (const auto *number = std::get_if<int UserRecord::*>(&column.member))
            user.*(*number) = m_form.number(name);
        else
            user.*std::get<QString UserRecord::*>(column.member) = m_form.text(name);
    }
    return user;
}

void frmUser::Save()
{
    if (!inputCheck())
        return;
    saveAndAccept(
        *this,
        [this] {
            UserRecord user = read();
            if (m_action == Action::EditUser) {
                user.UserID = m_userId;
                clsUsers().update(getConnectionString(), user);
            } else {
                requireFreeId(user.UserID);
                clsUsers().Add(getConnectionString(), user);
            }
            UpdateSource();
            // The user is in the store, whatever becomes of the export.
            guarded(this, [this] { offerExport(); });
        },
        m_form.field(u"UserName"));
}

void frmUser::requireFreeId(int id) const
{
    if (id == 0) // asks for the next one
        return;
    jet::Recordset others;
    clsUsers().getUserByID(getConnectionString(), id, others);
    if (others.recordCount() == 0)
        return;
    m_form.show(u"UserID");
    throwError(jet::DuplicateValue,
               u"The UserID %1 belongs to another user already. 0 asks for the next free one."_s.arg(id));
}

void frmUser::offerExport()
{
    const int answer = messageBox(this, u"Would you like to export the User Settings to your Live System?"_s,
                                  box::YesNo | box::WarningIcon);
    if (answer != box::ResultYes)
        return;
    const QString target = modServer::targetServer(this);
    if (target.isEmpty())
        return;
    if (liveHooks().exportUsers)
        liveHooks().exportUsers(this, {m_form.text(u"UserName")}, {m_form.text(u"ServerName")}, target);
    else
        messageBox(this, notYetImplemented(), box::Ok);
}

void frmUser::UpdateSource() const
{
    m_source.put({{"LastName"_L1, m_form.text(u"LastName")},
                  {"FirstName"_L1, m_form.text(u"FirstName")},
                  {"UserName"_L1, m_form.text(u"UserName")},
                  {"ServerName"_L1, m_form.text(u"ServerName")}});
}
