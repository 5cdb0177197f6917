#include "rawstore.h"
#include "workbench.h"

#include "base/error.h"
#include "exchange/modExport.h"
#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "store/clsUsers.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <QFile>

#include <cstdio>
#include <memory>

namespace {

/// The list of all users into a file.
void ExportList(benchmark::State &state)
{
    ListPane list;
    jet::Recordset users;
    clsUsers().getAll(jet::connectionString(workbench::sampleStore(int(state.range(0)))), users);
    modRender::renderList(list, users);
    const QString path = workbench::freshPath(QStringLiteral("txt"));
    for (auto _ : state)
        workbench::measure(state, [&] { (void)modExport::exportList(path, list, {}); });
    state.counters["file"] = double(QFile(path).size());
    QFile::remove(path);
}

/// The rows of the same query as they come, with semicolons between.
void ExportListByHand(benchmark::State &state)
{
    const QString &sample = workbench::sampleStore(int(state.range(0)));
    const QString path = workbench::freshPath(QStringLiteral("txt"));
    for (auto _ : state)
        workbench::measure(state, [&] {
            const RawStore store(sample);
            RawStatement read(store, "SELECT UserID, LastName, FirstName, UserName, ServerName FROM Tbl_Users"
                                     " ORDER BY LastName");
            const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(
                std::fopen(QFile::encodeName(path).constData(), "wb"), std::fclose);
            while (read.step()) {
                for (int column = 0; column < read.columns(); ++column) {
                    if (column > 0)
                        std::fputc(';', file.get());
                    const std::string_view text = read.text(column);
                    std::fwrite(text.data(), 1, text.size(), file.get());
                }
                std::fwrite("\r\n", 1, 2, file.get());
            }
        });
    state.counters["file"] = double(QFile(path).size());
    QFile::remove(path);
}

} // namespace

BENCHMARK(ExportList)->Apply(workbench::sizes);
BENCHMARK(ExportListByHand)->Apply(workbench::sizes);
