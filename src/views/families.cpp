#include "views/families.h"

#include "messages/guard.h"
#include "toolkit/messagebox.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Cell
{
    Handler run;
    Needs needs = Needs::Nothing;
    DeleteNote note;
};

using Table = std::array<std::array<Cell, std::size_t(Op::Count)>, modeCount>;

Table &table()
{
    static Table registered;
    return registered;
}

} // namespace

QString CommandContext::subItem(int index) const
{
    return pane && row >= 0 && index < pane->columnCount() ? pane->subItem(row, index) : QString();
}

std::vector<int> CommandContext::selectedIds() const
{
    return pane ? pane->selectedIds() : std::vector<int>();
}

QStringList CommandContext::selectedSubItems(int index) const
{
    QStringList texts;
    if (pane && index < pane->columnCount())
        for (const int selected : pane->selectedRows())
            texts.append(pane->subItem(selected, index));
    return texts;
}

QStringList CommandContext::selectedNames() const
{
    QStringList names;
    if (pane)
        for (const int selected : pane->selectedRows())
            names.append(modRender::objectName(mode, *pane, selected));
    return names;
}

RowTarget CommandContext::target() const
{
    return pane && row >= 0 ? RowTarget(*pane, row) : RowTarget();
}

RowTarget CommandContext::newRow() const
{
    return pane ? RowTarget::appended(*pane) : RowTarget();
}

void registerHandlers(std::span<const OpRow> rows)
{
    for (const OpRow &row : rows)
        table()[std::size_t(row.mode)][std::size_t(row.op)] = {row.run, row.needs, row.note};
}

const Handler &handlerOf(Mode mode, Op op)
{
    return table()[std::size_t(mode)][std::size_t(op)].run;
}

Needs needsOf(Mode mode, Op op)
{
    const Cell &cell = table()[std::size_t(mode)][std::size_t(op)];
    return cell.run ? cell.needs : needsOf(op);
}

QString noteOf(const CommandContext &context)
{
    const DeleteNote &note = table()[std::size_t(context.mode)][std::size_t(Op::Delete)].note;
    const QString text = note ? note(context) : QString();
    return text.isEmpty() ? text : "\r\n\r\n"_L1 % text;
}

QString notYetImplemented()
{
    return u"Not yet implemented. Sorry for the Inconvenience"_s;
}

void runWithoutList(QWidget *owner, Mode mode, Op op)
{
    const Handler &handler = handlerOf(mode, op);
    if (!handler) {
        messageBox(owner, notYetImplemented(), box::Ok);
        return;
    }
    guarded(owner, [&] { handler({.mode = mode, .owner = owner}); });
}
