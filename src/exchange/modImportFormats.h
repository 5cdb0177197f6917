#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <span>

/// The formats of import files, as data: what the user picks, how a line looks, what is checked of it and
/// what the windows say. One reader serves them all.

struct ImportField
{
    QLatin1StringView name;           ///< in the records of the batch
    QLatin1StringView whenEmpty = {}; ///< what is wrong with a line without it; empty where it is optional
    std::span<const QLatin1StringView> words = {}; ///< the only texts it may be; none for any text
    QLatin1StringView whenNoWord = {};             ///< what is wrong with a line where it is another one
    bool isEscaped = false;                        ///< goes to the batch with its apostrophes doubled
};

struct ImportFormat
{
    QLatin1StringView type;              ///< as the user picks it
    QLatin1StringView help;              ///< what the information button shows
    std::span<const ImportField> fields; ///< of a line, in order
    bool updates = false;                ///< known objects can be updated: the user is asked
    QLatin1StringView objects;           ///< what a line is, in the plural
    QLatin1StringView writing;           ///< the title of the progress while the batch runs
    QLatin1StringView success;
    QLatin1StringView failureHeading = {}; ///< above what the batch refused
    QLatin1StringView idField = {};        ///< one more field of the records, 0 in each
};

/// In the order in which they are offered.
[[nodiscard]] std::span<const ImportFormat> importFormats();
/// Nothing for a text that names no type.
[[nodiscard]] const ImportFormat *importFormat(QStringView type);
