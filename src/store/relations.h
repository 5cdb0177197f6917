#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <span>

namespace jet {
class Recordset;
}
class StoreSession;

/// How rows of a relationship table are written from one of its sides. The texts know the
/// markers {id} (the object of this side), {item} (one of the other side) and {permission}.
struct RelationStatements
{
    QLatin1StringView clear;
    QLatin1StringView test; ///< empty: rows go in without a test
    QLatin1StringView insert;
    QLatin1StringView update{}; ///< empty: a row that is there stays as it is
};

/// Takes all rows of the object away.
void clearRelations(StoreSession &store, const RelationStatements &statements, int id);
/// Relates the items to the object, in their order, beside what it has. The permissions, where
/// the table has them, are as many as the items.
void addRelations(StoreSession &store, const RelationStatements &statements, int id,
                  std::span<const int> items, const QStringList &permissions = {});

/// Folders or accounts by id, and a permission for each.
struct Permissions
{
    QList<int> ids;
    QStringList permissions;

    void add(int id, const QString &permission)
    {
        ids.append(id);
        permissions.append(permission);
    }
};

/// The folders and permissions of the records, fields Name (path of a folder, as it stands) and
/// Permission. A folder not known yet is added to the store; one that cannot be is named, with a
/// comma, in the failed text and left out. Raises what is wrong with the store.
[[nodiscard]] Permissions findOrAddFolders(StoreSession &store, jet::Recordset &records, QString &failed);
