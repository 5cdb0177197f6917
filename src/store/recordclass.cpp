#include "store/recordclass.h"

#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "store/batchrun.h"
#include "store/statement.h"
#include "store/storesession.h"

namespace {

/// Keeps what was written before a failure; that it could not is told along with it.
void closeAfter(const Error &failure, StoreSession &store)
{
    try {
        store.close();
    } catch (const jet::ChangesLost &second) {
        throw jet::ChangesLost(failure.number(), failure.description() + u' ' + second.description());
    } catch (const jet::StoreFailure &second) {
        throw jet::StoreFailure(failure.number(), failure.description() + u' ' + second.description());
    } catch (const Error &second) {
        throwError(failure.number(), failure.description() + u' ' + second.description());
    }
}

} // namespace

void RecordClass::keepingErrors(const std::function<void()> &work)
{
    try {
        work();
    } catch (const Error &error) {
        m_error.set(error);
        throw;
    }
}

void RecordClass::withStore(const QString &connectionString, const std::function<void(StoreSession &)> &work)
{
    keepingErrors([&] {
        StoreSession store(connectionString);
        try {
            work(store);
        } catch (const Error &error) {
            closeAfter(error, store);
            throw;
        }
        store.close();
    });
}

void RecordClass::withWrites(const QString &connectionString, const std::function<void(StoreSession &)> &work)
{
    withStore(connectionString, [&](StoreSession &store) {
        store.beginWriting();
        work(store);
    });
}

void RecordClass::runBatch(const QString &connectionString, Steps &steps, Report &report,
                           std::initializer_list<int *> counters, const std::function<void(BatchRun &)> &work)
{
    keepingErrors([&] {
        BatchRun run(connectionString, steps, report, counters);
        try {
            work(run);
        } catch (const Error &failure) {
            run.closeAfter(failure);
            throw;
        }
        run.close();
    });
}

void RecordClass::read(const QString &connectionString, jet::Recordset &result, const QString &sql)
{
    withStore(connectionString, [&](StoreSession &store) {
        store.open(sql, result);
        try {
            store.close();
        } catch (const Error &) {
            // The rows may be of changes that are lost.
            if (result.state() != jet::StateClosed)
                result.close();
            throw;
        }
    });
}

void RecordClass::write(const QString &connectionString, const QString &sql)
{
    withStore(connectionString, [&](StoreSession &store) { store.execute(sql); });
}

void RecordClass::writeUnlessFound(const QString &connectionString, const QString &test,
                                   QLatin1StringView refusal, const QString &statement)
{
    withWrites(connectionString, [&](StoreSession &store) {
        if (store.exists(test))
            throwError(RuleViolation, refusal);
        store.execute(statement);
    });
}

void RecordClass::writeForEach(const QString &connectionString, std::span<const int> ids,
                               std::initializer_list<QLatin1StringView> statements)
{
    withWrites(connectionString, [&](StoreSession &store) {
        for (const int id : ids) {
            store.beginWriting();
            for (const QLatin1StringView statement : statements)
                store.execute(withId(statement, id));
        }
    });
}

void RecordClass::writeRelations(const QString &connectionString, const RelationStatements &statements,
                                 int id, std::span<const int> items, const QStringList &permissions,
                                 bool clearFirst)
{
    withWrites(connectionString, [&](StoreSession &store) {
        if (clearFirst)
            clearRelations(store, statements, id);
        addRelations(store, statements, id, items, permissions);
    });
}

void RecordClass::replaceRelations(const QString &connectionString, const RelationStatements &statements,
                                   int id, std::span<const int> items)
{
    writeRelations(connectionString, statements, id, items, {}, true);
}
