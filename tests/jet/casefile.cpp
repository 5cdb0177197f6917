#include "casefile.h"

#include "base/oledate.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace casefile {

namespace {

class Parser final
{
public:
    File parse(const QString &text)
    {
        for (const QString &raw : text.split(u'\n')) {
            ++m_line;
            const QString line = raw.trimmed();
            if (!line.isEmpty() && !line.startsWith(u'#'))
                take(line);
        }
        endCase();
        return std::move(m_file);
    }

private:
    void take(const QString &line)
    {
        if (const auto name = after(line, "case "_L1))
            startCase(*name);
        else if (const auto fixture = after(line, "fixture "_L1))
            m_fixture = *fixture;
        else if (m_file.cases.empty() || !m_open)
            mistake("stands before the first case"_L1);
        else if (line.startsWith(u'>'))
            statement(line.mid(1).trimmed());
        else if (m_file.cases.back().steps.empty())
            mistake("is an expectation without a statement"_L1);
        else
            expectation(m_file.cases.back().steps.back(), line);
    }

    void statement(const QString &sql)
    {
        Step &step = m_file.cases.back().steps.emplace_back();
        step.line = m_line;
        step.sql = sql;
    }

    void expectation(Step &step, const QString &line)
    {
        if (line == "done"_L1)
            step.done = true;
        else if (line == "no rows"_L1)
            step.count = 0;
        else if (line == "any order"_L1)
            step.anyOrder = true;
        else if (const auto count = after(line, "count "_L1))
            step.count = wholeNumber(*count);
        else if (const auto column = after(line, "ordered by "_L1))
            step.orderedBy = wholeNumber(*column);
        else if (const auto names = after(line, "columns "_L1))
            step.columns = names->split(" | "_L1);
        else if (const auto error = after(line, "error "_L1))
            expectError(step, *error);
        else if (const std::optional<Row> row = readRow(line))
            step.rows.push_back(*row);
        else
            mistake("is no row and no other expectation: "_L1 + line);
    }

    int wholeNumber(const QString &text)
    {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (!isNumber || number < 0)
            mistake("needs a number: "_L1 + text);
        return number;
    }

    void expectError(Step &step, const QString &text)
    {
        bool isNumber = false;
        const int number = text.section(u' ', 0, 0).toInt(&isNumber);
        if (isNumber)
            step.error = ExpectedError{number, text.section(u' ', 1).trimmed()};
        else
            mistake("needs an error number"_L1);
    }

    static std::optional<Row> readRow(const QString &line)
    {
        Row row;
        QStringView rest = line;
        for (;;) {
            const std::optional<Value> value = readValue(rest);
            if (!value)
                return std::nullopt;
            row.push_back(*value);
            rest = rest.trimmed();
            if (rest.isEmpty())
                return row;
            if (!rest.startsWith(u'|'))
                return std::nullopt;
            rest = rest.mid(1).trimmed();
        }
    }

    /// Takes one value off the front of the text.
    static std::optional<Value> readValue(QStringView &rest)
    {
        if (rest.startsWith(u'"'))
            return readText(rest);
        const qsizetype bar = rest.indexOf(u'|');
        const QStringView word = (bar < 0 ? rest : rest.left(bar)).trimmed();
        rest = bar < 0 ? QStringView() : rest.mid(bar);
        if (word == "Null"_L1)
            return Value();
        if (word == "True"_L1 || word == "False"_L1)
            return Value(word == "True"_L1);
        bool isNumber = false;
        if (const qint64 whole = word.toLongLong(&isNumber); isNumber)
            return Value(whole);
        if (const double number = word.toDouble(&isNumber); isNumber)
            return Value(number);
        if (const std::optional<double> date = oledate::parse(word); date && word.contains(u':'))
            return Value(OleDate{*date});
        return std::nullopt;
    }

    static std::optional<Value> readText(QStringView &rest)
    {
        QString text;
        for (qsizetype at = 1; at < rest.size(); ++at) {
            if (rest[at] != u'"') {
                text += rest[at];
            } else if (at + 1 < rest.size() && rest[at + 1] == u'"') {
                text += u'"';
                ++at;
            } else {
                rest = rest.mid(at + 1);
                return Value(text);
            }
        }
        return std::nullopt;
    }

    void startCase(const QString &name)
    {
        endCase();
        for (const Case &other : m_file.cases)
            if (other.name == name)
                mistake("names a case that is there already: "_L1 + name);
        m_file.cases.push_back({.name = name, .fixture = m_fixture, .line = m_line, .steps = {}});
        m_open = true;
    }

    void endCase()
    {
        if (!m_open)
            return;
        m_open = false;
        const std::vector<Step> &steps = m_file.cases.back().steps;
        if (steps.empty() || steps.back().expectsNothing())
            mistake("ends a case that expects nothing: "_L1 + m_file.cases.back().name);
    }

    void mistake(const QString &what)
    {
        m_file.mistakes.append("line "_L1 + QString::number(m_line) + u' ' + what);
    }

    static std::optional<QString> after(const QString &line, QLatin1StringView word)
    {
        return line.startsWith(word) ? std::optional(line.mid(word.size()).trimmed()) : std::nullopt;
    }

    File m_file;
    QString m_fixture;
    int m_line = 0;
    bool m_open = false;
};

} // namespace

File parse(const QString &text)
{
    return Parser().parse(text);
}

QString written(const Value &value)
{
    if (value.isNull())
        return u"Null"_s;
    if (value.isDate())
        return oledate::toIso(value.toDouble());
    if (value.isText())
        return u'"' + value.toText().replace(u'"', "\"\""_L1) + u'"';
    return value.toText();
}

QString written(const Row &row)
{
    QStringList values;
    for (const Value &value : row)
        values.append(written(value));
    return values.join(" | "_L1);
}

bool same(const Value &expected, const Value &actual)
{
    const bool numbers =
        (expected.isInteger() || expected.isDouble()) && (actual.isInteger() || actual.isDouble());
    if (numbers) {
        const double scale = std::max(1.0, std::abs(expected.toDouble()));
        return std::abs(expected.toDouble() - actual.toDouble()) <= 1e-9 * scale;
    }
    if (expected.isDate() && actual.isDate())
        return written(expected) == written(actual);
    return expected == actual;
}

} // namespace casefile
