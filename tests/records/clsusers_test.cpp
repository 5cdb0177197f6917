#include "platform/jet/errors.h"
#include "store/clsUsers.h"
#include "support/companytest.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace company;

namespace {

constexpr auto alreadyExists = "Cannot Add/Edit User. User already exists in the Database"_L1;

UserRecord account(const QString &name, const QString &server, int id = 0)
{
    UserRecord user;
    user.UserID = id;
    user.UserName = name;
    user.ServerName = server;
    return user;
}

/// Every member different, so that a value in the wrong column shows.
// clang-format off
UserRecord fullRecord()
{
    return {
        77, u"jdoe"_s, u"secret"_s, u"30"_s, 2, u"\\\\SRV01\\Home"_s, u"a comment"_s, 513, 1, 0, 1, 0,
        u"logon.bat"_s, 3, u"Jörg Dœ"_s, u"user comment"_s, u"parms"_s, u"WS1,WS2"_s,
        u"1/15/2005 2:30:00 PM"_s, u"1/16/2005"_s, u"12/31/2010"_s, -1, 168, u"255"_s, 4, 5, u"\\\\*"_s, 49,
        850, 513, u"profile"_s, u"H:"_s, 1, u"SRV01"_s, u"S-1-5"_s, u"Mr."_s, u"Dr."_s, u"Doe"_s, u"Jörg"_s,
        u"Admin"_s, u"j@example.com"_s, u"IT"_s, u"5100"_s, u"1"_s, u"2"_s, u"3"_s, u"North"_s};
}
// clang-format on

const QString fullRow =
    u"77|jdoe|secret|30|2|\\\\SRV01\\Home|a comment|513|True|False|True|False|logon.bat|3|"
    "Jörg Dœ|user comment|parms|WS1,WS2|1/15/2005 2:30:00 PM|1/16/2005|12/31/2010|-1|168|255|"
    "4|5|\\\\*|49|850|513|profile|H:|True|SRV01|S-1-5|Mr.|Dr.|Doe|Jörg|Admin|j@example.com|"
    "IT|5100|1|2|3|North"_s;

class UsersTest : public RecordTest
{
protected:
    clsUsers users;
};

class UserRelationsTest : public CompanyTest
{
protected:
    clsUsers users;
};

} // namespace

TEST_F(UsersTest, Add_WritesEveryColumn)
{
    UserRecord user = fullRecord();
    users.Add(connection, user);
    EXPECT_EQ(rows(u"SELECT * FROM Tbl_Users"_s), Rows{fullRow});
}

TEST_F(UsersTest, Update_WritesEveryColumnButTheId)
{
    UserRecord old = account(u"before"_s, u"SRV09"_s, 77);
    UserRecord other = account(u"other"_s, u"SRV01"_s, 5);
    users.Add(connection, old);
    users.Add(connection, other);
    users.update(connection, fullRecord());
    EXPECT_EQ(rows(u"SELECT * FROM Tbl_Users WHERE UserID = 77"_s), Rows{fullRow});
    EXPECT_EQ(rows(u"SELECT UserName FROM Tbl_Users WHERE UserID = 5"_s), Rows{u"other"_s});
}

TEST_F(UsersTest, Add_AllocatesIdsAboveTheHighest)
{
    UserRecord first = account(u"first"_s, u"SRV01"_s);
    users.Add(connection, first);
    EXPECT_EQ(first.UserID, 1);
    UserRecord given = account(u"given"_s, u"SRV01"_s, 500);
    users.Add(connection, given);
    EXPECT_EQ(given.UserID, 500);
    UserRecord next = account(u"next"_s, u"SRV01"_s);
    users.Add(connection, next);
    EXPECT_EQ(next.UserID, 501);
    UserRecord refused = account(u"next"_s, u"SRV01"_s);
    EXPECT_EQ(errorOf([&] { users.Add(connection, refused); }).number, RuleViolation);
    EXPECT_EQ(refused.UserID, 502);
    UserRecord taken = account(u"taken"_s, u"SRV01"_s, 501);
    users.Add(connection, taken);
    EXPECT_EQ(rows(u"SELECT UserName FROM Tbl_Users WHERE UserID = 501 ORDER BY UserName"_s),
              (Rows{u"next"_s, u"taken"_s}));

    UserRecord highest = account(u"highest"_s, u"SRV01"_s, std::numeric_limits<int>::max());
    users.Add(connection, highest);
    UserRecord none = account(u"none"_s, u"SRV01"_s);
    const CurrentError error = errorOf([&] { users.Add(connection, none); });
    EXPECT_EQ(error.number, jet::TypeMismatch);
    EXPECT_TRUE(error.description.contains(u"2147483647")) << error.description.toStdString();
    EXPECT_EQ(none.UserID, 0);
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_Users WHERE UserName = 'none'"_s), Rows());
}

