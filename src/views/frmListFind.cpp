#include "views/frmListFind.h"

#include "messages/guard.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "toolkit/imagelist.h"
#include "toolkit/listview.h"
#include "toolkit/messagebox.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {
constexpr int searchPicture = 9; // of ImageListToolbar
}

frmListFind::frmListFind(QWidget *owner) : QDialog(owner)
{
    Form form(*this, "frmListFind"_L1);
    picLogoContainer = form.banner(0);
    picLogoContainer->setPicture(imageLists().ImageListToolbar, searchPicture);
    picContext = picLogoContainer->picContext;
    LblInfo = picLogoContainer->LblInfo;
    frameFind = form.frame("frameFind"_L1);
    const Form::Line line = form.line("lblStringToFind"_L1, {}, "txtStringToFind"_L1);
    lblStringToFind = line.label;
    txtStringToFind = line.field;
    cmdFind = form.defaultButton("cmdFind"_L1, "&Find Next"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Close"_L1);

    connect(cmdFind, &QPushButton::clicked, this, [this] { guarded(this, [this] { Find(); }); });
    connect(txtStringToFind, &QLineEdit::textChanged, this, [this] { m_startRow = 0; });
}

void frmListFind::Initialize(ListView &list, int startRow, int column)
{
    frmListFind window(list.window());
    window.look(list, startRow, column);
    window.exec();
}

void frmListFind::look(ListView &list, int startRow, int column)
{
    m_list = &list;
    m_startRow = startRow;
    m_column = column;
    const QString heading = list.heading(column);
    const QString title = "Search by "_L1 % heading;
    LblInfo->setText(title);
    frameFind->setTitle(title);
    setWindowTitle(title);
    lblStringToFind->setText(heading);
    txtStringToFind->setAccessibleName(heading);
    txtStringToFind->setFocus();
}

void frmListFind::Find()
{
    if (!m_list)
        return;
    const QString wanted = txtStringToFind->text();
    m_list->clearSelection();
    for (int row = m_startRow; row < m_list->rowCount(); ++row) {
        if (m_list->text(row, m_column).contains(wanted, Qt::CaseInsensitive)) {
            m_list->chooseRow(row);
            m_startRow = row + 1;
            return;
        }
    }
    m_startRow = 0;
    messageBox(this, u"The Item you are looking for could not be found"_s, box::WarningIcon);
}
