#pragma once

#include <QString>

#include <vector>

/// What long work tells of itself, and where it is told to stop. The work knows no windows: it takes Steps
/// and returns what it has done (see Report).
///
///     steps.phase(u"Deleting Users"_s, int(names.size()));
///     for (const QString &name : names) {
///         if (!steps.step(name))
///             break; // report.end = Report::End::Cancelled
///         ...
///     }
class Steps
{
public:
    /// Begins a phase of so many items; work may have several. Every item is shown unless the stride is
    /// larger: then each stride-th, and the first and the last.
    virtual void phase(const QString &title, int total, int stride = 1) = 0;

    /// To be called before each item with what is shown of it. False when the user has cancelled: the work
    /// stops there, and what is done stays. This is the only place where long work takes input.
    [[nodiscard]] virtual bool step(const QString &item) = 0;

    /// The work cannot go on for now, for the reason: shows it and returns after a short while. False when
    /// the user has cancelled. The work tries again otherwise.
    [[nodiscard]] virtual bool wait(const QString &reason) = 0;

protected:
    ~Steps() = default;
};

/// For callers that neither watch nor stop the work. Waits a short while in wait(), and gives up after
/// five seconds of it.
class NoSteps final : public Steps
{
public:
    void phase(const QString &, int, int = 1) override {}
    [[nodiscard]] bool step(const QString &) override { return true; }
    [[nodiscard]] bool wait(const QString &reason) override;

private:
    int m_waits = 0;
};

/// The end of long work. Three ends are different: it ran to its end, the user cancelled it, or the store
/// was lost under it.
struct Report
{
    enum class End { Finished, Cancelled, Lost };

    int done = 0;
    int added = 0;   ///< new in the store; counted by batches that write objects
    int updated = 0; ///< known before and changed, counted by the same
    int failed = 0;
    End end = End::Finished;
    QString text = {}; ///< a line or more for each item that failed, without a heading
    QString note = {}; ///< why it ended before the last item, and what is not in the store
    /// The places of the items that a batch did not write, from 0, ascending.
    std::vector<int> refused = {};
};

/// What a batch does about an item that the store refuses.
enum class AtFailure {
    Raise, ///< ends and raises it; what was written before stays
    GoOn,  ///< has a line of the report about it and takes the next
};
