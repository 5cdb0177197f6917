#pragma once

#include "platform/jet/datemath.h"

#include <string>
#include <string_view>

namespace jet {

/// What a picture is made for, told by its placeholders or its name.
struct PictureKinds
{
    bool forNumbers = false; ///< 0 # or the name of a number format
    bool forDates = false;   ///< letters of a date or time, or the name of a date format
    bool forTexts = false;   ///< @ & < > !
};

[[nodiscard]] PictureKinds kindsOf(std::string_view picture);

/// Up to three sections for positive and negative numbers and zero. Halves round away from zero.
[[nodiscard]] std::string formatNumber(double number, std::string_view picture);
[[nodiscard]] std::string formatDate(double date, std::string_view picture, WeekRule rule = {});
/// A second section is for the empty text.
[[nodiscard]] std::string formatText(std::string_view text, std::string_view picture);
/// The section of a picture that is for Null, or empty.
[[nodiscard]] std::string_view nullSection(std::string_view picture);

} // namespace jet
