#include "platform/jet/types.h"

#include "platform/jet/words.h"

#include <iterator>

namespace jet {
namespace {

struct TypeRow
{
    DataType type;
    FieldType field;
    int size;
    const char *declaration;
};

constexpr int MemoSize = 1073741823;

// By the number of the type. SQLite gives the declared names numeric affinity, but the texts; only a
// counter is declared as what it takes for a row id.
constexpr TypeRow types[] = {
    {DataType::Unknown, FieldType::Text, widestText, ""},
    {DataType::Boolean, FieldType::Boolean, 2, "YESNO"},
    {DataType::Byte, FieldType::Byte, 1, "BYTE"},
    {DataType::Short, FieldType::Short, 2, "SHORT"},
    {DataType::Long, FieldType::Long, 4, "LONG"},
    {DataType::Counter, FieldType::Long, 4, "INTEGER"},
    {DataType::Wide, FieldType::Double, 8, "DOUBLE"},
    {DataType::Single, FieldType::Single, 4, "SINGLE"},
    {DataType::Double, FieldType::Double, 8, "DOUBLE"},
    {DataType::Currency, FieldType::Currency, 8, "CURRENCY"},
    {DataType::Date, FieldType::Date, 8, "DATETIME"},
    {DataType::Text, FieldType::Text, widestText, "TEXT"},
    {DataType::Memo, FieldType::Memo, MemoSize, "TEXT"},
};

static_assert(
    [] {
        for (std::size_t i = 0; i < std::size(types); ++i) {
            if (types[i].type != static_cast<DataType>(i))
                return false;
        }
        return std::size(types) == static_cast<std::size_t>(DataType::Memo) + 1;
    }(),
    "a row for each type, in the order of DataType");

struct TypeName
{
    std::string_view name;
    DataType type;
};

constexpr TypeName names[] = {
    {"BIT", DataType::Boolean},
    {"BOOLEAN", DataType::Boolean},
    {"LOGICAL", DataType::Boolean},
    {"LOGICAL1", DataType::Boolean},
    {"YESNO", DataType::Boolean},
    {"BYTE", DataType::Byte},
    {"INTEGER1", DataType::Byte},
    {"TINYINT", DataType::Byte},
    {"SHORT", DataType::Short},
    {"INTEGER2", DataType::Short},
    {"SMALLINT", DataType::Short},
    {"LONG", DataType::Long},
    {"INT", DataType::Long},
    {"INTEGER", DataType::Long},
    {"INTEGER4", DataType::Long},
    {"COUNTER", DataType::Counter},
    {"AUTOINCREMENT", DataType::Counter},
    {"IDENTITY", DataType::Counter},
    {"SINGLE", DataType::Single},
    {"REAL", DataType::Single},
    {"FLOAT4", DataType::Single},
    {"DOUBLE", DataType::Double},
    {"FLOAT", DataType::Double},
    {"FLOAT8", DataType::Double},
    {"NUMBER", DataType::Double},
    {"NUMERIC", DataType::Double},
    {"DECIMAL", DataType::Double},
    {"CURRENCY", DataType::Currency},
    {"MONEY", DataType::Currency},
    {"DATETIME", DataType::Date},
    {"DATE", DataType::Date},
    {"TIME", DataType::Date},
    {"TIMESTAMP", DataType::Date},
    {"TEXT", DataType::Memo},
    {"CHAR", DataType::Text},
    {"VARCHAR", DataType::Text},
    {"STRING", DataType::Text},
    {"CHARACTER", DataType::Text},
    {"ALPHANUMERIC", DataType::Text},
    {"NCHAR", DataType::Text},
    {"NVARCHAR", DataType::Text},
    {"MEMO", DataType::Memo},
    {"LONGTEXT", DataType::Memo},
    {"LONGCHAR", DataType::Memo},
    {"NOTE", DataType::Memo},
    {"NTEXT", DataType::Memo},
};

const TypeRow &row(DataType type)
{
    return types[static_cast<int>(type)];
}

} // namespace

FieldType fieldType(DataType type)
{
    return row(type).field;
}

int definedSize(ColumnType type)
{
    return type.width > 0 ? type.width : row(type.type).size;
}

DataType typeByName(std::string_view name)
{
    for (const TypeName &entry : names) {
        if (sameWord(entry.name, name))
            return entry.type;
    }
    return DataType::Unknown;
}

std::string declaration(ColumnType type)
{
    if (type.type == DataType::Text)
        return "TEXT(" + std::to_string(type.width > 0 ? type.width : widestText) + ")";
    return row(type.type).declaration;
}

bool comparable(DataType left, DataType right)
{
    if (left == DataType::Unknown || right == DataType::Unknown)
        return true;
    return isText(left) == isText(right);
}

DataType commonType(DataType left, DataType right)
{
    if (left == right || right == DataType::Unknown)
        return left;
    if (left == DataType::Unknown)
        return right;
    if (isText(left) || isText(right))
        return DataType::Memo;
    if (left == DataType::Date || right == DataType::Date)
        return DataType::Date;
    if (isWhole(left) && isWhole(right))
        return left == DataType::Wide || right == DataType::Wide ? DataType::Wide : DataType::Long;
    return DataType::Double;
}

} // namespace jet
