#include "rawstore.h"
#include "workbench.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "store/clsUsers.h"
#include "store/userstatements.h"

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t fields = 13;
using Line = std::array<QString, fields>;

/// A line of an import file, in the order of fileColumns().
Line lineOf(int number)
{
    const QString name = "user"_L1 + QString::number(number);
    return {u"0"_s,
            name,
            u"BERLIN01"_s,
            "Full Name of "_L1 + name,
            u"A comment of usual length"_s,
            u"Nothing to add"_s,
            u"H:"_s,
            "\\\\BERLIN01\\home\\"_L1 + name,
            "\\\\BERLIN01\\profiles\\"_L1 + name,
            u"logon.cmd"_s,
            QString::number(number % 10 == 0),
            u"0"_s,
            u"1"_s};
}

void fill(jet::Recordset &records, int rows)
{
    for (const UserColumn &column : fileColumns())
        records.fields().append(column.name, jet::FieldType::VarChar, 255);
    records.open();
    for (int row = 1; row <= rows; ++row) {
        records.addNew();
        const Line line = lineOf(row);
        for (std::size_t field = 0; field < fields; ++field)
            records.fields().item(int(field)).setValue(line[field]);
    }
}

void addBatch(const QString &store, jet::Recordset &records, int expectedNew, int expectedUpdated)
{
    NoSteps steps;
    const Report report = clsUsers().AddBatchFromFile(jet::connectionString(store), records, false, steps);
    if (report.added != expectedNew || report.updated != expectedUpdated || report.failed != 0)
        throwError(1, "The batch failed: "_L1 + report.text.left(200));
}

/// The same reads and writes on prepared statements in one transaction.
class ImportByHand final
{
public:
    explicit ImportByHand(const QString &path) : m_store(path) {}

    void run(const std::vector<std::array<std::string, fields>> &lines)
    {
        RawStatement(m_store, "BEGIN IMMEDIATE").run();
        for (const auto &line : lines)
            take(line);
        RawStatement(m_store, "COMMIT").run();
    }

private:
    void take(const std::array<std::string, fields> &line)
    {
        (void)m_highest.step();
        const qint64 id = m_highest.number(0) + 1;
        m_highest.reset();
        m_find.bind(1, line[1]).bind(2, line[2]);
        if (m_find.step()) {
            m_row.clear();
            for (int column = 0; column < m_find.columns(); ++column)
                m_row.emplace_back(m_find.text(column));
            const qint64 oldId = m_find.number(0);
            m_find.reset();
            write(m_update, line, id);
            for (RawStatement *move : {&m_moveGroups, &m_moveRooms, &m_moveHardware, &m_moveFolders})
                move->bind(1, id).bind(2, oldId).run();
        } else {
            m_find.reset();
            m_testId.bind(1, id).run();
            write(m_insert, line, id);
        }
    }

    static void write(RawStatement &statement, const std::array<std::string, fields> &line, qint64 id)
    {
        constexpr std::size_t firstYesNo = 10;
        statement.bind(1, id);
        for (std::size_t field = 1; field < firstYesNo; ++field)
            statement.bind(int(field) + 1, line[field]);
        for (std::size_t field = firstYesNo; field < fields; ++field)
            statement.bind(int(field) + 1, line[field] == "0" ? 0 : -1);
        statement.run();
    }

