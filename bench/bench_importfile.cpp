#include "rawstore.h"
#include "workbench.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "exchange/modImport.h"
#include "folders/modFolders.h"
#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "session/modRegistry.h"
#include "sync/modGlobalGroups.h"
#include "sync/modLocalGroups.h"
#include "sync/modUsers.h"
#include "toolkit/messagebox.h"

#include <QFile>

#include <malloc.h>

#include <array>
#include <fstream>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QByteArray userLine(const QByteArray &number)
{
    const QByteArray name = "user" + number;
    return name + ";BERLIN01;Full Name of " + name +
           ";A comment of usual length;Nothing to add;H:;\\\\BERLIN01\\home\\" + name +
           ";\\\\BERLIN01\\profiles\\" + name + ";logon.cmd;0;0;1";
}

QString fileOf(int lines, QByteArray (*lineOf)(const QByteArray &number))
{
    const QString path = workbench::freshPath(u"txt"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throwError(FileAccessError, file.errorString());
    for (int line = 1; line <= lines; ++line)
        file.write(lineOf(QByteArray::number(line)) + "\r\n");
    return path;
}

/// A line of /proc/self/status, in bytes.
double ownMemory(const char *what)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        throwError(FileAccessError, status.errorString());
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith(what))
            return line.simplified().split(' ').value(1).toDouble() * 1024;
    throwError(FileAccessError, u"The system does not tell the memory of a process."_s);
}

/// From here on the greatest memory is counted anew.
void forgetPeak()
{
    malloc_trim(0);
    QFile references(u"/proc/self/clear_refs"_s);
    if (!references.open(QIODevice::WriteOnly) || references.write("5") != 1)
        throwError(FileAccessError, references.errorString());
}

void expectUsers(const QString &store, int users)
{
    jet::Connection connection;
    connection.open(jet::connectionString(store));
    jet::Recordset count;
    count.open(u"SELECT Count(*) FROM Tbl_Users"_s, connection);
    if (count.value(0).toInteger() != users)
        throwError(1, u"Not all lines were imported."_s);
}

void registerImports()
{
    modGlobalGroups::registerImports();
    modLocalGroups::registerImports();
    modUsers::registerImports();
    modFolders::registerImports();
}

/// The command of the menu, from the question to the report.
void ImportFile(benchmark::State &state)
{
    const int lines = int(state.range(0));
    const QString file = fileOf(lines, userLine);
    setMessageBoxHandler([](QWidget *, const QString &, int flags) {
        return (flags & box::YesNoCancel) == box::YesNoCancel ? box::ResultNo : box::ResultOk;
    });
    registerImports();
    for (auto _ : state) {
        const QString store = workbench::emptyStore();
        modRegistry::saveDataBase(store);
        forgetPeak();
        const double before = ownMemory("VmRSS:");
        workbench::measure(state, [&] { modImport::importFile(nullptr, u"Users (Root Data)"_s, file); });
        state.counters["bytes"] = ownMemory("VmHWM:") - before;
        expectUsers(store, lines);
        workbench::removeStore(store);
    }
    state.counters["file"] = double(QFile(file).size());
    setMessageBoxHandler({});
    QFile::remove(file);
}

/// The import of a format and the same reads and writes by hand, on prepared statements in one transaction.
struct Import
{
    const char *name;
    QLatin1StringView type;
    QByteArray (*line)(const QByteArray &number);
    std::vector<const char *> setUp; ///< with the numbers 1 to ?1 in the table n
    /// In order, with the fields of a line as ?1 and on. The first values of the SELECTs that find a row are
    /// ?21 and on.
    std::vector<const char *> byHand;
};

constexpr int firstKey = 21;

constexpr auto manyUsers =
    "INSERT INTO Tbl_Users (UserID, UserName, ServerName) SELECT i, 'user' || i, 'BERLIN01' FROM n";
constexpr auto manyGlobalGroups =
    "INSERT INTO Tbl_GlobalGroups (Name, Server) SELECT 'group' || i, 'BERLIN01' FROM n";
constexpr auto manyFolders = "INSERT INTO Tbl_Folders (FolderName) SELECT 'D:\\folder' || i || '\\' FROM n";

