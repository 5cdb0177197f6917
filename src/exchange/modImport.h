#pragma once

#include "base/steps.h"

#include <QLatin1StringView>
#include <QString>

class QWidget;

namespace jet {
class Recordset;
}

/// The import of text files into the store.
namespace modImport {

/// Writes the good lines of a file, records with the fields of their format, by one batch.
using Writer = Report (*)(const QString &connectionString, jet::Recordset &lines, bool leaveExisting,
                          Steps &steps);

/// Called by the families at start, with the name of a type.
void registerWriter(QLatin1StringView type, Writer writer);

/// Opens the dialog, modal to the owner.
void showImport(QWidget *owner);

/// The Import button: refuses what is incomplete, asks, and imports the file.
void startImport(QWidget *owner, const QString &type, const QString &path);
/// Asks whether known objects are to be updated where the type can, reads the file, writes its good lines to
/// the store and reports. Nothing is read when the question is cancelled, nothing is written when the reading
/// is. Raises nothing.
void importFile(QWidget *owner, const QString &type, const QString &path);
/// Hands the file to the program that the user opens such files with.
void previewFile(QWidget *owner, const QString &path);
/// Shows the format of the type in the result window.
void showFormat(QWidget *owner, const QString &type);

} // namespace modImport
