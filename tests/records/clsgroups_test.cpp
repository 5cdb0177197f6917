#include "clsgroupstest.h"
#include "platform/jet/errors.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace company;

TYPED_TEST_SUITE(GroupTwins, GroupClasses, GroupClassNames);

TYPED_TEST(GroupTwins, Add_HandsBackTheIdAndLeavesItWhenItFails)
{
    int id = -7;
    const auto add = [&](const QString &name, const QString &description) {
        return errorOf([&] { this->groups.Add(this->connection, this->first, name, description, id); })
            .number;
    };
    EXPECT_EQ(add(u"staff"_s, {}), RuleViolation);
    EXPECT_EQ(add(u"New"_s, u"it's"_s), jet::SyntaxError);
    EXPECT_EQ(id, -7);
    EXPECT_EQ(add(u"New"_s, {}), 0);
    EXPECT_EQ(id, this->staff + 3);
}

TYPED_TEST(GroupTwins, Find_LooksForAPartOfTheName)
{
    const auto found = [this](const QString &part) {
        return rowsFrom([&](auto &result) { this->groups.Find(this->connection, result, part); });
    };
    const Rows byName = {this->names.rows[2], this->names.rows[1], this->names.rows[0]};
    EXPECT_EQ(found({}), byName);
    EXPECT_EQ(found(u"S"_s), byName);
    EXPECT_EQ(found(u"TAF"_s), byName.last(1));
    EXPECT_EQ(errorOf([&] { found(u"'"_s); }).number, jet::SyntaxError);
}

TYPED_TEST(GroupTwins, AddUsers_MakesThemTheOnlyOnesOnceEach)
{
    this->groups.addUsers(this->connection, this->staff, QList<int>{13, 12, 13});
    EXPECT_EQ(this->memberships(), (Rows{u"1|12"_s, u"1|13"_s, u"2|12"_s, u"3|13"_s}));
    this->groups.addUsers(this->connection, this->staff, QList<int>());
    EXPECT_EQ(this->memberships(), (Rows{u"2|12"_s, u"3|13"_s}));
}

TYPED_TEST(GroupTwins, RemoveUsers_EmptiesTheNamedGroups)
{
    this->groups.RemoveUsers(this->connection, QList<int>());
    EXPECT_EQ(this->memberships().size(), 4);
    this->groups.RemoveUsers(this->connection, QList<int>{this->staff, 99, this->guests});
    EXPECT_EQ(this->memberships(), Rows{u"3|13"_s});
}

TYPED_TEST(GroupTwins, AddFolders_UpdatesWhatIsThereAndClearsOnRequest)
{
    const auto add = [this](const QList<int> &folders, const QStringList &permissions, bool clearFirst) {
        this->groups.addFolders(this->connection, this->staff, folders, permissions, clearFirst);
        return this->permissions().filter(QRegularExpression(u"^1"_s));
    };
    const Rows others = this->permissions().filter(QRegularExpression(u"^[23]"_s));
    const QString kept = this->permissions().first();
    ASSERT_EQ(others.size(), 2);
    EXPECT_EQ(add({42, 43}, {u"Full Control"_s, u"R"_s}, false),
              (Rows{kept, u"1|42|Full Control"_s, u"1|43|R"_s}));
    EXPECT_EQ(add({43}, {u"L"_s}, true), Rows{u"1|43|L"_s});
    // What was done before a failure stays.
    EXPECT_EQ(errorOf([&] {
                  add({41, 42, 43}, {u"R"_s, u"it's"_s, u"R"_s}, true);
              }).number,
              jet::SyntaxError);
    EXPECT_EQ(add({}, {}, false), Rows{u"1|41|R"_s});
    EXPECT_EQ(add({}, {}, true), Rows());
    EXPECT_EQ(this->permissions(), others);
}

// --- what is not alike ---

