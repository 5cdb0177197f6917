#include "sync/modUsers.h"

#include "platform/jet/recordset.h"
#include "store/clsUsers.h"
#include "views/displaymodes.h"
#include "views/family.h"
#include "views/openview.h"

using namespace Qt::StringLiterals;

namespace {

/// The rows of the view that is being filled.
ListRecordset &listRecordset()
{
    static ListRecordset rows;
    return rows;
}

/// A list of what belongs to one object: the title goes before the object's name.
struct RelatedList
{
    QLatin1StringView title;
    QLatin1StringView mode;
    void (clsUsers::*read)(const QString &connectionString, jet::Recordset &result, int id);
};

// clang-format off
constexpr RelatedList userFolders      {"Permission(s) for User "_L1,   mode::DisplayFolders,      &clsUsers::getAllFolders};
constexpr RelatedList userSW           {"Software for User "_L1,        mode::DisplaySW,           &clsUsers::getSW};
constexpr RelatedList userRooms        {"Room(s) for User "_L1,         mode::DisplayRooms,        &clsUsers::getRooms};
constexpr RelatedList userGlobalGroups {"Global Group(s) for User "_L1, mode::DisplayGlobalGroups, &clsUsers::getGlobalGroups};
constexpr RelatedList userLocalGroups  {"Local Group(s) for User "_L1,  mode::DisplayLocalGroups,  &clsUsers::getLocalGroups};
constexpr RelatedList userHW           {"Hardware for User "_L1,        mode::DisplayHW,           &clsUsers::getHW};
constexpr RelatedList usersByHW        {"Users that have Hardware "_L1, mode::DisplayUsers,        &clsUsers::getByHardwareType};
// clang-format on

void list(frmDisplay *view, const RelatedList &related, int id, const QString &name)
{
    openView(view, QString(related.mode), related.title + name, listRecordset(),
             [&](const QString &connectionString, jet::Recordset &rows) {
                 clsUsers users;
                 (users.*related.read)(connectionString, rows, id);
             });
}

} // namespace

void modUsers::registerFamily()
{
    DisplayFamily users;
    users.listAll = listAllUsers;
    ::registerFamily(QString(mode::DisplayUsers), users);
}

void modUsers::listAllUsers(frmDisplay *view)
{
    openView(view, QString(mode::DisplayUsers), u"All Users"_s, listRecordset(),
             [](const QString &connectionString, jet::Recordset &rows) {
                 clsUsers().getAll(connectionString, rows);
             });
}

void modUsers::findUsers(frmDisplay *view, const QString &userName, const QString &lastName)
{
    openView(view, QString(mode::DisplayUsers),
             "User(s) - search criteria = "_L1 + userName + u' ' + lastName, listRecordset(),
             [&](const QString &connectionString, jet::Recordset &rows) {
                 clsUsers().Find(connectionString, rows, lastName, userName);
             });
}

void modUsers::listUserFolders(frmDisplay *view, int user, const QString &name)
{
    list(view, userFolders, user, name);
}

void modUsers::listUserSW(frmDisplay *view, int user, const QString &name)
{
    list(view, userSW, user, name);
}

void modUsers::listUserRooms(frmDisplay *view, int user, const QString &name)
{
    list(view, userRooms, user, name);
}

void modUsers::listUserGlobalGroups(frmDisplay *view, int user, const QString &name)
{
    list(view, userGlobalGroups, user, name);
}

void modUsers::listUserLocalGroups(frmDisplay *view, int user, const QString &name)
{
    list(view, userLocalGroups, user, name);
}

void modUsers::listUserHW(frmDisplay *view, int user, const QString &name)
{
    list(view, userHW, user, name);
}

void modUsers::listUsersByHW(frmDisplay *view, int hardwareType, const QString &name)
{
    list(view, usersByHW, hardwareType, name);
}
