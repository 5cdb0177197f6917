#pragma once

#include "base/error.h"
#include "platform/jet/catalog.h"
#include "platform/jet/emitter.h"
#include "platform/jet/lexer.h"
#include "platform/jet/recordheader.h"
#include "platform/jet/writegroup.h"

#include <QString>

#include <exception>
#include <memory>
#include <string>
#include <unordered_map>

namespace jet {

/// Takes the rows of a result: the fields first, then each row while the statement stands on it.
class RowSink
{
public:
    virtual void takeHeader(const HeaderPtr &header) = 0;
    virtual void takeRow(sqlite3_stmt *row) = 0;

protected:
    ~RowSink() = default;
};

/// One open store file, shared by all connections of the process to it. Statements are
/// compiled once for each shape and kept until the tables change. One thread only may use the engine.
///
/// A statement that runs for long may let events run (interrupt.h). Whoever turns to the same file from
/// there is refused with a Failure, but for flushAll() and commitAll(), which leave the file alone.
class Database final : public std::enable_shared_from_this<Database>
{
public:
    /// Opens the file, or joins those that have it open. Raises Failure with a text that
    /// names the file when it is missing, a folder, unreadable or no store.
    [[nodiscard]] static std::shared_ptr<Database> open(const QString &path);
    /// Commits the pending writes of every open file that no other program reads. What fails for good is
    /// raised by the next use of the file.
    static void flushAll();
    /// The same, and raises the first failure.
    static void commitAll();

    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Runs a statement; rows it returns are dropped.
    void execute(const QString &sql);

    /// Runs a statement and hands over the rows it returns. Returns false for one that returns none.
    bool run(const QString &sql, RowSink &rows);

    /// Commits the pending writes for a connection that closes. While another program's reading holds that
    /// up, the last connection loses them, as nobody would try again, which raises ChangesLost; with any
    /// other they go on pending.
    void close(bool last);

    /// Raises Failure in the middle of a statement.
    void requireIdle() const;

    [[nodiscard]] Catalog &catalog();
    [[nodiscard]] sqlite3 *handle() const;

private:
    struct Prepared
    {
        StatementHandle statement;
        std::vector<std::string> setup; ///< what runs first; the statement can be compiled only behind it
        std::string sql;
        HeaderPtr header;                                ///< null for a statement that returns no rows
        std::vector<std::pair<int, std::string>> pinned; ///< literals that shaped the SQL, and their texts
        bool writes = false;
        bool changesSchema = false;
    };

    struct Closer
    {
        void operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }
    };
    using Handle = std::unique_ptr<sqlite3, Closer>;

    class ProgressWatch;
    class Reading;

    explicit Database(Handle handle);

    Prepared &prepare(const QString &sql);
    [[nodiscard]] Prepared compile();
    [[nodiscard]] bool fits(const Prepared &prepared) const;
    void bind(const Prepared &prepared);
    void write(const QString &sql, Prepared &prepared);
    bool writeInGroup(Prepared &prepared);
    void runWrite(Prepared &prepared);
    bool forgetWhatOthersChanged();
    void forget();
    void flushUnlessRead();
    void raiseLostBefore();
    static int onProgress(void *database);

    static constexpr sqlite3_int64 unknownVersion = -1;

    Handle m_handle;
    Catalog m_catalog;
    WriteGroup m_group;
    StatementHandle m_beginReading;
    StatementHandle m_endReading;
    StatementHandle m_readVersion;
    sqlite3_int64 m_version = unknownVersion; ///< of the tables that the catalog and the statements know
    std::unordered_map<std::string, Prepared> m_prepared;
    Prepared m_schemaChange;
    std::exception_ptr m_lostBefore; ///< of a flush that had no one to report to
    bool m_asking = false;           ///< in the middle of a statement, events may run

    // The statement at hand; the memory is used again.
    QByteArray m_text;
    LiftedStatement m_lifted;
    std::string m_unquoted;
};

} // namespace jet
