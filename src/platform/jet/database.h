#pragma once

#include "base/error.h"
#include "platform/jet/catalog.h"
#include "platform/jet/emitter.h"
#include "platform/jet/lexer.h"
#include "platform/jet/recordheader.h"
#include "platform/jet/sqlite.h"

#include <QString>

#include <chrono>
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
/// compiled once for each shape and kept; writes are grouped into transactions of bounded
/// size and age, so that a batch does not pay for the disk row by row.
class Database final
{
public:
    /// Opens the file, or joins those that have it open. Raises Failure with a text that
    /// names the file when it is missing, a folder, unreadable or no store.
    [[nodiscard]] static std::shared_ptr<Database> open(const QString &path);
    /// Commits the pending writes of every open file.
    static void flushAll();

    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Runs a statement; rows it returns are dropped.
    void execute(const QString &sql);

    /// Runs a statement and hands its rows over. Returns false for one that returns none.
    bool read(const QString &sql, RowSink &rows);

    /// Ends the group of writes at hand. Raises ChangesLost when that fails, or Failure while another
    /// program's reading holds it up: the group stays then, to be tried again.
    void flush();
    /// The same at the close of a connection. Held up, the group is given up with the last connection, as
    /// nobody would try again, and stays silently with any other.
    void flushAtClose(bool last);

    [[nodiscard]] Catalog &catalog() { return m_catalog; }
    [[nodiscard]] sqlite3 *handle() const { return m_handle; }

private:
    struct Prepared
    {
        StatementHandle statement;
        std::vector<std::string> before;
        std::string behind; ///< the statement itself, where it can be compiled only behind those
        HeaderPtr header;   ///< null for a statement that returns no rows
        std::vector<std::pair<int, std::string>> pinned;
        int parameters = 0;
        bool writes = false;
        bool changesSchema = false;
        bool mayFailMidway = false;
    };

    struct Closer
    {
        void operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }
    };
    using Handle = std::unique_ptr<sqlite3, Closer>;

    class ProgressWatch;

    explicit Database(Handle handle);

    Prepared &prepare(const QString &sql);
    [[nodiscard]] Prepared compile();
    [[nodiscard]] bool fits(const Prepared &prepared) const;
    void bind(const Prepared &prepared);
    void write(Prepared &prepared);
    void runWrite(Prepared &prepared);
    void beginGroup();
    void commitWhenDue();
    void flushUnlessRead();
    void requireFileInPlace() const;
    static int onProgress(void *database);
    [[nodiscard]] bool groupLost() const;
    [[noreturn]] void raiseGroupLost();

    Handle m_owner;
    sqlite3 *m_handle;
    Catalog m_catalog;
    std::unordered_map<std::string, Prepared> m_prepared;

    // The statement at hand; the memory is used again.
    QByteArray m_text;
    LiftedStatement m_lifted;
    std::string m_unquoted;

    StatementHandle m_begin;
    StatementHandle m_commit;
    bool m_asking = false; // in the middle of a statement, events may run
    bool m_inGroup = false;
    bool m_written = false; ///< whether there ever was a group
    int m_groupWrites = 0;
    int m_writesSinceTry = 0; // to commit them
    std::chrono::steady_clock::time_point m_groupStart;
};

} // namespace jet
