#include "workbench.h"

#include "base/steps.h"
#include "platform/printing/pagedevice.h"
#include "reports/modPrint.h"
#include "toolkit/messagebox.h"
#include "views/listpane.h"

#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 5; // beside the ids

ListRows rowsOf(int count)
{
    ListRows rows(columns + 1);
    rows.addRows(count);
    for (int row = 0; row < count; ++row)
        for (int column = 0; column <= columns; ++column)
            rows.setText(row, column, u"Text %1 of %2"_s.arg(column).arg(row));
    return rows;
}

/// All columns of a list into a PDF file, which the bytes are those of.
void PrintToPdf(benchmark::State &state)
{
    ListPane pane;
    pane.setColumns({u"ID"_s, u"Last Name"_s, u"First Name"_s, u"User"_s, u"Server"_s, u"Description"_s});
    pane.setRows(rowsOf(int(state.range(0))));
    setMessageBoxHandler([](QWidget *, const QString &, int) { return box::ResultYes; });
    const auto boxesBack = qScopeGuard([] { setMessageBoxHandler({}); });
    for (auto _ : state) {
        const QString path = workbench::freshPath(u"pdf"_s);
        workbench::measure(state, [&] {
            printing::PageDevice pages(printing::PageDevice::PdfFile{path, u"Users"_s});
            NoSteps steps;
            modPrint::printList(nullptr, pane, u"All Users"_s, pages, 1, steps);
        });
        state.counters["bytes"] = double(QFileInfo(path).size());
    }
}

} // namespace

BENCHMARK(PrintToPdf)->Apply([](auto *benchmark) {
    workbench::timedByStep(benchmark->Arg(5'000)->Arg(workbench::many), 3);
});
