#include "platform/jet/errors.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "support/companytest.h"
#include "support/scriptedsteps.h"

using namespace Qt::StringLiterals;

namespace {

/// What both kinds of groups do, reported by the place of a group in the company: 1 for Staff.
template <typename Groups>
class GroupsTest : public CompanyTest
{
protected:
    static constexpr bool isGlobal = std::is_same_v<Groups, clsGlobalGroups>;

    /// Lines with bars between their fields; "$1" is the first server of the groups.
    QList<QStringList> fieldsWithServers(QStringList lines) const
    {
        return fieldsOf(lines.replaceInStrings(u"$"_s, server));
    }

    void importGroups(const QStringList &lines, bool leaveExisting)
    {
        jet::Recordset records;
        makeRecords(records, {u"Name"_s, u"Server"_s, u"Description"_s}, fieldsWithServers(lines));
        groups.AddBatch(connection, records, leaveExisting, steps, report);
    }

    /// The fields in another order than the batch asks for them, one too many.
    void importMembers(const QStringList &lines)
    {
        jet::Recordset records;
        makeRecords(records, {u"Line"_s, u"UserServer"_s, u"UserName"_s, u"GroupServer"_s, u"GroupName"_s},
                    fieldsWithServers(lines));
        groups.AddUsersBatch(connection, records, steps, report);
    }

    /// The groups with the number of their server.
    Rows described() const
    {
        return byPlace(isGlobal ? "Tbl_GlobalGroups" : "Tbl_LocalGroups").replaceInStrings(server, QString());
    }
    /// Group and user of each row.
    Rows memberships() const { return byPlace(isGlobal ? "Tbl_GlobalGroupsUsers" : "Tbl_LocalGroupsUsers"); }
    Rows byPlace(const char *table) const
    {
        Rows all = content(table);
        for (QString &row : all)
            row.remove(0, 1);
        return all;
    }

    Groups groups;
    const QString notFound = isGlobal ? u" Global Group not found"_s : u" Local Group not found"_s;
    const QString server = isGlobal ? u"DC0"_s : u"SRV0"_s;
    const QString first = server + u'1';
    const QString second = server + u'2';
    QString text; ///< of what is not a batch of its own
    Report report;
    ScriptedSteps steps;
};

struct GroupClassNames
{
    template <typename Groups>
    static std::string GetName(int)
    {
        return std::is_same_v<Groups, clsGlobalGroups> ? "Global" : "Local";
    }
};

} // namespace

using GroupClasses = testing::Types<clsGlobalGroups, clsLocalGroups>;
TYPED_TEST_SUITE(GroupsTest, GroupClasses, GroupClassNames);

TYPED_TEST(GroupsTest, Add_HandsBackTheIdAndLeavesItWhenItFails)
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
    EXPECT_EQ(id, this->isGlobal ? 24 : 34);
}

TYPED_TEST(GroupsTest, AddBatch_ChangesOnlyTheDescriptionOfAKnownGroup)
{
    const QStringList lines = {"STAFF|"_L1 + this->first.toLower() + "|new"_L1, u"Staff|$2|other server"_s,
                               u"Twice|$2|first"_s, u"Twice|$2|it''s"_s, u"Bare|$2"_s};
    Rows expected = {u"1|Staff|1|All"_s,          u"2|Guests|2|-"_s,    u"3|Admins|1|-"_s,
                     u"4|Staff|2|other server"_s, u"5|Twice|2|first"_s, u"6|Bare|2|"_s};
    this->importGroups(lines, true);
    EXPECT_EQ(this->described(), expected);
    expected[0] = u"1|Staff|1|new"_s;
    expected[4] = u"5|Twice|2|it's"_s;
    this->importGroups(lines, false);
    EXPECT_EQ(this->described(), expected);
}

TYPED_TEST(GroupsTest, AddBatch_EndsAtTheFirstFailureAndKeepsTheRowsBeforeIt)
{
    const CurrentError error = errorOf([&] {
        this->importGroups({u"A|S|fine"_s, u"B|S|it's"_s, u"C|S|fine"_s}, false);
    });
    EXPECT_EQ(error.number, jet::SyntaxError);
    EXPECT_EQ(this->groups.errorDescription(), error.description);
    EXPECT_EQ(this->described().sliced(3), Rows{u"4|A|S|fine"_s});
}

