#include "folders/clsFolders.h"
#include "platform/jet/errors.h"
#include "support/companytest.h"
#include "support/scriptedsteps.h"

using namespace Qt::StringLiterals;
using namespace company;

namespace {

class FoldersTest : public CompanyTest
{
protected:
    /// Without the company's own folders.
    Rows added() const { return content("Tbl_Folders").sliced(4); }

    /// Kind of account, account, folder and permission of each row.
    Rows permissions() const
    {
        Rows all;
        for (const auto &[kind, table] : {std::pair{"user ", "Tbl_UserFolderPermission"},
                                          {"local ", "Tbl_LocalGroupFolderPermission"},
                                          {"global ", "Tbl_GlobalGroupFolderPermission"}}) {
            for (const QString &row : content(table))
                all += QLatin1StringView(kind) + row;
        }
        return all;
    }

    /// A line is path, name, server and permission with bars between.
    void give(const QStringList &lines)
    {
        QStringList fields[4];
        for (const QString &line : lines) {
            for (int i = 0; i < 4; ++i)
                fields[i] += line.section(u'|', i, i);
        }
        errors +=
            folders.AddPermissionsBatch(connection, fields[0], fields[1], fields[2], fields[3], steps).text;
    }

    /// An account is name, server and permission. Returns the accounts that could not be placed.
    QString permit(const QString &path, const QStringList &accounts)
    {
        jet::Recordset objects;
        makeRecords(objects, {u"Name"_s, u"Server"_s, u"Permission"_s}, fieldsOf(accounts));
        return folders.addPermittedObjects(connection, path, objects);
    }

    /// The rows of other folders than the one.
    static Rows without(const Rows &rows, int folder)
    {
        Rows others;
        for (const QString &row : rows) {
            if (!row.contains(u'|' + QString::number(folder) + u'|'))
                others += row;
        }
        return others;
    }

    clsFolders folders;
    QString errors;
    ScriptedSteps steps;
};

} // namespace

TEST_F(FoldersTest, PathGetsItsBackslashWhenItLacksOne)
{
    folders.Add(connection, u"C:\\Data"_s, u"local"_s);
    folders.Add(connection, {}, {});
    folders.update(connection, 41, u"\\\\SRV01\\Share"_s, u"moved"_s);
    folders.update(connection, 42, u"\\\\SRV02\\Share\\"_s, {});
    EXPECT_EQ(content("Tbl_Folders"), (Rows{u"41|\\\\SRV01\\Share\\|moved"_s, u"42|\\\\SRV02\\Share\\|"_s,
                                            admin, tools, u"45|C:\\Data\\|local"_s, u"46|\\|"_s}));
    for (const QString &path : {u"c:\\DATA"_s, u"C:\\Data\\"_s}) {
        EXPECT_EQ(errorOf([&] { folders.Add(connection, path, {}); }).number, RuleViolation);
        EXPECT_EQ(errorOf([&] { folders.update(connection, 41, path, {}); }).number, RuleViolation);
    }
}

TEST_F(FoldersTest, AddBatch_GoesOnAfterAFailureAndNamesIt)
{
    const QStringList paths = {u"d:\\data"_s, u"C:\\It's"_s, u"C:\\New"_s, u"C:\\Other"_s};
    errors = folders.AddBatch(connection, paths, {u"kept"_s, {}, u"new"_s, u"don't"_s}, true, steps).text;
    EXPECT_EQ(errors, u"\r\nC:\\It's\\ could not be added to DB"
                      "\r\nC:\\Other\\ could not be added to DB"_s);
    EXPECT_EQ(added(), Rows{u"45|C:\\New\\|new"_s});
    EXPECT_EQ(content("Tbl_Folders").first(), data);
    EXPECT_EQ(steps.items.size(), 4);

    errors =
        folders
            .AddBatch(connection, {u"d:\\data"_s, u"C:\\New\\"_s}, {u"changed"_s, u"don't"_s}, false, steps)
            .text;
    EXPECT_EQ(errors, u"\r\nC:\\New\\ could not be added to DB"_s);
    EXPECT_EQ(content("Tbl_Folders").first(2), (Rows{u"41|D:\\Data\\|changed"_s, common}));
    EXPECT_EQ(added(), Rows{u"45|C:\\New\\|new"_s});
}

TEST_F(FoldersTest, AddBatch_OfAPathTwiceUpdatesTheFirst)
{
    errors =
        folders
            .AddBatch(connection, {u"C:\\Data"_s, u"C:\\DATA\\"_s}, {u"first"_s, u"second"_s}, false, steps)
            .text;
    errors += folders.AddBatch(connection, {}, {}, false, steps).text;
    EXPECT_EQ(errors, QString());
    EXPECT_EQ(added(), Rows{u"45|C:\\Data\\|second"_s});
}

TEST_F(FoldersTest, AnAccountKeepsOneRowAFolder)
{
    const Rows before = permissions();
    give({u"D:\\Common|BERT|srv02|L"_s, u"d:\\common\\|bert|SRV02|R"_s, u"D:\\Data|anna|SRV01|R"_s,
          u"D:\\Admin|Admins|SRV01|Full Control"_s});
    EXPECT_EQ(errors, QString());
    Rows after = before;
    after.replace(after.indexOf(u"user 12|42|CH"_s), u"user 12|42|R"_s);
    after.replace(after.indexOf(u"local 33|43|R"_s), u"local 33|43|Full Control"_s);
    after.insert(3, u"user 13|41|R"_s);
    EXPECT_EQ(permissions(), after);
}

