#include "assets/clsHWType.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists =
    "A Hardwaretype with the same charachteristics already exists in the Database."_L1;

} // namespace

void clsHWType::Add(const QString &connectionString, const QString &type, const QString &manufacturer,
                    const QString &model, const QString &typeNumber, const QString &description)
{
    writeUnlessFound(connectionString,
                     "SELECT ID FROM Tbl_HWType WHERE [Type]='"_L1 + type + "' AND [Manufacturer] = '"_L1 +
                         manufacturer + "'  AND [Model]='"_L1 + model + "' AND [TypeNumber]='"_L1 +
                         typeNumber + "'"_L1,
                     alreadyExists,
                     "INSERT INTO Tbl_HWType ([Type],[Manufacturer],[Model],[TypeNumber],[Description]) "
                     "VALUES ('"_L1 +
                         type + "','"_L1 + manufacturer + "','"_L1 + model + "','"_L1 + typeNumber +
                         "','"_L1 + description + "')"_L1);
}

void clsHWType::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT * FROM Tbl_HWType ORDer BY [Type],[Manufacturer],[Model],[TypeNumber] ASC"_s);
}

void clsHWType::Find(const QString &connectionString, jet::Recordset &result, const QString &type,
                     const QString &manufacturer, const QString &model)
{
    read(connectionString, result,
         "SELECT * FROM Tbl_HWType WHERE [Type] LIKE '%"_L1 + type + "%' AND  [Manufacturer] like '%"_L1 +
             manufacturer + "%' AND [Model] Like '%"_L1 + model +
             "%' ORDER BY [Type],[Manufacturer],[Model],[TypeNumber] ASC"_L1);
}

void clsHWType::getDisplayList(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT Tbl_HWType.ID, Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & "
         "[TypeNumber] AS HardWareType From Tbl_HWType "
         "ORDER BY Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_s);
}

void clsHWType::getTypes(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT DISTINCT 0 AS ID,[Type] FROM Tbl_HWType ORDER BY [TYPE] ASC"_s);
}

void clsHWType::getManufacturers(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT DISTINCT 0 AS ID,[Manufacturer] FROM Tbl_HWType ORDER BY [Manufacturer] ASC"_s);
}

void clsHWType::update(const QString &connectionString, int id, const QString &type,
                       const QString &manufacturer, const QString &model, const QString &typeNumber,
                       const QString &description)
{
    const QString row = QString::number(id);
    writeUnlessFound(connectionString,
                     "SELECT ID FROM Tbl_HWType WHERE [Type]='"_L1 + type + "' AND [Manufacturer] = '"_L1 +
                         manufacturer + "'  AND [Model]='"_L1 + model + "' AND [TypeNumber] ='"_L1 +
                         typeNumber + "' AND ID <> "_L1 + row,
                     alreadyExists,
                     "UPDATE Tbl_HWType SET [Type]='"_L1 + type + "',[Manufacturer]='"_L1 + manufacturer +
                         "',[Model]='"_L1 + model + "',[TypeNumber]='"_L1 + typeNumber +
                         "',[Description]='"_L1 + description + "' WHERE ID = "_L1 + row);
}

void clsHWType::Delete(const QString &connectionString, int id)
{
    write(connectionString, {"DELETE * FROM Tbl_HWType WHERE ID ="_L1 + QString::number(id)});
}
