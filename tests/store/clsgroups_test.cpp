#include "clsgroupstest.h"
#include "platform/jet/errors.h"

TYPED_TEST_SUITE(GroupTwins, GroupClasses, GroupClassNames);

TYPED_TEST(GroupTwins, Add_HandsBackTheIdAndNeverOneThatWasUsed)
{
    EXPECT_EQ(this->add(u"Staff"_s, u"SRV01"_s, u"All"_s), 1);
    EXPECT_EQ(this->add(u"Admins"_s, u"SRV01"_s), 2);
    EXPECT_EQ(this->add(u"Staff"_s, u"SRV02"_s), 3);
    this->groups.Delete(this->connection, QList<int>{2, 3, 99});
    EXPECT_EQ(this->add(u"Guests"_s, u"SRV01"_s), 4);
    this->groups.Delete(this->connection, QList<int>{1, 4});
    EXPECT_EQ(this->add(u"Staff"_s, u"SRV01"_s), 5);
    EXPECT_EQ(this->all(), Rows{u"5|Staff|SRV01|"_s});
}

TYPED_TEST(GroupTwins, TakenNameAndServerAreRefusedWithNothingWritten)
{
    this->add(u"Staff"_s, u"SRV01"_s, u"All"_s);
    this->add(u"Staff"_s, u"SRV02"_s);
    this->add({}, {});
    const Rows before = this->all();
    const auto expectRefused = [this](const auto &step) {
        const CurrentError error = errorOf(step);
        EXPECT_EQ(error.number, RuleViolation);
        EXPECT_EQ(error.description, this->names.alreadyExists);
        EXPECT_EQ(this->groups.errorNumber(), RuleViolation);
        EXPECT_EQ(this->groups.errorDescription(), this->names.alreadyExists);
    };
    int id = -7;
    expectRefused([&] { this->groups.Add(this->connection, u"srv01"_s, u"STAFF"_s, {}, id); });
    expectRefused([&] { this->groups.Add(this->connection, {}, {}, u"second"_s, id); });
    expectRefused([&] { this->groups.update(this->connection, 2, u"SRV01"_s, u"Staff"_s, {}); });
    EXPECT_EQ(id, -7);
    EXPECT_EQ(this->all(), before);
}

TYPED_TEST(GroupTwins, Update_RewritesTheNamedGroup)
{
    this->add(u"Staff"_s, u"SRV01"_s);
    this->add(u"Admins"_s, u"SRV01"_s);
    this->groups.update(this->connection, 1, u"SRV01"_s, u"STAFF"_s, u"its own name"_s);
    this->groups.update(this->connection, 2, u"SRV09"_s, u"Ädmins"_s, {});
    EXPECT_EQ(this->all(), (Rows{u"2|Ädmins|SRV09|"_s, u"1|STAFF|SRV01|its own name"_s}));
}

TYPED_TEST(GroupTwins, ApostropheIsRefusedByTheStoreWhereverItStands)
{
    this->add(u"Staff"_s, u"SRV01"_s);
    int id = -7;
    jet::Recordset found;
    const std::function<void()> steps[] = {
        [&] { this->groups.Add(this->connection, u"SRV01"_s, u"Ann's"_s, {}, id); },
        [&] { this->groups.Add(this->connection, u"SRV01"_s, u"Ann"_s, u"it's"_s, id); },
        [&] { this->groups.update(this->connection, 1, u"SRV'01"_s, u"Staff"_s, {}); },
        [&] { this->groups.update(this->connection, 1, u"SRV01"_s, u"Staff"_s, u"it's"_s); },
        [&] { this->groups.Find(this->connection, found, u"'"_s); },
    };
    for (const auto &step : steps) {
        EXPECT_EQ(errorOf(step).number, jet::SyntaxError);
        EXPECT_EQ(this->groups.errorNumber(), jet::SyntaxError);
    }
    EXPECT_EQ(found.state(), jet::StateClosed);
    EXPECT_EQ(id, -7);
    EXPECT_EQ(this->all(), Rows{u"1|Staff|SRV01|"_s});
}

