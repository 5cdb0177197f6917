#include "jsonlines.h"

#include "base/error.h"
#include "base/oledate.h"
#include "platform/jet/recordset.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <ostream>

using namespace Qt::StringLiterals;

namespace jsonlines {

namespace {

QJsonValue toJson(const Value &value)
{
    if (value.isNull())
        return QJsonValue::Null;
    if (value.isBoolean())
        return value.toBoolean();
    if (value.isInteger())
        return value.toInteger();
    if (value.isDouble())
        return value.toDouble();
    if (value.isDate())
        return oledate::toIso(value.toDouble());
    return value.toText();
}

template <typename Json>
std::string line(const Json &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace

void writeRows(std::ostream &out, jet::Recordset &recordset)
{
    const int fields = recordset.fields().count();
    QJsonArray names;
    for (int field = 0; field < fields; ++field)
        names.append(recordset.fields().item(field).name());
    out << "{\"columns\":" << line(names) << ",\"rows\":[";
    for (bool first = true; !recordset.eof(); recordset.moveNext(), first = false) {
        QJsonArray row;
        for (int field = 0; field < fields; ++field)
            row.append(toJson(recordset.value(field)));
        out << (first ? "" : ",") << line(row);
    }
    out << "]}\n";
}

void writeDone(std::ostream &out)
{
    out << "{\"ok\":true}\n";
}

void writeError(std::ostream &out, const Error &error)
{
    const QJsonObject told{{"number"_L1, error.number()}, {"text"_L1, error.description()}};
    out << line(QJsonObject{{"error"_L1, told}}) << '\n';
}

} // namespace jsonlines
