#include "rawstore.h"
#include "readers.h"
#include "workbench.h"

#include "base/error.h"
#include "folders/clsFolders.h"
#include "platform/jet/connection.h"
#include "store/clsGlobalGroups.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

std::string handWritten(const Reader &reader)
{
    std::string sql = reader.byHand;
    constexpr std::string_view place = "{hwtype}";
    for (std::size_t at = sql.find(place); at != std::string::npos; at = sql.find(place))
        sql.replace(
            at, place.size(),
            "ifnull(Type, '') || ' ' || ifnull(Manufacturer, '') || ' ' || ifnull(Model, '') || ' ' || "
            "ifnull(TypeNumber, '')");
    return sql;
}

/// The texts of the rows that a query by hand gives, without the empty ones.
std::vector<std::string> textsByHand(const Reader &reader, const QString &path, int subject, int &rows)
{
    std::vector<std::string> texts;
    const RawStore store(path);
    RawStatement query(store, handWritten(reader));
    if (reader.subject)
        query.bind(1, qint64(subject));
    for (rows = 0; query.step(); ++rows)
        for (int column = 0; column < query.columns(); ++column) {
            if (!query.isNumber(column) && !query.text(column).empty())
                texts.emplace_back(query.text(column));
        }
    return texts;
}

/// A floor is one only for the same answer.
void requireSameAnswer(const Reader &reader, const QString &path, int subject)
{
    jet::Recordset result;
    reader.read(jet::connectionString(path), result, subject);
    std::vector<std::string> texts;
    int rows = 0;
    for (; !result.eof(); result.moveNext(), ++rows)
        for (int column = 0; column < result.fields().count(); ++column) {
            const Value value = result.value(column);
            if (value.isText() && !value.toText().isEmpty())
                texts.push_back(value.toText().toStdString());
        }
    int rowsByHand = 0;
    std::vector<std::string> expected = textsByHand(reader, path, subject, rowsByHand);
    std::ranges::sort(texts);
    std::ranges::sort(expected);
    if (rows != rowsByHand || texts != expected)
        throwError(1,
                   u"%1 gives %2 rows and %3 texts, %4 and %5 by hand."_s.arg(QLatin1StringView(reader.name))
                       .arg(rows)
                       .arg(texts.size())
                       .arg(rowsByHand)
                       .arg(expected.size()));
}

void read(benchmark::State &state, const Reader &reader)
{
    const QString &path = workbench::sampleStore(int(state.range(0)));
    const QString connectionString = jet::connectionString(path);
    const int subject = subjectOf(reader, path);
    try {
        requireSameAnswer(reader, path, subject);
    } catch (const Error &error) {
        state.SkipWithError(error.what());
        return;
    }
    for (auto _ : state) {
        jet::Recordset result;
        workbench::measure(state, [&] { reader.read(connectionString, result, subject); });
        state.counters["rows"] = result.state() != 0 ? result.recordCount() : 0;
    }
}

void readByHand(benchmark::State &state, const Reader &reader)
{
    const QString &path = workbench::sampleStore(int(state.range(0)));
    const std::string sql = handWritten(reader);
    const int subject = subjectOf(reader, path);
    for (auto _ : state) {
        std::vector<double> numbers;
        std::vector<std::string> texts;
        int rows = 0;
        workbench::measure(state, [&] {
            const RawStore store(path);
            RawStatement query(store, sql);
            if (reader.subject)
                query.bind(1, qint64(subject));
            for (; query.step(); ++rows)
                for (int column = 0; column < query.columns(); ++column) {
                    if (query.isNumber(column))
                        numbers.push_back(double(query.number(column)));
                    else
                        texts.emplace_back(query.text(column));
                }
        });
        benchmark::DoNotOptimize(texts.data());
        state.counters["rows"] = rows;
    }
}

void configure(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(fewUsers)->Arg(manyUsers)->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark->Iterations(1)->Repetitions(5)->ReportAggregatesOnly();
}

/// Ids of the sample in an order of their own, so that neither side profits from sorted input.
std::vector<int> shuffledIds(int count, int first)
{
    constexpr int step = 7919; // prime: every id comes once
    std::vector<int> ids;
    ids.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        ids.push_back(first + int(qint64(i) * step % count));
    return ids;
}

std::vector<int> userIds(const QString &path, int count)
{
    const RawStore store(path);
    RawStatement first(store, "SELECT min(UserID) FROM Tbl_Users");
    (void)first.step();
    return shuffledIds(count, int(first.number(0)));
}

void AddUsers(benchmark::State &state)
{
    const QString &sample = workbench::sampleStore(manyUsers);
    const std::vector<int> ids = userIds(sample, int(state.range(0)));
    for (auto _ : state) {
        const QString store = workbench::copyOf(sample);
        workbench::measure(state, [&] { clsGlobalGroups().addUsers(jet::connectionString(store), 1, ids); });
        workbench::removeStore(store);
    }
}

