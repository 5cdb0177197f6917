#include "assets/frmHW.h"

#include "assets/choices.h"
#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/modHWType.h"
#include "base/oledate.h"
#include "base/text.h"
#include "messages/guard.h"
#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "views/savedialog.h"

#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

using enum FieldKind;

// clang-format off
constexpr FieldRow identificationRows[] = {
    {"txtSerialNumber"_L1,          "Serial Number"_L1,           "SerialNumber"_L1},
    {"txtAssetNumber"_L1,           "Asset Number"_L1,            "AssetNumber"_L1},
    {"txtWarrantyNumber"_L1,        "Warranty Number"_L1,         "WarrantyNumber"_L1},
    {"txtCompanyPropertyNumber"_L1, "Company Property Number"_L1, "CompanyPropertyNumber"_L1},
    {"txtWorkStationName"_L1,       "Workstation Name"_L1,        "WorkStationName"_L1},
    {"cboHWType"_L1,                "Hardware Type"_L1,           "HWType"_L1, Choice, "CmdNew"_L1, "New..."_L1},
};
constexpr FieldRow statusRows[] = {
    {"cboStatus"_L1, "Status"_L1,                            "Status"_L1, Choice},
    {"cboUsage"_L1,  "Usage"_L1,                             "Usage"_L1, Choice},
    {"chkEUCD"_L1,   "EUCD (End User Computing Device)"_L1, "EUCD"_L1, Check},
};
constexpr FieldRow networkRows[] = {
    {"chkNetwork"_L1,   "Network"_L1,    "Network"_L1, Check},
    {"txtIPAddress"_L1, "IP Address"_L1, "IPAddress"_L1},
    {"txtIPSubnet"_L1,  "IP Subnet"_L1,  "IPSubnet"_L1},
};
// The list offers what the text of the supplier can be.
constexpr FieldRow supplierRows[] = {
    {"cboSupplier"_L1,     "Select Supplier"_L1, "SelectedSupplier"_L1, Choice},
    {"txtSupplier"_L1,     "Supplier"_L1,        "Supplier"_L1},
    {"txtPurchaseDate"_L1, "Purchase Date"_L1,   "PurchaseDate"_L1, Text, "cmdToday"_L1, "Today"_L1},
};
constexpr FieldRow commentRows[] = {
    {"txtComments"_L1, "Comments"_L1, "Comments"_L1, Memo},
};

constexpr FieldPage pages[] = {
    {"Identification"_L1, "frameIdentification"_L1, identificationRows},
    {"Status"_L1,         "frameStatus"_L1,         statusRows},
    {"Network"_L1,        "frameNetwork"_L1,        networkRows},
    {"Supplier"_L1,       "frameSupplier"_L1,       supplierRows},
    {"Comments"_L1,       "frameComments"_L1,       commentRows},
};
// clang-format on

// What a click on a tab gives the focus to, in the order of the tabs.
constexpr QStringView firstFields[] = {u"SerialNumber", u"Status", u"IPAddress", u"SelectedSupplier",
                                       u"Comments"};

constexpr int hardwarePicture = 5;

QTabWidget *makeTabs()
{
    auto *tabs = new QTabWidget;
    tabs->setObjectName("TabStrip"_L1);
    return tabs;
}

} // namespace

