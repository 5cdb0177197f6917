#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QByteArray;

/// The printers of the host.
namespace printing {

[[nodiscard]] QStringList printerNames();
/// Empty when there is none.
[[nodiscard]] QString defaultPrinterName();
/// Hands a PDF document to a printer as one job. Raises PrinterError with the printer's name and the reason
/// when the job is not taken.
void print(const QString &printer, const QString &title, const QByteArray &document);

/// What does all of this. The one in place at start asks the print service of the system.
struct Printers
{
    std::function<QStringList()> names;
    std::function<QString()> defaultName;
    std::function<void(const QString &printer, const QString &title, const QByteArray &document)> print;
};
/// Returns the one it replaces.
Printers installPrinters(Printers replacement);

} // namespace printing
