#pragma once

#include <string>

namespace jet {

/// A number as people read it: its 15 significant decimal digits. Rounding works on these,
/// so that 2.675 is a half at its second decimal although its double lies below.
class Decimal final
{
public:
    enum class Halves { ToEven, AwayFromZero };

    explicit Decimal(double number);

    /// To so many digits behind the point. Tells whether any were dropped.
    bool round(int decimals, Halves halves);
    /// Moves the point to the right.
    void shift(int places) { m_point += places; }

    [[nodiscard]] bool isZero() const { return m_digits.empty(); }
    /// The digits before the point without leading zeros; empty below one.
    [[nodiscard]] std::string wholeDigits() const;
    /// Digit of 10^-place, place counted from 1.
    [[nodiscard]] char fractionDigit(int place) const;
    /// The number of digits before the point; zero and below for 0.0...
    [[nodiscard]] int point() const { return m_point; }
    [[nodiscard]] double toDouble() const;

private:
    void clean();

    bool m_negative = false;
    std::string m_digits; // 0.DIGITS times ten to the point, without zeros at either end
    int m_point = 0;
};

/// The number nearest to what is left of it with so many digits behind the point, halves to even. A number
/// that shows no more digits than those loses what its double holds behind them, so that 0.1 + 0.2 rounds
/// to 0.3.
[[nodiscard]] double roundedToEven(double number, int decimals);

} // namespace jet
