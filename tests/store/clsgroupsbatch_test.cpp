#include "clsgroupstest.h"
#include "platform/jet/errors.h"

namespace {

const QStringList groupFields = {u"Name"_s, u"Server"_s, u"Description"_s};
// In another order than the batch asks for them, one too many.
const QStringList memberFields = {u"Line"_s, u"GroupName"_s, u"GroupServer"_s, u"UserName"_s,
                                  u"UserServer"_s};

QStringList member(const QString &user, const QString &userServer, const QString &group,
                   const QString &groupServer)
{
    return {u"7"_s, group, groupServer, user, userServer};
}

} // namespace

template <typename Groups>
class GroupTwinsBatch : public GroupTwins<Groups>
{
protected:
    void importGroups(const QList<QStringList> &lines, bool leaveExisting)
    {
        jet::Recordset records;
        makeRecords(records, groupFields, lines);
        this->groups.AddBatch(this->connection, records, leaveExisting);
    }

    void importMembers(const QList<QStringList> &lines)
    {
        jet::Recordset records;
        makeRecords(records, memberFields, lines);
        this->groups.AddUsersBatch(this->connection, records, text, [this] { ++breaths; });
    }

    QString text;
    int breaths = 0;
};

TYPED_TEST_SUITE(GroupTwinsBatch, GroupClasses, GroupClassNames);

TYPED_TEST(GroupTwinsBatch, AddBatch_ChangesOnlyTheDescriptionOfAKnownGroup)
{
    this->add(u"Staff"_s, u"SRV01"_s, u"old"_s);
    const QList<QStringList> lines = {{u"STAFF"_s, u"srv01"_s, u"new"_s},
                                      {u"Staff"_s, u"SRV02"_s, u"other server"_s},
                                      {u"Twice"_s, u"SRV02"_s, u"first"_s},
                                      {u"Twice"_s, u"SRV02"_s, u"second"_s}};
    this->importGroups(lines, true);
    const QString select =
        "SELECT ID, Name, Server, Description FROM "_L1 + this->names.groups + " ORDER BY ID"_L1;
    EXPECT_EQ(this->rows(select),
              (Rows{u"1|Staff|SRV01|old"_s, u"2|Staff|SRV02|other server"_s, u"3|Twice|SRV02|first"_s}));
    this->importGroups(lines, false);
    EXPECT_EQ(this->rows(select),
              (Rows{u"1|Staff|SRV01|new"_s, u"2|Staff|SRV02|other server"_s, u"3|Twice|SRV02|second"_s}));
}

TYPED_TEST(GroupTwinsBatch, AddBatch_KeepsAnEscapedApostropheAndWritesNullAsEmpty)
{
    this->importGroups({{u"Staff"_s, u"SRV01"_s, u"it''s"_s}, {u"Admins"_s, u"SRV01"_s}}, false);
    EXPECT_EQ(this->all(), (Rows{u"2|Admins|SRV01|"_s, u"1|Staff|SRV01|it's"_s}));
    this->importGroups({{u"Staff"_s, u"SRV01"_s, u"''"_s}}, false);
    EXPECT_EQ(this->all().last(), u"1|Staff|SRV01|'"_s);
}

TYPED_TEST(GroupTwinsBatch, AddBatch_EndsAtTheFirstFailureAndKeepsTheRowsBeforeIt)
{
    const CurrentError error = errorOf([&] {
        this->importGroups({{u"Staff"_s, u"SRV01"_s, u"fine"_s},
                            {u"Admins"_s, u"SRV01"_s, u"it's"_s},
                            {u"Guests"_s, u"SRV01"_s, u"fine"_s}},
                           false);
    });
    EXPECT_EQ(error.number, jet::SyntaxError);
    EXPECT_EQ(this->groups.errorDescription(), error.description);
    EXPECT_EQ(this->all(), Rows{u"1|Staff|SRV01|fine"_s});
}

TYPED_TEST(GroupTwinsBatch, BatchesAskForTheirFieldsBeforeTheyWrite)
{
    jet::Recordset none;
    none.open();
    this->groups.AddBatch(this->connection, none, false);
    this->groups.AddUsersBatch(this->connection, none, this->text);
    EXPECT_EQ(this->text, QString());

    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Server"_s}, {{u"Staff"_s, u"SRV01"_s}});
    CurrentError error = errorOf([&] { this->groups.AddBatch(this->connection, records, false); });
    EXPECT_EQ(error.number, jet::ItemNotFound);
    EXPECT_TRUE(error.description.contains(u"'Description'")) << error.description.toStdString();
    error = errorOf([&] { this->groups.AddUsersBatch(this->connection, records, this->text); });
    EXPECT_EQ(error.number, jet::ItemNotFound);
    EXPECT_TRUE(error.description.contains(u"'UserName'")) << error.description.toStdString();
    EXPECT_EQ(this->all(), Rows());
}

