#include "messages/guard.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "toolkit/messagebox.h"

#include <new>

using namespace Qt::StringLiterals;

namespace {

void report(int number, const QString &description)
{
    messageBox(QString::number(number) % "\r\n"_L1 % description, box::StopIcon);
}

} // namespace

void guarded(const std::function<void()> &handler)
{
    try {
        handler();
    } catch (const Error &error) {
        report(error.number(), error.description());
    } catch (const std::bad_alloc &) {
        report(OutOfMemory, u"Out of memory"_s);
    } catch (const std::exception &error) {
        report(RuleViolation, QString::fromUtf8(error.what()));
    }
}
