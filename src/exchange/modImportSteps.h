#pragma once

#include "base/steps.h"
#include "base/textcolumn.h"
#include "exchange/modImportFormats.h"
#include "platform/jet/recordset.h"

#include <QList>
#include <QString>
#include <QStringView>

#include <map>
#include <optional>
#include <vector>

class QWidget;

/// The steps of every import from a file: the question, the lines with their checks, the report.
namespace modImportSteps {

/// Whether known objects are left as they are; nothing when the user cancels.
[[nodiscard]] std::optional<bool> askLeaveExisting(QWidget *owner);

/// Begins a phase of so many lines that is shown as time passes: each shown line also ends a group of writes,
/// and lines are read and written by the ten thousand a second.
void beginPhase(Steps &steps, const QString &title, int total);

/// The lines of a file: the good ones as the records of a batch, of the others what is wrong with them.
/// Any line can be had as it stood, except one too long to be kept.
class ImportLines final
{
public:
    explicit ImportLines(const ImportFormat &format);

    /// The next line of the file, without its end.
    void add(int number, const QString &line, bool isCut);
    /// The batch has refused a record, by its place from 0.
    void refuse(int record);

    /// All fields text.
    [[nodiscard]] jet::Recordset &records() { return m_records; }
    /// A line for each bad one, with its number, in front a line end; of very many the first.
    [[nodiscard]] QString errors() const;
    /// The refused lines in the order of the file, UTF-8.
    [[nodiscard]] QByteArray refused() const;

private:
    using Fields = QList<QStringView>;

    [[nodiscard]] QString faultOf(const Fields &fields) const;
    void addRecord(int number, const QString &line, const Fields &fields);
    void addFault(int number, const QString &fault);
    [[nodiscard]] QByteArray lineOf(int record) const;

    const ImportFormat &m_format;
    jet::Recordset m_records;
    std::vector<int> m_numbers; ///< of the lines of the records
    TextColumn m_oddLines;      ///< by record, where the fields do not give the line
    QString m_errors;
    int m_faults = 0;
    std::map<int, QByteArray> m_refused; ///< by number
};

/// Reads all lines of the file. False when the user has cancelled. Raises FileAccessError.
[[nodiscard]] bool readLines(const QString &path, ImportLines &lines, Steps &steps);

/// The success text in a box when the import ran to its end and neither the lines nor the batch had errors,
/// otherwise the result window: why it ended early and what it did until then, and both kinds of errors. It
/// offers to save the refused lines.
void reportImport(QWidget *owner, const QString &path, const ImportFormat &format, const Report &report,
                  const ImportLines &lines);

} // namespace modImportSteps
