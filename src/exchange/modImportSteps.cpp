#include "exchange/modImportSteps.h"

#include "exchange/modImportFile.h"
#include "messages/guard.h"
#include "messages/modProgress.h"
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

std::optional<bool> askLeaveExisting()
{
    const int answer =
        messageBox(u"Importing the selected Data will update Entries already in the database\r\n"
                   "Would you like to update existing data?"_s,
                   box::YesNoCancel | box::WarningIcon);
    if (answer == box::ResultYes)
        return false;
    if (answer == box::ResultNo)
        return true;
    return std::nullopt;
}

ImportProgress::~ImportProgress()
{
    if (m_begun)
        guarded(endProgress);
}

void ImportProgress::begin(const QString &title, int total)
{
    m_begun = true;
    m_total = total;
    m_stride = std::max(1, total / stepsOfAPhase);
    startProgress(1, total, title, true, true);
}

bool ImportProgress::isDue(int position) const
{
    return position % m_stride == 0 || position == 1 || position == m_total;
}

bool ImportProgress::step(const QString &item, int position)
{
    return !stepProgress(item, position);
}

bool readLines(const QString &path, const LineFormat &format, ImportProgress &progress, QString &errors,
               const std::function<void(const Fields &)> &take)
{
    ImportFile file(path);
    progress.begin(u"Reading Data from File. Please Wait."_s, file.lineCount());
    QString line;
    for (int number = 1; file.readLine(line); ++number) {
        const Fields fields = QStringView(line).split(u';');
        if (progress.isDue(number) && !progress.step(fields.front().toString(), number))
            return false;
        const QString fault = faultOf(fields, format);
        if (fault.isEmpty())
            take(fields);
        else
            errors += "\r\n"_L1 + fault + QString::number(number);
    }
    return !isProgressCancelled();
}

void reportImport(const QString &path, const QString &fileErrors, const QString &batchErrors,
                  const QString &success)
{
    if (fileErrors.isEmpty() && batchErrors.isEmpty())
        messageBox(success, box::Ok | box::InformationIcon);
    else
        showResult(errorReport(path, fileErrors, batchErrors), resultTitle);
}

void reportCancelledImport(const QString &path, const ImportCounts &counts, const QString &fileErrors,
                           const QString &batchErrors)
{
    QString text = u"The Import was cancelled. What was written stays in the Database.\r\n\r\n"
                   "New Users:     \t\t%1\r\nUpdated Users: \t\t%2\r\nErrors encountered: \t%3\r\n\r\n"_s
                       .arg(counts.added)
                       .arg(counts.updated)
                       .arg(counts.failed);
    if (!fileErrors.isEmpty() || !batchErrors.isEmpty())
        text += errorReport(path, fileErrors, batchErrors);
    showResult(text, resultTitle);
}

} // namespace modImportSteps
