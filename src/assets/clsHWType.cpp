#include "assets/clsHWType.h"

#include "assets/assetstatements.h"
#include "store/statement.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists =
    "A Hardwaretype with the same charachteristics already exists in the Database."_L1;

// clang-format off
constexpr auto taken =
    "SELECT ID FROM Tbl_HWType WHERE [Type]='{type}' AND [Manufacturer] = '{manufacturer}'  AND [Model]='{name}' AND [TypeNumber]='{version}'"_L1;
constexpr auto takenByOther =
    "SELECT ID FROM Tbl_HWType WHERE [Type]='{type}' AND [Manufacturer] = '{manufacturer}'  AND [Model]='{name}' AND [TypeNumber] ='{version}' AND ID <> {id}"_L1;
constexpr auto change =
    "UPDATE Tbl_HWType SET [Type]='{type}',[Manufacturer]='{manufacturer}',[Model]='{name}',[TypeNumber]='{version}',[Description]='{description}' WHERE ID = {id}"_L1;
// clang-format on

} // namespace

void clsHWType::Add(const QString &connectionString, const QString &type, const QString &manufacturer,
                    const QString &model, const QString &typeNumber, const QString &description)
{
    const CatalogueRow device = {type, manufacturer, model, typeNumber, description};
    writeUnlessFound(connectionString, joined(taken, device), alreadyExists, insertHWType(device));
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
         joined("SELECT * FROM Tbl_HWType WHERE [Type] LIKE '%{type}%' "
                "AND  [Manufacturer] like '%{manufacturer}%' AND [Model] Like '%{model}%' "
                "ORDER BY [Type],[Manufacturer],[Model],[TypeNumber] ASC"_L1,
                {{"type"_L1, type}, {"manufacturer"_L1, manufacturer}, {"model"_L1, model}}));
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
    const CatalogueRow device = {type, manufacturer, model, typeNumber, description};
    writeUnlessFound(connectionString, joined(takenByOther, device, id), alreadyExists,
                     joined(change, device, id));
}

int clsHWType::countItems(const QString &connectionString, std::span<const int> types)
{
    qint64 count = 0;
    withStore(connectionString, [&](StoreSession &store) {
        for (const int type : types)
            count += store.scalar(withId("SELECT Count(*) FROM Tbl_HW WHERE HWTypeID = {id}"_L1, type))
                         .toInteger();
    });
    return int(count);
}

Report clsHWType::Delete(const QString &connectionString, std::span<const int> ids, const QStringList &names,
                         Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps, {"DELETE * FROM Tbl_HWType WHERE ID ={id}"_L1});
}
