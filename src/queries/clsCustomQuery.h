#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_CustomQuery, the saved statements, and the way to run one. A
/// query is known by its name.
///
/// Nothing is escaped here: a statement to be saved comes with its quotes doubled already.
/// Every method raises the store's error.
class clsCustomQuery final : public RecordClass
{
public:
    /// Raises RuleViolation when the name is taken.
    void Add(const QString &connectionString, const QString &name, const QString &description,
             const QString &statement);
    /// Opens the caller's recordset; its rows need no store any more.
    void getAll(const QString &connectionString, jet::Recordset &result);
    /// Runs a statement of the user's. One whose first six letters are "select" opens the recordset
    /// if it gives rows, as SELECT INTO does not; any other leaves it closed, also a SELECT behind a
    /// blank.
    void Execute(const QString &connectionString, jet::Recordset &result, const QString &statement);
    /// The tables of the store by name, without those of the engine.
    [[nodiscard]] QStringList tableNames(const QString &connectionString);
    /// The fields of a table in their order.
    [[nodiscard]] QStringList fieldNames(const QString &connectionString, const QString &table);
    /// Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    /// Raises RuleViolation when another query has the name.
    void update(const QString &connectionString, int id, const QString &name, const QString &description,
                const QString &statement);
};
