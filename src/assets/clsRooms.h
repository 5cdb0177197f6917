#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_Rooms and the room's side of Tbl_RoomUsers and Tbl_RoomHW. A
/// room is known by its number.
///
/// The readers open the caller's recordset; its rows need no store any more. Nothing is
/// escaped. Every method raises the store's error, and what was written before it stays.
class clsRooms final : public RecordClass
{
public:
    /// The rooms whose number contains the text.
    void Find(const QString &connectionString, jet::Recordset &result, const QString &number);
    /// A room shows once for each item of the type that stands in it.
    void getByHardwareType(const QString &connectionString, jet::Recordset &result, int hardwareType);
    void getUsers(const QString &connectionString, jet::Recordset &result, int id);
    void getHW(const QString &connectionString, jet::Recordset &result, int id);
    void getNotHW(const QString &connectionString, jet::Recordset &result, int id);
    void getNotUsers(const QString &connectionString, jet::Recordset &result, int id);
    /// The given users become the room's only ones. A repeated id counts once.
    void addUsers(const QString &connectionString, int id, std::span<const int> users);
    /// The given items become the room's only ones and are taken from any other room and any
    /// user; deleteSW takes their software away.
    void addHW(const QString &connectionString, int id, std::span<const int> items, bool deleteSW);
    /// Raises RuleViolation when another room has the number.
    void update(const QString &connectionString, int id, const QString &number, const QString &description);
    /// Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    void getAll(const QString &connectionString, jet::Recordset &result);
    /// Raises RuleViolation when the number is taken.
    void Add(const QString &connectionString, const QString &number, const QString &description);
};
