#include "exchange/frmImport.h"

#include "base/error.h"
#include "exchange/modImport.h"
#include "messages/guard.h"
#include "toolkit/banner.h"
#include "toolkit/commondialog.h"
#include "toolkit/imagelist.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int databasePicture = 2; // of ImageListDataContext
constexpr int fieldWidthInCharacters = 56;

template <typename Widget>
Widget *named(Widget *widget, QLatin1StringView name)
{
    widget->setObjectName(name);
    return widget;
}

QLabel *labelFor(QWidget *field, const QString &text)
{
    auto *label = new QLabel(text);
    label->setBuddy(field);
    field->setAccessibleName(text);
    return label;
}

} // namespace

frmImport::frmImport(QWidget *owner)
    : QDialog(owner)
    , picLogoContainer(new Banner)
    , LblInfo(picLogoContainer->LblInfo)
    , Frame1(named(new QGroupBox(u"Choose the Type of Import you need"_s), "Frame1"_L1))
    , cboImportType(named(new QComboBox, "cboImportType"_L1))
    , cmdInfo(named(new QPushButton(u"I&nformation"_s), "cmdInfo"_L1))
    , txtFileName(named(new QLineEdit, "txtFileName"_L1))
    , cmdBrowse(named(new QPushButton(u"&Browse..."_s), "cmdBrowse"_L1))
    , cmdPreview(named(new QPushButton(u"Preview"_s), "cmdPreview"_L1))
    , cmdOK(named(new QPushButton(u"&Import"_s), "cmdOK"_L1))
    , cmdCancel(named(new QPushButton(u"&Close"_s), "cmdCancel"_L1))
{
    setObjectName("frmImport"_L1);
    setWindowTitle(u"Import from File"_s);
    LblInfo->setText(u"Import Data From File"_s);
    picLogoContainer->setPicture(imageLists().ImageListDataContext, databasePicture);
    cmdInfo->setToolTip(u"Shows the format of the file"_s);
    arrange();

    const auto onClick = [this](QPushButton *button, std::function<void()> handler) {
        connect(button, &QPushButton::clicked, this,
                [this, handler = std::move(handler)] { guarded(this, handler); });
    };
    onClick(cmdInfo, [this] { modImport::showFormat(this, cboImportType->currentText()); });
    onClick(cmdBrowse, [this] { browse(); });
    onClick(cmdPreview, [this] { modImport::previewFile(this, txtFileName->text()); });
    onClick(cmdOK, [this] { OK(); });
    onClick(cmdCancel, [this] { reject(); });
    cmdOK->setDefault(true);
}

void frmImport::OK()
{
    modImport::startImport(this, cboImportType->currentText(), txtFileName->text());
}

void frmImport::arrange()
{
    txtFileName->setMinimumWidth(fieldWidthInCharacters * fontMetrics().averageCharWidth());
    auto *choice = new QGridLayout(Frame1);
    choice->addWidget(labelFor(cboImportType, u"Import Type"_s), 0, 0);
    choice->addWidget(cboImportType, 0, 1);
    choice->addWidget(cmdInfo, 0, 2);
    choice->addWidget(labelFor(txtFileName, u"Data File"_s), 1, 0);
    choice->addWidget(txtFileName, 1, 1);
    choice->addWidget(cmdBrowse, 1, 2);
    choice->addWidget(cmdPreview, 2, 2);
    choice->setColumnStretch(1, 1);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);

    auto *all = new QVBoxLayout(this);
    all->addWidget(picLogoContainer);
    all->addWidget(Frame1);
    all->addStretch();
    all->addLayout(buttons);
}

void frmImport::browse()
{
    CommonDialog dialog;
    dialog.filter = u"All Files | *.*"_s;
    if (attempt([&] { dialog.showOpen(this); }))
        txtFileName->setText(dialog.fileName);
}
