#include "assets/clsRooms.h"

#include "assets/assetstatements.h"
#include "store/statement.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists = "A Room with the same Number alredy exists in the Database"_L1;

} // namespace

void clsRooms::Find(const QString &connectionString, jet::Recordset &result, const QString &number)
{
    read(connectionString, result,
         joined("SELECT * FROM Tbl_Rooms WHERE RoomNumber LIke '%{number}%' Order by RoomNumber ASC"_L1,
                {{"number"_L1, number}}));
}

void clsRooms::getByHardwareType(const QString &connectionString, jet::Recordset &result, int hardwareType)
{
    read(connectionString, result,
         withId("SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description "
                "FROM (Tbl_Rooms INNER JOIN Tbl_RoomHW ON Tbl_Rooms.ID = Tbl_RoomHW.RoomID) "
                "INNER JOIN Tbl_HW ON Tbl_RoomHW.HWID = Tbl_HW.ID Where Tbl_HW.HWTypeID = {id} "
                "ORDER BY Tbl_Rooms.RoomNumber ASC"_L1,
                hardwareType));
}

void clsRooms::getUsers(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users INNER JOIN Tbl_RoomUsers "
                "ON Tbl_Users.UserID = Tbl_RoomUsers.UserID WHERE Tbl_RoomUsers.RoomID = {id} "
                "ORDER BY Tbl_Users.LastName ASC "_L1,
                id));
}

void clsRooms::getHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(
        connectionString, result,
        withId("SELECT Tbl_HW.ID, Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & "
               "[TypeNumber] AS [Hardware Type], Tbl_HW.[SerialNumber], Tbl_HW.[CompanyPropertyNumber], "
               "Tbl_HW.[Usage], Tbl_HW.[IPAddress] FROM (Tbl_RoomHW INNER JOIN Tbl_HW "
               "ON Tbl_RoomHW.HWID = Tbl_HW.ID) INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
               "Where (((Tbl_RoomHW.RoomID) = {id})) ORDER BY Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' "
               "& [Model] & ' ' & [TypeNumber]; "_L1,
               id));
}

void clsRooms::getNotHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
                "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
                "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
                "WHERE Tbl_HW.ID NOT IN (SELECT HWID as ID FROM Tbl_RoomHW WHERE RoomID = {id}) "
                "ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_L1,
                id));
}

void clsRooms::getNotUsers(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName , Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users "
                "WHERE Tbl_Users.UserID NOT IN (SELECT USERID from Tbl_RoomUsers WHERE RoomID = {id}) "
                "ORDER BY LastName ASC"_L1,
                id));
}

void clsRooms::addUsers(const QString &connectionString, int id, std::span<const int> users)
{
    replaceRelations(connectionString, usersOfRoom, id, users);
}

void clsRooms::addHW(const QString &connectionString, int id, std::span<const int> items, bool deleteSW)
{
    withWrites(connectionString, [&](StoreSession &store) {
        const QString room = QString::number(id);
        store.execute(withId("DELETE FROM Tbl_RoomHW WHERE RoomID={id}"_L1, id));
        for (const int itemId : items) {
            const QString item = QString::number(itemId);
            store.execute(withId("DELETE FROM Tbl_RoomHW WHERE HWID={id}"_L1, itemId));
            store.execute(withId("DELETE FROM Tbl_UserHW WHERE HWID={id}"_L1, itemId));
            store.execute(joined("INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES ({room},{item})"_L1,
                                 {{"room"_L1, room}, {"item"_L1, item}}));
            if (deleteSW)
                store.execute(withId("DELETE  * FROM Tbl_SWHW WHERE HWID ={id}"_L1, itemId));
        }
    });
}

void clsRooms::update(const QString &connectionString, int id, const QString &number,
                      const QString &description)
{
    const QString idText = QString::number(id);
    writeUnlessFound(
        connectionString,
        joined("SELECT * FROM Tbl_Rooms WHERE RoomNumber ='{number}' AND ID <> {id}"_L1,
               {{"number"_L1, number}, {"id"_L1, idText}}),
        alreadyExists,
        joined("UPDATE Tbl_Rooms SET RoomNumber ='{number}',Description= '{description}' WHERE ID ={id}"_L1,
               {{"number"_L1, number}, {"description"_L1, description}, {"id"_L1, idText}}));
}

Report clsRooms::Delete(const QString &connectionString, std::span<const int> ids, const QStringList &names,
                        Steps &steps)
{
    return deleteEach(
        connectionString, ids, names, steps,
        {"DELETE * FROM Tbl_RoomUsers WHERE RoomID= {id}"_L1, "DELETE * FROM Tbl_Rooms WHERE ID ={id}"_L1});
}

void clsRooms::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT * FROM TBL_Rooms ORDER BY RoomNumber ASC"_s);
}

void clsRooms::Add(const QString &connectionString, const QString &number, const QString &description)
{
    writeUnlessFound(
        connectionString,
        joined("SELECT * FROM Tbl_Rooms WHERE [RoomNumber] ='{number}'"_L1, {{"number"_L1, number}}),
        alreadyExists, insertRoom(number, description));
}
