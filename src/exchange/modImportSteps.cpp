#include "exchange/modImportSteps.h"

#include "exchange/modImportFile.h"
#include "messages/showresult.h"
#include "toolkit/messagebox.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int stepsOfAPhase = 100;
constexpr auto cancelled = "The Import was cancelled. What was written stays in the Database."_L1;
constexpr auto lost = "The Import was broken off because the Database can no longer be written."_L1;
constexpr auto resultTitle = "Import/Export Result"_L1;

constexpr qsizetype longestField = 255;

QString faultOf(const modImportSteps::Fields &fields, const modImportSteps::LineFormat &format)
{
    for (std::size_t i = 0; i < format.whenEmpty.size(); ++i) {
        if (qsizetype(i) >= fields.size() || fields[qsizetype(i)].isEmpty())
            return format.whenEmpty[i];
    }
    if (fields.size() < format.leastFields)
        return u"Fields missing on Line "_s;
    for (const QStringView field : fields.first(format.leastFields)) {
        if (field.size() > longestField)
            return u"Field longer than %1 Characters on Line "_s.arg(longestField);
        if (field.contains(QChar::Null))
            return u"Field with a Null Character on Line "_s;
    }
    return {};
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

FileReport readLines(const QString &path, const LineFormat &format, Steps &steps,
                     const std::function<void(const Fields &)> &take)
{
    FileReport report;
    ImportFile file(path);
    steps.phase(u"Reading Data from File. Please Wait."_s, file.lineCount(), strideOf(file.lineCount()));
    QString line;
    for (int number = 1; file.readLine(line); ++number) {
        const Fields fields = QStringView(line).split(u';');
        if (!steps.step(fields.front().toString())) {
            report.isCancelled = true;
            break;
        }
        const QString fault = file.isLineCut() ? u"Line too long on Line "_s : faultOf(fields, format);
        if (fault.isEmpty())
            take(fields);
        else
            report.errors += "\r\n"_L1 + fault + QString::number(number);
    }
    return report;
}

void reportImport(QWidget *owner, const QString &path, const ImportReport &report, const QString &success)
{
    const bool hasErrors = !report.fileErrors.isEmpty() || !report.batchErrors.isEmpty();
    const bool isFinished = report.end == Report::End::Finished;
    if (isFinished && !hasErrors) {
        messageBox(owner, success, box::Ok | box::InformationIcon);
        return;
    }
    QString text;
    if (!isFinished) {
        text = (report.end == Report::End::Lost ? lost : cancelled) +
               u"\r\n\r\nNew Users:     \t\t%1\r\nUpdated Users: \t\t%2\r\nErrors encountered: \t%3\r\n\r\n"_s
                   .arg(report.added)
                   .arg(report.updated)
                   .arg(report.failed);
    }
    if (hasErrors)
        text += errorReport(path, report.fileErrors, report.batchErrors);
    showResult(owner, text, resultTitle);
}

} // namespace modImportSteps