TEST_F(UsersTest, TakenNameAndServerAreRefusedWithNothingWritten)
{
    UserRecord anna = account(u"Anna"_s, u"SRV01"_s);
    UserRecord elsewhere = account(u"Anna"_s, u"SRV02"_s);
    users.Add(connection, anna);
    users.Add(connection, elsewhere);
    const Rows before = rows(u"SELECT * FROM Tbl_Users ORDER BY UserID"_s);

    UserRecord again = account(u"ANNA"_s, u"srv01"_s);
    CurrentError error = errorOf([&] { users.Add(connection, again); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, alreadyExists);
    EXPECT_EQ(users.errorNumber(), RuleViolation);
    EXPECT_EQ(users.errorDescription(), alreadyExists);

    elsewhere.ServerName = u"SRV01"_s;
    error = errorOf([&] { users.update(connection, elsewhere); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, alreadyExists);
    EXPECT_EQ(rows(u"SELECT * FROM Tbl_Users ORDER BY UserID"_s), before);

    anna.Department = u"IT"_s;
    users.update(connection, anna);
    EXPECT_EQ(rows(u"SELECT UserName, Department FROM Tbl_Users WHERE UserID = 1"_s), Rows{u"Anna|IT"_s});
}

TEST_F(UsersTest, ApostropheIsRefusedByTheEngineInAddAndUpdate)
{
    UserRecord user = account(u"jdoe"_s, u"SRV01"_s);
    user.Comment = u"it's new"_s;
    EXPECT_EQ(errorOf([&] { users.Add(connection, user); }).number, jet::SyntaxError);
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_Users"_s), Rows());

    user.Comment.clear();
    users.Add(connection, user);
    user.Comment = u"it's new"_s;
    EXPECT_EQ(errorOf([&] { users.update(connection, user); }).number, jet::SyntaxError);
    EXPECT_EQ(rows(u"SELECT Comment FROM Tbl_Users"_s), Rows{u""_s});
}

TEST_F(UsersTest, Import_ReplacesTheTableByTheNamedRemoteUsers)
{
    UserRecord old = account(u"old"_s, u"SRV01"_s);
    users.Add(connection, old);
    run(u"INSERT INTO Tbl_Remote_Users (UserID, UserName, ServerName, LastName) VALUES (7,'remote','SRV02','Ü')"_s);
    run(u"INSERT INTO Tbl_Remote_Users (UserID, UserName) VALUES (8,'')"_s);
    run(u"INSERT INTO Tbl_Remote_Users (UserID) VALUES (9)"_s);
    users.Import(connection);
    EXPECT_EQ(rows(u"SELECT UserID, UserName, ServerName, LastName FROM Tbl_Users"_s),
              Rows{u"7|remote|SRV02|Ü"_s});
    run(u"DROP TABLE Tbl_Users"_s);
    users.Import(connection);
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_Users"_s), Rows{u"7"_s});
}

TEST_F(UserRelationsTest, AddFoldersBatch_AddsMissingFoldersAndNamesTheImpossible)
{
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Permission"_s},
                {{u"D:\\Admin\\"_s, u"R"_s}, {u"D:\\It's\\"_s, u"R"_s}, {u"D:\\New\\"_s, u"CH"_s}});
    QString failed = u"before,"_s;
    users.addFoldersBatch(connection, u"anna"_s, records, failed);
    EXPECT_EQ(failed, u"before,D:\\It's\\,"_s);
    EXPECT_EQ(rows(u"SELECT FolderID, Permission FROM Tbl_UserFolderPermission WHERE UserID = 13 "
                   "ORDER BY FolderID"_s),
              (Rows{u"42|R"_s, u"43|R"_s, u"45|CH"_s}));
    EXPECT_EQ(rows(u"SELECT ID, FolderName FROM Tbl_Folders WHERE ID > 44"_s), Rows{u"45|D:\\New\\"_s});

    const CurrentError error =
        errorOf([&] { users.addFoldersBatch(connection, u"nobody"_s, records, failed); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, u"The specified User does not exist in your Database"_s);
}

TEST_F(UserRelationsTest, AddFoldersBatch_EndsWhereTheFoldersAreGone)
{
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Permission"_s}, {{u"D:\\New\\"_s, u"R"_s}});
    run(u"DROP TABLE Tbl_Folders"_s);
    const Rows before = content("Tbl_UserFolderPermission");
    QString failed;
    const CurrentError error =
        errorOf([&] { users.addFoldersBatch(connection, u"anna"_s, records, failed); });
    EXPECT_EQ(error.number, jet::MissingTable);
    EXPECT_TRUE(error.description.contains(u"Tbl_Folders")) << error.description.toStdString();
    EXPECT_EQ(failed, QString());
    EXPECT_EQ(content("Tbl_UserFolderPermission"), before);
}
