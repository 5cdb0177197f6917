#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include <cmath>

namespace jet::bodies {

void product(Call &call)
{
    const std::string signs(call.text(0));
    double result = call.number(1);
    for (std::size_t i = 0; i < signs.size(); ++i) {
        const double operand = call.number(static_cast<int>(i) + 2);
        if (signs[i] == '/' && operand == 0)
            raiseDivisionByZero();
        result = signs[i] == '/' ? result / operand : result * operand;
        if (!std::isfinite(result))
            raiseOverflow();
    }
    call.giveNumber(result);
}

} // namespace jet::bodies
