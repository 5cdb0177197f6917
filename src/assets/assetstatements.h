#pragma once

#include "assets/hwrecord.h"
#include "store/relations.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>

// The statements of hardware, software and rooms that the record classes share with the sample company.
// Nothing is escaped.

/// A row of one of the two catalogues, Tbl_HWType and Tbl_SW, without its id. A device has its
/// model for a name and its type number for a version.
struct CatalogueRow
{
    QString type;
    QString manufacturer;
    QString name;
    QString version;
    QString description;
};

/// The text with the row in the place of {type}, {manufacturer}, {name}, {version} and
/// {description}, and the id in that of {id}.
[[nodiscard]] QString joined(QLatin1StringView text, const CatalogueRow &row, std::optional<int> id = {});
/// The text with the columns of the item, and its id where the text asks for one.
[[nodiscard]] QString joined(QLatin1StringView text, const HWRecord &item, std::optional<int> id = {});

[[nodiscard]] QString insertHWType(const CatalogueRow &device);
[[nodiscard]] QString insertSW(const CatalogueRow &product);
[[nodiscard]] QString insertHW(const HWRecord &item);
[[nodiscard]] QString insertRoom(const QString &number, const QString &description);

inline constexpr RelationStatements roomsOfItem = {
    QLatin1StringView("DELETE * FROM Tbl_RoomHW WHERE HWID={id}"),
    {},
    QLatin1StringView("INSERT INTO Tbl_RoomHW (HWID,RoomID) VALUES ({id},{item})"),
};
inline constexpr RelationStatements usersOfItem = {
    QLatin1StringView("DELETE * FROM Tbl_UserHW WHERE HWID={id}"),
    {},
    QLatin1StringView("INSERT INTO Tbl_UserHW (HWID,UserID) VALUES ({id},{item})"),
};
inline constexpr RelationStatements softwareOfItem = {
    QLatin1StringView("DELETE * FROM Tbl_SWHW WHERE HWID={id}"),
    {},
    QLatin1StringView("INSERT INTO Tbl_SWHW (HWID,SWID) VALUES ({id},{item})"),
};
inline constexpr RelationStatements usersOfRoom = {
    QLatin1StringView("DELETE FROM Tbl_RoomUsers WHERE RoomID={id}"),
    QLatin1StringView("SELECT * FROM Tbl_RoomUsers WHERE RoomID ={id} AND  UserID ={item}"),
    QLatin1StringView("INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES ({id},{item})"),
};
