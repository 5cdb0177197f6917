#include "sqltest.h"

#include <random>
#include <sstream>

namespace {

using RobustnessTest = SqlTest;

const char *const arguments[] = {
    "NULL",
    "''",
    "' '",
    "'abc'",
    "'ÄÖ Ü'",
    "'12.5'",
    "'1/15/2005 2:30 PM'",
    "'2005-'",
    "CAST(x'ff61c3' AS TEXT)",
    "CAST(x'610062' AS TEXT)",
    "x'00ff'",
    "0",
    "1",
    "-1",
    "3",
    "7",
    "300",
    "2147483648",
    "-9223372036854775807 - 1",
    "0.5",
    "-2.5",
    "38415.604166666664",
    "-657434.5",
    "2958465.99999999",
    "1e300",
    "9e999",
    "-9e999",
    "'yyyy'",
    "'ww'",
    "'#,##0.00;(0);z;n'",
    "'@@&<!;x'",
    "'dddd mmmm hh:nn:ss a/p \"q'",
    "'0.0E+00%\\'",
    "'[!a-z]%[_'",
};

} // namespace

// Whatever stands in an argument, a function gives a value or an error that carries its number.
TEST_F(RobustnessTest, EveryFunctionAnswersAnyArguments)
{
    std::istringstream names(
        values("SELECT name FROM pragma_function_list "
               "WHERE name GLOB 'jet_*' AND type = 's' AND name <> 'jet_raise' ORDER BY name"));
    std::mt19937 random(1973);
    int functions = 0;
    for (std::string name; names >> name; ++functions) {
        for (int round = 0; round < 200; ++round) {
            std::string list;
            for (auto count = random() % 6; count > 0; --count)
                list += (list.empty() ? "" : ", ") + std::string(arguments[random() % std::size(arguments)]);
            const std::string call = name + '(' + list + ')';
            const std::string result = values("SELECT quote(" + call + ")");
            EXPECT_FALSE(result.starts_with("0 ")) << call << ": " << result;
        }
    }
    EXPECT_GT(functions, 70);
}
