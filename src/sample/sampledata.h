#pragma once

#include <QString>

/// Makes a new store with a company of so many users to try the program on: their groups,
/// folders and permissions, hardware, rooms and software, and some saved queries. The same
/// number gives the same company, and a larger one begins with the users of a smaller one;
/// one of no users is empty. Raises what createStore() raises.
void createSampleStore(const QString &path, int users);
