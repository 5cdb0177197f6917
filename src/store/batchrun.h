#pragma once

#include "base/steps.h"
#include "store/storesession.h"

#include <QLatin1StringView>
#include <QString>

#include <functional>
#include <initializer_list>
#include <optional>
#include <vector>

class Error;

/// The walk of a batch over its items, over one session:
///
///     run.expect(count, nameOfTheLast);
///     while (... && run.item(name, [&](StoreSession &store) { ... })) {}
///
/// Each item begins with the write lock. Where another program holds the file, the batch waits through its
/// Steps and goes on where it was. A store that can no longer be written ends it: what was not brought to the
/// disk is undone, the counters are those of what was, and the note of the report says which items are not in
/// the store. An item whose work counts it as failed and not as done is one of the report's refused ones.
class BatchRun final
{
public:
    BatchRun(QString connectionString, Steps &steps, Report &report, std::initializer_list<int *> counters);

    /// What will come, and what is said of the items that are lost, for the report.
    void expect(int count, const QString &last,
                QLatin1StringView lost = QLatin1StringView("Not in the Database"));

    /// Shows the item and does the work on it. False when the batch is at its end: the user cancelled, or the
    /// store was lost. Raises what the work raises, except jet::StoreFailure.
    [[nodiscard]] bool item(const QString &name, const std::function<void(StoreSession &)> &work);

    /// Brings what is written to the disk. To be called once, whatever the end.
    void close();
    /// The same where an item has raised a failure; when changes are lost with it, that is raised instead.
    void closeAfter(const Error &failure);

private:
    template <typename Step>
    [[nodiscard]] bool waiting(Step &&step);
    [[nodiscard]] bool openStore();
    void keep(const QString &name);
    void lose(const Error &failure);
    [[nodiscard]] QString remains() const;

    QString m_connectionString;
    Steps &m_steps;
    Report &m_report;
    std::vector<int *> m_counters;
    std::optional<StoreSession> m_store;

    int m_count = 0;
    QString m_last;
    QLatin1StringView m_lost;
    int m_position = 0;
    int m_firstPending = 1; ///< all items before are in the store
    QString m_firstPendingName;
    std::vector<int> m_kept; ///< the counters of those
};
