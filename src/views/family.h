#pragma once

#include <QHash>
#include <QString>

#include <functional>

class frmDisplay;

/// What the views of one display mode can do. A family of objects registers its modes
/// once at start; the views look their mode up and know no family.
struct DisplayFamily
{
    /// Opens the view of all objects of the mode: in a new window for nothing, otherwise
    /// in the given one.
    std::function<void(frmDisplay *view)> listAll;
    /// Further operations by the names that menus and toolbars call them by.
    QHash<QString, std::function<void(frmDisplay &view)>> operations;
};

/// A mode that is registered again gets the new functions.
void registerFamily(QStringView mode, DisplayFamily family);
/// Nothing for a mode that no family has registered.
[[nodiscard]] const DisplayFamily *familyOf(QStringView mode);
