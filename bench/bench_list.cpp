#include "rawstore.h"
#include "workbench.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "session/modRegistry.h"
#include "shell/application.h"
#include "shell/frmMain.h"
#include "store/clsUsers.h"
#include "sync/modUsers.h"
#include "views/families.h"
#include "views/frmDisplay.h"
#include "views/mainwindowlink.h"

#include <QApplication>

#include <malloc.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

void getAll(const QString &store, jet::Recordset &rows, int expected)
{
    clsUsers().getAll(jet::connectionString(store), rows);
    if (rows.recordCount() != expected)
        throwError(1, u"The store lacks rows."_s);
}

void GetAll(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const QString &store = workbench::sampleStore(rows);
    for (auto _ : state) {
        jet::Recordset result;
        workbench::measure(state, [&] { getAll(store, result, rows); });
    }
}

void GetAllByHand(benchmark::State &state)
{
    const QString &path = workbench::sampleStore(int(state.range(0)));
    for (auto _ : state) {
        std::vector<qint64> ids;
        std::vector<std::string> texts;
        workbench::measure(state, [&] {
            const RawStore store(path);
            RawStatement read(store, "SELECT UserID, LastName, FirstName, UserName, ServerName FROM Tbl_Users"
                                     " ORDER BY LastName");
            while (read.step()) {
                ids.push_back(read.number(0));
                for (int column = 1; column < 5; ++column)
                    texts.emplace_back(read.text(column));
            }
        });
        benchmark::DoNotOptimize(texts.data());
    }
}

/// The view of all users, open and painted.
void openAllUsers()
{
    runWithoutList(&mainForm(), Mode::Users, Op::ListAll);
    QApplication::processEvents();
    if (!mainWindow()->targetDisplay())
        throwError(1, u"No view was opened."_s);
}

void closeAllUsers()
{
    for (frmDisplay *view : mainForm().findChildren<frmDisplay *>())
        delete view;
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

/// Fonts, pictures and caches are there before anything is measured.
void warmUp()
{
    modRegistry::saveDataBase(workbench::sampleStore(10));
    registerHandlers(modUsers::handlers());
    mainForm().show();
    openAllUsers();
    closeAllUsers();
}

void OpenAllUsers(benchmark::State &state)
{
    const QString &store = workbench::sampleStore(int(state.range(0)));
    warmUp();
    modRegistry::saveDataBase(store);
    for (auto _ : state) {
        workbench::measure(state, openAllUsers);
        closeAllUsers();
    }
}

double bytesInUse()
{
    const struct mallinfo2 heap = mallinfo2();
    return double(heap.uordblks) + double(heap.hblkhd);
}

double bytesOfTexts(const QString &store, int rows)
{
    jet::Recordset result;
    getAll(store, result, rows);
    double bytes = 0;
    for (; !result.eof(); result.moveNext())
        for (int field = 0; field < result.fields().count(); ++field)
            bytes += double(result.value(field).toText().toUtf8().size());
    return bytes;
}

void MemoryOfAllUsers(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const QString &store = workbench::sampleStore(rows);
    warmUp();
    modRegistry::saveDataBase(store);
    for (auto _ : state) {
        const double before = bytesInUse();
        workbench::measure(state, openAllUsers);
        state.counters["bytes"] = bytesInUse() - before;
        closeAllUsers();
    }
    state.counters["texts"] = bytesOfTexts(store, rows);
}

} // namespace

BENCHMARK(GetAll)->Apply(workbench::sizes);
BENCHMARK(GetAllByHand)->Apply(workbench::sizes);
BENCHMARK(OpenAllUsers)->Apply(workbench::sizes);
BENCHMARK(MemoryOfAllUsers)->Apply([](auto *benchmark) {
    workbench::timedByStep(benchmark->Arg(workbench::many), 3);
});
