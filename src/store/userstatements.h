#pragma once

#include "store/relations.h"
#include "store/userrecord.h"

#include <QLatin1StringView>
#include <QList>

#include <span>
#include <variant>

class StoreSession;

/// A column of Tbl_Users as the statements write it: its member tells whether its value
/// goes in bare (a number) or between quotes (a text).
struct UserColumn
{
    QLatin1StringView name;
    std::variant<int UserRecord::*, QString UserRecord::*> member;
    bool escapedInBatch = false;

    [[nodiscard]] constexpr bool isText() const { return member.index() == 1; }
};

/// All columns in the order of the table.
[[nodiscard]] std::span<const UserColumn> userColumns();
/// What an import from the live system inserts: UserID to ServerName.
[[nodiscard]] std::span<const UserColumn> liveColumns();
/// What it updates: UserID to SID, which a user gets with the first update.
[[nodiscard]] std::span<const UserColumn> liveUpdateColumns();
/// What a line of an import file holds, in its order.
[[nodiscard]] std::span<const UserColumn> fileColumns();

enum class Escaping { None, Batch };

// The texts of the two statements that write a row. Values are as many as the columns or more: what is
// inserted begins what is updated.

/// The INSERT, whose head is made once for all rows.
class UserInsert final
{
public:
    explicit UserInsert(std::span<const UserColumn> columns, Escaping escaping = Escaping::None);
    [[nodiscard]] QString with(std::span<const QString> values) const;

private:
    std::span<const UserColumn> m_columns;
    Escaping m_escaping;
    QString m_head;
};

/// The UPDATE, up to its WHERE.
[[nodiscard]] QString updateUser(std::span<const UserColumn> columns, std::span<const QString> values,
                                 Escaping escaping = Escaping::None);

/// The values of all columns, in their order.
[[nodiscard]] QList<QString> userValues(const UserRecord &user);

/// The permissions from the side of a user. One that is there is overwritten.
[[nodiscard]] const RelationStatements &foldersOfUser();

/// One above the highest UserID, 1 in an empty store: the id of a deleted user may be given
/// again, with the rows that stayed behind. Raises jet::TypeMismatch when the numbers have run out.
[[nodiscard]] int nextUserId(StoreSession &store);
