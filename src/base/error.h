#pragma once

#include <QString>

#include <exception>

/// The number of every violated rule of the store; engine failures carry the
/// numbers of platform/jet/errors.h.
inline constexpr int RuleViolation = 1973;

/// What the engine and the record classes throw: a number and a text that names
/// the thing at fault.
class Error : public std::exception
{
public:
    Error(int number, QString description);

    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] const QString &description() const { return m_description; }
    [[nodiscard]] const char *what() const noexcept override;

private:
    int m_number;
    QString m_description;
    QByteArray m_what;
};

[[noreturn]] void throwError(int number, const QString &description);

/// The one error channel of procedures that skip errors step by step: clear it,
/// do the step, read it right after.
struct CurrentError
{
    int number = 0;
    QString description;

    void clear();
    void set(const Error &error);
    [[nodiscard]] bool isSet() const { return number != 0; }
};

[[nodiscard]] CurrentError &currentError();

/// Runs a step whose failure is read from currentError() instead of being thrown.
/// The current error is cleared first. Returns whether the step succeeded.
template <typename Step>
bool attempt(Step &&step)
{
    currentError().clear();
    try {
        step();
        return true;
    } catch (const Error &error) {
        currentError().set(error);
        return false;
    }
}
