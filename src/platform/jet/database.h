#pragma once

#include "base/error.h"
#include "platform/jet/catalog.h"
#include "platform/jet/deleterules.h"
#include "platform/jet/emitter.h"
#include "platform/jet/lexer.h"
#include "platform/jet/recordheader.h"
#include "platform/jet/writegroup.h"

#include <QString>

#include <chrono>
#include <exception>
#include <memory>
#include <span>
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

    /// See Connection.
    void keepDeleteRules(std::span<const DeleteRule> rules);

    /// Takes the write lock until the changes are committed, so that what is read from here on is still true
    /// when it decides what is written. Commits before where that is due. Raises StoreLocked and ChangesLost.
    void beginWriting();
    /// While held, a group is not committed behind a statement, only where the program paints and where a
    /// next beginWriting() finds it due.
    void hold() { ++m_holders; }
    void release() { --m_holders; }
    /// Raises StoreLocked when another program's reading holds it up, and ChangesLost.
    void commit();
    /// Undoes what is not committed.
    void rollBack();
    /// Whether changes are not committed yet, or were lost without having been raised.
    [[nodiscard]] bool hasPendingChanges() const { return m_lostBefore || m_group.hasChanges(); }
    static constexpr auto usualPatience = std::chrono::milliseconds(5000);
    /// How long a statement waits for another program.
    void setPatience(std::chrono::milliseconds patience);

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
    bool bringRulesUpToDate();
    bool forgetWhatOthersChanged();
    void forget();
    void flushUnlessRead();
    void raiseLostBefore();
    static int onProgress(void *database);

    static constexpr sqlite3_int64 unknownVersion = -1;

    Handle m_handle;
    Catalog m_catalog;
    WriteGroup m_group;
    std::span<const DeleteRule> m_rules;
    bool m_rulesAreKept = false; ///< by the tables that the catalog knows
    StatementHandle m_beginReading;
    StatementHandle m_endReading;
    StatementHandle m_readVersion;
    sqlite3_int64 m_version = unknownVersion; ///< of the tables that the catalog and the statements know
    std::unordered_map<std::string, Prepared> m_prepared;
    Prepared m_schemaChange;
    std::exception_ptr m_lostBefore; ///< of a flush that had no one to report to
    int m_holders = 0;
    bool m_asking = false; ///< in the middle of a statement, events may run

    // The statement at hand; the memory is used again.
    QByteArray m_text;
    LiftedStatement m_lifted;
    std::string m_unquoted;
};

} // namespace jet
