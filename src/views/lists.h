#pragma once

#include "base/steps.h"
#include "views/families.h"
#include "views/frmProperties.h"
#include "views/openview.h"

#include <functional>
#include <span>
#include <type_traits>

// What the tables of families are made of: the handlers that all families have in common, made from a
// method of a record class.

template <typename Method>
struct RecordOf;
template <typename Result, typename Record, typename... Arguments>
struct RecordOf<Result (Record::*)(Arguments...)>
{
    using Class = Record;
};

/// Reads all objects by a method of a record class.
template <auto method>
void readAll(const QString &connectionString, jet::Recordset &rows)
{
    typename RecordOf<decltype(method)>::Class record;
    (record.*method)(connectionString, rows);
}

/// Reads what belongs to one object.
template <auto method>
void readOf(const QString &connectionString, jet::Recordset &rows, int id)
{
    typename RecordOf<decltype(method)>::Class record;
    if constexpr (std::is_invocable_v<decltype(method), decltype(record), const QString &, int,
                                      jet::Recordset &>)
        (record.*method)(connectionString, id, rows);
    else
        (record.*method)(connectionString, rows, id);
}

/// The view of all objects of a mode, in the context's view or in a new one.
template <auto method>
Handler listAll(Mode mode, QLatin1StringView title)
{
    return [=](const CommandContext &context) {
        openView(context.owner, context.view, mode, title, readAll<method>);
    };
}

/// A drill-down: a new view of what belongs to the current row's object, whose name ends the title.
template <auto method>
Handler related(Mode mode, QLatin1StringView title)
{
    return [=](const CommandContext &context) {
        openView(context.owner, nullptr, mode, title + context.name,
                 [id = context.id](const QString &connectionString, jet::Recordset &rows) {
                     readOf<method>(connectionString, rows, id);
                 });
    };
}

/// One list of a property window.
struct PropertyList
{
    PropertyTab tab;
    void (*read)(const QString &connectionString, jet::Recordset &rows, int id);
};

/// The property window of the current row's object.
[[nodiscard]] Handler properties(std::vector<PropertyList> lists);

/// Deletes the objects of the ids, each a step by its name.
using DeleteMethod = std::function<Report(const QString &connectionString, std::span<const int> ids,
                                          const QStringList &names, Steps &steps)>;

/// Deletes the selected objects, with a progress window when they are many, and reports what failed.
[[nodiscard]] Handler deleteSelected(QString progressTitle, QString failureHeading, DeleteMethod deleteAll);

/// The same by a method of a record class.
template <auto method>
Handler deleteSelected(QString progressTitle, QString failureHeading)
{
    return deleteSelected(std::move(progressTitle), std::move(failureHeading),
                          [](const QString &connectionString, std::span<const int> ids,
                             const QStringList &names, Steps &steps) {
                              typename RecordOf<decltype(method)>::Class record;
                              return (record.*method)(connectionString, ids, names, steps);
                          });
}
