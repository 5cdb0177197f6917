#include "platform/jet/errors.h"
#include "store/clsUsers.h"
#include "support/recordtest.h"

#include <limits>

using namespace Qt::StringLiterals;

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
UserRecord fullRecord()
{
    UserRecord user;
    user.UserID = 77;
    user.UserName = u"jdoe"_s;
    user.Password = u"secret"_s;
    user.PasswordAge = u"30"_s;
    user.Privilege = 2;
    user.HomeDir = u"\\\\SRV01\\Home"_s;
    user.Comment = u"a comment"_s;
    user.FLAGS = 513;
    user.NoChangePwd = 1;
    user.NoExpirePwd = 0;
    user.AccDisabled = 1;
    user.AccLocked = 0;
    user.ScriptPath = u"logon.bat"_s;
    user.AuthFlags = 3;
    user.FullName = u"Jörg Dœ"_s;
    user.UserComment = u"user comment"_s;
    user.Parms = u"parms"_s;
    user.Workstations = u"WS1,WS2"_s;
    user.LastLogon = u"1/15/2005 2:30:00 PM"_s;
    user.LastLogoff = u"1/16/2005"_s;
    user.AcctExpires = u"12/31/2010"_s;
    user.MaxStorage = -1;
    user.UnitsPerWeek = 168;
    user.LogonHours = u"255"_s;
    user.BadPwCount = 4;
    user.NumLogons = 5;
    user.LogonServer = u"\\\\*"_s;
    user.CountryCode = 49;
    user.CodePage = 850;
    user.PrimaryGroupID = 513;
    user.Profile = u"profile"_s;
    user.HomeDirDrive = u"H:"_s;
    user.PasswordExpired = 1;
    user.ServerName = u"SRV01"_s;
    user.SID = u"S-1-5"_s;
    user.Salutation = u"Mr."_s;
    user.Title = u"Dr."_s;
    user.LastName = u"Doe"_s;
    user.FirstName = u"Jörg"_s;
    user.JobTitle = u"Admin"_s;
    user.EmailAddress = u"j@example.com"_s;
    user.Department = u"IT"_s;
    user.CostCenter = u"5100"_s;
    user.PhoneNumber = u"1"_s;
    user.DirectDial = u"2"_s;
    user.MobileNumber = u"3"_s;
    user.Division = u"North"_s;
    return user;
}

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
