#include "casefile.h"

#include "base/error.h"
#include "base/oledate.h"

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace casefile {

namespace {

class Parser final
{
public:
    std::vector<Case> parse(const QString &text)
    {
        for (const QString &raw : text.split(u'\n')) {
            ++m_line;
            const QString line = raw.trimmed();
            if (!line.isEmpty() && !line.startsWith(u'#'))
                take(line);
        }
        endCase();
        return std::move(m_cases);
    }

private:
    void take(const QString &line)
    {
        if (const auto name = after(line, "case "_L1))
            startCase(*name);
        else if (const auto fixture = after(line, "fixture "_L1))
            m_fixture = *fixture;
        else if (m_cases.empty())
            mistake("stands before the first case"_L1);
        else if (line.startsWith(u'>'))
            statement(line.mid(1).trimmed());
        else if (m_cases.back().steps.empty())
            mistake("is an expectation without a statement"_L1);
        else
            expectation(m_cases.back().steps.back(), line);
    }

    void statement(const QString &text)
    {
        Step &step = m_cases.back().steps.emplace_back();
        step.line = m_line;
        const qsizetype arrow = text.lastIndexOf(" => "_L1);
        step.sql = text.left(arrow);
        if (arrow >= 0)
            expectation(step, text.mid(arrow + 4).trimmed());
    }

    void expectation(Step &step, const QString &text)
    {
        if (text == "done"_L1)
            step.done = true;
        else if (text == "no rows"_L1)
            step.count = 0;
        else if (text.startsWith(u'['))
            columns(step, text);
        else if (const auto rows = after(text, "any order"_L1))
            anyOrder(step, *rows);
        else if (const auto count = after(text, "count "_L1))
            step.count = wholeNumber(*count);
        else if (const auto error = after(text, "error "_L1))
            expectError(step, *error);
        else if (!readRows(step, text))
            mistake("is no row and no other expectation: "_L1 + text);
    }

    void anyOrder(Step &step, const QString &text)
    {
        step.anyOrder = true;
        rest(step, text);
    }

    void columns(Step &step, const QString &text)
    {
        const qsizetype end = text.indexOf(u']');
        if (end < 0)
            mistake("needs a bracket at the end of the columns"_L1);
        step.columns = text.mid(1, end - 1).split(" | "_L1);
        rest(step, text.mid(end + 1).trimmed());
    }

    /// What may follow on the same line.
    void rest(Step &step, const QString &text)
    {
        if (!text.isEmpty())
            expectation(step, text);
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
        if (!isNumber)
            mistake("needs an error number"_L1);
        step.error = ExpectedError{number, text.section(u' ', 1).trimmed()};
    }

    static bool readRows(Step &step, QStringView rest)
    {
        Row row;
        for (;;) {
            const std::optional<Value> value = readValue(rest);
            if (!value)
                return false;
            row.push_back(*value);
            rest = rest.trimmed();
            const bool endOfRow = rest.isEmpty() || rest.startsWith(u';');
            if (!endOfRow && !rest.startsWith(u'|'))
                return false;
            if (endOfRow)
                step.rows.push_back(std::exchange(row, {}));
            if (rest.isEmpty())
                return true;
            rest = rest.mid(1).trimmed();
        }
    }

    /// Takes one value off the front of the text.
    static std::optional<Value> readValue(QStringView &rest)
    {
        if (rest.startsWith(u'"'))
            return readText(rest);
        qsizetype end = 0;
        while (end < rest.size() && rest[end] != u'|' && rest[end] != u';')
            ++end;
        const QStringView word = rest.left(end).trimmed();
        rest = rest.mid(end);
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
        for (const Case &other : m_cases)
            if (other.name == name)
                mistake("names a case that is there already: "_L1 + name);
        m_cases.push_back({.name = name, .fixture = m_fixture, .line = m_line, .steps = {}});
    }

    void endCase()
    {
        if (!m_cases.empty() &&
            (m_cases.back().steps.empty() || m_cases.back().steps.back().expectsNothing()))
            mistake("ends a case that expects nothing: "_L1 + m_cases.back().name);
    }

    [[noreturn]] void mistake(const QString &what) const
    {
        throwError(5, "line "_L1 + QString::number(m_line) + u' ' + what);
    }

    static std::optional<QString> after(const QString &line, QLatin1StringView word)
    {
        return line.startsWith(word) ? std::optional(line.mid(word.size()).trimmed()) : std::nullopt;
    }

    std::vector<Case> m_cases;
    QString m_fixture;
    int m_line = 0;
};

} // namespace

std::vector<Case> parse(const QString &text)
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