frmHW::frmHW(QWidget *owner, Action action, RowTarget source, Store store)
    : QDialog(owner)
    , TabStrip(makeTabs())
    , m_source(std::move(source))
    , m_store(std::move(store))
    , m_form(*TabStrip, pages)
{
    Form form(*this, "frmHW"_L1);
    picLogoContainer = form.banner(hardwarePicture);
    LblInfo = picLogoContainer->LblInfo;
    form.add(*TabStrip);
    cmdOK = form.defaultButton("cmdOK"_L1, "&Save"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
    setWindowTitle(action == Action::NewHW ? u"Add New Hardware"_s : u"Edit Hardware"_s);
    LblInfo->setText(windowTitle());
    fillLists();

    connect(&combo(u"SelectedSupplier"), &QComboBox::activated, this,
            [this] { m_form.setText(u"Supplier", m_form.text(u"SelectedSupplier")); });
    connect(m_form.button("cmdToday"_L1), &QPushButton::clicked, this, [this] {
        const QDate today = QDate::currentDate();
        m_form.setText(u"PurchaseDate", oledate::toText(*oledate::fromParts(
                                            {today.year(), today.month(), today.day(), 0, 0, 0})));
    });
    connect(m_form.button("CmdNew"_L1), &QPushButton::clicked, this, [this] {
        guarded(this, [this] {
            modHWType::newHWType(this);
            fillChoices<&clsHWType::getDisplayList>(combo(u"HWType"));
        });
    });
    connect(TabStrip, &QTabWidget::currentChanged, this, [this](int tab) {
        // The arrow keys walk along the tabs.
        if (!TabStrip->tabBar()->hasFocus())
            m_form.field(firstFields[tab])->setFocus();
    });
    connect(cmdOK, &QPushButton::clicked, this, &frmHW::Save);
    m_form.show(firstFields[0]);
}

QComboBox &frmHW::combo(QStringView column) const
{
    return *static_cast<QComboBox *>(m_form.field(column));
}

void frmHW::fillLists()
{
    fillChoices<&clsHWType::getDisplayList>(combo(u"HWType"));
    fillChoices<&clsHW::getSuppliers>(combo(u"SelectedSupplier"));
    fillChoices<&clsHW::getStatus>(combo(u"Status"));
    fillChoices<&clsHW::getUsage>(combo(u"Usage"));
}

void frmHW::load(jet::Recordset &item)
{
    m_form.load(item);
    m_form.setText(u"SelectedSupplier", m_form.text(u"Supplier"));
    m_loadedType = m_form.text(u"HWType");
    // An item whose type was deleted needs another one.
    const int type = int(item.value(u"HWTypeID").toInteger());
    m_loadedTypeId = combo(u"HWType").findData(type) >= 0 ? type : 0;
}

int frmHW::hardwareType() const
{
    const QComboBox &types = combo(u"HWType");
    const QString typed = types.currentText();
    // Two types may read the same: an item that nobody moved stays what it is.
    if (m_loadedTypeId != 0 && typed == m_loadedType)
        return m_loadedTypeId;
    int entry = types.currentIndex();
    if (entry < 0 || types.itemText(entry) != typed)
        entry = types.findText(typed, Qt::MatchExactly | Qt::MatchCaseSensitive);
    // A text that is not in the list leaves an item the type that it has.
    return entry < 0 ? m_loadedTypeId : types.itemData(entry).toInt();
}

bool frmHW::inputCheck()
{
    const auto refuseAt = [this](QStringView column, const QString &text) {
        m_form.show(column);
        return refuse(this, text, m_form.field(column));
    };
    if (hardwareType() == 0)
        return refuseAt(u"HWType", u"Please select a Hardware Type from the List"_s);
    if (m_form.text(u"PurchaseDate").isEmpty())
        return refuseAt(u"PurchaseDate", u"Please insert the Purchase Date"_s);
    if (m_form.text(u"SerialNumber").isEmpty())
        return refuseAt(u"SerialNumber", u"Please insert the Serial Number"_s);
    return true;
}

HWRecord frmHW::read() const
{
    return {.HWTypeID = hardwareType(),
            .SerialNumber = m_form.text(u"SerialNumber"),
            .AssetNumber = m_form.text(u"AssetNumber"),
            .WarrantyNumber = m_form.text(u"WarrantyNumber"),
            .CompanyPropertyNumber = m_form.text(u"CompanyPropertyNumber"),
            .WorkStationName = m_form.text(u"WorkStationName"),
            .Supplier = m_form.text(u"Supplier"),
            .PurchaseDate = formatSqlDate(m_form.text(u"PurchaseDate")),
            .Usage = m_form.text(u"Usage"),
            .Status = m_form.text(u"Status"),
            .EUCD = int(m_form.isChecked(u"EUCD")),
            .Comments = m_form.text(u"Comments"),
            .Network = int(m_form.isChecked(u"Network")),
            .IPAddress = m_form.text(u"IPAddress"),
            .IPSubnet = m_form.text(u"IPSubnet")};
}

void frmHW::Save()
{
    if (!inputCheck())
        return;
    saveAndAccept(
        *this,
        [this] {
            m_store(getConnectionString(), read());
            UpdateSource();
        },
        m_form.field(u"SerialNumber"));
}

void frmHW::UpdateSource() const
{
    const bool sameType = m_loadedTypeId != 0 && hardwareType() == m_loadedTypeId;
    m_source.put({{"Hardware Type"_L1, sameType ? m_loadedType : m_form.text(u"HWType")},
                  {"SerialNumber"_L1, m_form.text(u"SerialNumber")},
                  {"CompanyPropertyNumber"_L1, m_form.text(u"CompanyPropertyNumber")},
                  {"Usage"_L1, m_form.text(u"Usage")},
                  {"IPAddress"_L1, m_form.text(u"IPAddress")}});
}
