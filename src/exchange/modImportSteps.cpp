#include "exchange/modImportSteps.h"

#include "base/text.h"
#include "exchange/modImportFile.h"
#include "messages/showresult.h"
#include "toolkit/messagebox.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto paragraph = "\r\n\r\n"_L1;
constexpr auto cancelled = "The Import was cancelled. What was written stays in the Database."_L1;
constexpr auto lost = "The Import was broken off because the Database can no longer be written."_L1;

constexpr qsizetype longestField = 255;
// The result window lays out every line of its text.
constexpr int mostFaults = 10'000;

QString countOf(const QString &what, int count)
{
    constexpr qsizetype labelWidth = 24;
    const QString label = what + u':';
    return label.leftJustified(labelWidth) + QString::number(count) + "\r\n"_L1;
}

/// What was done until the import ended early.
QString countsOf(const ImportFormat &format, const Report &report)
{
    const QString done = format.updates ? countOf("New "_L1 + format.objects, report.added) +
                                              countOf("Updated "_L1 + format.objects, report.updated)
                                        : countOf("Written "_L1 + format.objects, report.done);
    return done + countOf(u"Errors encountered"_s, report.failed);
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

void beginPhase(Steps &steps, const QString &title, int total)
{
    steps.phase(title, total, total);
}

ImportLines::ImportLines(const ImportFormat &format) : m_format(format)
{
    for (const ImportField &field : format.fields)
        m_records.fields().append(field.name, jet::FieldType::VarChar, longestField);
    if (!format.idField.isEmpty())
        m_records.fields().append(format.idField, jet::FieldType::VarChar, longestField);
    m_records.open();
}

void ImportLines::add(int number, const QString &line, bool isCut)
{
    if (line.isEmpty())
        return;
    if (isCut)
        return addFault(number, u"Line too long on Line "_s);
    const Fields fields = QStringView(line).split(u';');
    const QString fault = faultOf(fields);
    if (fault.isEmpty())
        return addRecord(number, line, fields);
    addFault(number, fault);
    m_refused.emplace(number, line.toUtf8());
}

QString ImportLines::faultOf(const Fields &fields) const
{
    const auto count = std::min(qsizetype(m_format.fields.size()), fields.size());
    for (std::size_t i = 0; i < m_format.fields.size(); ++i) {
        const ImportField &field = m_format.fields[i];
        const QStringView value = fields.value(qsizetype(i));
        if (value.isEmpty() && !field.whenEmpty.isEmpty())
            return field.whenEmpty;
        if (!field.words.empty() &&
            std::ranges::none_of(field.words, [&](QLatin1StringView word) { return value == word; }))
            return field.whenNoWord;
    }
    for (const QStringView value : fields.first(count)) {
        if (value.size() > longestField)
            return u"Field longer than %1 Characters on Line "_s.arg(longestField);
        if (value.contains(QChar::Null))
            return u"Field with a Null Character on Line "_s;
    }
    return {};
}

void ImportLines::addFault(int number, const QString &fault)
{
    if (++m_faults <= mostFaults)
        m_errors += "\r\n"_L1 + fault + QString::number(number);
}

void ImportLines::addRecord(int number, const QString &line, const Fields &fields)
{
    const int count = int(m_format.fields.size());
    bool isOdd = fields.size() != count;
    m_records.addNew();
    for (int i = 0; i < count; ++i) {
        QString value = fields.value(i).toString();
        if (m_format.fields[std::size_t(i)].isEscaped && value.contains(u'\'')) {
            value = escapeQuotes(value);
            isOdd = true;
        }
        m_records.fields().item(i).setValue(value);
    }
    if (!m_format.idField.isEmpty())
        m_records.fields().item(count).setValue(u"0"_s);
    if (isOdd)
        m_oddLines.set(m_numbers.size(), QStringView(line));
    m_numbers.push_back(number);
}

void ImportLines::refuse(int record)
{
    m_refused.emplace(m_numbers[std::size_t(record)], lineOf(record));
}

QByteArray ImportLines::lineOf(int record) const
{
    const auto row = std::size_t(record);
    const auto bytes = [](QUtf8StringView text) { return QByteArrayView(text.data(), text.size()); };
    if (!m_oddLines.isNull(row))
        return bytes(m_oddLines.view(row)).toByteArray();
    QByteArray line;
    for (int i = 0; i < int(m_format.fields.size()); ++i) {
        if (i > 0)
            line += ';';
        line += bytes(m_records.texts(i)->view(row));
    }
    return line;
}

QString ImportLines::errors() const
{
    const int more = m_faults - mostFaults;
    return more > 0 ? m_errors + u"\r\nand %1 more Line(s)"_s.arg(more) : m_errors;
}

QByteArray ImportLines::refused() const
{
    QByteArray text;
    for (const auto &[number, line] : m_refused)
        text += line + "\r\n";
    return text;
}

bool readLines(const QString &path, ImportLines &lines, Steps &steps)
{
    ImportFile file(path);
    beginPhase(steps, u"Reading Data from File. Please Wait."_s, file.lineCount());
    QString line;
    for (int number = 1; file.readLine(line); ++number) {
        if (!steps.step(line.left(line.indexOf(u';'))))
            return false;
        lines.add(number, line, file.isLineCut());
    }
    return true;
}

void reportImport(QWidget *owner, const QString &path, const ImportFormat &format, const Report &report,
                  const ImportLines &lines)
{
    const QString fileErrors = lines.errors();
    const bool hasErrors = !fileErrors.isEmpty() || !report.text.isEmpty();
    const bool isFinished = report.end == Report::End::Finished;
    if (isFinished && !hasErrors) {
        messageBox(owner, format.success, box::Ok | box::InformationIcon);
        return;
    }
    QString text;
    if (!isFinished) {
        text = (report.end == Report::End::Lost ? lost : cancelled) + paragraph;
        if (!report.note.isEmpty())
            text += report.note + paragraph;
        text += countsOf(format, report) + "\r\n"_L1;
    }
    if (hasErrors)
        text += "Following Errors were encountered in File\r\n"_L1 + path + paragraph + fileErrors +
                paragraph + (report.text.isEmpty() ? QString() : format.failureHeading + report.text);
    showResult(owner, text, u"Import/Export Result"_s, {u"Save &refused lines..."_s, lines.refused()});
}

} // namespace modImportSteps
