#include "store/batchrun.h"

#include "base/error.h"
#include "platform/jet/errors.h"

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

// The batch waits by itself, where the user can see and stop it.
constexpr auto patience = std::chrono::milliseconds(50);

} // namespace

BatchRun::BatchRun(QString connectionString, Steps &steps, Report &report,
                   std::initializer_list<int *> counters)
    : m_connectionString(std::move(connectionString))
    , m_steps(steps)
    , m_report(report)
    , m_counters(counters)
    , m_kept(counters.size())
{
}

void BatchRun::expect(int count, const QString &last, QLatin1StringView lost)
{
    m_count = count;
    m_last = last;
    m_lost = lost;
}

template <typename Step>
bool BatchRun::waiting(Step &&step)
{
    for (;;) {
        try {
            step();
            return true;
        } catch (const jet::StoreLocked &locked) {
            if (m_steps.wait(locked.description()))
                continue;
            m_report.end = Report::End::Cancelled;
            m_report.note = locked.description();
            return false;
        }
    }
}

bool BatchRun::openStore()
{
    if (m_store)
        return true;
    try {
        return waiting([this] {
            m_store.emplace(m_connectionString);
            m_store->setPatience(patience);
        });
    } catch (const Error &failure) {
        lose(failure);
        return false;
    }
}

bool BatchRun::item(const QString &name, const std::function<void(StoreSession &)> &work)
{
    if (m_report.end != Report::End::Finished)
        return false;
    if (!m_steps.step(name)) {
        m_report.end = Report::End::Cancelled;
        return false;
    }
    ++m_position;
    if (!m_store || !m_store->hasPendingChanges())
        keep(name);
    if (!openStore())
        return false;
    try {
        if (!waiting([this] { m_store->beginWriting(); }))
            return false;
        if (!m_store->hasPendingChanges())
            keep(name);
        const int failed = m_report.failed;
        const int done = m_report.done;
        work(*m_store);
        if (m_report.failed > failed && m_report.done == done)
            m_report.refused.push_back(m_position - 1);
        return true;
    } catch (const jet::StoreFailure &failure) {
        lose(failure);
        return false;
    }
}

void BatchRun::keep(const QString &name)
{
    m_firstPending = m_position;
    m_firstPendingName = name;
    std::ranges::transform(m_counters, m_kept.begin(), [](const int *counter) { return *counter; });
}

void BatchRun::lose(const Error &failure)
{
    m_report.end = Report::End::Lost;
    m_report.note = failure.description() + remains();
    for (std::size_t i = 0; i < m_counters.size(); ++i)
        *m_counters[i] = m_kept[i];
    if (m_store && m_store->isOpen())
        m_store->rollBack();
    m_store.reset();
}

QString BatchRun::remains() const
{
    const int count = std::max(m_count, m_position);
    const QString text = u"\r\n%1: %2 of %3, "_s.arg(m_lost).arg(count - m_firstPending + 1).arg(count);
    if (m_firstPending == count)
        return text + m_firstPendingName;
    return text + "from "_L1 + m_firstPendingName + " to "_L1 + m_last;
}

void BatchRun::close()
{
    try {
        if (m_store) {
            const Report::End end = m_report.end;
            const QString note = m_report.note;
            // Closing tries once more for a user who does not want to wait any longer.
            (void)waiting([this] { m_store->commit(); });
            m_store->close();
            m_report.end = end; // all is written
            m_report.note = note;
        }
    } catch (const jet::StoreFailure &failure) {
        lose(failure);
    }
}

void BatchRun::closeAfter(const Error &failure)
{
    close();
    if (m_report.end == Report::End::Lost)
        throw jet::ChangesLost(failure.number(), failure.description() + u' ' + m_report.note);
}