TYPED_TEST(GroupTwins, ReadersGiveTheirRows)
{
    this->fillStore();
    const auto names = [this](const QString &part) {
        jet::Recordset found;
        this->groups.Find(this->connection, found, part);
        return rowsOf(found);
    };
    EXPECT_EQ(this->all(), (Rows{u"2|Admins|SRV02|-"_s, u"1|Staff|SRV01|All"_s}));
    EXPECT_EQ(names({}), this->all());
    EXPECT_EQ(names(u"TAF"_s), Rows{u"1|Staff|SRV01|All"_s});
    EXPECT_EQ(names(u"nobody"_s), Rows());
    EXPECT_EQ(this->allNames(), (Rows{u"2|SRV02\\Admins"_s, u"1|SRV01\\Staff"_s}));

    this->groups.addUsers(this->connection, 1, QList<int>{3, 1, 2});
    this->groups.addFolders(this->connection, 1, QList<int>{2, 1}, {u"CH"_s, u"R"_s}, false);
    EXPECT_EQ(this->usersOf(1),
              (Rows{u"3|-|-|cleo|SRV01"_s, u"1|Ärmel|Anna|anna|SRV01"_s, u"2|Zorn|Bert|bert|SRV02"_s}));
    EXPECT_EQ(this->foldersOf(1), (Rows{u"2|D:\\Admin\\|-|CH"_s, u"1|D:\\Data\\|Data|R"_s}));
    EXPECT_EQ(this->usersOf(2), Rows());
    EXPECT_EQ(this->foldersOf(2), Rows());
}

TYPED_TEST(GroupTwins, AddUsers_MakesThemTheOnlyOnesOnceEach)
{
    this->fillStore();
    this->groups.addUsers(this->connection, 2, QList<int>{3});
    this->groups.addUsers(this->connection, 1, QList<int>{1, 2, 1});
    EXPECT_EQ(this->memberships(), (Rows{u"1|1"_s, u"1|2"_s, u"2|3"_s}));
    this->groups.addUsers(this->connection, 1, QList<int>{3});
    EXPECT_EQ(this->memberships(), (Rows{u"1|3"_s, u"2|3"_s}));
    this->groups.addUsers(this->connection, 1, QList<int>());
    EXPECT_EQ(this->memberships(), Rows{u"2|3"_s});
}

TYPED_TEST(GroupTwins, RemoveUsers_EmptiesTheNamedGroups)
{
    this->fillStore();
    this->groups.addUsers(this->connection, 1, QList<int>{1, 2});
    this->groups.addUsers(this->connection, 2, QList<int>{1});
    this->groups.RemoveUsers(this->connection, QList<int>{1, 99});
    EXPECT_EQ(this->memberships(), Rows{u"2|1"_s});
    this->groups.RemoveUsers(this->connection, QList<int>());
    EXPECT_EQ(this->memberships(), Rows{u"2|1"_s});
}

TYPED_TEST(GroupTwins, AddFolders_UpdatesWhatIsThereAndClearsOnRequest)
{
    this->fillStore();
    auto &groups = this->groups;
    groups.addFolders(this->connection, 2, QList<int>{1}, {u"L"_s}, true);
    groups.addFolders(this->connection, 1, QList<int>{1}, {u"R"_s}, false);
    groups.addFolders(this->connection, 1, QList<int>{1, 2}, {u"CH"_s, u"Full Control"_s}, false);
    EXPECT_EQ(this->permissions(), (Rows{u"1|1|CH"_s, u"1|2|Full Control"_s, u"2|1|L"_s}));
    groups.addFolders(this->connection, 1, QList<int>{2}, {u"L"_s}, true);
    EXPECT_EQ(this->permissions(), (Rows{u"1|2|L"_s, u"2|1|L"_s}));
    groups.addFolders(this->connection, 1, QList<int>(), {}, false);
    EXPECT_EQ(this->permissions(), (Rows{u"1|2|L"_s, u"2|1|L"_s}));
    groups.addFolders(this->connection, 1, QList<int>(), {}, true);
    EXPECT_EQ(this->permissions(), Rows{u"2|1|L"_s});
}

