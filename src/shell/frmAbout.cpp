#include "shell/frmAbout.h"

#include "platform/desktop/desktop.h"
#include "session/identity.h"
#include "toolkit/imagelist.h"
#include "toolkit/yield.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int shownForMilliseconds = 5000;
constexpr int logoSize = 96;

} // namespace

frmAbout::frmAbout(QWidget *owner)
    : QDialog(owner)
    , picLogo(new QLabel)
    , LblInfo(new QLabel)
    , cmdVisitWebSite(new QPushButton(u"&Visit Web Site"_s))
    , cmdOK(new QPushButton(u"&OK"_s))
    , TimerClose(new QTimer(this))
{
    setObjectName("frmAbout"_L1);
    picLogo->setObjectName("picLogo"_L1);
    LblInfo->setObjectName("LblInfo"_L1);
    cmdVisitWebSite->setObjectName("cmdVisitWebSite"_L1);
    cmdOK->setObjectName("cmdOK"_L1);
    TimerClose->setObjectName("TimerClose"_L1);

    picLogo->setPixmap(programIcon().pixmap(QSize(logoSize, logoSize), devicePixelRatioF()));
    picLogo->setAccessibleName(programTitle());
    QFont large = LblInfo->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    LblInfo->setFont(large);
    cmdOK->setDefault(true);

    auto *top = new QHBoxLayout;
    top->setSpacing(24);
    top->addWidget(picLogo);
    top->addWidget(LblInfo, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdVisitWebSite);
    buttons->addWidget(cmdOK);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(24, 24, 24, 24);
    all->setSpacing(24);
    all->addLayout(top);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdVisitWebSite, &QPushButton::clicked, this, [] { desktop::openDocument(makerAddress()); });
    connect(TimerClose, &QTimer::timeout, this, &QDialog::accept);

    showVersion();
    TimerClose->setSingleShot(true);
    TimerClose->setInterval(shownForMilliseconds);
    TimerClose->stop();
    paintNow();
    TimerClose->start();
}

void frmAbout::dressAsStartWindow()
{
    cmdOK->hide();
    cmdVisitWebSite->hide();
    setWindowTitle(u"Starting Application..."_s);
}

bool frmAbout::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        showVersion();
    return QDialog::event(event);
}

void frmAbout::showVersion()
{
    setWindowTitle("About "_L1 % mainCaption());
    LblInfo->setText(programTitle() % " Version "_L1 % programVersion() % " Build "_L1 %
                     QString::number(versionRevision));
}
