#pragma once

#include <QString>

/// Registers each case of the *.test files below the folder as a test of its own.
void registerCases(const QString &folder);