TYPED_TEST(GroupTwins, AddFolders_KeepsWhatWasDoneBeforeAFailure)
{
    this->fillStore();
    this->groups.addFolders(this->connection, 1, QList<int>{2}, {u"L"_s}, true);
    const CurrentError error = errorOf([&] {
        this->groups.addFolders(this->connection, 1, QList<int>{1, 3, 2}, {u"R"_s, u"it's"_s, u"R"_s}, true);
    });
    EXPECT_EQ(error.number, jet::SyntaxError);
    EXPECT_EQ(this->permissions(), Rows{u"1|1|R"_s});
}

TYPED_TEST(GroupTwins, MissingStoreIsToldAndKept)
{
    const QString nowhere = jet::connectionString(this->folder.filePath(u"nowhere.kvs"_s));
    auto &groups = this->groups;
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Server"_s, u"Description"_s}, {{u"a"_s, u"b"_s, u"c"_s}});
    jet::Recordset result;
    int id = 0;
    const std::function<void()> steps[] = {
        [&] { groups.getAll(nowhere, result); },
        [&] { groups.Add(nowhere, u"SRV01"_s, u"Staff"_s, {}, id); },
        [&] { groups.Delete(nowhere, QList<int>{1}); },
        [&] { groups.addUsers(nowhere, 1, QList<int>{1}); },
        [&] { groups.AddBatch(nowhere, records, false); },
    };
    for (const auto &step : steps) {
        const CurrentError error = errorOf(step);
        EXPECT_EQ(error.number, jet::Failure);
        EXPECT_TRUE(error.description.contains(u"nowhere.kvs")) << error.description.toStdString();
        EXPECT_EQ(groups.errorDescription(), error.description);
    }
}

// --- what is not alike ---

using GlobalGroups = GroupTwins<clsGlobalGroups>;
using LocalGroups = GroupTwins<clsLocalGroups>;

class GroupRelationsTest : public GlobalGroups
{
protected:
    void SetUp() override
    {
        GlobalGroups::SetUp();
        fillStore();
        StoreSession store(connection);
        for (const char *statement : {
                 "INSERT INTO Tbl_LocalGroups (Name,Server,Description) VALUES ('Printers','SRV01','Print')",
                 "INSERT INTO Tbl_LocalGroups (Name,Server) VALUES ('Data','SRV02')",
                 "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID,UserID) VALUES (1,1)",
                 "INSERT INTO Tbl_LocalGroupsUsers (LocalGroupID,UserID) VALUES (1,1)",
                 "INSERT INTO Tbl_GlobalGroupFolderPermission (GlobalGroupID,FolderID,Permission) "
                 "VALUES (1,1,'R')",
                 "INSERT INTO Tbl_LocalGroupFolderPermission (LocalGroupID,FolderID,Permission) "
                 "VALUES (1,1,'R')",
                 "INSERT INTO Tbl_LocalGroupFolderPermission (LocalGroupID,FolderID,Permission) "
                 "VALUES (2,2,'L')",
                 "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES (1,1)",
                 "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES (2,1)",
                 "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES (1,2)",
             })
            store.execute(QString::fromUtf8(statement));
    }

    Rows nesting()
    {
        return rows(u"SELECT LocalGroupID, GlobalGroupID FROM Tbl_LocalGroupsGlobalGroups "
                    "ORDER BY LocalGroupID, GlobalGroupID"_s);
    }
    Rows localPermissions()
    {
        return rows(u"SELECT LocalGroupID, FolderID, Permission FROM Tbl_LocalGroupFolderPermission "
                    "ORDER BY LocalGroupID, FolderID"_s);
    }

    clsLocalGroups localGroups;
};

