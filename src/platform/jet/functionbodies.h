#pragma once

struct sqlite3;

/// What the functions of the table do, one body a function; each takes its arguments as
/// the row of the table says.
namespace jet {

class Call;

namespace bodies {

// functions_text.cpp
void unicodeOf(Call &call);
void characterOf(Call &call);
void codeOf(Call &call);
void inString(Call &call);
void inStringReversed(Call &call);
void left(Call &call);
void length(Call &call);
void lowerCase(Call &call);
void mid(Call &call);
void replace(Call &call);
void reverse(Call &call);
void right(Call &call);
void space(Call &call);
void stringOf(Call &call);
void compareStrings(Call &call);
void convertString(Call &call);
void trim(Call &call);
void trimLeft(Call &call);
void trimRight(Call &call);
void unicodeCharacter(Call &call);
void upperCase(Call &call);

// functions_number.cpp
void absolute(Call &call);
void arcTangent(Call &call);
void cosine(Call &call);
void exponential(Call &call);
void fix(Call &call);
void hexadecimal(Call &call);
void integer(Call &call);
void isNumeric(Call &call);
void logarithm(Call &call);
void octal(Call &call);
void randomNumber(Call &call);
void round(Call &call);
void sign(Call &call);
void sine(Call &call);
void squareRoot(Call &call);
void stringOfNumber(Call &call);
void tangent(Call &call);
void value(Call &call);

// functions_convert.cpp
void toBoolean(Call &call);
void toByte(Call &call);
void toCurrency(Call &call);
void toDate(Call &call);
void toDouble(Call &call);
void toInteger(Call &call);
void toLong(Call &call);
void toSingle(Call &call);
void toText(Call &call);

// functions_date.cpp
void dateAdd(Call &call);
void dateDifference(Call &call);
void datePart(Call &call);
void dateSerial(Call &call);
void dateValue(Call &call);
void day(Call &call);
void hour(Call &call);
void isDate(Call &call);
void minute(Call &call);
void month(Call &call);
void monthName(Call &call);
void now(Call &call);
void second(Call &call);
void time(Call &call);
void timeSerial(Call &call);
void timeValue(Call &call);
void timer(Call &call);
void today(Call &call);
void weekday(Call &call);
void weekdayName(Call &call);
void year(Call &call);

// functions_product.cpp
void product(Call &call);

// functions_format.cpp
void format(Call &call);

} // namespace bodies

void registerOperators(sqlite3 *handle);
void registerConversions(sqlite3 *handle);
void registerAggregates(sqlite3 *handle);

} // namespace jet
