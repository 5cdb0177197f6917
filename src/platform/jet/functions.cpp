#include "platform/jet/functions.h"

#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"
#include "platform/jet/words.h"

#include <algorithm>

namespace jet {

namespace {

struct Function
{
    FunctionInfo info;
    Binding binding;
};

constexpr NullRule handled = NullRule::Handled;
constexpr NullRule givesNull = NullRule::GivesNull;
constexpr Stability eachCall = Stability::EachCall;

using enum ResultKind;

// clang-format off
constexpr Function functions[] = {
    // name, least, most arguments, their kinds, result, in SQLite     what it does
    {{"Abs",          1, 1, "n",      Numeric,  "jet_abs"},          {bodies::absolute}},
    {{"Asc",          1, 1, "t",      Long,     "jet_asc"},          {bodies::codeOf}},
    {{"AscW",         1, 1, "t",      Long,     "jet_ascw"},         {bodies::unicodeOf}},
    {{"Atn",          1, 1, "n",      Double,   "jet_atn"},          {bodies::arcTangent}},
    {{"CBool",        1, 1, "v",      Boolean,  "jet_cbool"},        {bodies::toBoolean}},
    {{"CByte",        1, 1, "n",      Short,    "jet_cbyte"},        {bodies::toByte}},
    {{"CCur",         1, 1, "n",      Currency, "jet_ccur"},         {bodies::toCurrency}},
    {{"CDate",        1, 1, "d",      Date,     "jet_cdate"},        {bodies::toDate}},
    {{"CDbl",         1, 1, "n",      Double,   "jet_cdbl"},         {bodies::toDouble}},
    {{"Chr",          1, 1, "n",      Text,     "jet_chr"},          {bodies::characterOf}},
    {{"ChrW",         1, 1, "n",      Text,     "jet_chrw"},         {bodies::unicodeCharacter}},
    {{"CInt",         1, 1, "n",      Short,    "jet_cint"},         {bodies::toInteger}},
    {{"CLng",         1, 1, "n",      Long,     "jet_clng"},         {bodies::toLong}},
    {{"Cos",          1, 1, "n",      Double,   "jet_cos"},          {bodies::cosine}},
    {{"CSng",         1, 1, "n",      Double,   "jet_csng"},         {bodies::toSingle}},
    {{"CStr",         1, 1, "t",      Text,     "jet_cstr"},         {bodies::toText}},
    {{"Date",         0, 0, "",       Date,     "jet_today", true},        {bodies::today, givesNull, eachCall}},
    {{"DateAdd",      3, 3, "tnd",    Date,     "jet_dateadd"},      {bodies::dateAdd}},
    {{"DateDiff",     3, 5, "tddnn",  Long,     "jet_datediff"},     {bodies::dateDifference}},
    {{"DatePart",     2, 4, "tdnn",   Long,     "jet_datepart"},     {bodies::datePart}},
    {{"DateSerial",   3, 3, "n",      Date,     "jet_dateserial"},   {bodies::dateSerial}},
    {{"DateValue",    1, 1, "d",      Date,     "jet_datevalue"},    {bodies::dateValue}},
    {{"Day",          1, 1, "d",      Short,    "jet_day"},          {bodies::day}},
    {{"Exp",          1, 1, "n",      Double,   "jet_exp"},          {bodies::exponential}},
    {{"Fix",          1, 1, "n",      Numeric,  "jet_fix"},          {bodies::fix}},
    {{"Format",       1, 4, "ktn",    Text,     "jet_format"},       {bodies::format, handled}},
    {{"Hex",          1, 1, "n",      Text,     "jet_hex"},          {bodies::hexadecimal}},
    {{"Hour",         1, 1, "d",      Short,    "jet_hour"},         {bodies::hour}},
    {{"InStr",        2, 4, "t",      Long,     "jet_instr"},        {bodies::inString}},
    {{"InStrRev",     2, 4, "ttn",    Long,     "jet_instrrev"},     {bodies::inStringReversed}},
    {{"Int",          1, 1, "n",      Numeric,  "jet_int"},          {bodies::integer}},
    {{"IsDate",       1, 1, "k",      Boolean,  "jet_isdate"},       {bodies::isDate, handled}},
    {{"IsNumeric",    1, 1, "k",      Boolean,  "jet_isnumeric"},    {bodies::isNumeric, handled}},
    {{"LCase",        1, 1, "t",      Text,     "jet_lcase"},        {bodies::lowerCase}},
    {{"Left",         2, 2, "tn",     Text,     "jet_left"},         {bodies::left}},
    {{"Len",          1, 1, "t",      Long,     "jet_len"},          {bodies::length}},
    {{"Log",          1, 1, "n",      Double,   "jet_log"},          {bodies::logarithm}},
    {{"LTrim",        1, 1, "t",      Text,     "jet_ltrim"},        {bodies::trimLeft}},
    {{"Mid",          2, 3, "tn",     Text,     "jet_mid"},          {bodies::mid}},
    {{"Minute",       1, 1, "d",      Short,    "jet_minute"},       {bodies::minute}},
    {{"Month",        1, 1, "d",      Short,    "jet_month"},        {bodies::month}},
    {{"MonthName",    1, 2, "n",      Text,     "jet_monthname"},    {bodies::monthName}},
    {{"Now",          0, 0, "",       Date,     "jet_now", true},          {bodies::now, givesNull, eachCall}},
    {{"Oct",          1, 1, "n",      Text,     "jet_oct"},          {bodies::octal}},
    {{"Replace",      3, 6, "tttn",   Text,     "jet_replace"},      {bodies::replace, handled}},
    {{"Right",        2, 2, "tn",     Text,     "jet_right"},        {bodies::right}},
    {{"Rnd",          0, 1, "n",      Double,   "jet_rnd"},          {bodies::randomNumber, givesNull, eachCall}},
    {{"Round",        1, 2, "n",      Numeric,  "jet_round"},        {bodies::round}},
    {{"RTrim",        1, 1, "t",      Text,     "jet_rtrim"},        {bodies::trimRight}},
    {{"Second",       1, 1, "d",      Short,    "jet_second"},       {bodies::second}},
    {{"Sgn",          1, 1, "n",      Short,    "jet_sgn"},          {bodies::sign}},
    {{"Sin",          1, 1, "n",      Double,   "jet_sin"},          {bodies::sine}},
    {{"Space",        1, 1, "n",      Text,     "jet_space"},        {bodies::space}},
    {{"Sqr",          1, 1, "n",      Double,   "jet_sqr"},          {bodies::squareRoot}},
    {{"Str",          1, 1, "n",      Text,     "jet_str"},          {bodies::stringOfNumber}},
    {{"StrComp",      2, 3, "ttn",    Short,    "jet_strcomp"},      {bodies::compareStrings}},
    {{"StrConv",      2, 3, "tn",     Text,     "jet_strconv"},      {bodies::convertString}},
    {{"String",       2, 2, "nv",     Text,     "jet_string"},       {bodies::stringOf}},
    {{"StrReverse",   1, 1, "t",      Text,     "jet_strreverse"},   {bodies::reverse}},
    {{"Tan",          1, 1, "n",      Double,   "jet_tan"},          {bodies::tangent}},
    {{"Time",         0, 0, "",       Date,     "jet_time", true},         {bodies::time, givesNull, eachCall}},
    {{"Timer",        0, 0, "",       Double,   "jet_timer", true},        {bodies::timer, givesNull, eachCall}},
    {{"TimeSerial",   3, 3, "n",      Date,     "jet_timeserial"},   {bodies::timeSerial}},
    {{"TimeValue",    1, 1, "d",      Date,     "jet_timevalue"},    {bodies::timeValue}},
    {{"Trim",         1, 1, "t",      Text,     "jet_trim"},         {bodies::trim}},
    {{"UCase",        1, 1, "t",      Text,     "jet_ucase"},        {bodies::upperCase}},
    {{"Val",          1, 1, "t",      Double,   "jet_val"},          {bodies::value}},
    {{"Weekday",      1, 2, "dn",     Short,    "jet_weekday"},      {bodies::weekday}},
    {{"WeekdayName",  1, 3, "n",      Text,     "jet_weekdayname"},  {bodies::weekdayName}},
    {{"Year",         1, 1, "d",      Short,    "jet_year"},         {bodies::year}},
};
// clang-format on

const FunctionInfo *findExactly(std::string_view name)
{
    const auto row = std::ranges::find_if(
        functions, [&](const Function &function) { return sameWord(function.info.name, name); });
    return row == std::end(functions) ? nullptr : &row->info;
}

} // namespace

const FunctionInfo *findFunction(std::string_view name)
{
    if (!name.ends_with('$'))
        return findExactly(name);
    const FunctionInfo *info = findExactly(name.substr(0, name.size() - 1));
    return info && info->result == Text ? info : nullptr;
}

std::vector<std::string_view> functionNames()
{
    std::vector<std::string_view> names;
    for (const Function &function : functions)
        names.push_back(function.info.name);
    return names;
}

void registerFunctions(sqlite3 *handle)
{
    registerOperators(handle);
    registerConversions(handle);
    registerAggregates(handle);
    for (const Function &function : functions)
        bindFunction(handle, function.info.sqlite, function.binding);
}

} // namespace jet
