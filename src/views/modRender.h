#pragma once

#include <QString>

class ListView;
class QComboBox;
class StatusBar;
class frmDisplay;

namespace jet {
class Recordset;
}

/// From records to list rows, and the texts of the status bars of views.
namespace modRender {

/// Rebuilds columns and rows from all records of the recordset: the first field is the
/// item text in a hidden column, the others share the list's width. A recordset that is
/// not open gives its headings and no rows. A value that cannot be read leaves its cell empty.
void renderList(ListView &list, jet::Recordset &recordset);

/// Banner and status bar from the mode; a mode without a family leaves the bar as it is.
void renderContext(frmDisplay &view, QStringView mode);

/// The number of records in panel 2. Yields.
void showRecordCount(frmDisplay &view, int count);
/// The number of selected rows in a panel.
void showSelectedCount(const ListView &list, StatusBar &bar, int panel = 3);

/// One entry a record: field 1 is its text, field 0 its numeric data.
void fillComboFromRecordset(jet::Recordset &recordset, QComboBox &combo);

} // namespace modRender
