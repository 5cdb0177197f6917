#include "assets/frmSWHWType.h"

#include "session/connectionstring.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "views/savedialog.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmSWHWType::frmSWHWType(QWidget *owner, const Action &action, RowTarget source, Store store)
    : QDialog(owner)
    , m_source(std::move(source))
    , m_store(std::move(store))
{
    Form form(*this, "frmSWHWType"_L1);
    picLogoContainer = form.banner(action.bannerPicture);
    LblInfo = picLogoContainer->LblInfo;
    LblInfo->setText(action.caption);
    frameSWHWType = form.frame("frameSWHWType"_L1, action.caption);
    cboType = makeFreeCombo();
    lblType = form.row("lblType"_L1, action.typeLabel, "cboType"_L1, cboType);
    cboManufacturer = makeFreeCombo();
    lblManufacturer =
        form.row("lblManufacturer"_L1, "Manufacturer"_L1, "cboManufacturer"_L1, cboManufacturer);
    const Form::Line name = form.line("lblModelName"_L1, action.nameLabel, "txtModelName"_L1);
    lblModelName = name.label;
    txtModelName = name.field;
    const Form::Line version =
        form.line("lblTypeVersionNumber"_L1, action.versionLabel, "txtTypeVersionNumber"_L1);
    lblTypeVersionNumber = version.label;
    txtTypeVersionNumber = version.field;
    const Form::Line description = form.line("lblDescription"_L1, "Description"_L1, "txtDescription"_L1);
    lblDescription = description.label;
    txtDescription = description.field;
    cmdOK = form.defaultButton("cmdOK"_L1, "&Save"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
    setWindowTitle(action.caption);
    connect(cmdOK, &QPushButton::clicked, this, &frmSWHWType::Save);
    cboType->setFocus();
}

void frmSWHWType::load(const Texts &texts)
{
    cboType->setEditText(texts[0]);
    cboManufacturer->setEditText(texts[1]);
    txtModelName->setText(texts[2]);
    txtTypeVersionNumber->setText(texts[3]);
    txtDescription->setText(texts[4]);
}

frmSWHWType::Texts frmSWHWType::texts() const
{
    return {cboType->currentText(), cboManufacturer->currentText(), txtModelName->text(),
            txtTypeVersionNumber->text(), txtDescription->text()};
}

void frmSWHWType::Save()
{
    saveAndAccept(
        *this,
        [this] {
            m_store(getConnectionString(), texts());
            UpdateSource();
        },
        txtModelName);
}

void frmSWHWType::UpdateSource() const
{
    const Texts saved = texts();
    m_source.put(QStringList(saved.begin(), saved.end()));
}
