#include "store/relations.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "store/batchrecords.h"
#include "store/statement.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

namespace {

/// The id of a folder, which is added when it is not there yet; Null when it cannot be added.
Value folderId(StoreSession &store, const QString &path)
{
    const QString lookup =
        joined("SELECT ID FROM Tbl_Folders WHERE [FolderName]='{path}'"_L1, {{"path"_L1, path}});
    try {
        const Value known = store.scalar(lookup);
        if (!known.isNull())
            return known;
        store.execute(
            joined("INSERT INTO Tbl_Folders (FolderName) VALUES ('{path}')"_L1, {{"path"_L1, path}}));
        return store.scalar(lookup);
    } catch (const jet::StoreFailure &) {
        throw;
    } catch (const Error &error) {
        // Only a text can be wrong with one folder; what is wrong with the store ends the batch.
        if (error.number() == jet::Failure || error.number() == jet::MissingTable)
            throw;
        return {};
    }
}

} // namespace

void clearRelations(StoreSession &store, const RelationStatements &statements, int id)
{
    store.execute(withId(statements.clear, id));
}

void addRelations(StoreSession &store, const RelationStatements &statements, int id,
                  std::span<const int> items, const QStringList &permissions)
{
    Q_ASSERT(permissions.size() == qsizetype(items.size()) || !statements.insert.contains("{permission}"_L1));
    const QString object = QString::number(id);
    for (std::size_t i = 0; i < items.size(); ++i) {
        store.beginWriting();
        const QString item = QString::number(items[i]);
        const QString permission = permissions.value(qsizetype(i));
        const auto fill = [&](QLatin1StringView text) {
            return joined(text, {{"id"_L1, object}, {"item"_L1, item}, {"permission"_L1, permission}});
        };
        if (statements.test.isEmpty() || !store.exists(fill(statements.test)))
            store.execute(fill(statements.insert));
        else if (!statements.update.isEmpty())
            store.execute(fill(statements.update));
    }
}

Permissions findOrAddFolders(StoreSession &store, jet::Recordset &records, QString &failed)
{
    enum { Name, Permission };
    Permissions taken;
    for (BatchRecords batch(records, {"Name"_L1, "Permission"_L1}); batch.next();) {
        store.beginWriting();
        const QString path = batch.text(Name);
        const Value folder = folderId(store, path);
        if (folder.isNull()) {
            failed += path + u',';
            continue;
        }
        taken.add(int(folder.toInteger()), batch.text(Permission));
    }
    return taken;
}
