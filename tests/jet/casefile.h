#pragma once

#include "base/value.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// The text files under tests/jet/cases; their form is in tests/jet/README.md.
namespace casefile {

struct ExpectedError
{
    int number = 0;
    QString fragment;
};

using Row = std::vector<Value>;

struct Step
{
    int line = 0;
    QString sql;
    bool done = false;     // succeeds and returns no rows
    bool anyOrder = false; // the rows are a bag
    int count = -1;        // of rows that are not told one by one
    std::optional<ExpectedError> error;
    std::optional<QStringList> columns;
    std::vector<Row> rows;

    [[nodiscard]] bool expectsRows() const { return count >= 0 || !rows.empty() || columns; }
    [[nodiscard]] bool expectsNothing() const { return !expectsRows() && !done && !error; }
};

struct Case
{
    QString name;
    QString fixture;
    int line = 0;
    std::vector<Step> steps;
};

/// Raises an Error that names the line of the first mistake.
[[nodiscard]] std::vector<Case> parse(const QString &text);

/// A value as it is written in a case file.
[[nodiscard]] QString written(const Value &value);
[[nodiscard]] QString written(const Row &row);

/// Equal kinds and values; a whole number equals the same number as a double.
[[nodiscard]] bool same(const Value &expected, const Value &actual);

} // namespace casefile
