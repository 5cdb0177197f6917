#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <initializer_list>
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

/// Relates the items to the object, in their order, after its rows have been cleared if so
/// told. The permissions, where the table has them, are as many as the items.
void writeRelations(StoreSession &store, const RelationStatements &statements, int id,
                    std::span<const int> items, const QStringList &permissions, bool clearFirst);

/// Runs the statements, whose one marker is {id}, in their order for one id after the other.
void executeForEach(StoreSession &store, std::span<const int> ids,
                    std::initializer_list<QLatin1StringView> statements);

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

/// Takes the records, fields Name (path of a folder) and Permission. A folder not known yet is
/// added; one that cannot be is named, with a comma, in the failed text and left out.
[[nodiscard]] Permissions takeFolderPermissions(StoreSession &store, jet::Recordset &records,
                                                QString &failed);
