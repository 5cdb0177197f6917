#pragma once

#include <QString>

#include <functional>
#include <memory>

class frmDisplay;

namespace jet {
class Recordset;
}

/// The rows that a list module holds while it fills a view; nothing otherwise. One a module.
using ListRecordset = std::unique_ptr<jet::Recordset>;

/// Reads what the view is about into the recordset.
using ReadRows = std::function<void(const QString &connectionString, jet::Recordset &recordset)>;

/// The steps that every view is opened by: reading status, rows, list, mode, title, show.
/// Without a view a new one is made. No rows are told with a message, and a new view is
/// not shown then; an error is told with number and text. Gives the view that is shown,
/// or nothing.
frmDisplay *openView(frmDisplay *view, QStringView mode, const QString &title, ListRecordset &recordset,
                     const ReadRows &read);

/// The first and the last of these steps, for views that are filled in a way of their own.
/// Opening drops what is left of an earlier view and yields.
void openListRecordset(ListRecordset &recordset);
void closeListRecordset(ListRecordset &recordset);
