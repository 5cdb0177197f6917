#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/clsSW.h"
#include "folders/clsFolders.h"
#include "platform/jet/errors.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"
#include "support/companytest.h"

#include <functional>
#include <map>

using namespace Qt::StringLiterals;

namespace {

using Ids = QList<int>;

/// A writing method, the rows that it takes out of the company and those that it puts in, as "-table row" and
/// "+table row" without the "Tbl_", four fields of each at most. All other rows must stay as they are.
struct Writing
{
    std::string name;
    std::function<void(const QString &)> write;
    QStringList changes;
    int error = 0;
    QString dropped = {}; ///< the table that is missing
};

QStringList changes(std::initializer_list<const char *> rows)
{
    QStringList all;
    for (const char *row : rows)
        all += QString::fromUtf8(row);
    return all;
}

/// What both kinds of groups do, as that of global groups.
template <typename Groups>
void appendGroups(std::vector<Writing> &all, const QString &kind, int staff)
{
    const auto add = [&](const char *name, auto write, const QStringList &rows, int error = 0) {
        QStringList own = rows;
        for (QString &row : own)
            row.replace("Global"_L1, kind).replace(u" 2"_s, u' ' + QString::number(staff / 10));
        all.push_back({kind.toStdString() + " groups: " + name,
                       [=](const QString &store) {
                           Groups groups;
                           write(groups, store);
                       },
                       own, error});
    };
    // clang-format off
    add("addUsers makes them the only ones, once each", [=](Groups &groups, auto &store) { groups.addUsers(store, staff, Ids{13, 12, 13}); },
        changes({"-GlobalGroupsUsers 21|11", "+GlobalGroupsUsers 21|13"}));
    add("addUsers of none", [=](Groups &groups, auto &store) { groups.addUsers(store, staff, Ids()); },
        changes({"-GlobalGroupsUsers 21|11", "-GlobalGroupsUsers 21|12"}));
    add("RemoveUsers", [=](Groups &groups, auto &store) { groups.RemoveUsers(store, Ids{staff, 99, staff + 1}); },
        changes({"-GlobalGroupsUsers 21|11", "-GlobalGroupsUsers 21|12", "-GlobalGroupsUsers 22|12"}));
    add("RemoveUsers of none", [](Groups &groups, auto &store) { groups.RemoveUsers(store, Ids()); }, {});
    add("addFolders updates what is there", [=](Groups &groups, auto &store) { groups.addFolders(store, staff, Ids{42, 43}, {u"Full"_s, u"X"_s}, false); },
        changes({staff == 21 ? "-GlobalGroupFolderPermission 21|42|L" : "-GlobalGroupFolderPermission 21|42|CH",
                 "+GlobalGroupFolderPermission 21|42|Full", "+GlobalGroupFolderPermission 21|43|X"}));
    const QStringList gone = staff == 21 ? changes({"-GlobalGroupFolderPermission 21|41|CH", "-GlobalGroupFolderPermission 21|42|L"})
                                         : changes({"-GlobalGroupFolderPermission 21|41|R", "-GlobalGroupFolderPermission 21|42|CH"});
    add("addFolders clears on request", [=](Groups &groups, auto &store) { groups.addFolders(store, staff, Ids{43}, {u"X"_s}, true); },
        gone + changes({"+GlobalGroupFolderPermission 21|43|X"}));
    add("addFolders clears for none", [=](Groups &groups, auto &store) { groups.addFolders(store, staff, Ids(), {}, true); }, gone);
    add("addFolders keeps what it did before a failure", [=](Groups &groups, auto &store) { groups.addFolders(store, staff, Ids{41, 42, 43}, {u"X"_s, u"it's"_s, u"X"_s}, true); },
        gone + changes({"+GlobalGroupFolderPermission 21|41|X"}), jet::SyntaxError);
    // clang-format on
}

std::vector<Writing> writings()
{
    std::vector<Writing> all;
    appendGroups<clsGlobalGroups>(all, u"Global"_s, 21);
    appendGroups<clsLocalGroups>(all, u"Local"_s, 31);
    const auto add = [&all](const char *name, std::function<void(const QString &)> write,
                            std::initializer_list<const char *> rows, int error = 0,
                            const char *dropped = "") {
        all.push_back({name, std::move(write), changes(rows), error, QString::fromLatin1(dropped)});
    };
    // clang-format off
    add("global groups: addLocalGroups, once each", [](auto &store) { clsGlobalGroups().addLocalGroups(store, 21, Ids{33, 31, 33}); },
        {"-LocalGroupsGlobalGroups 32|21", "+LocalGroupsGlobalGroups 33|21"});
    add("global groups: addLocalGroups of none", [](auto &store) { clsGlobalGroups().addLocalGroups(store, 22, Ids()); },
        {"-LocalGroupsGlobalGroups 32|22"});
    add("local groups: RemoveFolderPermissions", [](auto &store) { clsLocalGroups().RemoveFolderPermissions(store, Ids{31, 33}); },
        {"-LocalGroupFolderPermission 31|41|R", "-LocalGroupFolderPermission 31|42|CH", "-LocalGroupFolderPermission 33|43|R"});
    add("local groups: RemoveGlobalGroups", [](auto &store) { clsLocalGroups().RemoveGlobalGroups(store, Ids{31, 32}); },
        {"-LocalGroupsGlobalGroups 31|21", "-LocalGroupsGlobalGroups 32|21", "-LocalGroupsGlobalGroups 32|22"});
    add("local groups: addGlobalGroups, without a test", [](auto &store) { clsLocalGroups().addGlobalGroups(store, 33, Ids{22, 22}); },
        {"-LocalGroupsGlobalGroups 33|23", "+LocalGroupsGlobalGroups 33|22", "+LocalGroupsGlobalGroups 33|22"});

    add("users: RemoveFolderPermissions", [](auto &store) { clsUsers().RemoveFolderPermissions(store, Ids{11, 12, 99}); },
        {"-UserFolderPermission 11|44|R", "-UserFolderPermission 12|41|L", "-UserFolderPermission 12|42|CH"});
    add("users: addFolders updates what is there", [](auto &store) { clsUsers().addFolders(store, 12, Ids{42, 43}, {u"R"_s, u"L"_s}, false); },
        {"-UserFolderPermission 12|42|CH", "+UserFolderPermission 12|42|R", "+UserFolderPermission 12|43|L"});
    add("users: addFolders clears on request", [](auto &store) { clsUsers().addFolders(store, 12, Ids{42}, {u"R"_s}, true); },
        {"-UserFolderPermission 12|41|L", "-UserFolderPermission 12|42|CH", "+UserFolderPermission 12|42|R"});
    add("users: addGlobalGroups, once each", [](auto &store) { clsUsers().addGlobalGroups(store, 12, Ids{23, 22, 23}); },
        {"-GlobalGroupsUsers 21|12", "+GlobalGroupsUsers 23|12"});
    add("users: addRooms", [](auto &store) { clsUsers().addRooms(store, 12, Ids{83, 81}); }, {"-RoomUsers 82|12", "+RoomUsers 83|12"});
    add("users: addRooms of none", [](auto &store) { clsUsers().addRooms(store, 12, Ids()); }, {"-RoomUsers 81|12", "-RoomUsers 82|12"});
    add("users: addHW takes the items from users, not from rooms", [](auto &store) { clsUsers().addHW(store, 12, Ids{61, 62}); },
        {"-UserHW 11|61", "-UserHW 12|63", "+UserHW 12|61", "+UserHW 12|62"});

    add("folders: RemoveAllPermissions", [](auto &store) { clsFolders().RemoveAllPermissions(store, Ids{42, 43}); },
        {"-UserFolderPermission 12|42|CH", "-UserFolderPermission 13|42|R", "-LocalGroupFolderPermission 31|42|CH", "-LocalGroupFolderPermission 32|43|L",
         "-LocalGroupFolderPermission 33|43|R", "-GlobalGroupFolderPermission 21|42|L", "-GlobalGroupFolderPermission 22|43|R", "-GlobalGroupFolderPermission 23|43|CH"});
    add("folders: addUsers untested", [](auto &store) { clsFolders().addUsers(store, 42, Ids{12, 11}, {u"L"_s, u"R"_s}, false); },
        {"+UserFolderPermission 12|42|L", "+UserFolderPermission 11|42|R"});
    add("folders: addUsers in place of the old ones", [](auto &store) { clsFolders().addUsers(store, 42, Ids{13}, {u"CH"_s}, true); },
        {"-UserFolderPermission 12|42|CH", "-UserFolderPermission 13|42|R", "+UserFolderPermission 13|42|CH"});
    add("folders: addLocalGroups untested", [](auto &store) { clsFolders().addLocalGroups(store, 43, Ids{32, 31}, {u"R"_s, u"L"_s}, false); },
        {"+LocalGroupFolderPermission 32|43|R", "+LocalGroupFolderPermission 31|43|L"});
    add("folders: addLocalGroups in place of the old ones", [](auto &store) { clsFolders().addLocalGroups(store, 43, Ids{33}, {u"CH"_s}, true); },
        {"-LocalGroupFolderPermission 32|43|L", "-LocalGroupFolderPermission 33|43|R", "+LocalGroupFolderPermission 33|43|CH"});
    add("folders: addGlobalGroups untested", [](auto &store) { clsFolders().addGlobalGroups(store, 43, Ids{22, 21}, {u"L"_s, u"R"_s}, false); },
        {"+GlobalGroupFolderPermission 22|43|L", "+GlobalGroupFolderPermission 21|43|R"});
    add("folders: addGlobalGroups in place of the old ones", [](auto &store) { clsFolders().addGlobalGroups(store, 43, Ids(), {}, true); },
        {"-GlobalGroupFolderPermission 22|43|R", "-GlobalGroupFolderPermission 23|43|CH"});

    add("rooms: addUsers, once each", [](auto &store) { clsRooms().addUsers(store, 81, Ids{13, 11, 13}); }, {"-RoomUsers 81|12", "+RoomUsers 81|13"});
    add("rooms: addUsers of none", [](auto &store) { clsRooms().addUsers(store, 81, Ids()); }, {"-RoomUsers 81|11", "-RoomUsers 81|12"});
    add("rooms: addHW takes the items from rooms and users", [](auto &store) { clsRooms().addHW(store, 82, Ids{61, 62, 61}, false); },
        {"-RoomHW 82|64", "-RoomHW 81|62", "-UserHW 11|61", "+RoomHW 82|61", "+RoomHW 82|62"});
    add("rooms: addHW takes the software on request", [](auto &store) { clsRooms().addHW(store, 82, Ids{62, 63}, true); },
        {"-RoomHW 82|64", "-RoomHW 81|62", "-UserHW 11|63", "-UserHW 12|63", "-SWHW 73|62", "-SWHW 72|63", "+RoomHW 82|62", "+RoomHW 82|63"});
    add("rooms: addHW of none", [](auto &store) { clsRooms().addHW(store, 82, Ids(), true); }, {"-RoomHW 82|64"});
    add("rooms: addHW up to a failure", [](auto &store) { clsRooms().addHW(store, 82, Ids{62, 61}, true); },
        {"-RoomHW 81|62", "-RoomHW 82|64", "+RoomHW 82|62"}, jet::MissingTable, "Tbl_SWHW");
    add("rooms: addHW up to a failure with the users", [](auto &store) { clsRooms().addHW(store, 82, Ids{62}, false); },
        {"-RoomHW 81|62", "-RoomHW 82|64"}, jet::MissingTable, "Tbl_UserHW");

    add("software: addHW", [](auto &store) { clsSW().addHW(store, 72, Ids{66, 61}); }, {"-SWHW 72|63", "+SWHW 72|66"});
    add("software: addHW of none", [](auto &store) { clsSW().addHW(store, 72, Ids()); }, {"-SWHW 72|61", "-SWHW 72|63"});
    add("hardware: addRooms takes the item from its user", [](auto &store) { clsHW().addRooms(store, 61, Ids{83, 82}, false); },
        {"-UserHW 11|61", "+RoomHW 83|61", "+RoomHW 82|61"});
    add("hardware: addRooms of none leaves it to its user", [](auto &store) { clsHW().addRooms(store, 61, Ids(), false); }, {});
    add("hardware: addRooms takes the software on request", [](auto &store) { clsHW().addRooms(store, 62, Ids(), true); }, {"-RoomHW 81|62", "-SWHW 73|62"});
    add("hardware: addRooms up to a failure", [](auto &store) { clsHW().addRooms(store, 64, Ids{83}, false); },
        {"-RoomHW 81|64", "-RoomHW 82|64"}, jet::MissingTable, "Tbl_UserHW");
    add("hardware: addUsers takes the item from its rooms", [](auto &store) { clsHW().addUsers(store, 64, Ids{13, 12}); },
        {"-RoomHW 81|64", "-RoomHW 82|64", "+UserHW 13|64", "+UserHW 12|64"});
    add("hardware: addUsers makes them the only ones", [](auto &store) { clsHW().addUsers(store, 63, Ids{13}); },
        {"-UserHW 11|63", "-UserHW 12|63", "+UserHW 13|63"});
    add("hardware: addUsers of none leaves it in its rooms", [](auto &store) { clsHW().addUsers(store, 62, Ids()); }, {});
    add("hardware: addUsers up to a failure", [](auto &store) { clsHW().addUsers(store, 61, Ids{13}); }, {"-UserHW 11|61"}, jet::MissingTable, "Tbl_RoomHW");
    add("hardware: addSW", [](auto &store) { clsHW().addSW(store, 61, Ids{75, 71}); }, {"-SWHW 72|61", "+SWHW 75|61"});
    add("hardware: addSW of none", [](auto &store) { clsHW().addSW(store, 61, Ids()); }, {"-SWHW 71|61", "-SWHW 72|61"});
    // clang-format on
    return all;
}

class WritersTest : public CompanyTest
{
protected:
    std::map<QString, Rows> contents(const QString &except = {}) const
    {
        std::map<QString, Rows> all;
        StoreSession session(connection);
        for (const company::Table &table : company::tables) {
            const QString name = QString::fromLatin1(table.columns).section(u' ', 0, 0);
            if (name != except)
                all[name] = rowsFrom([&](auto &rows) { session.open("SELECT * FROM "_L1 + name, rows); });
        }
        return all;
    }

    static QStringList change(QChar sign, const QString &table, const Rows &rows, Rows others)
    {
        QStringList all;
        for (const QString &row : rows) {
            if (!others.removeOne(row))
                all += sign + table.sliced(4) + u' ' + row.section(u'|', 0, 3);
        }
        return all;
    }
};

} // namespace

TEST_F(WritersTest, ChangeTheirRowsAndNoOthers)
{
    const std::map<QString, Rows> before = contents();
    for (Writing &writing : writings()) {
        SCOPED_TRACE(writing.name);
        if (!writing.dropped.isEmpty())
            run("DROP TABLE "_L1 + writing.dropped);
        EXPECT_EQ(errorOf([&] { writing.write(connection); }).number, writing.error);
        QStringList made;
        for (const auto &[table, rows] : contents(writing.dropped))
            made += change(u'-', table, before.at(table), rows) + change(u'+', table, rows, before.at(table));
        made.sort();
        writing.changes.sort();
        EXPECT_EQ(made, writing.changes);
        ASSERT_TRUE(QFile::remove(path));
        CompanyTest::SetUp();
    }
}
