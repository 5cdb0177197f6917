#include "platform/jet/database.h"

#include "platform/jet/errortexts.h"
#include "platform/jet/interrupt.h"
#include "platform/jet/parser.h"
#include "platform/jet/sqlitesetup.h"
#include "platform/jet/storefile.h"

#include <QFileInfo>

#include <exception>
#include <map>

namespace jet {
namespace {

constexpr int groupLimit = 20000;
constexpr auto groupAge = std::chrono::milliseconds(250);
constexpr std::size_t cacheLimit = 500; // the program has some hundred shapes; the rest people type

std::map<QString, std::weak_ptr<Database>> &openDatabases()
{
    static std::map<QString, std::weak_ptr<Database>> databases;
    return databases;
}

void stepToEnd(sqlite3 *handle, sqlite3_stmt *statement)
{
    const StatementReset reset(statement);
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
    }
    if (result != SQLITE_DONE)
        raiseSqlite(handle, result);
}

HeaderPtr headerOf(const std::vector<OutputColumn> &columns)
{
    if (columns.empty())
        return nullptr;
    auto header = std::make_shared<std::vector<HeaderField>>();
    for (const OutputColumn &column : columns) {
        const bool unknown = column.type.type == DataType::Unknown;
        header->push_back({QString::fromStdString(column.name),
                           unknown ? FieldType::Variant : fieldType(column.type.type),
                           definedSize(column.type)});
    }
    return header;
}

} // namespace

/// Lets a long statement ask whether it is to end, where someone wants to be asked.
class Database::ProgressWatch final
{
public:
    explicit ProgressWatch(Database &database) : m_handle(database.m_handle)
    {
        constexpr int stepsBetweenQuestions = 5000;
        if (Interruptible::active())
            sqlite3_progress_handler(m_handle, stepsBetweenQuestions, onProgress, &database);
    }
    ~ProgressWatch() { sqlite3_progress_handler(m_handle, 0, nullptr, nullptr); }
    ProgressWatch(const ProgressWatch &) = delete;
    ProgressWatch &operator=(const ProgressWatch &) = delete;

private:
    sqlite3 *m_handle;
};

