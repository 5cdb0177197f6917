#pragma once

#include "base/error.h"
#include "store/storesession.h"

#include <QLatin1StringView>

/// What the record classes have in common: they hold nothing between calls but the last
/// failure, and each method visits the store once, with a connection of its own.
class RecordClass
{
public:
    [[nodiscard]] int errorNumber() const { return m_error.number; }
    [[nodiscard]] const QString &errorDescription() const { return m_error.description; }

protected:
    RecordClass() = default;
    ~RecordClass() = default;

    /// Runs the work over a new session. A failure, the opening's too, is kept in the two
    /// error fields and raised again.
    template <typename Work>
    void withStore(const QString &connectionString, Work &&work)
    {
        try {
            StoreSession store(connectionString);
            try {
                work(store);
            } catch (const Error &error) {
                closeAfter(error, store);
                throw;
            }
            store.close();
        } catch (const Error &error) {
            m_error.set(error);
            throw;
        }
    }

    /// The shape of a reading method.
    void read(const QString &connectionString, jet::Recordset &result, const QString &sql)
    {
        withStore(connectionString, [&](StoreSession &store) {
            store.open(sql, result);
            try {
                store.close();
            } catch (const Error &) {
                result.close();
                throw;
            }
        });
    }

    /// The shape of a method that runs one statement, whatever the store holds.
    void write(const QString &connectionString, const QString &sql)
    {
        withStore(connectionString, [&](StoreSession &store) { store.execute(sql); });
    }

    /// The shape of a method that writes one row under a rule: raises RuleViolation with the
    /// refusal, and writes nothing, when the test finds a row.
    void writeUnlessFound(const QString &connectionString, const QString &test, QLatin1StringView refusal,
                          const QString &statement)
    {
        withStore(connectionString, [&](StoreSession &store) {
            if (store.exists(test))
                raise(RuleViolation, refusal);
            store.execute(statement);
        });
    }

private:
    /// What was written before a failure stays; that it could not is told along with it.
    static void closeAfter(const Error &failure, StoreSession &store);

    CurrentError m_error;
};
