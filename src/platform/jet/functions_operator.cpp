#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include "platform/jet/like.h"

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <sqlite3.h>

namespace jet {

namespace {

void concatenate(Call &call)
{
    std::string joined;
    bool any = false;
    for (int i = 0; i < call.count(); ++i) {
        any = any || !call.isNull(i);
        const std::string_view part = call.text(i);
        requireRoom(joined.size() + part.size());
        joined += part;
    }
    if (any)
        call.give(joined);
}

void like(Call &call)
{
    const auto *kept = static_cast<const LikePattern *>(sqlite3_get_auxdata(call.context(), 1));
    if (kept) {
        call.giveWhole(kept->matches(call.text(0)) ? 1 : 0);
        return;
    }
    auto pattern = std::make_unique<LikePattern>(call.text(1));
    call.giveWhole(pattern->matches(call.text(0)) ? 1 : 0);
    // Kept for the next row; dropped at once where the pattern differs from row to row.
    sqlite3_set_auxdata(call.context(), 1, pattern.release(),
                        [](void *old) { delete static_cast<LikePattern *>(old); });
}

void add(Call &call)
{
    if (call.isText(0) && call.isText(1)) {
        requireRoom(call.text(0).size() + call.text(1).size());
        call.give(std::string(call.text(0)).append(call.text(1)));
    } else
        call.giveNumber(call.number(0) + call.number(1));
}

void subtract(Call &call)
{
    call.giveNumber(call.number(0) - call.number(1));
}

void multiply(Call &call)
{
    call.giveNumber(call.number(0) * call.number(1));
}

template <typename Operation>
void combineBits(Call &call)
{
    call.giveWhole(Operation()(call.whole(0), call.whole(1)));
}

void divide(Call &call)
{
    if (call.number(1) == 0)
        raiseDivisionByZero();
    call.giveNumber(call.number(0) / call.number(1));
}

struct WholePair
{
    std::int64_t left;
    std::int64_t right;
};

WholePair wholeOperands(Call &call)
{
    const WholePair operands{call.wide(0), call.wide(1)};
    if (operands.right == 0)
        raiseDivisionByZero();
    return operands;
}

void divideWhole(Call &call)
{
    const auto [left, right] = wholeOperands(call);
    if (right == -1 && left == std::numeric_limits<std::int64_t>::min())
        raiseOverflow();
    call.giveWhole(left / right);
}

void modulo(Call &call)
{
    const auto [left, right] = wholeOperands(call);
    call.giveWhole(right == -1 ? 0 : left % right);
}

void power(Call &call)
{
    const double base = call.number(0);
    const double exponent = call.number(1);
    if ((base < 0 && std::trunc(exponent) != exponent) || (base == 0 && exponent < 0))
        raiseInvalidCall();
    call.giveNumber(std::pow(base, exponent));
}

constexpr NamedBinding operators[] = {
    {"jet_cat", {concatenate, NullRule::Handled}},
    {"jet_plus", {concatenate}},
    {"jet_like", {like}},
    {"jet_add", {add}},
    {"jet_sub", {subtract}},
    {"jet_mul", {multiply}},
    {"jet_product", {bodies::product}},
    {"jet_band", {combineBits<std::bit_and<>>}},
    {"jet_bor", {combineBits<std::bit_or<>>}},
    {"jet_bxor", {combineBits<std::bit_xor<>>}},
    {"jet_div", {divide}},
    {"jet_idiv", {divideWhole}},
    {"jet_mod", {modulo}},
    {"jet_pow", {power}},
};

} // namespace

void registerOperators(sqlite3 *handle)
{
    bindFunctions(handle, operators);
}

} // namespace jet