TEST_F(GroupRelationsTest, DeleteOfAGlobalGroup_LeavesItsUsersAndPermissions)
{
    groups.Delete(connection, QList<int>{1});
    EXPECT_EQ(all(), Rows{u"2|Admins|SRV02|-"_s});
    EXPECT_EQ(nesting(), Rows{u"1|2"_s});
    EXPECT_EQ(memberships(), Rows{u"1|1"_s});
    EXPECT_EQ(permissions(), Rows{u"1|1|R"_s});
}

TEST_F(GroupRelationsTest, DeleteOfALocalGroup_LeavesItsUsers)
{
    localGroups.Delete(connection, QList<int>{1});
    EXPECT_EQ(rows(u"SELECT ID, Name FROM Tbl_LocalGroups"_s), Rows{u"2|Data"_s});
    EXPECT_EQ(nesting(), Rows{u"2|1"_s});
    EXPECT_EQ(localPermissions(), Rows{u"2|2|L"_s});
    EXPECT_EQ(rows(u"SELECT LocalGroupID FROM Tbl_LocalGroupsUsers"_s), Rows{u"1"_s});
}

TEST_F(GroupRelationsTest, RemovalsFromALocalGroup_TakeOneKindOfRowEach)
{
    localGroups.RemoveFolderPermissions(connection, QList<int>{1});
    EXPECT_EQ(localPermissions(), Rows{u"2|2|L"_s});
    EXPECT_EQ(nesting().size(), 3);
    localGroups.RemoveGlobalGroups(connection, QList<int>{1});
    EXPECT_EQ(nesting(), Rows{u"2|1"_s});
    EXPECT_EQ(localPermissions(), Rows{u"2|2|L"_s});
    EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Tbl_LocalGroups"_s), Rows{u"2"_s});
}

TEST_F(GroupRelationsTest, NestingIsTestedFromTheGlobalSideOnly)
{
    groups.addLocalGroups(connection, 2, QList<int>{2, 2});
    EXPECT_EQ(nesting(), (Rows{u"1|1"_s, u"2|1"_s, u"2|2"_s}));
    localGroups.addGlobalGroups(connection, 1, QList<int>{2, 2});
    EXPECT_EQ(nesting(), (Rows{u"1|2"_s, u"1|2"_s, u"2|1"_s, u"2|2"_s}));
    localGroups.addGlobalGroups(connection, 1, QList<int>());
    groups.addLocalGroups(connection, 1, QList<int>());
    EXPECT_EQ(nesting(), Rows{u"2|2"_s});
}

TEST_F(GroupRelationsTest, ReadersOfNestingGiveTheirRows)
{
    const Rows staff = {u"1|Staff|SRV01|All"_s};
    const Rows admins = {u"2|Admins|SRV02|-"_s};
    const Rows data = {u"2|Data|SRV02|-"_s};
    const Rows printers = {u"1|Printers|SRV01|Print"_s};
    const struct
    {
        const char *name;
        void (clsGlobalGroups::*reader)(const QString &, jet::Recordset &, int);
        int id;
        Rows expected;
    } cases[] = {
        {"getLocalGroupMembers", &clsGlobalGroups::getLocalGroupMembers, 1, admins + staff},
        {"getNotLocalGroupMembers", &clsGlobalGroups::getNotLocalGroupMembers, 2, admins},
        {"getNotLocalGroupMembers of none", &clsGlobalGroups::getNotLocalGroupMembers, 9, admins + staff},
        {"getLocalGroups", &clsGlobalGroups::getLocalGroups, 1, data + printers},
        {"getNotLocalGroups", &clsGlobalGroups::getNotLocalGroups, 2, data},
    };
    for (const auto &c : cases) {
        jet::Recordset records;
        (groups.*c.reader)(connection, records, c.id);
        EXPECT_EQ(rowsOf(records), c.expected) << c.name;
    }
    jet::Recordset records;
    localGroups.getGlobalGroups(connection, 1, records);
    EXPECT_EQ(rowsOf(records), admins + staff);
}
