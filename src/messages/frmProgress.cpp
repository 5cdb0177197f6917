#include "messages/frmProgress.h"

#include "toolkit/banner.h"
#include "toolkit/imagelist.h"

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int widthInCharacters = 52;
constexpr int busyPicture = 17;

template <typename Widget>
Widget *named(Widget *widget, QLatin1StringView name)
{
    widget->setObjectName(name);
    return widget;
}

} // namespace

frmProgress::frmProgress(QWidget *owner)
    : QDialog(owner)
    , frameStatus(named(new QGroupBox(u"Status"_s), "frameStatus"_L1))
    , picLogoContainer(new Banner)
    , picInfo(picLogoContainer->picContext)
    , LblInfo(picLogoContainer->LblInfo)
    , lblObject(named(new QLabel, "lblObject"_L1))
    , ProgressBar(named(new QProgressBar, "ProgressBar"_L1))
    , cmdCancel(named(new QPushButton(u"&Cancel"_s), "cmdCancel"_L1))
{
    setObjectName("frmProgress"_L1);
    setWindowTitle(u"Progress"_s);
    setWindowModality(Qt::ApplicationModal);
    picInfo->setObjectName("picInfo"_L1);
    picLogoContainer->setPicture(imageLists().ImageListToolbar, busyPicture);
    lblObject->setTextFormat(Qt::PlainText);
    lblObject->setWordWrap(true);
    lblObject->setMinimumHeight(2 * fontMetrics().lineSpacing());
    lblObject->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    ProgressBar->setAccessibleName(u"Progress"_s);
    cmdCancel->setAutoDefault(false);
    setMinimumWidth(widthInCharacters * fontMetrics().averageCharWidth());

    auto *inside = new QVBoxLayout(frameStatus);
    inside->addWidget(lblObject);
    inside->addWidget(ProgressBar);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdCancel);

    auto *all = new QVBoxLayout(this);
    all->addWidget(picLogoContainer);
    all->addWidget(frameStatus);
    all->addLayout(buttons);

    connect(cmdCancel, &QPushButton::clicked, this, [this] { m_cancelled = true; });
}

void frmProgress::reject()
{
    cmdCancel->click();
}
