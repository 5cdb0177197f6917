#pragma once

#include <QString>

/// The connection text of the store that the setting DataBase names at this moment.
[[nodiscard]] QString getConnectionString();