    RawStore m_store;
    RawStatement m_highest{m_store, "SELECT MAX(UserID) FROM Tbl_Users"};
    RawStatement m_find{m_store, "SELECT * FROM Tbl_Users WHERE UserName = ?1 AND ServerName = ?2"};
    RawStatement m_testId{m_store, "SELECT UserID FROM Tbl_Users WHERE UserID = ?1"};
    RawStatement m_insert{
        m_store,
        "INSERT INTO Tbl_Users (UserID, UserName, ServerName, FullName, Comment, UserComment, HomeDirDrive,"
        " HomeDir, Profile, ScriptPath, AccDisabled, NoChangePwd, NoExpirePwd)"
        " VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13)"};
    RawStatement m_update{
        m_store,
        "UPDATE Tbl_Users SET UserID = ?1, UserName = ?2, ServerName = ?3, FullName = ?4, Comment = ?5,"
        " UserComment = ?6, HomeDirDrive = ?7, HomeDir = ?8, Profile = ?9, ScriptPath = ?10,"
        " AccDisabled = ?11, NoChangePwd = ?12, NoExpirePwd = ?13 WHERE UserName = ?2 AND ServerName = ?3"};
    RawStatement m_moveGroups{m_store, "UPDATE Tbl_GlobalGroupsUsers SET UserID = ?1 WHERE UserID = ?2"};
    RawStatement m_moveRooms{m_store, "UPDATE Tbl_RoomUsers SET UserID = ?1 WHERE UserID = ?2"};
    RawStatement m_moveHardware{m_store, "UPDATE Tbl_UserHW SET UserID = ?1 WHERE UserID = ?2"};
    RawStatement m_moveFolders{m_store, "UPDATE Tbl_UserFolderPermission SET UserID = ?1 WHERE UserID = ?2"};
    std::vector<std::string> m_row;
};

std::vector<std::array<std::string, fields>> linesByHand(int rows)
{
    std::vector<std::array<std::string, fields>> lines;
    for (int row = 1; row <= rows; ++row) {
        const Line line = lineOf(row);
        auto &copy = lines.emplace_back();
        for (std::size_t field = 0; field < fields; ++field)
            copy[field] = line[field].toStdString();
    }
    return lines;
}

/// A store with the users of the records, each in a group and a room, with an item and a permission.
QString storeWith(jet::Recordset &records, int rows)
{
    QString path = workbench::emptyStore();
    addBatch(path, records, rows, 0);
    const RawStore store(path);
    for (const char *sql : {
             "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID, UserID) "
             "SELECT 1 + UserID % 500, UserID FROM Tbl_Users",
             "INSERT INTO Tbl_RoomUsers (RoomID, UserID) SELECT 1 + UserID % 3000, UserID FROM Tbl_Users",
             "INSERT INTO Tbl_UserHW (UserID, HWID) SELECT UserID, UserID FROM Tbl_Users",
             "INSERT INTO Tbl_UserFolderPermission (UserID, FolderID, Permission) "
             "SELECT UserID, 1 + UserID % 3000, 'R' FROM Tbl_Users",
         })
        RawStatement(store, sql).run();
    return path;
}

void ImportNew(benchmark::State &state)
{
    const int rows = int(state.range(0));
    jet::Recordset records;
    fill(records, rows);
    for (auto _ : state) {
        const QString store = workbench::emptyStore();
        workbench::measure(state, [&] { addBatch(store, records, rows, 0); });
        workbench::removeStore(store);
    }
}

void ImportNewByHand(benchmark::State &state)
{
    const auto lines = linesByHand(int(state.range(0)));
    for (auto _ : state) {
        const QString store = workbench::emptyStore();
        workbench::measure(state, [&] { ImportByHand(store).run(lines); });
        workbench::removeStore(store);
    }
}

void ImportKnown(benchmark::State &state)
{
    const int rows = int(state.range(0));
    jet::Recordset records;
    fill(records, rows);
    const QString filled = storeWith(records, rows);
    for (auto _ : state) {
        const QString store = workbench::copyOf(filled);
        workbench::measure(state, [&] { addBatch(store, records, 0, rows); });
        workbench::removeStore(store);
    }
    workbench::removeStore(filled);
}

void ImportKnownByHand(benchmark::State &state)
{
    const int rows = int(state.range(0));
    jet::Recordset records;
    fill(records, rows);
    const QString filled = storeWith(records, rows);
    const auto lines = linesByHand(rows);
    for (auto _ : state) {
        const QString store = workbench::copyOf(filled);
        workbench::measure(state, [&] { ImportByHand(store).run(lines); });
        workbench::removeStore(store);
    }
    workbench::removeStore(filled);
}

} // namespace

BENCHMARK(ImportNew)->Apply(workbench::sizes);
BENCHMARK(ImportNew)->Apply(workbench::mostRows);
BENCHMARK(ImportNewByHand)->Apply(workbench::sizes);
BENCHMARK(ImportKnown)->Apply(workbench::sizes);
BENCHMARK(ImportKnownByHand)->Apply(workbench::sizes);
