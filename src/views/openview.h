#pragma once

#include "views/modes.h"

#include <QString>

#include <functional>

class QWidget;
class frmDisplay;

namespace jet {
class Recordset;
}

/// Reads what a list is about into the recordset.
using ReadRows = std::function<void(const QString &connectionString, jet::Recordset &recordset)>;

/// The steps by which every view is opened: reading status, rows, list, mode, title, show. Without a view a
/// new one is made. No rows are reported, and a new view is not shown then; an error is shown with number
/// and text. Gives the view that is shown, or nothing.
frmDisplay *openView(QWidget *owner, frmDisplay *view, Mode mode, const QString &title, const ReadRows &read);
