#include "views/displaymodes.h"
#include "views/family.h"

#include <QSet>
#include <QString>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DisplayModesTest, SeventeenModesInTheOrderOfTheMatrices)
{
    const std::span<const DisplayMode> modes = displayModes();
    ASSERT_EQ(modes.size(), 17U);
    QSet<QString> texts;
    for (std::size_t i = 0; i < modes.size(); ++i) {
        texts += QString(modes[i].mode);
        EXPECT_EQ(displayModeIndex(QString(modes[i].mode)), int(i));
        EXPECT_EQ(modes[i].family == ModeFamily::Live, QString(modes[i].mode).startsWith("NT"_L1));
    }
    EXPECT_EQ(texts.size(), 17);
    EXPECT_EQ(displayMode(u"DisplayFolderDefaultPermissions").bannerPicture, 12);
    EXPECT_EQ(displayMode(u"DisplayFolderDefaultPermissions").rowPicture, 14);
}

TEST(DisplayModesTest, ATextThatIsNoModeIsUnknownAndOfNoFamily)
{
    for (const QStringView text : {u"", u"displayusers", u"DisplayUsers ", u"DisplayEverything"}) {
        EXPECT_EQ(displayMode(text).family, ModeFamily::None);
        EXPECT_EQ(displayMode(text).bannerPicture, 10);
        EXPECT_EQ(displayMode(text).rowPicture, 10);
        EXPECT_EQ(displayModes()[std::size_t(displayModeIndex(text))].mode, mode::DisplayUnknown);
    }
}

TEST(FamilyTest, TheLastRegistrationOfAModeCounts)
{
    EXPECT_EQ(familyOf(u"NoSuchMode"), nullptr);
    int called = 0;
    registerFamily(u"TestMode", {.listAll = [&](frmDisplay *) { called = 1; }, .operations = {}});
    registerFamily(u"TestMode", {.listAll = [&](frmDisplay *) { called = 2; },
                                 .operations = {{u"Edit"_s, [&](frmDisplay &) { called = 3; }}}});
    ASSERT_NE(familyOf(u"TestMode"), nullptr);
    familyOf(u"TestMode")->listAll(nullptr);
    EXPECT_EQ(called, 2);
    EXPECT_TRUE(familyOf(u"TestMode")->operations.contains(u"Edit"_s));
    registerFamily(u"TestMode", {});
}
