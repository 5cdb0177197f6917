#pragma once

#include "platform/jet/sqlite.h"

#include <QString>

#include <string>
#include <string_view>

/// A store file by hand: the engine's collation and file settings on a handle of SQLite's own.
/// What the benchmarks do with it is the floor that the engine is measured against.
class RawStore final
{
public:
    explicit RawStore(const QString &path);
    ~RawStore();
    Q_DISABLE_COPY_MOVE(RawStore)

    [[nodiscard]] sqlite3 *handle() const { return m_handle; }

private:
    sqlite3 *m_handle = nullptr;
};

/// A prepared statement that is bound, run and read without ceremony.
class RawStatement final
{
public:
    RawStatement(const RawStore &store, std::string_view sql);

    RawStatement &bind(int place, std::string_view text);
    RawStatement &bind(int place, qint64 number);
    /// Whether there is a row.
    [[nodiscard]] bool step();
    /// Runs to the end and starts over.
    void run();
    void reset();
    [[nodiscard]] qint64 number(int column) const;
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] int columns() const;
    [[nodiscard]] bool isNumber(int column) const;

private:
    jet::StatementHandle m_statement;
};
