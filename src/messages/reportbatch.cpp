#include "messages/reportbatch.h"

#include "base/steps.h"
#include "messages/showresult.h"
#include "toolkit/messagebox.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto paragraph = "\r\n\r\n"_L1;
constexpr auto lostText = "The Operation was broken off because the Database can no longer be written."_L1;

} // namespace

void reportBatch(QWidget *owner, const Report &report, const QString &failureHeading)
{
    const bool isLost = report.end == Report::End::Lost;
    if (report.text.isEmpty() && report.note.isEmpty() && !isLost) {
        messageBox(owner, u"The Operation was completed successfully"_s, box::InformationIcon);
        return;
    }
    QString text = isLost ? lostText % paragraph : QString();
    if (!report.note.isEmpty())
        text += report.note % paragraph;
    if (!report.text.isEmpty())
        text += failureHeading % paragraph % report.text;
    showResult(owner, text, u"Import/Export Result"_s);
}