const Import imports[] = {
    {"ImportGlobalGroupsFile",
     "Global Groups (Root Data)"_L1,
     [](const QByteArray &number) -> QByteArray {
         return "group" + number + ";BERLIN01;The members of group " + number;
     },
     {},
     {"SELECT ID FROM Tbl_GlobalGroups WHERE Name = ?1 AND Server = ?2",
      "INSERT INTO Tbl_GlobalGroups (Name, Server, Description) VALUES (?1, ?2, ?3)"}},
    {"ImportLocalGroupsFile",
     "Local Groups (Root Data)"_L1,
     [](const QByteArray &number) -> QByteArray {
         return "group" + number + ";BERLIN01;The members of group " + number;
     },
     {},
     {"SELECT ID FROM Tbl_LocalGroups WHERE Name = ?1 AND Server = ?2",
      "INSERT INTO Tbl_LocalGroups (Name, Server, Description) VALUES (?1, ?2, ?3)"}},
    {"ImportUsersFile",
     "Users (Root Data)"_L1,
     userLine,
     {},
     {"SELECT COALESCE(MAX(UserID), 0) + 1 FROM Tbl_Users",
      "SELECT * FROM Tbl_Users WHERE UserName = ?1 AND ServerName = ?2",
      "SELECT UserID FROM Tbl_Users WHERE UserID = ?21",
      "INSERT INTO Tbl_Users (UserID, UserName, ServerName, FullName, Comment, UserComment, HomeDirDrive,"
      " HomeDir, Profile, ScriptPath, AccDisabled, NoChangePwd, NoExpirePwd)"
      " VALUES (?21, ?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, -(?10 <> '0'), -(?11 <> '0'), -(?12 <> '0'))"}},
    {"ImportGlobalGroupUsersFile",
     "Global Groups Users (Relationships)"_L1,
     [](const QByteArray &number) -> QByteArray {
         return "group" + number + ";BERLIN01;user" + number + ";BERLIN01";
     },
     {manyUsers, manyGlobalGroups},
     {"SELECT UserID FROM Tbl_Users WHERE UserName = ?3 AND ServerName = ?4",
      "SELECT ID FROM Tbl_GlobalGroups WHERE Name = ?1 AND Server = ?2",
      "SELECT * FROM Tbl_GlobalGroupsUsers WHERE UserID = ?21 AND GlobalGroupID = ?22",
      "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID, UserID) VALUES (?22, ?21)"}},
    {"ImportLocalGroupMembersFile",
     "Local Group - Global Groups (Relationships)"_L1,
     [](const QByteArray &number) -> QByteArray {
         return "local" + number + ";BERLIN01;group" + number + ";BERLIN01";
     },
     {"INSERT INTO Tbl_LocalGroups (Name, Server) SELECT 'local' || i, 'BERLIN01' FROM n", manyGlobalGroups},
     {"SELECT ID FROM Tbl_GlobalGroups WHERE Name = ?3 AND Server = ?4",
      "SELECT ID FROM Tbl_LocalGroups WHERE Name = ?1 AND Server = ?2",
      "SELECT * FROM Tbl_LocalGroupsGlobalGroups WHERE GlobalGroupID = ?21 AND LocalGroupID = ?22",
      "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID, GlobalGroupID) VALUES (?22, ?21)"}},
    {"ImportFoldersFile",
     "Folders (Root Data)"_L1,
     [](const QByteArray &number) -> QByteArray {
         return "D:\\folder" + number + "\\;The documents of group " + number;
     },
     {},
     {"SELECT * FROM Tbl_Folders WHERE FolderName = ?1",
      "INSERT INTO Tbl_Folders (FolderName, Description) VALUES (?1, ?2)"}},
    {"ImportPermissionsFile",
     "Folder Permissions (Relationships)"_L1,
     [](const QByteArray &number) -> QByteArray {
         return "D:\\folder" + number + "\\;user" + number + ";BERLIN01;CH";
     },
     {manyUsers, manyFolders},
     {"SELECT ID FROM Tbl_Folders WHERE FolderName = ?1",
      "SELECT * FROM Tbl_LocalGroups WHERE Name = ?2 AND Server = ?3",
      "SELECT UserID FROM Tbl_Users WHERE UserName = ?2 AND ServerName = ?3",
      "DELETE FROM Tbl_UserFolderPermission WHERE UserID = ?22 AND FolderID = ?21",
      "INSERT INTO Tbl_UserFolderPermission (FolderID, UserID, Permission) VALUES (?21, ?22, ?4)"}},
};

