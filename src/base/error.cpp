#include "base/error.h"

Error::Error(int number, QString description)
    : m_number(number)
    , m_description(std::move(description))
    , m_what(m_description.toUtf8())
{
}

const char *Error::what() const noexcept
{
    return m_what.constData();
}

void throwError(int number, const QString &description)
{
    throw Error(number, description);
}

void CurrentError::clear()
{
    number = 0;
    description.clear();
}

void CurrentError::set(const Error &error)
{
    number = error.number();
    description = error.description();
}

CurrentError &currentError()
{
    static CurrentError error;
    return error;
}
