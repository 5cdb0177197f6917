#include "messages/batch.h"

#include "base/error.h"
#include "messages/guard.h"
#include "messages/modProgress.h"
#include "messages/showresult.h"
#include "toolkit/messagebox.h"

using namespace Qt::StringLiterals;

Batch::Batch(qsizetype count, const QString &title)
{
    startProgress(1, int(count), title, true, true);
}

Batch::~Batch()
{
    guarded([this] { end(); });
}

bool Batch::item(const QString &name, const std::function<void()> &work, const QString &failureName)
{
    if (stepProgress(name, int(++m_position))) {
        m_cancelled = true;
        return false;
    }
    if (attempt(work) && !currentError().isSet()) {
        ++m_done;
    } else {
        ++m_failed;
        addFailure(failureName.isEmpty() ? name : failureName);
    }
    return true;
}

void Batch::addFailure(const QString &line)
{
    m_failures += line % "\r\n"_L1;
}

void Batch::report(const QString &failureHeading)
{
    end();
    if (m_failures.isEmpty())
        messageBox(u"The Operation was completed successfully"_s, box::InformationIcon);
    else
        showResult(failureHeading % "\r\n\r\n"_L1 % m_failures, u"Import/Export Result"_s);
}

void Batch::end()
{
    if (!m_ended) {
        m_ended = true;
        endProgress();
    }
}
