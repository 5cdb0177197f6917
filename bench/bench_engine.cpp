#include "rawstore.h"
#include "workbench.h"

#include "platform/jet/connection.h"
#include "platform/jet/emitter.h"
#include "platform/jet/parser.h"
#include "platform/jet/recordset.h"

using namespace Qt::StringLiterals;

namespace {

// Statements of the lengths that record classes send.
constexpr std::string_view statements[] = {
    "SELECT UserID, LastName, FirstName, UserName, [ServerName] from Tbl_Users ORDER by LastName ASC",
    "SELECT * FROM Tbl_Users WHERE [UserName]='uadams' AND ServerName = 'BERLIN01'",
    "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
    "Tbl_Users.ServerName FROM "
    "Tbl_GlobalGroupsUsers INNER JOIN Tbl_Users ON Tbl_GlobalGroupsUsers.UserID = Tbl_Users.UserID WHERE "
    "Tbl_GlobalGroupsUsers.GlobalGroupID=7 ORDER BY LastName ASC",
    "SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS [Hardware "
    "Type], "
    "[SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW INNER JOIN Tbl_HWType ON "
    "Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_HW.ID NOT IN (SELECT HWID as ID FROM Tbl_UserHW WHERE UserID "
    "= 6) ORDER "
    "BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];",
    "INSERT INTO Tbl_UserFolderPermission(UserID,FolderID,Permission) VALUES (6,5,'CH')",
    "UPDATE Tbl_UserFolderPermission SET Permission ='CH' WHERE UserID = 6 AND FolderID = 5",
};

void LookUp(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const QString &store = workbench::sampleStore(rows);
    for (auto _ : state) {
        jet::Connection connection;
        connection.open(jet::connectionString(store));
        jet::Recordset found;
        qint64 characters = 0;
        workbench::measure(state, [&] {
            for (int id = 1000; id < 1000 + rows; ++id) {
                found.open("SELECT UserName FROM Tbl_Users WHERE UserID = "_L1 + QString::number(id),
                           connection);
                if (!found.eof())
                    characters += found.value(0).toText().size();
                found.close();
            }
        });
        benchmark::DoNotOptimize(characters);
    }
}

void LookUpByHand(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const RawStore store(workbench::sampleStore(rows));
    RawStatement find(store, "SELECT UserName FROM Tbl_Users WHERE UserID = ?1");
    for (auto _ : state) {
        qint64 characters = 0;
        workbench::measure(state, [&] {
            for (int id = 1000; id < 1000 + rows; ++id) {
                find.bind(1, qint64(id));
                if (find.step())
                    characters += qint64(std::string(find.text(0)).size());
                find.reset();
            }
        });
        benchmark::DoNotOptimize(characters);
    }
}

jet::EmittedStatement translated(jet::Catalog &catalog, std::string_view statement)
{
    jet::Parser parser(statement);
    const jet::Statement tree = parser.parse();
    return jet::Emitter(catalog, parser.literals()).emit(tree);
}

void Translate(benchmark::State &state)
{
    const RawStore store(workbench::sampleStore(10'000));
    jet::Catalog catalog(store.handle());
    for (auto _ : state)
        workbench::measure(state, [&] {
            for (qint64 i = 0; i < state.range(0); ++i)
                benchmark::DoNotOptimize(
                    translated(catalog, statements[std::size_t(i) % std::size(statements)]));
        });
}

void PrepareTranslated(benchmark::State &state)
{
    const RawStore store(workbench::sampleStore(10'000));
    jet::Catalog catalog(store.handle());
    std::vector<std::string> ready;
    for (const std::string_view statement : statements)
        ready.push_back(translated(catalog, statement).sql);
    for (auto _ : state)
        workbench::measure(state, [&] {
            for (qint64 i = 0; i < state.range(0); ++i)
                benchmark::DoNotOptimize(
                    jet::prepareSqlite(store.handle(), ready[std::size_t(i) % ready.size()]));
        });
}

/// The time of one statement of SQLite's own on the sample company.
template <typename Text>
void runOnSample(benchmark::State &state, Text sql)
{
    const RawStore store(workbench::sampleStore(int(state.range(0))));
    RawStatement statement(store, sql);
    for (auto _ : state)
        workbench::measure(state, [&] { statement.run(); });
}

void Sort(benchmark::State &state)
{
    runOnSample(state, "SELECT LastName FROM Tbl_Users ORDER BY LastName");
}

void SortNoCase(benchmark::State &state)
{
    runOnSample(state, "SELECT LastName FROM Tbl_Users ORDER BY LastName COLLATE NOCASE");
}

void Like(benchmark::State &state)
{
    runOnSample(state, "SELECT COUNT(*) FROM Tbl_Users WHERE jet_like(LastName, '%er%')");
}

void LikeOfSqlite(benchmark::State &state)
{
    runOnSample(state, "SELECT COUNT(*) FROM Tbl_Users WHERE LastName LIKE '%er%'");
}

BENCHMARK(LookUp)->Apply(workbench::sizes);
BENCHMARK(LookUpByHand)->Apply(workbench::sizes);
BENCHMARK(Translate)->Apply(workbench::sizes);
BENCHMARK(PrepareTranslated)->Apply(workbench::sizes);
BENCHMARK(Sort)->Apply(workbench::sizes);
BENCHMARK(SortNoCase)->Apply(workbench::sizes);
BENCHMARK(Like)->Apply(workbench::sizes);
BENCHMARK(LikeOfSqlite)->Apply(workbench::sizes);

} // namespace
