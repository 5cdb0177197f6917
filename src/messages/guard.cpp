#include "messages/guard.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "toolkit/messagebox.h"

#include <QPointer>
#include <QWidget>

#include <new>

using namespace Qt::StringLiterals;

namespace {

void report(QWidget *owner, int number, const QString &description)
{
    messageBox(owner, QString::number(number) % "\r\n"_L1 % description, box::StopIcon);
}

} // namespace

void guarded(QWidget *owner, const std::function<void()> &handler)
{
    const QPointer<QWidget> alive = owner;
    try {
        handler();
    } catch (const Error &error) {
        report(alive, error.number(), error.description());
    } catch (const std::bad_alloc &) {
        report(alive, OutOfMemory, u"Out of memory"_s);
    } catch (const std::exception &error) {
        report(alive, RuleViolation, QString::fromUtf8(error.what()));
    }
}
