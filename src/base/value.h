#pragma once

#include <QString>

#include <string>
#include <variant>

/// A date as days since 1899-12-30 (base/oledate.h).
struct OleDate
{
    double days = 0;
    friend bool operator==(const OleDate &, const OleDate &) = default;
};

/// The value of one field of one record. Yes/no is bool, every whole number is
/// qint64, every other number double.
class Value final
{
public:
    Value() = default;
    Value(bool value) : m_value(value) {}
    Value(int value) : m_value(qint64(value)) {}
    Value(qint64 value) : m_value(value) {}
    Value(double value) : m_value(value) {}
    Value(OleDate value) : m_value(value) {}
    Value(QString value) : m_value(std::move(value)) {}
    Value(const char *) = delete;

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<QString>(m_value); }
    [[nodiscard]] bool isBoolean() const { return std::holds_alternative<bool>(m_value); }
    [[nodiscard]] bool isDate() const { return std::holds_alternative<OleDate>(m_value); }
    [[nodiscard]] bool isInteger() const { return std::holds_alternative<qint64>(m_value); }
    [[nodiscard]] bool isDouble() const { return std::holds_alternative<double>(m_value); }

    /// Null is the empty text; yes/no is "True" or "False"; a date is a short date;
    /// a number is written without blanks.
    [[nodiscard]] QString toText() const;
    /// Null and what is no number is 0; True is -1; a fraction is rounded to even.
    [[nodiscard]] qint64 toInteger() const;
    [[nodiscard]] double toDouble() const;
    /// False for Null, 0 and texts other than "True" and non-zero numbers.
    [[nodiscard]] bool toBoolean() const;

    friend bool operator==(const Value &, const Value &) = default;

private:
    std::variant<std::monostate, bool, qint64, double, OleDate, QString> m_value;
};

/// A number as text: up to 15 significant digits, no trailing zeros, no blanks.
[[nodiscard]] std::string numberText(double number);
