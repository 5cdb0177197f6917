#pragma once

#include "views/families.h"

#include <QString>

#include <vector>

class QPlainTextEdit;
class frmDisplay;

/// Saved queries: their view and their dialog, and running any statement on the store.
namespace modCustomQuery {

[[nodiscard]] std::span<const OpRow> handlers();

/// The mode of a statement's result: that of the family whose table follows the first "from ".
[[nodiscard]] Mode modeOfStatement(const QString &statement);
/// With one blank where there were several.
[[nodiscard]] QString normalized(QString statement);

/// Asks, runs the statement and shows its rows, in the view or in a new one. The user can cancel a statement
/// that runs long: nothing stays of it. Raises what the engine refuses.
void run(QWidget *owner, const QString &statement, const QString &title, frmDisplay *view = nullptr);

struct SavedQuery
{
    QString name;
    QString description;
    QString statement;
};
/// All saved queries, for the menu that executes them.
[[nodiscard]] std::vector<SavedQuery> savedQueries();

/// Opens the query builder on the text.
void openBuilder(QWidget *owner, QPlainTextEdit &target);

} // namespace modCustomQuery