TYPED_TEST(GroupTwinsBatch, AddUsersBatch_OnlyAddsAndNamesWhatIsMissing)
{
    this->fillStore();
    this->groups.addUsers(this->connection, 1, QList<int>{3});
    this->text = u"before"_s;
    this->importMembers({
        member(u"ANNA"_s, u"srv01"_s, u"staff"_s, u"SRV01"_s),
        member(u"anna"_s, u"SRV01"_s, u"Staff"_s, u"SRV01"_s),
        member(u"nobody"_s, u"SRV01"_s, u"Staff"_s, u"SRV01"_s),
        member(u"anna"_s, u"SRV02"_s, u"nowhere"_s, u"SRV01"_s),
        member(u"bert"_s, u"SRV02"_s, u"Staff"_s, u"SRV02"_s),
        member(u"bert"_s, u"SRV02"_s, u"Admins"_s, u"SRV02"_s),
    });
    EXPECT_EQ(this->memberships(), (Rows{u"1|1"_s, u"1|3"_s, u"2|2"_s}));
    EXPECT_EQ(this->text, "before"
                          "\r\n\r\nSRV01\\Staff\tSRV01\\nobody User not found"
                          "\r\n\r\nSRV01\\nowhere\tSRV02\\anna User not found"
                          "\r\n\r\n\tSRV02\\Staff"_L1 +
                              this->names.notFound);
    EXPECT_EQ(this->breaths, 6);
}

TYPED_TEST(GroupTwinsBatch, AddUsersBatch_EndsAtAFailureOfTheStore)
{
    this->fillStore();
    const CurrentError error = errorOf([&] {
        this->importMembers({
            member(u"anna"_s, u"SRV01"_s, u"Staff"_s, u"SRV01"_s),
            member(u"nobody"_s, u"SRV01"_s, u"Staff"_s, u"SRV01"_s),
            member(u"o'brien"_s, u"SRV01"_s, u"Staff"_s, u"SRV01"_s),
            member(u"bert"_s, u"SRV02"_s, u"Staff"_s, u"SRV01"_s),
        });
    });
    EXPECT_EQ(error.number, jet::SyntaxError);
    EXPECT_EQ(this->memberships(), Rows{u"1|1"_s});
    EXPECT_EQ(this->text, u"\r\n\r\nSRV01\\Staff\tSRV01\\nobody User not found"_s);
}

class LocalGroupsBatchTest : public GroupTwins<clsLocalGroups>
{
protected:
    void SetUp() override
    {
        GroupTwins::SetUp();
        fillStore();
        run(u"INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('Sales','DC01')"_s);
        run(u"INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('Support','DC01')"_s);
    }
};

TEST_F(LocalGroupsBatchTest, AddGlobalGroupsBatch_OnlyAddsAndNamesWhatIsMissing)
{
    groups.addGlobalGroups(connection, 2, QList<int>{1});
    jet::Recordset records;
    makeRecords(records,
                {u"LocalGroupName"_s, u"LocalGroupServer"_s, u"GlobalGroupName"_s, u"GlobalGroupServer"_s},
                {{u"Staff"_s, u"SRV01"_s, u"Sales"_s, u"DC01"_s},
                 {u"Admins"_s, u"SRV02"_s, u"sales"_s, u"dc01"_s},
                 {u"Admins"_s, u"SRV02"_s, u"Support"_s, u"DC02"_s},
                 {u"Admins"_s, u"SRV01"_s, u"Support"_s, u"DC01"_s},
                 {u"Admins"_s, u"SRV02"_s, u"Support"_s, u"DC01"_s}});
    QString text;
    int breaths = 0;
    groups.AddGlobalGroupsBatch(connection, records, text, [&] { ++breaths; });
    EXPECT_EQ(rows(u"SELECT LocalGroupID, GlobalGroupID FROM Tbl_LocalGroupsGlobalGroups "
                   "ORDER BY LocalGroupID, GlobalGroupID"_s),
              (Rows{u"1|1"_s, u"2|1"_s, u"2|2"_s}));
    EXPECT_EQ(text, u"\r\n\r\nSRV02\\Admins\tDC02\\Support Global Group not found"
                    "\r\n\r\n\tSRV01\\Admins Local Group not found"_s);
    EXPECT_EQ(breaths, 5);
}

TEST_F(LocalGroupsBatchTest, AddFoldersBatch_AddsMissingFoldersAndNamesTheImpossible)
{
    groups.addFolders(connection, 1, QList<int>{1, 2}, {u"L"_s, u"L"_s}, true);
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Permission"_s},
                {{u"d:\\admin\\"_s, u"R"_s},
                 {u"D:\\It's\\"_s, u"R"_s},
                 {u"D:\\New"_s, u"CH"_s},
                 {u"D:\\Don't\\"_s, u"R"_s},
                 {u"D:\\New"_s, u"R"_s}});
    QString failed = u"before,"_s;
    groups.addFoldersBatch(connection, u"STAFF"_s, records, failed);
    EXPECT_EQ(failed, u"before,D:\\It's\\,D:\\Don't\\,"_s);
    EXPECT_EQ(foldersOf(1), (Rows{u"2|D:\\Admin\\|-|R"_s, u"1|D:\\Data\\|Data|L"_s, u"3|D:\\New|-|R"_s}));
    EXPECT_EQ(permissions().size(), 3);
}

TEST_F(LocalGroupsBatchTest, AddFoldersBatch_RefusesAnUnknownGroupBeforeItAddsAFolder)
{
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Permission"_s}, {{u"D:\\New\\"_s, u"R"_s}});
    QString failed;
    const CurrentError error =
        errorOf([&] { groups.addFoldersBatch(connection, u"nobody"_s, records, failed); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, u"The specified Local Group does not exist in your Database"_s);
    EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Tbl_Folders"_s), Rows{u"2"_s});
}
