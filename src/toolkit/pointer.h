#pragma once

/// The pointer of the whole screen: hourglass or normal. A state, not a count: one off
/// ends any number of ons.
void showHourglass(bool on);
[[nodiscard]] bool isHourglassShown();

/// Sets the pointer for a scope and brings back what it was before.
class PointerScope
{
public:
    explicit PointerScope(bool hourglass) : m_before(isHourglassShown()) { showHourglass(hourglass); }
    ~PointerScope() { showHourglass(m_before); }
    PointerScope(const PointerScope &) = delete;
    PointerScope &operator=(const PointerScope &) = delete;

private:
    bool m_before;
};

/// The hourglass for a scope.
class Hourglass final : public PointerScope
{
public:
    Hourglass() : PointerScope(true) {}
};
