#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace jet {

class Connection;

/// A column or an index: its name and, in the schema's words, what it is.
struct StoredPart
{
    QString name;
    QString definition;
};

struct StoredTable
{
    QString name;
    std::vector<StoredPart> columns; ///< in their order
    std::vector<StoredPart> indexes; ///< by name, without those that SQLite makes by itself
};

/// The tables of the open store as the file defines them, by name.
[[nodiscard]] std::vector<StoredTable> storedTables(Connection &connection);

/// What is broken in the file below the tables: pages, rows, the order of the indexes. Empty
/// for a sound file; of a badly broken one the first hundred faults. Reads the whole file.
[[nodiscard]] QStringList brokenPlaces(Connection &connection);

} // namespace jet