TYPED_TEST(GroupsTest, BatchesAskForTheirFieldsBeforeTheyWrite)
{
    jet::Recordset none;
    none.open();
    this->groups.AddBatch(this->connection, none, false, this->steps, this->report);
    this->groups.AddUsersBatch(this->connection, none, this->steps, this->report);
    EXPECT_EQ(this->report.text, QString());

    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Server"_s}, {{u"New"_s, u"S"_s}});
    CurrentError error =
        errorOf([&] { this->groups.AddBatch(this->connection, records, false, this->steps, this->report); });
    EXPECT_EQ(error.number, jet::ItemNotFound);
    EXPECT_TRUE(error.description.contains(u"'Description'")) << error.description.toStdString();
    error =
        errorOf([&] { this->groups.AddUsersBatch(this->connection, records, this->steps, this->report); });
    EXPECT_EQ(error.number, jet::ItemNotFound);
    EXPECT_TRUE(error.description.contains(u"'UserName'")) << error.description.toStdString();
    EXPECT_EQ(this->described().size(), 3);
}

TYPED_TEST(GroupsTest, AddUsersBatch_OnlyAddsAndNamesWhatIsMissing)
{
    this->importMembers({
        "7|srv01|ANNA|"_L1 + this->first.toLower() + "|staff"_L1,
        u"7|SRV01|anna|$1|Staff"_s,
        u"7|SRV01|nobody|$1|Staff"_s,
        u"7|SRV02|anna|$1|nowhere"_s,
        u"7|SRV01|rolf|$2|Staff"_s,
        u"7|SRV01|rolf|$2|Guests"_s,
    });
    EXPECT_EQ(this->memberships(), (Rows{u"1|11"_s, u"1|12"_s, u"1|13"_s, u"2|11"_s, u"2|12"_s, u"3|13"_s}));
    EXPECT_EQ(this->report.text, "\r\n\r\n"_L1 + this->first +
                                     "\\Staff\tSRV01\\nobody User not found\r\n\r\n"_L1 + this->first +
                                     "\\nowhere\tSRV02\\anna User not found\r\n\r\n\t"_L1 + this->second +
                                     "\\Staff"_L1 + this->notFound);
    EXPECT_EQ(this->steps.items.size(), 6);
}

TYPED_TEST(GroupsTest, AddUsersBatch_EndsAtAFailureOfTheStore)
{
    const CurrentError error = errorOf([&] {
        this->importMembers({
            u"7|SRV01|anna|$1|Staff"_s,
            u"7|SRV01|nobody|$1|Staff"_s,
            u"7|SRV01|o'brien|$1|Staff"_s,
            u"7|SRV01|rolf|$2|Guests"_s,
        });
    });
    EXPECT_EQ(error.number, jet::SyntaxError);
    EXPECT_EQ(this->memberships(), (Rows{u"1|11"_s, u"1|12"_s, u"1|13"_s, u"2|12"_s, u"3|13"_s}));
    EXPECT_EQ(this->report.text, "\r\n\r\n"_L1 + this->first + "\\Staff\tSRV01\\nobody User not found"_L1);
}

class LocalGroupsTest : public GroupsTest<clsLocalGroups>
{
protected:
    void nest(const QStringList &lines)
    {
        jet::Recordset records;
        makeRecords(
            records,
            {u"LocalGroupName"_s, u"LocalGroupServer"_s, u"GlobalGroupName"_s, u"GlobalGroupServer"_s},
            fieldsOf(lines));
        groups.AddGlobalGroupsBatch(connection, records, steps, report);
    }

    void permit(const QString &group, const QStringList &lines)
    {
        jet::Recordset records;
        makeRecords(records, {u"Name"_s, u"Permission"_s}, fieldsOf(lines));
        groups.addFoldersBatch(connection, group, records, text);
    }

    Rows permissions() const { return byPlace("Tbl_LocalGroupFolderPermission"); }
};

