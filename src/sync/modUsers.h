#pragma once

#include "views/families.h"

#include <QString>

/// Users: their views, what belongs to a user, and the import of users from a file.
namespace modUsers {

[[nodiscard]] std::span<const OpRow> handlers();

/// Asks whether known users are to be updated, reads the file, writes its users to the
/// store and reports. Nothing is read when the question is cancelled, nothing is written
/// when the reading is. Raises nothing.
void importUsersFromFile(QWidget *owner, const QString &path);

/// Makes it the import of users of the import dialog. Called once at start.
void registerImport();

} // namespace modUsers
