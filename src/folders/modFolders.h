#pragma once

#include "views/families.h"

/// Folders and the default permissions of folders: their views, their dialogs, and who has a permission on a
/// folder.
namespace modFolders {

[[nodiscard]] std::span<const OpRow> handlers();

/// The imports of folders and their permissions from files. Called once at start.
void registerImports();

} // namespace modFolders
