#pragma once

#include <utility>

namespace jet {

/// Gives a variable another value for as long as it lives, and then its old one back.
template <typename Value>
class Restored final
{
public:
    Restored(Value &variable, Value value) : m_variable(variable), m_before(std::exchange(variable, value)) {}
    ~Restored() { m_variable = m_before; }
    Restored(const Restored &) = delete;
    Restored &operator=(const Restored &) = delete;

private:
    Value &m_variable;
    Value m_before;
};

} // namespace jet
