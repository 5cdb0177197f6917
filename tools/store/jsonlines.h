#pragma once

#include <iosfwd>

class Error;

namespace jet {
class Recordset;
}

/// The answers of the console, one JSON object a line. Rows are written one by one, so an
/// answer costs no more memory than its longest row.
namespace jsonlines {

/// {"columns":[...],"rows":[[...],...]}; leaves the recordset at its end. Null, numbers and texts are
/// JSON's own, yes/no is true or false, a date is "YYYY-MM-DD HH:MM:SS".
void writeRows(std::ostream &out, jet::Recordset &recordset);
/// {"ok":true}
void writeDone(std::ostream &out);
/// {"error":{"number":n,"text":"..."}}
void writeError(std::ostream &out, const Error &error);

} // namespace jsonlines
