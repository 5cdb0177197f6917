#pragma once

#include <functional>

namespace jet {

/// While one lives, a statement that runs for long asks every now and then whether it is to
/// end; where the answer is yes it ends with an Error "The operation was cancelled." and has
/// changed nothing. Each writing statement is then a transaction of its own.
///
/// The question may let events run. Whoever uses the same store file from there is refused
/// with an Error: SQLite has its hands full. Where one lives inside of another's life, the inner one is
/// asked.
class Interruptible final
{
public:
    explicit Interruptible(std::function<bool()> cancelled);
    ~Interruptible();
    Interruptible(const Interruptible &) = delete;
    Interruptible &operator=(const Interruptible &) = delete;

    /// Whether any lives.
    [[nodiscard]] static bool active();
    /// Asks; false without asking where that was done within the last 50 ms.
    [[nodiscard]] static bool cancelled();

private:
    std::function<bool()> m_outer;
};

} // namespace jet
