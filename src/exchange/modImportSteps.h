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

/// Splits each line at its semicolons and hands the good ones over, in the order of the
/// file; a bad one adds a message with its number to the errors. False when the user has
/// cancelled. Raises FileAccessError.
[[nodiscard]] bool readLines(const QString &path, const LineFormat &format, Steps &steps, QString &errors,
                             const std::function<void(const Fields &)> &take);

/// The success text in a box when neither the lines nor the batch had errors, otherwise
/// both kinds in the result window.
void reportImport(QWidget *owner, const QString &path, const QString &fileErrors, const QString &batchErrors,
                  const QString &success);

struct ImportCounts
{
    int added = 0;
    int updated = 0;
    int failed = 0;
};

/// An import that was cancelled while it wrote: what is done stays, so it is told.
void reportCancelledImport(QWidget *owner, const QString &path, const ImportCounts &counts,
                           const QString &fileErrors, const QString &batchErrors);

} // namespace modImportSteps
