#pragma once

#include <QString>

/// The statement that saves a query. Nothing is escaped.
[[nodiscard]] QString insertCustomQuery(const QString &name, const QString &description,
                                        const QString &statement);