TEST_F(LocalGroupsTest, AddGlobalGroupsBatch_OnlyAddsAndNamesWhatIsMissing)
{
    nest({u"Staff|SRV01|Staff|DC01"_s, u"Staff|SRV01|guests|dc02"_s, u"Staff|SRV01|Guests|DC01"_s,
          u"Staff|SRV02|Guests|DC02"_s, u"Staff|SRV02|Guests|DC01"_s, u"Guests|SRV02|Admins|DC01"_s});
    EXPECT_EQ(content("Tbl_LocalGroupsGlobalGroups"),
              (Rows{u"31|21"_s, u"31|22"_s, u"32|21"_s, u"32|22"_s, u"32|23"_s, u"33|23"_s}));
    EXPECT_EQ(report.text, u"\r\n\r\nSRV01\\Staff\tDC01\\Guests Global Group not found"
                           "\r\n\r\n\tSRV02\\Staff Local Group not found"
                           "\r\n\r\nSRV02\\Staff\tDC01\\Guests Global Group not found"_s);
    EXPECT_EQ(steps.items.size(), 6);
}

TEST_F(LocalGroupsTest, AddGlobalGroupsBatch_EndsAtAFailureOfTheStore)
{
    EXPECT_EQ(
        errorOf([&] {
            nest({u"Staff|SRV01|Guests|DC02"_s, u"Staff|SRV'01|Staff|DC01"_s, u"Staff|SRV01|Admins|DC01"_s});
        }).number,
        jet::SyntaxError);
    EXPECT_EQ(content("Tbl_LocalGroupsGlobalGroups").first(2), (Rows{u"31|21"_s, u"31|22"_s}));
    EXPECT_EQ(text, QString());
    EXPECT_EQ(steps.items.size(), 2);
}

TEST_F(LocalGroupsTest, AddFoldersBatch_AddsMissingFoldersAndNamesTheImpossible)
{
    text = u"before,"_s;
    permit(u"STAFF"_s,
           {u"d:\\data\\|CH"_s, u"D:\\It's\\|R"_s, u"D:\\New|CH"_s, u"D:\\Don't\\|R"_s, u"D:\\New|R"_s});
    EXPECT_EQ(text, u"before,D:\\It's\\,D:\\Don't\\,"_s);
    EXPECT_EQ(permissions(), (Rows{u"1|41|CH"_s, u"1|42|CH"_s, u"1|45|R"_s, u"2|43|L"_s, u"3|43|R"_s}));
    EXPECT_EQ(rows(u"SELECT ID, FolderName FROM Tbl_Folders WHERE ID > 44"_s), Rows{u"45|D:\\New"_s});

    const CurrentError error = errorOf([&] { permit(u"nobody"_s, {u"D:\\Newer\\|R"_s}); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, u"The specified Local Group does not exist in your Database"_s);
    EXPECT_EQ(content("Tbl_Folders").size(), 5) << "the group is looked for before a folder is added";
}

TEST_F(LocalGroupsTest, AddFoldersBatch_KeepsTheFoldersWhenAPermissionIsRefused)
{
    EXPECT_EQ(errorOf([&] {
                  permit(u"Staff"_s, {u"D:\\New\\|R"_s, u"D:\\Newer\\|it's"_s});
              }).number,
              jet::SyntaxError);
    EXPECT_EQ(rows(u"SELECT FolderName FROM Tbl_Folders WHERE ID > 44 ORDER BY ID"_s),
              (Rows{u"D:\\New\\"_s, u"D:\\Newer\\"_s}));
    EXPECT_EQ(permissions().filter(u"1|45"_s), Rows{u"1|45|R"_s});
}

TEST_F(LocalGroupsTest, AddFoldersBatch_TakesOneOfTheGroupsOfAName)
{
    run(u"UPDATE Tbl_LocalGroups SET Name = 'Guests' WHERE ID = 33"_s);
    permit(u"Guests"_s, {u"D:\\Data\\|Full Control"_s});
    EXPECT_EQ(permissions().filter(u"|41|Full Control"_s).size(), 1);
    EXPECT_EQ(permissions().size(), 5);
}
