#include "store/recordclass.h"

void RecordClass::write(const QString &connectionString, const QStringList &statements)
{
    withStore(connectionString, [&](StoreSession &store) {
        for (const QString &statement : statements)
            store.execute(statement);
    });
}

void RecordClass::writeUnlessFound(const QString &connectionString, const QString &test,
                                   QLatin1StringView refusal, const QString &statement)
{
    withStore(connectionString, [&](StoreSession &store) {
        if (store.exists(test))
            raise(RuleViolation, refusal);
        store.execute(statement);
    });
}

void RecordClass::relate(const QString &connectionString, const QStringList &clearing, const QString &insert,
                         std::span<const int> ids)
{
    withStore(connectionString, [&](StoreSession &store) {
        for (const QString &statement : clearing)
            store.execute(statement);
        for (const int id : ids)
            store.execute(insert + QString::number(id) + u')');
    });
}
