#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <span>

class QWidget;

/// The import of text files into the store.
namespace modImport {

struct ImportType
{
    QLatin1StringView name;   ///< as the user picks it
    QLatin1StringView format; ///< what the information button shows
};

/// Reads the file into the store and reports to the owner. Raises nothing.
using Reader = void (*)(QWidget *owner, const QString &path);

/// Called by the families at start, with the name of a type. A type without a reader cannot be chosen.
void registerReader(QLatin1StringView typeName, Reader reader);

/// In the order in which they are offered.
[[nodiscard]] std::span<const ImportType> importTypes();
/// Nothing for a text that names no type.
[[nodiscard]] const ImportType *importType(QStringView name);

/// Opens the dialog, modal to the owner.
void showImport(QWidget *owner);

/// The Import button: refuses what is incomplete, asks, and runs the reader of the type,
/// which reports by itself.
void startImport(QWidget *owner, const QString &typeName, const QString &path);
/// Hands the file to the program that the user opens such files with.
void previewFile(QWidget *owner, const QString &path);
/// Shows the format of the type in the result window.
void showFormat(QWidget *owner, const QString &typeName);

} // namespace modImport
