#include "folderstest.h"
#include "platform/jet/errors.h"

TEST_F(FoldersTest, AddBatch_GoesOnAfterAFailureAndNamesIt)
{
    folders.Add(connection, u"C:\\Known"_s, u"old"_s);
    const QStringList paths = {u"c:\\known"_s, u"C:\\It's"_s, u"C:\\New"_s, u"C:\\Other"_s};
    QString errors = u"before"_s;
    int breaths = 0;
    folders.AddBatch(connection, paths, {u"kept"_s, {}, u"new"_s, u"don't"_s}, true, errors,
                     [&] { ++breaths; });
    EXPECT_EQ(errors, u"before"
                      "\r\nC:\\It's\\ could not be added to DB"
                      "\r\nC:\\Other\\ could not be added to DB"_s);
    EXPECT_EQ(allFolders(), (Rows{u"1|C:\\Known\\|old"_s, u"2|C:\\New\\|new"_s}));
    EXPECT_EQ(breaths, 6) << "four lookups and two inserts";

    errors.clear();
    folders.AddBatch(connection, {u"c:\\known"_s, u"C:\\New\\"_s}, {u"changed"_s, u"don't"_s}, false, errors);
    EXPECT_EQ(errors, u"\r\nC:\\New\\ could not be added to DB"_s);
    EXPECT_EQ(allFolders(), (Rows{u"1|C:\\Known\\|changed"_s, u"2|C:\\New\\|new"_s}));
}

TEST_F(FoldersTest, AddBatch_OfAPathTwiceUpdatesTheFirst)
{
    QString errors;
    folders.AddBatch(connection, {u"C:\\Data"_s, u"C:\\DATA\\"_s}, {u"first"_s, u"second"_s}, false, errors);
    folders.AddBatch(connection, {}, {}, false, errors);
    EXPECT_EQ(errors, QString());
    EXPECT_EQ(allFolders(), Rows{u"1|C:\\Data\\|second"_s});
}

class FolderPermissionsBatchTest : public FolderAccountsTest
{
protected:
    struct Line
    {
        QString path;
        QString name;
        QString server;
        QString permission;
    };

    void give(const QList<Line> &lines)
    {
        QStringList paths;
        QStringList names;
        QStringList servers;
        QStringList words;
        for (const Line &line : lines) {
            paths += line.path;
            names += line.name;
            servers += line.server;
            words += line.permission;
        }
        folders.AddPermissionsBatch(connection, paths, names, servers, words, errors);
    }

    /// Returns the accounts that could not be placed.
    QString permit(const QString &path, const QList<QStringList> &accounts)
    {
        jet::Recordset objects;
        makeRecords(objects, {u"Name"_s, u"Server"_s, u"Permission"_s}, accounts);
        return folders.addPermittedObjects(connection, path, objects);
    }

    QString errors;
};

TEST_F(FolderPermissionsBatchTest, AnAccountKeepsOneRowAFolder)
{
    give({{u"D:\\Data"_s, u"ANNA"_s, u"srv01"_s, u"L"_s},
          {u"d:\\data\\"_s, u"anna"_s, u"SRV01"_s, u"CH"_s},
          {u"D:\\Admin"_s, u"anna"_s, u"SRV01"_s, u"R"_s},
          {u"D:\\Data"_s, u"Printers"_s, u"SRV01"_s, u"Full Control"_s},
          {u"D:\\Data"_s, u"bert"_s, u"SRV02"_s, u"R"_s}});
    EXPECT_EQ(errors, QString());
    EXPECT_EQ(permissions(), (Rows{u"user 1|1|CH"_s, u"user 1|2|R"_s, u"user 2|1|R"_s,
                                   u"local 1|1|Full Control"_s, u"global 1|1|L"_s}));
}

TEST_F(FolderPermissionsBatchTest, ALocalGroupGoesBeforeAUserOfItsName)
{
    run(u"INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (4,'Printers','SRV01')"_s);
    give({{u"D:\\Admin"_s, u"Printers"_s, u"SRV01"_s, u"R"_s}});
    EXPECT_EQ(permissions(), (Rows{u"user 1|1|R"_s, u"local 1|1|CH"_s, u"local 1|2|R"_s, u"global 1|1|L"_s}));
}

