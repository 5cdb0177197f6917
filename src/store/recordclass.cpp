#include "store/recordclass.h"

#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "store/batchrun.h"
#include "store/statement.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

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

Report RecordClass::deleteEach(const QString &connectionString, std::span<const int> ids,
                               const QStringList &names, Steps &steps,
                               std::initializer_list<QLatin1StringView> statements)
{
    Q_ASSERT(names.size() == qsizetype(ids.size()));
    Report report;
    if (ids.empty())
        return report;
    QString failures;
    std::size_t at = 0;
    const auto line = [&](const QString &reason) -> QString {
        return names[qsizetype(at)] + ": "_L1 + reason + "\r\n"_L1;
    };
    const auto deleteOne = [&](StoreSession &store) {
        try {
            for (const QLatin1StringView statement : statements)
                store.execute(withId(statement, ids[at]));
            ++report.done;
        } catch (const jet::StoreFailure &) {
            throw;
        } catch (const Error &error) {
            ++report.failed;
            failures += line(error.description());
        }
    };
    runBatch(connectionString, steps, report, {&report.done}, [&](BatchRun &run) {
        run.expect(int(ids.size()), names.last(), "Not deleted"_L1);
        while (at < ids.size() && run.item(names[qsizetype(at)], deleteOne))
            ++at;
    });
    // Why it ended early: of the item at hand when another program held the store.
    if (report.end == Report::End::Cancelled && !report.text.isEmpty() && at < ids.size())
        report.text = line(report.text);
    else if (!report.text.isEmpty() && !failures.isEmpty())
        report.text += "\r\n\r\n"_L1;
    report.text += failures;
    return report;
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
