#include "views/modes.h"
#include "views/viewmenus.h"

#include <QString>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ModesTest, AModeAndItsTextAreOne)
{
    for (int i = 0; i < modeCount; ++i) {
        const ModeLook &look = lookOf(Mode(i));
        EXPECT_EQ(modeOf(QString(look.text)), Mode(i));
        EXPECT_EQ(look.family == ModeFamily::Live, QString(look.text).startsWith("NT"_L1));
    }
    for (const QStringView text : {u"", u"displayusers", u"DisplayUsers ", u"DisplayEverything"})
        EXPECT_FALSE(modeOf(text)) << text.toString().toStdString();
    EXPECT_EQ(lookOf(std::nullopt).family, ModeFamily::None);
    EXPECT_EQ(lookOf(std::nullopt).bannerPicture, 10);
}

// What the tables promise beyond their cells.
TEST(ModesTest, EveryEntryHasItsMenuAndNoKeyIsTakenTwice)
{
    QStringList menus;
    QList<int> keys;
    for (const ViewMenuEntry &entry : viewMenuEntries()) {
        EXPECT_TRUE(entry.parent.isEmpty() || menus.contains(entry.parent)) << entry.name.data();
        if (entry.op == Op::None)
            menus.append(entry.name);
        if (entry.key != 0)
            keys.append(entry.key);
    }
    EXPECT_EQ(QSet<int>(keys.begin(), keys.end()).size(), keys.size());
    EXPECT_EQ(menus.first(), u"mnuEditParent"_s);
}
