#include "toolkit/banner.h"

#include "toolkit/imagelist.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int livePicture = 1;

QLabel *makePicture(QWidget *parent, QLatin1StringView name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setFixedSize(imageLists().ImageListContext.imageSize());
    return label;
}

} // namespace

Banner::Banner(QWidget *parent, Live live) : QFrame(parent), m_pictures(&imageLists().ImageListContext)
{
    setObjectName("picLogoContainer"_L1);
    setFrameStyle(int(StyledPanel) | int(Plain));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    picContext = makePicture(this, "picContext"_L1);
    LblInfo = new QLabel(this);
    LblInfo->setObjectName("LblInfo"_L1);
    LblInfo->setTextFormat(Qt::PlainText);
    LblInfo->setForegroundRole(QPalette::Text);
    LblInfo->setWordWrap(true);
    // A title never makes its window wider; what wraps beyond the strip is in the caption.
    LblInfo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QFont font = LblInfo->font();
    font.setBold(true);
    LblInfo->setFont(font);

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(picContext, 0, Qt::AlignVCenter);
    layout->addSpacing(8);
    layout->addWidget(LblInfo, 1);
    if (live == Live::With) {
        picNT = makePicture(this, "picNT"_L1);
        picNT->setAccessibleName(tr("Live system"));
        picNT->hide();
        layout->addWidget(picNT, 0, Qt::AlignVCenter);
    }
    showPicture();
}

void Banner::setPicture(int number)
{
    setPicture(imageLists().ImageListContext, number);
}

void Banner::setPicture(const ImageList &pictures, int number)
{
    m_pictures = &pictures;
    m_picture = number;
    showPicture();
}

void Banner::showPicture()
{
    picContext->setPixmap(m_pictures->icon(m_picture).pixmap(picContext->size(), devicePixelRatioF()));
    if (picNT)
        picNT->setPixmap(
            imageLists().ImageListDataContext.icon(livePicture).pixmap(picNT->size(), devicePixelRatioF()));
}

void Banner::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::ParentChange)
        showPicture();
}
