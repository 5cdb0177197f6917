#pragma once

#include "readers.h"

#include <string>

/// What SQLite reads the rows of a reader with, on the sample of so many users: indexes by name, tables
/// that are read whole, and whether rows are sorted.
[[nodiscard]] std::string planOf(const Reader &reader, int users);
