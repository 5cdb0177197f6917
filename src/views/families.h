#pragma once

#include "views/modes.h"
#include "views/operations.h"
#include "views/rowtarget.h"

#include <QString>

#include <functional>
#include <span>
#include <vector>

class ListPane;
class QWidget;
class frmDisplay;

/// What a command acts on, fixed when it starts: a handler never asks which window is active.
struct CommandContext
{
    Mode mode = Mode::Unknown;
    QWidget *owner = nullptr;   ///< of the boxes and dialogs of the command
    frmDisplay *view = nullptr; ///< nothing for a command of the main window
    ListPane *pane = nullptr;   ///< nothing without a list
    int row = -1;               ///< the current row
    int id = 0;                 ///< of the current row; 0 for a row that the store has no id for
    QString name = {};          ///< of the current row's object, as titles show it

    /// Sub-item n of the current row.
    [[nodiscard]] QString subItem(int index) const;
    /// The ids of the selected rows, in the order of the list; 0 among them for rows without one.
    [[nodiscard]] std::vector<int> selectedIds() const;
    /// Sub-item n of the selected rows, in the same order.
    [[nodiscard]] QStringList selectedSubItems(int index) const;
    /// The names of their objects.
    [[nodiscard]] QStringList selectedNames() const;
    /// The current row, for a dialog that changes it.
    [[nodiscard]] RowTarget target() const;
    /// A new row of the list, for a dialog that adds one.
    [[nodiscard]] RowTarget newRow() const;
};

using Handler = std::function<void(const CommandContext &)>;

/// A sentence that the delete question ends with; empty when there is nothing to add.
using DeleteNote = std::function<QString(const CommandContext &)>;

/// One row of a family's table: what an operation does in a mode.
struct OpRow
{
    Mode mode;
    Op op;
    Handler run;
    Needs needs = needsOf(op); ///< what it asks of the list before it runs
    DeleteNote note = {};      ///< of Op::Delete
};

/// Called once a family at start. A pair that is registered again gets the new handler.
void registerHandlers(std::span<const OpRow> rows);
/// Empty where nothing is registered.
[[nodiscard]] const Handler &handlerOf(Mode mode, Op op);
/// What the registered handler asks of the list, or what the operation asks in every mode.
[[nodiscard]] Needs needsOf(Mode mode, Op op);

/// What the family has to add to the question before a delete, with a line break in front.
[[nodiscard]] QString noteOf(const CommandContext &context);

/// The answer to a command that no family has registered.
[[nodiscard]] QString notYetImplemented();

/// Runs the handler of a mode's operation without a list, for the main window: the view of all objects, or
/// the dialog of a new one.
void runWithoutList(QWidget *owner, Mode mode, Op op);