QString storeFor(const Import &import, int lines)
{
    QString path = workbench::emptyStore();
    const RawStore store(path);
    for (const char *sql : import.setUp)
        RawStatement(store, std::string("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE"
                                        " i < ?1) ") +
                                sql)
            .bind(1, lines)
            .run();
    return path;
}

QString fileFor(const Import &import, int lines)
{
    return fileOf(lines, import.line);
}

void importByProgram(benchmark::State &state, const Import &import)
{
    const int lines = int(state.range(0));
    const QString file = fileFor(import, lines);
    QString shown;
    setMessageBoxHandler([&](QWidget *, const QString &text, int flags) {
        shown = text;
        return (flags & box::YesNoCancel) == box::YesNoCancel ? box::ResultNo : box::ResultOk;
    });
    registerImports();
    const QString empty = storeFor(import, lines);
    for (auto _ : state) {
        const QString store = workbench::copyOf(empty);
        modRegistry::saveDataBase(store);
        workbench::measure(state, [&] { modImport::importFile(nullptr, import.type, file); });
        if (!shown.startsWith("The Operation was completed successfully"_L1))
            state.SkipWithError("Not all lines were imported.");
        workbench::removeStore(store);
    }
    setMessageBoxHandler({});
    workbench::removeStore(empty);
    QFile::remove(file);
}

void writeByHand(const QString &path, const QString &file, const Import &import)
{
    const RawStore store(path);
    std::vector<RawStatement> statements;
    for (const char *sql : import.byHand)
        statements.emplace_back(store, sql);
    RawStatement(store, "BEGIN IMMEDIATE").run();
    std::ifstream stream(file.toStdString());
    for (std::string line; std::getline(stream, line);) {
        line.pop_back(); // the carriage return
        std::array<std::string_view, 12> fields;
        std::size_t begin = 0;
        std::size_t count = 0;
        for (std::size_t end = 0; end != std::string::npos; begin = end + 1) {
            end = line.find(';', begin);
            fields[count++] = std::string_view(line).substr(begin, end - begin);
        }
        std::vector<qint64> keys;
        for (RawStatement &statement : statements) {
            for (std::size_t i = 0; i < count; ++i)
                statement.bind(int(i) + 1, fields[i]);
            for (std::size_t i = 0; i < keys.size(); ++i)
                statement.bind(firstKey + int(i), keys[i]);
            if (statement.step())
                keys.push_back(statement.number(0));
            statement.reset();
        }
    }
    RawStatement(store, "COMMIT").run();
}

void importByHand(benchmark::State &state, const Import &import)
{
    const int lines = int(state.range(0));
    const QString file = fileFor(import, lines);
    const QString empty = storeFor(import, lines);
    for (auto _ : state) {
        const QString store = workbench::copyOf(empty);
        workbench::measure(state, [&] { writeByHand(store, file, import); });
        workbench::removeStore(store);
    }
    workbench::removeStore(empty);
    QFile::remove(file);
}

[[maybe_unused]] const bool registered = [] {
    for (const Import &import : imports) {
        const std::string name = import.name;
        benchmark::RegisterBenchmark(name.c_str(), importByProgram, import)->Apply(workbench::sizes);
        benchmark::RegisterBenchmark((name + "ByHand").c_str(), importByHand, import)
            ->Apply(workbench::sizes);
    }
    return true;
}();

} // namespace

BENCHMARK(ImportFile)->Apply([](auto *benchmark) {
    workbench::timedByStep(benchmark->Arg(workbench::few), 5);
});
BENCHMARK(ImportFile)->Apply(workbench::mostRows);
