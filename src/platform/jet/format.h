#pragma once

#include "platform/jet/datemath.h"

#include <string>
#include <string_view>

namespace jet {

/// Up to three sections for positive and negative numbers and zero. Halves round away from zero.
[[nodiscard]] std::string formatNumber(double number, std::string_view picture);
[[nodiscard]] std::string formatDate(double date, std::string_view picture, WeekRule rule = {});
/// A second section is for the empty text.
[[nodiscard]] std::string formatText(std::string_view text, std::string_view picture);

} // namespace jet
