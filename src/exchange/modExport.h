#pragma once

#include "views/families.h"

#include <QString>

#include <optional>
#include <span>

class ListView;

/// The export of a list to a text file, as it is shown: its columns and rows with semicolons between, in
/// Windows-1252.
namespace modExport {

/// "Data To File" of every mode.
[[nodiscard]] std::span<const OpRow> handlers();

/// Asks for the file and whether the title goes with it, writes the list and reports.
void exportToFile(const CommandContext &context);

/// Writes all rows of the list in their order, below the title, if any, and the headings. A character that
/// the encoding does not have becomes "?"; returns how many. Raises FileAccessError; the file is then as it
/// was.
[[nodiscard]] int exportList(const QString &path, const ListView &list, const std::optional<QString> &title);

} // namespace modExport