std::shared_ptr<Database> Database::open(const QString &path)
{
    // A file that is open already must not be opened and closed once more just to look at it:
    // that would drop the locks of the whole process on it.
    const QString key = QFileInfo(path).canonicalFilePath();
    if (const auto known = openDatabases().find(key); known != openDatabases().end()) {
        if (std::shared_ptr<Database> shared = known->second.lock())
            return shared;
        openDatabases().erase(known);
    }
    checkStoreFile(path);
    sqlite3 *raw = nullptr;
    const int result =
        sqlite3_open_v2(key.toUtf8().constData(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Handle handle(raw);
    if (result != SQLITE_OK)
        raise(Failure, QStringLiteral("Could not open file '%1'. %2.")
                           .arg(path, QString::fromUtf8(raw ? sqlite3_errmsg(raw) : sqlite3_errstr(result))));
    try {
        sqlite3_extended_result_codes(raw, 1);
        registerDialect(raw);
        applyPragmas(raw);
        // Reads the file for the first time: a damaged one shows here.
        (void)queryNumber(raw, "SELECT COUNT(*) FROM sqlite_schema");
    } catch (const Error &error) {
        if (error.description().contains(key))
            throw;
        raise(error.number(), QStringLiteral("%1 The file is '%2'.").arg(error.description(), path));
    }
    std::shared_ptr<Database> shared(new Database(std::move(handle)));
    openDatabases()[key] = shared;
    return shared;
}

void Database::flushAll()
{
    std::exception_ptr first;
    for (auto &[path, known] : openDatabases()) {
        try {
            if (const std::shared_ptr<Database> database = known.lock())
                database->flushUnlessRead();
        } catch (const Error &) {
            first = first ? first : std::current_exception();
        }
    }
    if (first)
        std::rethrow_exception(first);
}

Database::Database(Handle handle)
    : m_owner(std::move(handle))
    , m_handle(m_owner.get())
    , m_catalog(m_handle)
    , m_begin(prepareSqlite(m_handle, "BEGIN IMMEDIATE"))
    , m_commit(prepareSqlite(m_handle, "COMMIT"))
{
}

Database::~Database()
{
    try {
        flush();
        // The emptied journal goes too: a store at rest is one file.
        if (m_written)
            sqlite3_exec(m_handle, "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr);
    } catch (...) {
        // Whoever closes by hand has heard of it; a destructor has no one to tell.
    }
}

bool Database::fits(const Prepared &prepared) const
{
    for (const auto &[literal, text] : prepared.pinned) {
        if (m_lifted.literals[std::size_t(literal)].text != text)
            return false;
    }
    return true;
}

Database::Prepared &Database::prepare(const QString &sql)
{
    if (m_asking)
        raise(Failure, QStringLiteral("The store is busy with another statement."));
    m_text = sql.toUtf8();
    liftLiterals({m_text.constData(), std::size_t(m_text.size())}, m_lifted);
    const auto known = m_prepared.find(m_lifted.shape);
    if (known != m_prepared.end() && fits(known->second))
        return known->second;
    if (m_prepared.size() >= cacheLimit)
        m_prepared.clear();
    return m_prepared.insert_or_assign(m_lifted.shape, compile()).first->second;
}

Database::Prepared Database::compile()
{
    const std::string_view text(m_text.constData(), std::size_t(m_text.size()));
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos)
        raiseError(EmptyCommand, "Command text was not set for the command object.");
    m_catalog.refresh();
    Parser parser(text);
    const Statement tree = parser.parse();
    EmittedStatement emitted = Emitter(m_catalog, parser.literals()).emit(tree);

    Prepared prepared;
    prepared.before = std::move(emitted.before);
    prepared.header = headerOf(emitted.columns);
    prepared.writes = emitted.writes;
    prepared.changesSchema = emitted.changesSchema;
    prepared.mayFailMidway = emitted.mayFailMidway;
    for (const int literal : emitted.pinned)
        prepared.pinned.emplace_back(literal, parser.literals()[std::size_t(literal)].text);
    if (prepared.before.empty()) {
        prepared.statement = prepareSqlite(m_handle, emitted.sql);
        prepared.parameters = sqlite3_bind_parameter_count(prepared.statement.get());
    } else
        prepared.behind = std::move(emitted.sql);
    return prepared;
}

void Database::bind(const Prepared &prepared)
{
    sqlite3_stmt *statement = prepared.statement.get();
    const int count = std::min(prepared.parameters, static_cast<int>(m_lifted.literals.size()));
    for (int i = 0; i < count; ++i) {
        const Literal &literal = m_lifted.literals[std::size_t(i)];
        switch (literal.kind) {
        case TokenKind::Integer:
            sqlite3_bind_int64(statement, i + 1, static_cast<sqlite3_int64>(literal.number));
            break;
        case TokenKind::Float:
        case TokenKind::Date:
            sqlite3_bind_double(statement, i + 1, literal.number);
            break;
        default:
            if (!literal.doubledQuotes) {
                sqlite3_bind_text(statement, i + 1, literal.text.data(),
                                  static_cast<int>(literal.text.size()), SQLITE_STATIC);
                break;
            }
            m_unquoted.clear();
            for (std::size_t at = 0; at < literal.text.size(); ++at) {
                m_unquoted += literal.text[at];
                at += literal.text[at] == literal.quote ? 1 : 0;
            }
            sqlite3_bind_text(statement, i + 1, m_unquoted.data(), static_cast<int>(m_unquoted.size()),
                              SQLITE_TRANSIENT);
        }
    }
}

void Database::execute(const QString &sql)
{
    class : public RowSink
    {
        void takeHeader(const HeaderPtr &) override {}
        void takeRow(sqlite3_stmt *) override {}
    } dropped;
    read(sql, dropped);
}

int Database::onProgress(void *database)
{
    auto *self = static_cast<Database *>(database);
    self->m_asking = true;
    bool cancelled = true;
    try {
        cancelled = Interruptible::cancelled();
    } catch (...) {
        // No exception may pass through SQLite: a question that fails ends the statement.
        cancelled = true;
    }
    self->m_asking = false;
    return cancelled ? 1 : 0;
}

bool Database::read(const QString &sql, RowSink &rows)
{
    Prepared &prepared = prepare(sql);
    const ProgressWatch watch(*this);
    if (prepared.writes) {
        write(prepared);
        return false;
    }
    bind(prepared);
    sqlite3_stmt *statement = prepared.statement.get();
    const StatementReset reset(statement);
    rows.takeHeader(prepared.header);
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW)
        rows.takeRow(statement);
    if (result != SQLITE_DONE)
        raiseSqlite(m_handle, result);
    return true;
}

void Database::write(Prepared &prepared)
{
    // An interrupted write takes its whole transaction along: it gets one for itself.
    const bool alone = Interruptible::active();
    if (alone)
        flush();
    beginGroup();
    // A single row of values is worked out before it is written, and SQLite undoes a row that
    // its constraints refuse. What can fail with rows written needs a way back of its own.
    const bool guarded = prepared.mayFailMidway || !prepared.before.empty();
    try {
        if (guarded)
            runSqlite(m_handle, "SAVEPOINT statement");
        runWrite(prepared);
        if (guarded)
            runSqlite(m_handle, "RELEASE statement");
    } catch (...) {
        if (groupLost())
            raiseGroupLost();
        if (guarded)
            sqlite3_exec(m_handle, "ROLLBACK TO statement; RELEASE statement", nullptr, nullptr, nullptr);
        throw;
    }
    const bool changed = prepared.changesSchema || sqlite3_changes(m_handle) > 0;
    if (prepared.changesSchema)
        m_prepared.clear(); // the statement itself included
    m_groupWrites += changed ? 1 : 0;
    m_writesSinceTry += changed ? 1 : 0;
    if (alone)
        flush();
    else
        commitWhenDue();
}

void Database::runWrite(Prepared &prepared)
{
    if (prepared.before.empty()) {
        bind(prepared);
        stepToEnd(m_handle, prepared.statement.get());
        return;
    }
    for (const std::string &sql : prepared.before)
        runSqlite(m_handle, sql.c_str());
    prepared.statement = prepareSqlite(m_handle, prepared.behind);
    prepared.parameters = sqlite3_bind_parameter_count(prepared.statement.get());
    bind(prepared);
    stepToEnd(m_handle, prepared.statement.get());
}

void Database::beginGroup()
{
    if (m_inGroup)
        return;
    requireFileInPlace();
    stepToEnd(m_handle, m_begin.get());
    m_inGroup = true;
    m_written = true;
    m_groupWrites = 0;
    m_writesSinceTry = 0;
    m_groupStart = std::chrono::steady_clock::now();
}

// Writes to a file that has lost its name would be gone with it.
void Database::requireFileInPlace() const
{
    int moved = 0;
    sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    if (moved != 0)
        raise(Failure, QStringLiteral("Could not find file '%1'. It was moved or deleted while it was open.")
                           .arg(QString::fromUtf8(sqlite3_db_filename(m_handle, "main"))));
}

void Database::commitWhenDue()
{
    if (m_writesSinceTry >= groupLimit || std::chrono::steady_clock::now() - m_groupStart >= groupAge)
        flushUnlessRead();
}

// While another program reads the file, what is written waits for the end of the next group;
// only the close of the connection has to tell.
void Database::flushUnlessRead()
{
    try {
        flush();
    } catch (const Error &) {
        if (!m_inGroup)
            throw;
        m_writesSinceTry = 0;
        m_groupStart = std::chrono::steady_clock::now();
    }
}

// On a full disk and the like SQLite gives up the whole transaction by itself.
bool Database::groupLost() const
{
    return m_inGroup && sqlite3_get_autocommit(m_handle) != 0;
}

// Called where an exception is being handled: the cause.
void Database::raiseGroupLost()
{
    m_inGroup = false;
    if (m_groupWrites == 0)
        throw;
    try {
        throw;
    } catch (const Error &cause) {
        throw ChangesLost(cause.number(),
                          cause.description() +
                              QStringLiteral(" The last %1 change(s) are lost.").arg(m_groupWrites));
    }
}

void Database::flush()
{
    if (!m_inGroup || m_asking)
        return;
    try {
        stepToEnd(m_handle, m_commit.get());
        m_inGroup = false;
    } catch (const Error &) {
        // A commit that has to wait for a reader can be tried again; any other is lost.
        if (!groupLost() && (sqlite3_errcode(m_handle) & 0xff) == SQLITE_BUSY)
            throw;
        if (!groupLost())
            sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
        raiseGroupLost();
    }
}

void Database::flushAtClose(bool last)
{
    if (!last) {
        flushUnlessRead();
        return;
    }
    try {
        flush();
    } catch (const Error &) {
        if (!m_inGroup)
            throw;
        sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
        raiseGroupLost();
    }
}

} // namespace jet
