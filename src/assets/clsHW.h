#pragma once

#include "assets/hwrecord.h"
#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_HW and the hardware's side of Tbl_RoomHW, Tbl_UserHW and
/// Tbl_SWHW. An item is known by its type and serial number. addRooms takes it from its users
/// and addUsers from its rooms, so one in both comes from elsewhere.
///
/// The readers open the caller's recordset; its rows need no store any more. Items whose type
/// is gone show in getUnAssigned and GetByID only. Nothing is escaped. Every method raises the store's error,
/// and what was written before it stays.
class clsHW final : public RecordClass
{
public:
    /// Raises RuleViolation when there is an item of the type with the serial number.
    void Add(const QString &connectionString, const HWRecord &item);
    /// The first room of the item; an empty number and 0 when it has none.
    void getAssignedRoom(const QString &connectionString, int id, QString &roomNumber, int &roomId);
    void getOfType(const QString &connectionString, jet::Recordset &result, int hardwareType);
    void getRoom(const QString &connectionString, jet::Recordset &result, int id);
    void getNotRoom(const QString &connectionString, jet::Recordset &result, int id);
    void getNotUser(const QString &connectionString, jet::Recordset &result, int id);
    void getUser(const QString &connectionString, jet::Recordset &result, int id);
    void getSW(const QString &connectionString, jet::Recordset &result, int id);
    void getNotSW(const QString &connectionString, jet::Recordset &result, int id);
    /// The given rooms become the item's only ones. The item is taken from its user unless there
    /// are no rooms; deleteSW takes its software away.
    void addRooms(const QString &connectionString, int id, std::span<const int> rooms, bool deleteSW);
    /// The given users become the item's only ones. The item is taken from its room unless there
    /// are no users.
    void addUsers(const QString &connectionString, int id, std::span<const int> users);
    /// The given software becomes the item's only one.
    void addSW(const QString &connectionString, int id, std::span<const int> software);
    /// The distinct texts in use, after an id of 0.
    void getSuppliers(const QString &connectionString, jet::Recordset &result);
    void getStatus(const QString &connectionString, jet::Recordset &result);
    void getUsage(const QString &connectionString, jet::Recordset &result);
    /// Raises RuleViolation when another item of the type has the serial number.
    void update(const QString &connectionString, int id, const HWRecord &item);
    /// Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    void getAll(const QString &connectionString, jet::Recordset &result);
    /// The items without a row in Tbl_RoomHW and in Tbl_UserHW, and those whose type is gone.
    void getUnAssigned(const QString &connectionString, jet::Recordset &result);
    /// The items that contain the five texts, a Null being as good as any. A type of 0 stands
    /// for all types.
    void Find(const QString &connectionString, jet::Recordset &result, int hardwareType,
              const QString &serialNumber, const QString &workStationName, const QString &ipAddress,
              const QString &assetNumber, const QString &companyPropertyNumber);
    /// All columns, and the text of the type as HWType.
    void GetByID(const QString &connectionString, jet::Recordset &result, int id);
};