TEST_F(FolderPermissionsBatchTest, WhatCannotBeGivenIsNamedAndTheRestGoesOn)
{
    const Rows before = permissions();
    errors = u"before"_s;
    give({{u"D:\\Nowhere"_s, u"anna"_s, u"SRV01"_s, u"R"_s},
          {u"D:\\It's"_s, u"anna"_s, u"SRV01"_s, u"R"_s},
          {u"D:\\Data"_s, u"anna"_s, u"SRV02"_s, u"R"_s},
          {u"D:\\Data"_s, u"Staff"_s, u"DC01"_s, u"R"_s},
          {u"D:\\Data"_s, u"O'Brien"_s, u"SRV01"_s, u"R"_s},
          {u"D:\\Admin"_s, u"cleo"_s, u"SRV01"_s, u"it's"_s}});
    EXPECT_EQ(
        errors,
        u"before"
        "\r\nD:\\Nowhere\\ not in DB"
        "\r\nD:\\It's\\ not in DB"
        "\r\nSRV02\\anna is not a Local Group and not a User in DB"
        "\r\nDC01\\Staff is not a Local Group and not a User in DB"
        "\r\nSRV01\\O'Brien is not a Local Group and not a User in DB"
        "\r\nD:\\Admin\\ SRV01\\cleo Syntax error in string in query expression '')'. Near '')' at 84."_s);
    EXPECT_EQ(permissions(), before);
    give(
        {{u"D:\\Nowhere"_s, u"anna"_s, u"SRV01"_s, u"R"_s}, {u"D:\\Admin"_s, u"cleo"_s, u"SRV01"_s, u"R"_s}});
    EXPECT_EQ(permissions().value(1), u"user 3|2|R"_s);
}

TEST_F(FolderPermissionsBatchTest, PermittedObjectsReplaceAllPermissionsOfTheFolder)
{
    folders.addUsers(connection, 2, QList<int>{3}, {u"L"_s}, false);
    folders.AddDefaultFolderPermission(connection, u"DC01\\Operators"_s, u"CH"_s);
    EXPECT_EQ(permit(u"d:\\data\\"_s, {{u"bert"_s, u"SRV02"_s, u"CH"_s},
                                       {u"Data"_s, u"SRV02"_s, u"R"_s},
                                       {u"nobody"_s, u"SRV01"_s, u"R"_s},
                                       {u"Admins"_s, u"DC01"_s, u"Full Control"_s},
                                       {u"operators"_s, u"dc01"_s, u"R"_s},
                                       {u"cleo"_s, u"SRV01"_s, u"L"_s},
                                       {u"Staff"_s, u"SRV01"_s, u"R"_s}}),
              u"SRV01\\nobody,SRV01\\Staff,"_s);
    EXPECT_EQ(permissions(), (Rows{u"user 2|1|CH"_s, u"user 3|1|L"_s, u"user 3|2|L"_s, u"local 2|1|R"_s,
                                   u"global 2|1|Full Control"_s}));
    EXPECT_EQ(permit(u"D:\\Data\\"_s, {}), QString());
    EXPECT_EQ(permissions(), Rows{u"user 3|2|L"_s});
}

TEST_F(FolderPermissionsBatchTest, PermittedObjects_TheFirstKindOfAccountThatMatchesWins)
{
    for (const char *table : {"Tbl_LocalGroups", "Tbl_GlobalGroups"})
        run("INSERT INTO "_L1 + QLatin1StringView(table) + " (Name,Server) VALUES ('anna','SRV01')"_L1);
    run(u"INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('Data','SRV02')"_s);
    EXPECT_EQ(permit(u"D:\\Data\\"_s, {{u"anna"_s, u"SRV01"_s, u"L"_s}, {u"Data"_s, u"SRV02"_s, u"L"_s}}),
              QString());
    EXPECT_EQ(permissions(), (Rows{u"user 1|1|L"_s, u"local 2|1|L"_s}));
}

TEST_F(FolderPermissionsBatchTest, PermittedObjects_KeepTheOldRowsWhenAnAccountCannotBeLookedUp)
{
    const Rows before = permissions();
    CurrentError error = errorOf([&] {
        permit(u"D:\\Data\\"_s, {{u"bert"_s, u"SRV02"_s, u"CH"_s}, {u"O'Brien"_s, u"SRV01"_s, u"R"_s}});
    });
    EXPECT_EQ(error.number, jet::SyntaxError);

    // The path is taken as it stands: this one is not in the store.
    error = errorOf([&] { permit(u"D:\\Data"_s, {}); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, u"The specified Folder does not exist in your Database"_s);
    EXPECT_EQ(folders.errorNumber(), RuleViolation);
    EXPECT_EQ(permissions(), before);
}
