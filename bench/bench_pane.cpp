#include "workbench.h"

#include "toolkit/listmodel.h"
#include "views/listpane.h"
#include "views/modListSort.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Rows of an id, a text, a number and a date, in an order that is none.
ListRows shuffledRows(int count)
{
    ListRows rows(4);
    rows.addRows(count);
    quint32 random = 1;
    for (int row = 0; row < count; ++row) {
        random = random * 1664525U + 1013904223U;
        rows.setText(row, 0, QString::number(row + 1));
        rows.setText(row, 1, u"Name %1"_s.arg(random % 1000000U));
        rows.setText(row, 2, QString::number(int(random % 2000000U) - 1000000));
        rows.setText(
            row, 3,
            u"%1/%2/%3"_s.arg(random % 12 + 1).arg(random / 16 % 28 + 1).arg(1990 + random / 512 % 30));
    }
    return rows;
}

std::unique_ptr<ListPane> filledPane(int count)
{
    auto pane = std::make_unique<ListPane>();
    pane->setColumns({u"ID"_s, u"Name"_s, u"Number"_s, u"Date"_s});
    pane->setRows(shuffledRows(count));
    pane->spreadColumns();
    pane->resize(800, 600);
    pane->show();
    QApplication::processEvents();
    return pane;
}

void sortColumn(benchmark::State &state, int column)
{
    const auto pane = filledPane(int(state.range(0)));
    for (auto _ : state) {
        pane->setRows(shuffledRows(int(state.range(0))));
        workbench::measure(state, [&] { modListSort::sortList(*pane, column); });
    }
}

void SortTexts(benchmark::State &state)
{
    sortColumn(state, 1);
}
void SortNumbers(benchmark::State &state)
{
    sortColumn(state, 2);
}
void SortDates(benchmark::State &state)
{
    sortColumn(state, 3);
}

/// The keys alone, made before the clock runs, in the order that the list gives them.
template <typename Key, typename Make>
void sortKeys(benchmark::State &state, int column, Make make)
{
    const ListRows rows = shuffledRows(int(state.range(0)));
    for (auto _ : state) {
        std::vector<Key> keys;
        for (int row = 0; row < rows.rowCount(); ++row)
            keys.push_back(make(rows.text(row, column)));
        workbench::measure(state, [&] { std::ranges::stable_sort(keys); });
        benchmark::DoNotOptimize(keys.data());
    }
}

void SortTextKeys(benchmark::State &state)
{
    sortKeys<std::string>(state, 1, [](const QString &text) { return text.toCaseFolded().toStdString(); });
}
/// Numbers and dates sort by texts of equal length that order as the values do: by sixty-one digits, by
/// fourteen.
void SortNumberKeys(benchmark::State &state)
{
    sortKeys<std::string>(state, 2, [](const QString &text) {
        return text.toStdString().insert(0, 61U - std::size_t(text.size()), '0');
    });
}
void SortDateKeys(benchmark::State &state)
{
    sortKeys<std::string>(state, 3, [](const QString &text) {
        return text.toStdString().insert(0, 14U - std::size_t(text.size()), '0');
    });
}

/// One step on a list that is filled before the clock runs.
template <typename Step>
void onPane(benchmark::State &state, Step step)
{
    const auto pane = filledPane(int(state.range(0)));
    for (auto _ : state) {
        pane->setRows(shuffledRows(int(state.range(0))));
        QApplication::processEvents();
        workbench::measure(state, [&] { step(*pane); });
    }
}

void SelectAll(benchmark::State &state)
{
    onPane(state, [](ListPane &pane) {
        pane.selectAll();
        benchmark::DoNotOptimize(pane.selectedCount());
        pane.viewport()->repaint();
    });
}

void SelectOne(benchmark::State &state)
{
    onPane(state, [](ListPane &pane) {
        pane.chooseRow(pane.rowCount() / 2);
        benchmark::DoNotOptimize(pane.selectedCount());
        pane.viewport()->repaint();
    });
}

void RemoveThousand(benchmark::State &state)
{
    onPane(state, [](ListPane &pane) {
        std::vector<int> rows;
        for (int i = 0; i < 1000; ++i)
            rows.push_back(i * (pane.rowCount() / 1000));
        pane.removeRows(rows);
        pane.viewport()->repaint();
    });
}

/// The character that no row begins with: every row is looked at.
void QuickJump(benchmark::State &state)
{
    onPane(state, [](ListPane &pane) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
        QApplication::sendEvent(&pane, &key);
    });
}

void CloseList(benchmark::State &state)
{
    for (auto _ : state) {
        auto pane = filledPane(int(state.range(0)));
        pane->selectAll();
        workbench::measure(state, [&] { pane.reset(); });
    }
}

void manyAndMost(benchmark::internal::Benchmark *benchmark)
{
    workbench::timedByStep(benchmark->Arg(workbench::many)->Arg(workbench::most), 3);
}

} // namespace

BENCHMARK(SortTexts)->Apply(manyAndMost);
BENCHMARK(SortTextKeys)->Apply(manyAndMost);
BENCHMARK(SortNumbers)->Apply(manyAndMost);
BENCHMARK(SortNumberKeys)->Apply(manyAndMost);
BENCHMARK(SortDates)->Apply(manyAndMost);
BENCHMARK(SortDateKeys)->Apply(manyAndMost);
BENCHMARK(SelectAll)->Apply(manyAndMost);
BENCHMARK(SelectOne)->Apply(manyAndMost);
BENCHMARK(RemoveThousand)->Apply(manyAndMost);
BENCHMARK(QuickJump)->Apply(manyAndMost);
BENCHMARK(CloseList)->Apply(manyAndMost);
