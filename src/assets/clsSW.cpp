#include "assets/clsSW.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists = "A Software with the same charachteristics already exists in the Database."_L1;

} // namespace

void clsSW::getManufacturers(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT DISTINCT 0 AS ID,[Manufacturer] FROM Tbl_SW ORDER BY [Manufacturer] ASC"_s);
}

void clsSW::Add(const QString &connectionString, const QString &type, const QString &manufacturer,
                const QString &name, const QString &version, const QString &description)
{
    writeUnlessFound(connectionString,
                     "SELECT ID FROM Tbl_SW WHERE [Type]='"_L1 + type + "' AND [Manufacturer] = '"_L1 +
                         manufacturer + "'  AND [Name]='"_L1 + name + "' AND [Version]='"_L1 + version +
                         "'"_L1,
                     alreadyExists,
                     "INSERT INTO Tbl_SW ([Type],[Manufacturer],[Name],[Version],[Description]) "
                     "VALUES ('"_L1 +
                         type + "','"_L1 + manufacturer + "','"_L1 + name + "','"_L1 + version + "','"_L1 +
                         description + "')"_L1);
}

void clsSW::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT * FROM Tbl_SW ORDer BY [Type],[Manufacturer],[Name],[Version] ASC"_s);
}

void clsSW::getDisplayNames(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT ID,[Type] & ' ' & [Manufacturer] & ' ' & [Name] & ' ' & [Version] AS SWDisplayName "
         "FROM Tbl_SW ORDer BY [Type],[Manufacturer],[Name],[Version] ASC"_s);
}

void clsSW::addHW(const QString &connectionString, int id, std::span<const int> items)
{
    const QString software = QString::number(id);
    relate(connectionString, {"DELETE FROM Tbl_SWHW WHERE SWID="_L1 + software},
           "INSERT INTO Tbl_SWHW (SWID,HWID) VALUES ("_L1 + software + ","_L1, items);
}

void clsSW::getHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(
        connectionString, result,
        "SELECT Tbl_HW.ID, Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & "
        "[TypeNumber] AS [Hardware Type], Tbl_HW.[SerialNumber], Tbl_HW.[CompanyPropertyNumber], "
        "Tbl_HW.[Usage], Tbl_HW.[IPAddress] FROM (Tbl_SWHW INNER JOIN Tbl_HW "
        "ON Tbl_SWHW.HWID = Tbl_HW.ID) INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
        "Where (((Tbl_SWHW.SWID) = "_L1 +
            QString::number(id) +
            ")) ORDER BY Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber]; "_L1);
}

void clsSW::getUsers(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         "SELECT Tbl_Users.UserID, LastName, FirstName, UserName,Tbl_Users.ServerName "
         "FROM (Tbl_Users INNER JOIN Tbl_UserHW ON Tbl_Users.UserID = Tbl_UserHW.UserID) "
         "INNER JOIN Tbl_SWHW ON Tbl_UserHW.HWID = Tbl_SWHW.HWID Where Tbl_SWHW.SWID = "_L1 +
             QString::number(id) +
             " ORDER BY Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName"_L1);
}

void clsSW::getNotHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         "SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
         "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
         "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
         "WHERE Tbl_HW.ID NOT IN (SELECT HWID as ID FROM Tbl_SWHW WHERE SWID = "_L1 +
             QString::number(id) +
             ") ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_L1);
}

void clsSW::update(const QString &connectionString, int id, const QString &type, const QString &manufacturer,
                   const QString &name, const QString &version, const QString &description)
{
    const QString row = QString::number(id);
    writeUnlessFound(connectionString,
                     "SELECT ID FROM Tbl_SW WHERE [Type]='"_L1 + type + "' AND [Manufacturer] = '"_L1 +
                         manufacturer + "'  AND [Name]='"_L1 + name + "' AND [Version] ='"_L1 + version +
                         "' AND ID <> "_L1 + row,
                     alreadyExists,
                     "UPDATE Tbl_SW SET [Type]='"_L1 + type + "',[Manufacturer]='"_L1 + manufacturer +
                         "',[Name]='"_L1 + name + "',[Version]='"_L1 + version + "',[Description]='"_L1 +
                         description + "' WHERE ID = "_L1 + row);
}

void clsSW::Delete(const QString &connectionString, int id)
{
    write(connectionString, {"DELETE * FROM Tbl_SW WHERE ID ="_L1 + QString::number(id)});
}

void clsSW::getTypes(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT DISTINCT 0 AS ID,[Type] FROM Tbl_SW ORDER BY [TYPE] ASC"_s);
}
