#pragma once

#include <string_view>
#include <vector>

namespace jet {

inline constexpr std::string_view generalNumber = "General Number";
inline constexpr std::string_view shortDate = "m/d/yyyy";
inline constexpr std::string_view longDate = "dddd, mmmm d, yyyy";
inline constexpr std::string_view longTime = "h:nn:ss AM/PM";

/// The picture that a name like "Long Date" stands for; any other text as it is.
[[nodiscard]] std::string_view pictureOf(std::string_view name);

/// One step of the picture of a format: a character that stands for itself, or one that may be
/// a placeholder.
struct PictureItem
{
    std::string_view text;
    bool literal = false; ///< was quoted or behind a backslash
};

/// Takes quotes and backslashes away. The views live as long as the picture.
[[nodiscard]] std::vector<PictureItem> pictureItems(std::string_view picture);

/// The sections between the semicolons that are not literal.
[[nodiscard]] std::vector<std::string_view> pictureSections(std::string_view picture);

/// What a picture is made for, told by its placeholders or its name.
struct PictureKinds
{
    bool forNumbers = false; ///< 0 # or the name of a number format
    bool forDates = false;   ///< letters of a date or time, or the name of a date format
    bool forTexts = false;   ///< @ & < > !
};

[[nodiscard]] PictureKinds kindsOf(std::string_view picture);

/// The section of a picture that is for Null, or empty.
[[nodiscard]] std::string_view nullSection(std::string_view picture);

} // namespace jet
