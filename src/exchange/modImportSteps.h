#pragma once

#include "base/steps.h"

#include <QList>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>
#include <span>

class QWidget;

/// The steps that the imports from a file share. A reader asks its question, reads and
/// checks the lines, hands what is good to one batch and reports.
namespace modImportSteps {

/// Whether known objects are left as they are; nothing when the user cancels.
[[nodiscard]] std::optional<bool> askLeaveExisting(QWidget *owner);

/// The stride that shows about a hundred items of a phase, so that showing them costs less than the work.
[[nodiscard]] int strideOf(int total);

/// What a good line is.
struct LineFormat
{
    std::span<const QLatin1StringView> whenEmpty; ///< a message for each of the first fields
    qsizetype leastFields;
};

using Fields = QList<QStringView>;

/// What came of the lines of a file.
struct FileReport
{
    bool isCancelled = false;
    QString errors; ///< a line for each bad one, with its number
};

/// Splits each line at its semicolons and hands the good ones over, in the order of the file. Raises
/// FileAccessError.
[[nodiscard]] FileReport readLines(const QString &path, const LineFormat &format, Steps &steps,
                                   const std::function<void(const Fields &)> &take);

/// The end of an import, of its lines and of the batch that wrote them.
struct ImportReport
{
    Report::End end = Report::End::Finished;
    int added = 0;
    int updated = 0;
    int failed = 0;
    QString fileErrors;
    QString batchErrors;
};

/// The success text in a box when the import ran to its end and neither the lines nor the batch had errors,
/// otherwise the result window: why it ended early and what it did until then, and both kinds of errors.
void reportImport(QWidget *owner, const QString &path, const ImportReport &report, const QString &success);

} // namespace modImportSteps
