#pragma once

#include <QString>

#include <memory>

class QWidget;

namespace printing {
class PageDevice;
}

/// Which printer, and how many copies.
namespace modPrinter {

/// Stands among the printers: pages go to a PDF file whose name is asked for.
inline constexpr auto pdfPrinter = QLatin1StringView("PDF file");

struct Choice
{
    QString printer;
    int copies = 1;
    bool cancelled = true;
};

/// The printers of the host and the PDF file.
[[nodiscard]] QStringList printers();
/// The default printer; without one the first there is.
[[nodiscard]] QString currentPrinter();

/// Asks the user.
[[nodiscard]] Choice selectPrinter(QWidget *owner);

/// The printer of the name, or the current one when there is none of that name. Nothing when the user cancels
/// the question for the file.
[[nodiscard]] std::unique_ptr<printing::PageDevice> openPrinter(QWidget *owner, const QString &name,
                                                                const QString &title);

} // namespace modPrinter