TEST_F(FoldersTest, ALocalGroupGoesBeforeAUserOfItsName)
{
    run(u"INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (14,'Staff','SRV01')"_s);
    give({u"C:\\Tools|Staff|SRV01|R"_s});
    EXPECT_EQ(permissions().filter(u"|44|"_s), (Rows{u"user 11|44|R"_s, u"local 31|44|R"_s}));
}

TEST_F(FoldersTest, WhatCannotBeGivenIsNamedAndTheRestGoesOn)
{
    const Rows before = permissions();
    errors = u"before"_s;
    give({u"D:\\Nowhere|anna|SRV01|R"_s, u"D:\\It's|anna|SRV01|R"_s, u"D:\\Data|anna|SRV02|R"_s,
          u"D:\\Data|Staff|DC01|R"_s, u"D:\\Data|O'Brien|SRV01|R"_s, u"D:\\Admin|anna|SRV01|it's"_s});
    EXPECT_EQ(
        errors,
        u"before"
        "\r\nD:\\Nowhere\\ not in DB"
        "\r\nD:\\It's\\ not in DB"
        "\r\nSRV02\\anna is not a Local Group and not a User in DB"
        "\r\nDC01\\Staff is not a Local Group and not a User in DB"
        "\r\nSRV01\\O'Brien is not a Local Group and not a User in DB"
        "\r\nD:\\Admin\\ SRV01\\anna Syntax error (missing operator) in query expression ''it's''. Near 's' at 85."_s);
    EXPECT_EQ(permissions(), before);
    give({u"D:\\Nowhere|anna|SRV01|R"_s, u"D:\\Admin|anna|SRV01|R"_s});
    EXPECT_EQ(permissions().filter(u"user 13"_s), (Rows{u"user 13|42|R"_s, u"user 13|43|R"_s}));
}

TEST_F(FoldersTest, PermittedObjectsReplaceAllPermissionsOfTheFolder)
{
    const Rows others = without(permissions(), 43);
    folders.AddDefaultFolderPermission(connection, u"DC01\\Operators"_s, u"CH"_s);
    EXPECT_EQ(permit(u"d:\\admin\\"_s, {u"bert|SRV02|CH"_s, u"Staff|SRV01|R"_s, u"nobody|SRV01|R"_s,
                                        u"Staff|DC01|Full Control"_s, u"operators|dc01|R"_s,
                                        u"anna|SRV01|L"_s, u"Admins|SRV02|R"_s}),
              u"SRV01\\nobody,SRV02\\Admins,"_s);
    EXPECT_EQ(permissions().filter(u"|43|"_s), (Rows{u"user 12|43|CH"_s, u"user 13|43|L"_s,
                                                     u"local 31|43|R"_s, u"global 21|43|Full Control"_s}));
    EXPECT_EQ(without(permissions(), 43), others);
    EXPECT_EQ(permit(u"D:\\Admin\\"_s, {}), QString());
    EXPECT_EQ(permissions(), others);
}

TEST_F(FoldersTest, PermittedObjects_TheFirstKindOfAccountThatMatchesWins)
{
    run(u"UPDATE Tbl_GlobalGroups SET Name = 'anna', Server = 'SRV01' WHERE ID = 21"_s);
    run(u"UPDATE Tbl_LocalGroups SET Name = 'anna' WHERE ID = 31"_s);
    run(u"UPDATE Tbl_GlobalGroups SET Name = 'Guests', Server = 'SRV02' WHERE ID = 22"_s);
    EXPECT_EQ(permit(u"D:\\Data\\"_s, {u"anna|SRV01|L"_s, u"Guests|SRV02|L"_s}), QString());
    EXPECT_EQ(permissions().filter(u"|41|"_s), (Rows{u"user 13|41|L"_s, u"local 32|41|L"_s}));
}

TEST_F(FoldersTest, PermittedObjects_KeepTheOldRowsWhenAnAccountCannotBeLookedUp)
{
    const Rows before = permissions();
    CurrentError error = errorOf([&] {
        permit(u"D:\\Data\\"_s, {u"bert|SRV02|CH"_s, u"O'Brien|SRV01|R"_s});
    });
    EXPECT_EQ(error.number, jet::SyntaxError);

    // The path is taken as it stands: this one is not in the store.
    error = errorOf([&] { permit(u"D:\\Data"_s, {}); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, u"The specified Folder does not exist in your Database"_s);
    EXPECT_EQ(folders.errorNumber(), RuleViolation);
    EXPECT_EQ(permissions(), before);
}

TEST_F(FoldersTest, PermittedObjects_AreWrittenUsersFirstAndGlobalGroupsLast)
{
    EXPECT_EQ(errorOf([&] {
                  permit(u"D:\\Data\\"_s, {u"Guests|DC02|R"_s, u"Admins|SRV01|it's"_s, u"anna|SRV01|R"_s});
              }).number,
              jet::SyntaxError);
    EXPECT_EQ(permissions().filter(u"|41|"_s), (Rows{u"user 13|41|R"_s, u"global 21|41|CH"_s}))
        << "the users are replaced, the local groups cleared and the global ones untouched";
}
