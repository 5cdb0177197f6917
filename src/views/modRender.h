#pragma once

#include "views/modes.h"

#include <QString>

class Banner;
class ListView;
class QComboBox;
class QWidget;
class StatusBar;

namespace jet {
class Recordset;
}

/// From records to list rows, and the texts of the status bars of views.
namespace modRender {

/// Rebuilds columns and rows from all records of the recordset: the first field is the
/// item text in a hidden column, the others share the list's width. A recordset that is
/// not open gives its headings and no rows. A value that cannot be read leaves its cell empty.
/// A list that has these columns already keeps their widths, and what is selected stays so.
void renderList(ListView &list, jet::Recordset &recordset);

/// What a window with a list shows of its mode.
struct Context
{
    Banner &banner;
    StatusBar &bar;
    QWidget &window; ///< gets the mode's icon
};
/// Banner and status bar from the mode; without a mode the bar stays as it is.
void renderContext(const Context &context, std::optional<Mode> mode);

/// The number of records in panel 2.
void showRecordCount(StatusBar &bar, int count);
/// The number of selected rows in a panel.
void showSelectedCount(const ListView &list, StatusBar &bar, int panel = 3);

/// The name of a row's object as titles show it.
[[nodiscard]] QString objectName(Mode mode, const ListView &list, int row);
/// Whether the first column holds the ids of the mode's objects: the result of a query may have any other.
[[nodiscard]] bool hasIds(Mode mode, const ListView &list);
/// Whether the list has the columns that the dialog of the mode edits. A drill-down may have others under the
/// same mode: what a dialog read from those would be saved in the wrong place.
[[nodiscard]] bool hasEditedColumns(Mode mode, const ListView &list);

/// One entry a record: field 1 is its text, field 0 its numeric data.
void fillComboFromRecordset(jet::Recordset &recordset, QComboBox &combo);

} // namespace modRender