class GroupRelationsTest : public CompanyTest
{
protected:
    Rows nesting() const { return content("Tbl_LocalGroupsGlobalGroups"); }
    Rows localPermissions() const { return content("Tbl_LocalGroupFolderPermission"); }
    /// The tables whose rows outlive a deleted group.
    Rows memberships() const { return content("Tbl_GlobalGroupsUsers") + content("Tbl_LocalGroupsUsers"); }

    clsGlobalGroups globalGroups;
    clsLocalGroups localGroups;
};

TEST_F(GroupRelationsTest, ReadersGiveTheirRows)
{
    // clang-format off
    expectRows(globalGroups, {
        {"getAll", &clsGlobalGroups::getAll, 0, {globalAdmins, globalGuests, globalStaff}},
        {"getAllGlobalGroupNames", &clsGlobalGroups::getAllGlobalGroupNames, 0,
         {u"23|DC01\\Admins"_s, u"22|DC02\\Guests"_s, u"21|DC01\\Staff"_s}},
        {"getUsers", &clsGlobalGroups::getUsers, 21, {bert, rolf}},
        {"getFolders", &clsGlobalGroups::getFolders, 21, {common + u"|L", data + u"|CH"}},
        {"getLocalGroupMembers", &clsGlobalGroups::getLocalGroupMembers, 32, {globalGuests, globalStaff}},
        {"getNotLocalGroupMembers", &clsGlobalGroups::getNotLocalGroupMembers, 31, {globalAdmins, globalGuests}},
        {"getLocalGroups", &clsGlobalGroups::getLocalGroups, 21, {localGuests, localStaff}},
        {"getNotLocalGroups", &clsGlobalGroups::getNotLocalGroups, 22, {localAdmins, localStaff}},
        {"getUsers of none", &clsGlobalGroups::getUsers, 99, {}},
    });
    expectRows(localGroups, {
        {"getAll", &clsLocalGroups::getAll, 0, {localAdmins, localGuests, localStaff}},
        {"getAllLocalGroupNames", &clsLocalGroups::getAllLocalGroupNames, 0,
         {u"33|SRV01\\Admins"_s, u"32|SRV02\\Guests"_s, u"31|SRV01\\Staff"_s}},
        {"getUsers", &clsLocalGroups::getUsers, 31, {bert, rolf}},
        {"getFolders", &clsLocalGroups::getFolders, 31, {common + u"|CH", data + u"|R"}},
        {"getGlobalGroups", &clsLocalGroups::getGlobalGroups, 32, {globalGuests, globalStaff}},
    });
    // clang-format on
}

TEST_F(GroupRelationsTest, RemovalsFromALocalGroup_TakeOneKindOfRowEach)
{
    localGroups.RemoveFolderPermissions(connection, QList<int>{31, 33});
    EXPECT_EQ(localPermissions(), Rows{u"32|43|L"_s});
    EXPECT_EQ(nesting().size(), 4);
    localGroups.RemoveGlobalGroups(connection, QList<int>{31, 32});
    EXPECT_EQ(nesting(), Rows{u"33|23"_s});
    EXPECT_EQ(localPermissions(), Rows{u"32|43|L"_s});
    EXPECT_EQ(content("Tbl_LocalGroups").size(), 3);
}

TEST_F(GroupRelationsTest, NestingIsTestedFromTheGlobalSideOnly)
{
    globalGroups.addLocalGroups(connection, 21, QList<int>{33, 33});
    EXPECT_EQ(nesting(), (Rows{u"32|22"_s, u"33|21"_s, u"33|23"_s}));
    localGroups.addGlobalGroups(connection, 33, QList<int>{22, 22});
    EXPECT_EQ(nesting(), (Rows{u"32|22"_s, u"33|22"_s, u"33|22"_s}));
    localGroups.addGlobalGroups(connection, 33, QList<int>());
    EXPECT_EQ(nesting(), Rows{u"32|22"_s});
    globalGroups.addLocalGroups(connection, 21, QList<int>());
    EXPECT_EQ(nesting(), Rows{u"32|22"_s});
}
