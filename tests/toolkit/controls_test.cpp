#include "base/error.h"
#include "support/find.h"
#include "toolkit/banner.h"
#include "toolkit/imagelist.h"
#include "toolkit/statusbar.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct PictureCase
{
    const char *name;
    ImageList ImageLists::*list;
    int count;
    int size;
};

class ImageListTest : public testing::TestWithParam<PictureCase>
{
};

const PictureCase pictureCases[] = {
    {"DataContext", &ImageLists::ImageListDataContext, 2, 16},
    {"Context", &ImageLists::ImageListContext, 12, 32},
    {"Headers", &ImageLists::ImageListHeaders, 2, 12},
    {"List", &ImageLists::ImageListList, 14, 16},
    {"Toolbar", &ImageLists::ImageListToolbar, 18, 24},
};

/// How many pixels can be told from the background.
int visiblePixels(const QImage &picture, QColor background)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (pixel.alpha() > 128 && std::abs(pixel.lightness() - background.lightness()) > 32)
                ++count;
        }
    return count;
}

} // namespace

TEST_P(ImageListTest, EveryNumberHasAPictureOfItsOwnThatShowsOnLightAndDark)
{
    const ImageList &pictures = imageLists().*GetParam().list;
    ASSERT_EQ(pictures.count(), GetParam().count);
    EXPECT_EQ(pictures.imageSize(), QSize(GetParam().size, GetParam().size));
    QList<QImage> seen;
    for (int number = 1; number <= pictures.count(); ++number) {
        const QPixmap sharp = pictures.pixmap(number, 2);
        EXPECT_EQ(sharp.size(), 2 * pictures.imageSize());
        const QImage picture = sharp.toImage();
        const int enough = picture.width() * picture.height() / 16;
        EXPECT_GT(visiblePixels(picture, QColor(0xff, 0xff, 0xff)), enough) << number;
        EXPECT_GT(visiblePixels(picture, QColor(0x23, 0x26, 0x29)), enough) << number;
        EXPECT_GT(visiblePixels(pictures.icon(number).pixmap(32, QIcon::Selected).toImage(),
                                QColor(0x30, 0x8c, 0xc6)),
                  256)
            << number << " on the highlight";
        EXPECT_FALSE(seen.contains(picture)) << number;
        seen += picture;
    }
    EXPECT_TRUE(pictures.icon(0).isNull());
    EXPECT_TRUE(pictures.icon(pictures.count() + 1).isNull());
}

INSTANTIATE_TEST_SUITE_P(Lists, ImageListTest, testing::ValuesIn(pictureCases),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(StatusBarTest, PanelsByIndexFromOne)
{
    StatusBar bar(3);
    bar.setPanelText(1, u"Ready"_s);
    bar.setPanelText(3, u"PDC: "_s);
    bar.setPanelPicture(1, imageLists().ImageListToolbar, 18);
    EXPECT_EQ(bar.panelText(1), u"Ready"_s);
    EXPECT_EQ(bar.panelText(2), u""_s);
    EXPECT_EQ(bar.panelText(3), u"PDC: "_s);
    EXPECT_EQ(bar.panelPicture(1), 18);
    EXPECT_EQ(bar.panelPicture(3), 0);
    bar.setPanelPicture(1, imageLists().ImageListToolbar, 0);
    EXPECT_EQ(bar.panelPicture(1), 0);
    EXPECT_FALSE(attempt([&] { bar.setPanelText(4, {}); }));
    EXPECT_FALSE(attempt([&] { static_cast<void>(bar.panelText(0)); }));
}

TEST(StatusBarTest, PanelsShareTheBarInTheProportionOfTheirWidths)
{
    StatusBar bar(3);
    bar.resize(600, 24);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    EXPECT_NEAR(bar.panelWidth(1), bar.panelWidth(3), 2);
    EXPECT_NEAR(bar.panelWidth(2), 200, 8);
    bar.setPanelWidth(1, 100);
    bar.setPanelWidth(2, 300);
    bar.setPanelWidth(3, 200);
    EXPECT_EQ(bar.panelWidth(2), 300);
    bar.resize(1200, 24);
    EXPECT_TRUE(waitFor([&] { return std::abs(find<QWidget>(u"panel2"_s, &bar)->width() - 600) < 12; }));
}

TEST(StatusBarTest, ALongTextNeverWidensTheWindow)
{
    StatusBar bar(2);
    const int before = bar.minimumSizeHint().width();
    bar.setPanelText(1, QString(500, u'x'));
    EXPECT_EQ(bar.minimumSizeHint().width(), before);
    bar.resize(300, 24);
    bar.show();
    auto *panel = find<QWidget>(u"panel1"_s, &bar);
    QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(panel, &ask);
    EXPECT_EQ(panel->toolTip(), QString(500, u'x'));
    bar.setPanelText(1, u"short"_s);
    QCoreApplication::sendEvent(panel, &ask);
    EXPECT_EQ(panel->toolTip(), u""_s);
}

TEST(StatusBarTest, ATextThatNearlyFitsIsDrawnWhole)
{
    StatusBar bar(1);
    bar.resize(220, 24);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    auto *panel = find<QWidget>(u"panel1"_s, &bar);
    QString text;
    while (bar.fontMetrics().horizontalAdvance(text) < panel->width() * 11 / 10)
        text += u'H';
    // The upper half of the end: empty above the dots of a text that is cut off.
    const QRect end(panel->width() - 12, 3, 7, panel->height() / 2 - 3);
    const auto inkAtTheEnd = [&](const QString &shown) {
        bar.setPanelText(1, shown);
        const QImage picture = panel->grab(end).toImage();
        return visiblePixels(picture, panel->palette().color(QPalette::Window));
    };
    EXPECT_GT(inkAtTheEnd(text), 0);
    EXPECT_EQ(inkAtTheEnd(text + text), 0);
}

TEST(StatusBarTest, APanelIsReadOutWhole)
{
    StatusBar bar(1);
    bar.resize(60, 24);
    const QString path = u"/home/anna/plans & <drafts>/Headquarters 2005.mdb"_s;
    bar.setPanelText(1, path);
    QAccessibleInterface *panel = QAccessible::queryAccessibleInterface(find<QWidget>(u"panel1"_s, &bar));
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->role(), QAccessible::StaticText);
    EXPECT_EQ(panel->text(QAccessible::Name), path);
}

