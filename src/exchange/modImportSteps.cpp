#include "exchange/modImportSteps.h"

#include "exchange/modImportFile.h"
#include "messages/showresult.h"
#include "toolkit/messagebox.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int stepsOfAPhase = 100;
constexpr auto resultTitle = "Import/Export Result"_L1;

QString faultOf(const modImportSteps::Fields &fields, const modImportSteps::LineFormat &format)
{
    for (std::size_t i = 0; i < format.whenEmpty.size(); ++i) {
        if (qsizetype(i) >= fields.size() || fields[qsizetype(i)].isEmpty())
            return format.whenEmpty[i];
    }
    return fields.size() < format.leastFields ? u"Fields missing on Line "_s : QString();
}

QString errorReport(const QString &path, const QString &fileErrors, const QString &batchErrors)
{
    return "Following Errors were encountered in File\r\n"_L1 + path + "\r\n\r\n"_L1 + fileErrors +
           "\r\n\r\n"_L1 + batchErrors;
}

} // namespace

namespace modImportSteps {

std::optional<bool> askLeaveExisting(QWidget *owner)
{
    const int answer =
        messageBox(owner,
                   u"Importing the selected Data will update Entries already in the database\r\n"
                   "Would you like to update existing data?"_s,
                   box::YesNoCancel | box::WarningIcon);
    if (answer == box::ResultYes)
        return false;
    if (answer == box::ResultNo)
        return true;
    return std::nullopt;
}

int strideOf(int total)
{
    return std::max(1, total / stepsOfAPhase);
}

bool readLines(const QString &path, const LineFormat &format, Steps &steps, QString &errors,
               const std::function<void(const Fields &)> &take)
{
    ImportFile file(path);
    steps.phase(u"Reading Data from File. Please Wait."_s, file.lineCount(), strideOf(file.lineCount()));
    QString line;
    for (int number = 1; file.readLine(line); ++number) {
        const Fields fields = QStringView(line).split(u';');
        if (!steps.step(fields.front().toString()))
            return false;
        const QString fault = faultOf(fields, format);
        if (fault.isEmpty())
            take(fields);
        else
            errors += "\r\n"_L1 + fault + QString::number(number);
    }
    return true;
}

void reportImport(QWidget *owner, const QString &path, const QString &fileErrors, const QString &batchErrors,
                  const QString &success)
{
    if (fileErrors.isEmpty() && batchErrors.isEmpty())
        messageBox(owner, success, box::Ok | box::InformationIcon);
    else
        showResult(owner, errorReport(path, fileErrors, batchErrors), resultTitle);
}

void reportCancelledImport(QWidget *owner, const QString &path, const ImportCounts &counts,
                           const QString &fileErrors, const QString &batchErrors)
{
    QString text = u"The Import was cancelled. What was written stays in the Database.\r\n\r\n"
                   "New Users:     \t\t%1\r\nUpdated Users: \t\t%2\r\nErrors encountered: \t%3\r\n\r\n"_s
                       .arg(counts.added)
                       .arg(counts.updated)
                       .arg(counts.failed);
    if (!fileErrors.isEmpty() || !batchErrors.isEmpty())
        text += errorReport(path, fileErrors, batchErrors);
    showResult(owner, text, resultTitle);
}

} // namespace modImportSteps
