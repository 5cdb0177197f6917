#include "assets/clsRooms.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists = "A Room with the same Number alredy exists in the Database"_L1;

} // namespace

void clsRooms::Find(const QString &connectionString, jet::Recordset &result, const QString &number)
{
    read(connectionString, result,
         "SELECT * FROM Tbl_Rooms WHERE RoomNumber LIke '%"_L1 + number + "%' Order by RoomNumber ASC"_L1);
}

void clsRooms::getByHardwareType(const QString &connectionString, jet::Recordset &result, int hardwareType)
{
    read(connectionString, result,
         "SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description "
         "FROM (Tbl_Rooms INNER JOIN Tbl_RoomHW ON Tbl_Rooms.ID = Tbl_RoomHW.RoomID) "
         "INNER JOIN Tbl_HW ON Tbl_RoomHW.HWID = Tbl_HW.ID Where Tbl_HW.HWTypeID = "_L1 +
             QString::number(hardwareType) + " ORDER BY Tbl_Rooms.RoomNumber ASC"_L1);
}

void clsRooms::getUsers(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
         "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users INNER JOIN Tbl_RoomUsers "
         "ON Tbl_Users.UserID = Tbl_RoomUsers.UserID WHERE Tbl_RoomUsers.RoomID = "_L1 +
             QString::number(id) + " ORDER BY Tbl_Users.LastName ASC "_L1);
}

void clsRooms::getHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(
        connectionString, result,
        "SELECT Tbl_HW.ID, Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & "
        "[TypeNumber] AS [Hardware Type], Tbl_HW.[SerialNumber], Tbl_HW.[CompanyPropertyNumber], "
        "Tbl_HW.[Usage], Tbl_HW.[IPAddress] FROM (Tbl_RoomHW INNER JOIN Tbl_HW "
        "ON Tbl_RoomHW.HWID = Tbl_HW.ID) INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
        "Where (((Tbl_RoomHW.RoomID) = "_L1 +
            QString::number(id) +
            ")) ORDER BY Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber]; "_L1);
}

void clsRooms::getNotHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         "SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
         "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
         "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
         "WHERE Tbl_HW.ID NOT IN (SELECT HWID as ID FROM Tbl_RoomHW WHERE RoomID = "_L1 +
             QString::number(id) +
             ") ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_L1);
}

void clsRooms::getNotUsers(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         "SELECT Tbl_Users.UserID, Tbl_Users.LastName , Tbl_Users.FirstName, "
         "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users "
         "WHERE Tbl_Users.UserID NOT IN (SELECT USERID from Tbl_RoomUsers WHERE RoomID = "_L1 +
             QString::number(id) + ") ORDER BY LastName ASC"_L1);
}

void clsRooms::addUsers(const QString &connectionString, int id, std::span<const int> users)
{
    withStore(connectionString, [&](StoreSession &store) {
        const QString room = QString::number(id);
        store.execute("DELETE FROM Tbl_RoomUsers WHERE RoomID="_L1 + room);
        for (const int userId : users) {
            const QString user = QString::number(userId);
            if (!store.exists("SELECT * FROM Tbl_RoomUsers WHERE RoomID ="_L1 + room + " AND  UserID ="_L1 +
                              user))
                store.execute("INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES ("_L1 + room + ","_L1 + user +
                              ")"_L1);
        }
    });
}

void clsRooms::addHW(const QString &connectionString, int id, std::span<const int> items, bool deleteSW)
{
    withStore(connectionString, [&](StoreSession &store) {
        const QString room = QString::number(id);
        store.execute("DELETE FROM Tbl_RoomHW WHERE RoomID="_L1 + room);
        for (const int itemId : items) {
            const QString item = QString::number(itemId);
            store.execute("DELETE FROM Tbl_RoomHW WHERE HWID="_L1 + item);
            store.execute("DELETE FROM Tbl_UserHW WHERE HWID="_L1 + item);
            store.execute("INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES ("_L1 + room + ","_L1 + item + ")"_L1);
            if (deleteSW)
                store.execute("DELETE  * FROM Tbl_SWHW WHERE HWID ="_L1 + item);
        }
    });
}

void clsRooms::update(const QString &connectionString, int id, const QString &number,
                      const QString &description)
{
    const QString row = QString::number(id);
    writeUnlessFound(connectionString,
                     "SELECT * FROM Tbl_Rooms WHERE RoomNumber ='"_L1 + number + "' AND ID <> "_L1 + row,
                     alreadyExists,
                     "UPDATE Tbl_Rooms SET RoomNumber ='"_L1 + number + "',Description= '"_L1 + description +
                         "' WHERE ID ="_L1 + row);
}

void clsRooms::Delete(const QString &connectionString, int id)
{
    const QString room = QString::number(id);
    write(connectionString, {"DELETE * FROM Tbl_RoomUsers WHERE RoomID= "_L1 + room,
                             "DELETE * FROM Tbl_Rooms WHERE ID ="_L1 + room});
}

void clsRooms::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT * FROM TBL_Rooms ORDER BY RoomNumber ASC"_s);
}

void clsRooms::Add(const QString &connectionString, const QString &number, const QString &description)
{
    writeUnlessFound(connectionString, "SELECT * FROM Tbl_Rooms WHERE [RoomNumber] ='"_L1 + number + "'"_L1,
                     alreadyExists,
                     "INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('"_L1 + number + "','"_L1 +
                         description + "')"_L1);
}
