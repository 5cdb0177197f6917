#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>
#include <span>

/// The steps that the imports from a file share. A reader asks its question, reads and
/// checks the lines, hands what is good to one batch and reports.
namespace modImportSteps {

/// Whether known objects are left as they are; nothing when the user cancels.
[[nodiscard]] std::optional<bool> askLeaveExisting();

/// The progress window over the phases of one import. It is brought up to date about a
/// hundred times a phase, so that the events it lets through cost less than the work.
class ImportProgress final
{
public:
    ImportProgress() = default;
    ~ImportProgress();
    ImportProgress(const ImportProgress &) = delete;
    ImportProgress &operator=(const ImportProgress &) = delete;

    void begin(const QString &title, int total);
    /// Whether the position is one to be shown.
    [[nodiscard]] bool isDue(int position) const;
    /// Shows it; false when the user has cancelled. Yields.
    [[nodiscard]] bool step(const QString &item, int position);

private:
    int m_total = 0;
    int m_stride = 1;
    bool m_begun = false;
};

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
[[nodiscard]] bool readLines(const QString &path, const LineFormat &format, ImportProgress &progress,
                             QString &errors, const std::function<void(const Fields &)> &take);

/// The success text in a box when neither the lines nor the batch had errors, otherwise
/// both kinds in the result window.
void reportImport(const QString &path, const QString &fileErrors, const QString &batchErrors,
                  const QString &success);

struct ImportCounts
{
    int added = 0;
    int updated = 0;
    int failed = 0;
};

/// An import that was cancelled while it wrote: what is done stays, so it is told.
void reportCancelledImport(const QString &path, const ImportCounts &counts, const QString &fileErrors,
                           const QString &batchErrors);

} // namespace modImportSteps
