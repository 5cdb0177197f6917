#include "platform/jet/database.h"

#include "platform/jet/errortexts.h"
#include "platform/jet/interrupt.h"
#include "platform/jet/parser.h"
#include "platform/jet/sqlitesetup.h"
#include "platform/jet/storefile.h"

#include <QFileInfo>

#include <algorithm>
#include <exception>
#include <map>
#include <utility>

namespace jet {
namespace {

constexpr std::size_t cacheLimit = 500; // the program has some hundred shapes; the rest people type

std::map<QString, std::weak_ptr<Database>> &openDatabases()
{
    static std::map<QString, std::weak_ptr<Database>> databases;
    return databases;
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

/// Lets a long statement ask whether it is to end, where someone wants to be asked. Whoever answers may
/// let go of the last connection to the file: it is closed behind the statement then.
class Database::ProgressWatch final
{
public:
    explicit ProgressWatch(Database &database)
    {
        if (!Interruptible::active())
            return;
        constexpr int stepsBetweenQuestions = 5000;
        m_database = database.shared_from_this();
        sqlite3_progress_handler(database.m_handle.get(), stepsBetweenQuestions, onProgress, &database);
    }
    ~ProgressWatch()
    {
        if (m_database)
            sqlite3_progress_handler(m_database->m_handle.get(), 0, nullptr, nullptr);
    }
    ProgressWatch(const ProgressWatch &) = delete;
    ProgressWatch &operator=(const ProgressWatch &) = delete;

private:
    std::shared_ptr<Database> m_database;
};

/// Holds the file from the look at the version of its tables to the end of what is read, so that no other
/// program changes them in between and the file is locked once for both. In a group of writes it is held
/// anyway.
class Database::Reading final
{
public:
    explicit Reading(Database &database)
    {
        if (database.m_group.isOpen())
            return;
        runToEnd(database.m_handle.get(), database.m_beginReading.get());
        m_end = database.m_endReading.get();
    }
    ~Reading() { end(); }
    Reading(const Reading &) = delete;
    Reading &operator=(const Reading &) = delete;

    void end()
    {
        if (m_end == nullptr)
            return;
        // It has nothing to write, so it can only find that SQLite has ended the transaction already.
        (void)sqlite3_step(m_end);
        sqlite3_reset(m_end);
        m_end = nullptr;
    }

private:
    sqlite3_stmt *m_end = nullptr;
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
        throwError(Failure,
                   QStringLiteral("Could not open file '%1'. %2.")
                       .arg(path, QString::fromUtf8(raw ? sqlite3_errmsg(raw) : sqlite3_errstr(result))));
    try {
        sqlite3_extended_result_codes(raw, 1);
        registerDialect(raw);
        sqlite3_busy_timeout(raw, int(usualPatience.count()));
        applyPragmas(raw);
        // Reads the file for the first time: a damaged one shows here.
        (void)queryNumber(raw, "SELECT COUNT(*) FROM sqlite_schema");
    } catch (const Error &error) {
        if (error.description().contains(key))
            throw;
        throwError(error.number(), namingFile(error.description(), path));
    }
    std::shared_ptr<Database> shared(new Database(std::move(handle)));
    openDatabases()[key] = shared;
    return shared;
}

void Database::flushAll()
{
    for (auto &[path, known] : openDatabases()) {
        if (const std::shared_ptr<Database> database = known.lock())
            database->flushUnlessRead();
    }
}

void Database::commitAll()
{
    flushAll();
    for (auto &[path, known] : openDatabases()) {
        if (const std::shared_ptr<Database> database = known.lock())
            database->raiseLostBefore();
    }
}

Database::Database(Handle handle)
    : m_handle(std::move(handle))
    , m_catalog(m_handle.get())
    , m_group(m_handle.get())
    , m_beginReading(prepareSqlite(m_handle.get(), "BEGIN"))
    , m_endReading(prepareSqlite(m_handle.get(), "COMMIT"))
    , m_readVersion(prepareSqlite(m_handle.get(), "PRAGMA schema_version"))
{
}

Database::~Database()
{
    try {
        m_group.commit();
        // The emptied journal goes too: a store at rest is one file. Another program that uses the store has
        // its own need of it.
        setPatience({});
        if (m_group.wasEverOpen())
            sqlite3_exec(m_handle.get(), "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr);
    } catch (...) {
        // Whoever closes by hand has heard of it; a destructor has no one to tell.
    }
}

void Database::requireIdle() const
{
    if (m_asking)
        throwError(Failure, QStringLiteral("The store is busy with another statement."));
}

Catalog &Database::catalog()
{
    requireIdle();
    raiseLostBefore();
    if (!m_group.isOpen())
        forgetWhatOthersChanged();
    return m_catalog;
}

sqlite3 *Database::handle() const
{
    requireIdle();
    return m_handle.get();
}

bool Database::forgetWhatOthersChanged()
{
    sqlite3_int64 version = 0;
    const StatementReset reset(m_readVersion.get());
    forEachRow(m_handle.get(), m_readVersion.get(),
               [&version](sqlite3_stmt *row) { version = sqlite3_column_int64(row, 0); });
    if (version == m_version)
        return false;
    forget();
    m_version = version;
    return true;
}

// With the version: a group that changes the tables and is then lost takes the new version back, and another
// program may give it anew.
void Database::forget()
{
    m_prepared.clear();
    m_catalog.forget();
    m_version = unknownVersion;
    m_rulesAreKept = false;
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
    m_text = sql.toUtf8();
    liftLiterals({m_text.constData(), std::size_t(m_text.size())}, m_lifted);
    const auto known = m_prepared.find(m_lifted.shape);
    if (known != m_prepared.end() && fits(known->second))
        return known->second;
    Prepared compiled = compile();
    if (compiled.changesSchema) // runs once by nature
        return m_schemaChange = std::move(compiled);
    if (m_prepared.size() >= cacheLimit)
        m_prepared.clear();
    return m_prepared.insert_or_assign(m_lifted.shape, std::move(compiled)).first->second;
}

Database::Prepared Database::compile()
{
    const std::string_view text(m_text.constData(), std::size_t(m_text.size()));
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos)
        raiseError(EmptyCommand, "Command text was not set for the command object.");
    Parser parser(text);
    const Statement tree = parser.parse();
    EmittedStatement emitted = Emitter(m_catalog, parser.literals()).emit(tree);

    Prepared prepared;
    prepared.setup = std::move(emitted.before);
    prepared.header = headerOf(emitted.columns);
    prepared.writes = emitted.writes;
    prepared.changesSchema = emitted.changesSchema;
    for (const int literal : emitted.pinned)
        prepared.pinned.emplace_back(literal, parser.literals()[std::size_t(literal)].text);
    prepared.sql = std::move(emitted.sql);
    if (prepared.setup.empty())
        prepared.statement = prepareSqlite(m_handle.get(), prepared.sql);
    return prepared;
}

void Database::bind(const Prepared &prepared)
{
    sqlite3_stmt *statement = prepared.statement.get();
    const int count =
        std::min(sqlite3_bind_parameter_count(statement), static_cast<int>(m_lifted.literals.size()));
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
    run(sql, dropped);
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

bool Database::run(const QString &sql, RowSink &rows)
{
    requireIdle();
    raiseLostBefore();
    const ProgressWatch watch(*this);
    Reading reading(*this);
    // While a group is open nobody else can change the tables.
    if (!m_group.isOpen())
        forgetWhatOthersChanged();
    Prepared &prepared = prepare(sql);
    if (prepared.writes) {
        reading.end();
        write(sql, prepared);
        return false;
    }
    bind(prepared);
    sqlite3_stmt *statement = prepared.statement.get();
    const StatementReset reset(statement);
    rows.takeHeader(prepared.header);
    forEachRow(m_handle.get(), statement, [&rows](sqlite3_stmt *row) { rows.takeRow(row); });
    return true;
}

void Database::write(const QString &sql, Prepared &prepared)
{
    // An interrupted write takes its whole transaction along: it gets one for itself.
    const bool alone = Interruptible::active();
    if (alone)
        m_group.commit();
    const bool isNew = m_group.open();
    bool changesSchema = false;
    try {
        // Another program that held the file until now may have changed the tables.
        bool isOutdated = isNew && forgetWhatOthersChanged();
        isOutdated = bringRulesUpToDate() || isOutdated;
        changesSchema = writeInGroup(isOutdated ? prepare(sql) : prepared);
    } catch (...) {
        if (m_holders == 0)
            m_group.endUnlessChanged();
        throw;
    }
    m_group.take(changesSchema || sqlite3_changes(m_handle.get()) > 0);
    if (m_holders == 0)
        m_group.commitIfDue();
    if (alone)
        m_group.commit();
}

bool Database::writeInGroup(Prepared &prepared)
{
    LastCounter &lastCounter = m_catalog.lastCounter();
    const std::int64_t lastNumber = lastCounter.number();
    // SQLite itself undoes a statement that fails midway; with others before it, it needs a way back.
    const bool changesSchema = prepared.changesSchema;
    const bool guarded = !prepared.setup.empty() || (changesSchema && !m_rules.empty());
    try {
        if (guarded)
            runSqlite(m_handle.get(), "SAVEPOINT statement");
        runWrite(prepared);
        if (changesSchema) {
            forget();
            bringRulesUpToDate();
        }
        if (guarded)
            runSqlite(m_handle.get(), "RELEASE statement");
    } catch (...) {
        lastCounter.putBack(lastNumber);
        m_group.raiseIfLost();
        if (guarded)
            sqlite3_exec(m_handle.get(), "ROLLBACK TO statement; RELEASE statement", nullptr, nullptr,
                         nullptr);
        throw;
    }
    return changesSchema;
}

void Database::keepDeleteRules(std::span<const DeleteRule> rules)
{
    m_rulesAreKept = m_rulesAreKept && rules.data() == m_rules.data() && rules.size() == m_rules.size();
    m_rules = rules;
}

/// Within a group. Whether the tables were changed with it.
bool Database::bringRulesUpToDate()
{
    if (m_rulesAreKept || m_rules.empty() || sqlite3_db_readonly(m_handle.get(), "main") != 0)
        return false;
    bool changed = false;
    try {
        changed = jet::keepDeleteRules(m_handle.get(), m_rules);
    } catch (...) {
        m_group.raiseIfLost();
        throw;
    }
    if (changed)
        forget();
    m_rulesAreKept = true;
    return changed;
}

void Database::runWrite(Prepared &prepared)
{
    if (!prepared.setup.empty()) {
        for (const std::string &sql : prepared.setup)
            runSqlite(m_handle.get(), sql.c_str());
        prepared.statement = prepareSqlite(m_handle.get(), prepared.sql);
    }
    bind(prepared);
    runToEnd(m_handle.get(), prepared.statement.get());
}

void Database::flushUnlessRead()
{
    if (m_asking)
        return;
    try {
        m_group.commitUnlessRead();
    } catch (const Error &) {
        m_lostBefore = m_lostBefore ? m_lostBefore : std::current_exception();
    }
}

void Database::raiseLostBefore()
{
    if (m_lostBefore)
        std::rethrow_exception(std::exchange(m_lostBefore, nullptr));
}

void Database::beginWriting()
{
    requireIdle();
    raiseLostBefore();
    m_group.commitIfDue();
    if (!m_group.open())
        return;
    try {
        forgetWhatOthersChanged();
        bringRulesUpToDate();
    } catch (...) {
        m_group.endUnlessChanged();
        throw;
    }
}

void Database::commit()
{
    requireIdle();
    raiseLostBefore();
    m_group.commit();
}

void Database::rollBack()
{
    m_lostBefore = nullptr;
    m_group.rollBack();
    forget();
}

void Database::setPatience(std::chrono::milliseconds patience)
{
    sqlite3_busy_timeout(m_handle.get(), int(patience.count()));
}

void Database::close(bool last)
{
    raiseLostBefore();
    if (last)
        m_group.commitOrLose();
    else
        m_group.commitUnlessRead();
}

} // namespace jet
