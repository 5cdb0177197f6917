#pragma once

#include "platform/jet/fieldtype.h"

#include <string>
#include <string_view>

namespace jet {

/// The types of columns and expressions. Unknown is Null and what only running tells.
enum class DataType {
    Unknown,
    Boolean,
    Byte,
    Short,
    Long,
    Counter,
    Wide, ///< what + - * make of whole numbers: it may leave the range of Long
    Single,
    Double,
    Currency,
    Date,
    Text,
    Memo
};

[[nodiscard]] constexpr bool isText(DataType type)
{
    return type == DataType::Text || type == DataType::Memo;
}

/// Numbers and yes/no, which counts as -1 and 0.
[[nodiscard]] constexpr bool isNumber(DataType type)
{
    return type >= DataType::Boolean && type <= DataType::Currency;
}

[[nodiscard]] constexpr bool isWhole(DataType type)
{
    return type >= DataType::Boolean && type <= DataType::Wide;
}

/// Whole numbers of at most 32 bits.
[[nodiscard]] constexpr bool isLong(DataType type)
{
    return isWhole(type) && type != DataType::Wide;
}

/// Characters of the widest text column that has a width.
inline constexpr int widestText = 255;

/// The type of a column or an expression, with the width of a text.
struct ColumnType
{
    DataType type = DataType::Unknown;
    int width = 0; ///< characters of a text column, 0: unlimited
};

[[nodiscard]] FieldType fieldType(DataType type);
/// Characters of a text field, otherwise bytes of the kind.
[[nodiscard]] int definedSize(ColumnType type);

/// Reads a type name of CREATE TABLE or of the store file; Unknown for another word. A TEXT is a Memo: its
/// width, which may stand behind it, makes it a Text.
[[nodiscard]] DataType typeByName(std::string_view name);
/// How a column is declared in the store file.
[[nodiscard]] std::string declaration(ColumnType type);

/// Whether values of the two may stand on the sides of a comparison.
[[nodiscard]] bool comparable(DataType left, DataType right);
/// The type of a value that comes from either side.
[[nodiscard]] DataType commonType(DataType left, DataType right);

} // namespace jet
