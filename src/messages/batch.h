#pragma once

#include <QString>

#include <functional>

/// The gait of every batch: the progress window, one step an item, failures collected,
/// one report at the end. The caller fixes its items before it starts and walks them:
///
///     Batch batch(names.size(), "Deleting Users"_L1);
///     for (const QString &name : names)
///         if (!batch.item(name, [&] { users.Delete(store, name); }))
///             break;
///     batch.report("The following Users could not be deleted:"_L1);
class Batch final
{
public:
    Batch(qsizetype count, const QString &title);
    /// Closes the progress window of a batch that was left without a report.
    ~Batch();
    Batch(const Batch &) = delete;
    Batch &operator=(const Batch &) = delete;

    /// Does the work on the next item, unless the user has cancelled: then nothing is done
    /// and the result is false. Work that raises, or leaves the current error set, has
    /// failed, and failureName (or the name) is listed in the report.
    [[nodiscard]] bool item(const QString &name, const std::function<void()> &work,
                            const QString &failureName = {});

    /// Adds a line to the report that stands for no item of its own.
    void addFailure(const QString &line);

    /// Ends the batch with the result window, the heading above the failures, or with the
    /// box that all went well.
    void report(const QString &failureHeading);

    [[nodiscard]] qsizetype done() const { return m_done; }
    [[nodiscard]] qsizetype failed() const { return m_failed; }
    [[nodiscard]] bool isCancelled() const { return m_cancelled; }

private:
    void end();

    qsizetype m_position = 0;
    qsizetype m_done = 0;
    qsizetype m_failed = 0;
    bool m_cancelled = false;
    bool m_ended = false;
    QString m_failures;
};