TEST(StatusBarTest, AShortenedPathKeepsTheFileNameWhileItFits)
{
    const StatusBar bar(1);
    const QFontMetrics metrics = bar.fontMetrics();
    const QString ellipsis(QChar(0x2026));
    for (const QString &path :
         {u"/home/anna/plans/Headquarters.mdb"_s, u"C:\\Data\\Plans\\Headquarters.mdb"_s}) {
        const QString name = path.right(17);
        const int whole = metrics.horizontalAdvance(path);
        EXPECT_EQ(shortened(path, metrics, whole), path);
        for (int room = whole - 1; room > 0; --room) {
            SCOPED_TRACE(room);
            const QString shown = shortened(path, metrics, room);
            EXPECT_NE(shown, path);
            EXPECT_TRUE(metrics.horizontalAdvance(shown) <= room || shown.size() <= 1);
            if (metrics.horizontalAdvance(ellipsis % name) <= room) {
                EXPECT_TRUE(shown.endsWith(name)) << qPrintable(shown);
            }
        }
    }
    const QString text = u"Reading Data. Please stand by"_s;
    EXPECT_TRUE(shortened(text, metrics, metrics.horizontalAdvance(text) / 2).startsWith(u"Reading"_s));
}

TEST(StatusBarTest, NoPanelIsSqueezedOut)
{
    StatusBar bar(3);
    bar.resize(600, 24);
    bar.show();
    bar.setPanelWidth(1, 300);
    bar.setPanelWidth(2, 0);
    bar.setPanelWidth(3, 300);
    EXPECT_TRUE(waitFor([&] { return find<QWidget>(u"panel2"_s, &bar)->width() > 70; }));
}

TEST(BannerTest, PictureTitleAndTheMarkOfTheLiveSystem)
{
    Banner plain;
    EXPECT_EQ(plain.picNT, nullptr);
    Banner banner(nullptr, Banner::Live::With);
    EXPECT_EQ(banner.objectName(), u"picLogoContainer"_s);
    EXPECT_TRUE(banner.picNT->isHidden());
    EXPECT_FALSE(banner.picNT->pixmap(Qt::ReturnByValue).isNull());
    banner.setPicture(3);
    EXPECT_EQ(banner.picture(), 3);
    EXPECT_EQ(banner.picContext->pixmap(Qt::ReturnByValue).toImage(),
              imageLists().ImageListContext.pixmap(3, banner.devicePixelRatioF()).toImage());
    const int before = banner.minimumSizeHint().width();
    banner.LblInfo->setText(QString(300, u'W'));
    EXPECT_EQ(banner.minimumSizeHint().width(), before);
}
