#pragma once

#include "platform/jet/recordset.h"

#include <QString>

#include <span>

/// A reading method of a record class and the same query by hand.
struct Reader
{
    const char *name;
    /// "Column FROM Table": the method reads for the value that stands there most often; null when
    /// it reads for none.
    const char *subject;
    void (*read)(const QString &connectionString, jet::Recordset &result, int subject);
    /// In SQLite's words, ?1 being the subject. {hwtype} stands for the text of a hardware type.
    const char *byHand;
};

[[nodiscard]] std::span<const Reader> readers();

/// The samples they are measured on, by their number of users.
inline constexpr int fewUsers = 10'000;
inline constexpr int manyUsers = 40'000;

/// The value that stands most often where the reader looks; 0 when it reads for none.
[[nodiscard]] int subjectOf(const Reader &reader, const QString &store);
