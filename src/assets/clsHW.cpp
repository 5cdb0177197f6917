#include "assets/clsHW.h"

#include "assets/assetstatements.h"
#include "store/statement.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists =
    "A Hardware of the same Type with this Serial Number already exists in the Database."_L1;

// clang-format off
constexpr auto taken =
    "SELECT * FROM Tbl_HW WHERE SerialNumber = '{serial}' AND HWTypeID = {type}"_L1;
constexpr auto takenByOther =
    "SELECT * FROM Tbl_HW WHERE SerialNumber = '{serial}' AND HWTypeID = {type} AND ID <> {id}"_L1;
constexpr auto change =
    "UPDATE Tbl_HW SET [HWTypeID] ={type}, [SerialNumber] ='{serial}', [AssetNumber] = '{asset}', [WarrantyNumber] ='{warranty}', [CompanyPropertyNumber] ='{property}', [WorkStationName] ='{workstation}', [Supplier] ='{supplier}', "
    "[PurchaseDate] =#{date}#, [Usage] ='{usage}', [Status] ='{status}', [EUCD] ={eucd}, [Comments] ='{comments}', [NetWork] ={network}, [IPAddress] ='{ip}', [IPSubNet] ='{subnet}' WHERE ID = {id}"_L1;
// clang-format on

} // namespace

void clsHW::Add(const QString &connectionString, const HWRecord &item)
{
    writeUnlessFound(connectionString, joined(taken, item), alreadyExists, insertHW(item));
}

void clsHW::addRooms(const QString &connectionString, int id, std::span<const int> rooms, bool deleteSW)
{
    withWrites(connectionString, [&](StoreSession &store) {
        clearRelations(store, roomsOfItem, id);
        if (!rooms.empty())
            clearRelations(store, usersOfItem, id);
        if (deleteSW)
            store.execute(withId("DELETE * FROM Tbl_SWHW WHERE HWID ={id}"_L1, id));
        addRelations(store, roomsOfItem, id, rooms);
    });
}

void clsHW::addUsers(const QString &connectionString, int id, std::span<const int> users)
{
    withWrites(connectionString, [&](StoreSession &store) {
        clearRelations(store, usersOfItem, id);
        if (!users.empty())
            clearRelations(store, roomsOfItem, id);
        addRelations(store, usersOfItem, id, users);
    });
}

void clsHW::addSW(const QString &connectionString, int id, std::span<const int> software)
{
    replaceRelations(connectionString, softwareOfItem, id, software);
}

void clsHW::update(const QString &connectionString, int id, const HWRecord &item)
{
    writeUnlessFound(connectionString, joined(takenByOther, item, id), alreadyExists,
                     joined(change, item, id));
}

Report clsHW::Delete(const QString &connectionString, std::span<const int> ids, const QStringList &names,
                     Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps, {"DELETE * FROM Tbl_HW WHERE ID ={id}"_L1});
}
