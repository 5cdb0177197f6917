#pragma once

namespace jet {

/// The type numbers that fields report.
enum class FieldType {
    Short = 2,
    Long = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    Boolean = 11,
    Variant = 12,
    Byte = 17,
    VarChar = 200,
    Text = 202,
    Memo = 203,
};

} // namespace jet