void AddUsersByHand(benchmark::State &state)
{
    const QString &sample = workbench::sampleStore(manyUsers);
    const std::vector<int> ids = userIds(sample, int(state.range(0)));
    for (auto _ : state) {
        const QString path = workbench::copyOf(sample);
        workbench::measure(state, [&] {
            const RawStore store(path);
            RawStatement(store, "BEGIN IMMEDIATE").run();
            RawStatement(store, "DELETE FROM Tbl_GlobalGroupsUsers WHERE GlobalGroupID = 1").run();
            RawStatement test(store,
                              "SELECT * FROM Tbl_GlobalGroupsUsers WHERE GlobalGroupID = 1 AND UserID = ?1");
            RawStatement insert(store,
                                "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID, UserID) VALUES (1, ?1)");
            for (const int id : ids) {
                const bool known = test.bind(1, qint64(id)).step();
                test.reset();
                if (!known)
                    insert.bind(1, qint64(id)).run();
            }
            RawStatement(store, "COMMIT").run();
        });
        workbench::removeStore(path);
    }
}

/// The lines of a batch of permissions: each a folder and a user of the sample.
struct Permissions
{
    QStringList paths, names, servers, permissions;

    Permissions(const QString &path, int count)
    {
        const RawStore store(path);
        RawStatement folder(store, "SELECT FolderName FROM Tbl_Folders");
        RawStatement user(store, "SELECT UserName, ServerName FROM Tbl_Users");
        for (int i = 0; i < count && folder.step() && user.step(); ++i) {
            paths += QString::fromUtf8(folder.text(0));
            names += QString::fromUtf8(user.text(0));
            servers += QString::fromUtf8(user.text(1));
            permissions += u"RX"_s;
        }
        if (paths.size() != count)
            throwError(1, u"The sample is too small for the batch."_s);
    }
};

void AddPermissionsBatch(benchmark::State &state)
{
    const QString &sample = workbench::sampleStore(manyUsers);
    const Permissions lines(sample, int(state.range(0)));
    for (auto _ : state) {
        const QString store = workbench::copyOf(sample);
        NoSteps steps;
        workbench::measure(state, [&] {
            const Report report =
                clsFolders().AddPermissionsBatch(jet::connectionString(store), lines.paths, lines.names,
                                                 lines.servers, lines.permissions, steps);
            if (!report.text.isEmpty())
                throwError(1, report.text.left(200));
        });
        workbench::removeStore(store);
    }
}

void AddPermissionsBatchByHand(benchmark::State &state)
{
    const QString &sample = workbench::sampleStore(manyUsers);
    const Permissions lines(sample, int(state.range(0)));
    for (auto _ : state) {
        const QString path = workbench::copyOf(sample);
        workbench::measure(state, [&] {
            const RawStore store(path);
            RawStatement(store, "BEGIN IMMEDIATE").run();
            RawStatement folder(store, "SELECT ID FROM Tbl_Folders WHERE FolderName = ?1");
            RawStatement group(store, "SELECT * FROM Tbl_LocalGroups WHERE Name = ?1 AND Server = ?2");
            RawStatement user(store, "SELECT UserID FROM Tbl_Users WHERE UserName = ?1 AND ServerName = ?2");
            RawStatement remove(store,
                                "DELETE FROM Tbl_UserFolderPermission WHERE UserID = ?1 AND FolderID = ?2");
            RawStatement insert(store, "INSERT INTO Tbl_UserFolderPermission (FolderID, UserID, Permission)"
                                       " VALUES (?2, ?1, ?3)");
            for (qsizetype i = 0; i < lines.paths.size(); ++i) {
                const std::string name = lines.names[i].toStdString();
                const std::string server = lines.servers[i].toStdString();
                const std::string permission = lines.permissions[i].toStdString();
                const std::string where = lines.paths[i].toStdString();
                (void)folder.bind(1, where).step();
                const qint64 folderId = folder.number(0);
                folder.reset();
                if (group.bind(1, name).bind(2, server).step())
                    throwError(1, u"A user of the sample is called like a group."_s);
                group.reset();
                (void)user.bind(1, name).bind(2, server).step();
                const qint64 userId = user.number(0);
                user.reset();
                remove.bind(1, userId).bind(2, folderId).run();
                insert.bind(1, userId).bind(2, folderId).bind(3, permission).run();
            }
            RawStatement(store, "COMMIT").run();
        });
        workbench::removeStore(path);
    }
}

void configureBatch(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(10'000)->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark->Iterations(1)->Repetitions(5)->ReportAggregatesOnly();
}

[[maybe_unused]] const bool registered = [] {
    for (const Reader &reader : readers()) {
        const std::string name = reader.name;
        benchmark::RegisterBenchmark(name.c_str(), read, reader)->Apply(configure);
        benchmark::RegisterBenchmark((name + "ByHand").c_str(), readByHand, reader)->Apply(configure);
    }
    return true;
}();

} // namespace

BENCHMARK(AddUsers)->Apply(configureBatch);
BENCHMARK(AddUsersByHand)->Apply(configureBatch);
BENCHMARK(AddPermissionsBatch)->Apply(configureBatch);
BENCHMARK(AddPermissionsBatchByHand)->Apply(configureBatch);
