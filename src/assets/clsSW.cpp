#include "assets/clsSW.h"

#include "assets/assetstatements.h"
#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists = "A Software with the same charachteristics already exists in the Database."_L1;

// clang-format off
constexpr auto taken =
    "SELECT ID FROM Tbl_SW WHERE [Type]='{type}' AND [Manufacturer] = '{manufacturer}'  AND [Name]='{name}' AND [Version]='{version}'"_L1;
constexpr auto takenByOther =
    "SELECT ID FROM Tbl_SW WHERE [Type]='{type}' AND [Manufacturer] = '{manufacturer}'  AND [Name]='{name}' AND [Version] ='{version}' AND ID <> {id}"_L1;
constexpr auto change =
    "UPDATE Tbl_SW SET [Type]='{type}',[Manufacturer]='{manufacturer}',[Name]='{name}',[Version]='{version}',[Description]='{description}' WHERE ID = {id}"_L1;
// clang-format on

constexpr RelationStatements itemsOfSoftware = {
    "DELETE FROM Tbl_SWHW WHERE SWID={id}"_L1,
    {},
    "INSERT INTO Tbl_SWHW (SWID,HWID) VALUES ({id},{item})"_L1,
};

} // namespace

void clsSW::getManufacturers(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT DISTINCT 0 AS ID,[Manufacturer] FROM Tbl_SW ORDER BY [Manufacturer] ASC"_s);
}

void clsSW::Add(const QString &connectionString, const QString &type, const QString &manufacturer,
                const QString &name, const QString &version, const QString &description)
{
    const CatalogueRow product = {type, manufacturer, name, version, description};
    writeUnlessFound(connectionString, joined(taken, product), alreadyExists, insertSW(product));
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
    replaceRelations(connectionString, itemsOfSoftware, id, items);
}

void clsSW::getHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_HW.ID, Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & "
                "[TypeNumber] AS [Hardware Type], Tbl_HW.[SerialNumber], Tbl_HW.[CompanyPropertyNumber], "
                "Tbl_HW.[Usage], Tbl_HW.[IPAddress] FROM (Tbl_SWHW INNER JOIN Tbl_HW "
                "ON Tbl_SWHW.HWID = Tbl_HW.ID) INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
                "Where (((Tbl_SWHW.SWID) = {id})) ORDER BY Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' "
                "& [Model] & ' ' & [TypeNumber]; "_L1,
                id));
}

void clsSW::getUsers(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, LastName, FirstName, UserName,Tbl_Users.ServerName "
                "FROM (Tbl_Users INNER JOIN Tbl_UserHW ON Tbl_Users.UserID = Tbl_UserHW.UserID) "
                "INNER JOIN Tbl_SWHW ON Tbl_UserHW.HWID = Tbl_SWHW.HWID Where Tbl_SWHW.SWID = {id} "
                "ORDER BY Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName"_L1,
                id));
}

void clsSW::getNotHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
                "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
                "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
                "WHERE Tbl_HW.ID NOT IN (SELECT HWID as ID FROM Tbl_SWHW WHERE SWID = {id}) "
                "ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_L1,
                id));
}

void clsSW::update(const QString &connectionString, int id, const QString &type, const QString &manufacturer,
                   const QString &name, const QString &version, const QString &description)
{
    const CatalogueRow product = {type, manufacturer, name, version, description};
    writeUnlessFound(connectionString, joined(takenByOther, product, id), alreadyExists,
                     joined(change, product, id));
}

Report clsSW::Delete(const QString &connectionString, std::span<const int> ids, const QStringList &names,
                     Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps, {"DELETE * FROM Tbl_SW WHERE ID ={id}"_L1});
}

void clsSW::getTypes(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT DISTINCT 0 AS ID,[Type] FROM Tbl_SW ORDER BY [TYPE] ASC"_s);
}
