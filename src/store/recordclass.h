#pragma once

#include "base/error.h"
#include "base/steps.h"
#include "store/relations.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <functional>
#include <initializer_list>
#include <span>

class BatchRun;

/// What the record classes have in common: they hold nothing between calls but the last
/// failure, and each method visits the store once, with a connection of its own.
class RecordClass
{
public:
    /// Of the last failure: a later success leaves them as they are.
    [[nodiscard]] int errorNumber() const { return m_error.number; }
    [[nodiscard]] const QString &errorDescription() const { return m_error.description; }

protected:
    RecordClass() = default;
    ~RecordClass() = default;

    /// Runs the work. A failure is kept in the two error fields and raised again.
    void keepingErrors(const std::function<void()> &work);
    /// The same over a new session, whose opening may fail, too; what was written before a failure
    /// stays.
    void withStore(const QString &connectionString, const std::function<void(StoreSession &)> &work);

    /// The same for work that writes. It holds the write lock from its beginning, so what it looks up is
    /// still true when it writes.
    void withWrites(const QString &connectionString, const std::function<void(StoreSession &)> &work);
    /// A batch, whose items go through the run (see BatchRun). A failure that the work raises ends it, and
    /// what was written before stays. The counters are those of the report that count what was written.
    void runBatch(const QString &connectionString, Steps &steps, Report &report,
                  std::initializer_list<int *> counters, const std::function<void(BatchRun &)> &work);

    // The shapes of the methods.

    /// Opens the caller's recordset, which must be closed and is so after a failure. A SELECT INTO
    /// leaves it closed.
    void read(const QString &connectionString, jet::Recordset &result, const QString &sql);
    /// One statement, whatever the store holds.
    void write(const QString &connectionString, const QString &sql);
    /// One row under a rule: raises RuleViolation with the refusal, and writes nothing, when the
    /// test finds a row.
    void writeUnlessFound(const QString &connectionString, const QString &test, QLatin1StringView refusal,
                          const QString &statement);
    /// The statements, whose one marker is {id}, in their order for one id after the other.
    void writeForEach(const QString &connectionString, std::span<const int> ids,
                      std::initializer_list<QLatin1StringView> statements);
    /// The same as a batch, whose report has a line for each id that failed; the names are those of the ids.
    [[nodiscard]] Report deleteEach(const QString &connectionString, std::span<const int> ids,
                                    const QStringList &names, Steps &steps,
                                    std::initializer_list<QLatin1StringView> statements);
    /// One permission an item. The object keeps its other rows unless they are cleared first.
    void writeRelations(const QString &connectionString, const RelationStatements &statements, int id,
                        std::span<const int> items, const QStringList &permissions, bool clearFirst);
    /// The items become the object's only ones.
    void replaceRelations(const QString &connectionString, const RelationStatements &statements, int id,
                          std::span<const int> items);

private:
    CurrentError m_error;
};
