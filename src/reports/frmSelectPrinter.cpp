#include "reports/frmSelectPrinter.h"

#include "messages/guard.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "toolkit/imagelist.h"
#include "toolkit/pointer.h"
#include "views/savedialog.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr auto title = "Select Printer"_L1;
constexpr int printPicture = 11; // of ImageListToolbar

QPushButton *stepButton(Form &form, QLatin1StringView name, QLatin1StringView caption, const QString &meaning)
{
    QPushButton *button = form.buttonBeside(name, caption);
    button->setAccessibleName(meaning);
    button->setToolTip(meaning);
    button->setAutoDefault(false);
    return button;
}

} // namespace

frmSelectPrinter::frmSelectPrinter(QWidget *owner) : QDialog(owner)
{
    Form form(*this, "frmSelectPrinter"_L1);
    Banner *banner = form.banner(0);
    banner->setPicture(imageLists().ImageListToolbar, printPicture);
    banner->LblInfo->setText(title);
    frameSelectPrinter = form.frame("frameSelectPrinter"_L1, title);
    cboPrinter = form.combo("lblPrinter"_L1, "Printer"_L1, "cboPrinter"_L1);
    txtNumberOfCopies = form.line("lblNumberOfCopies"_L1, "Copies"_L1, "txtNumberOfCopies"_L1).field;
    cmdAddCopy = stepButton(form, "cmdAddCopy"_L1, "+"_L1, u"One Copy more"_s);
    cmdSubtractCopy = stepButton(form, "cmdSubtractCopy"_L1, "-"_L1, u"One Copy less"_s);
    cmdOK = form.defaultButton("cmdOK"_L1, "&OK"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
    setWindowTitle(title);
    txtNumberOfCopies->setText(u"1"_s);

    {
        const Hourglass hourglass;
        cboPrinter->addItems(modPrinter::printers());
        cboPrinter->setCurrentText(modPrinter::currentPrinter());
    }
    connect(cmdAddCopy, &QPushButton::clicked, this, [this] { changeCopies(1); });
    connect(cmdSubtractCopy, &QPushButton::clicked, this, [this] { changeCopies(-1); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { guarded(this, [this] { takeChoice(); }); });
    cboPrinter->setFocus();
}

void frmSelectPrinter::changeCopies(int by)
{
    const qint64 copies = txtNumberOfCopies->text().toInt() + qint64(by);
    txtNumberOfCopies->setText(
        QString::number(std::clamp<qint64>(copies, 1, std::numeric_limits<int>::max())));
}

void frmSelectPrinter::takeChoice()
{
    const int copies = txtNumberOfCopies->text().toInt();
    if (copies < 1) {
        refuse(this, u"Please enter the Number of Copies: a whole number from 1"_s, txtNumberOfCopies);
        return;
    }
    m_choice = {.printer = cboPrinter->currentText(), .copies = copies, .cancelled = false};
    accept();
}
