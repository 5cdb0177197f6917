#include "reports/modPrinter.h"

#include "base/error.h"
#include "base/text.h"
#include "platform/printing/pagedevice.h"
#include "platform/printing/printers.h"
#include "reports/frmSelectPrinter.h"
#include "toolkit/commondialog.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Empty when the user cancels.
QString askForPdf(QWidget *owner)
{
    CommonDialog dialog;
    dialog.filter = u"PDF Files | *.pdf"_s;
    if (!attempt([&] { dialog.showSave(owner); })) {
        if (currentError().number != CancelError)
            throwError(currentError().number, currentError().description);
        return {};
    }
    QString path = dialog.fileName;
    if (QFileInfo(path).suffix().isEmpty())
        path += ".pdf"_L1;
    if (QFileInfo::exists(path) &&
        messageBox(owner, fillMarker(u"The File $ already exists. Overwrite?"_s, path),
                   box::YesNo | box::WarningIcon) != box::ResultYes)
        return {};
    return path;
}

} // namespace

namespace modPrinter {

QStringList printers()
{
    return printing::printerNames() << pdfPrinter;
}

QString currentPrinter()
{
    const QString name = printing::defaultPrinterName();
    return name.isEmpty() ? printers().first() : name;
}

Choice selectPrinter(QWidget *owner)
{
    frmSelectPrinter dialog(owner);
    const PointerScope normalPointer(false);
    dialog.exec();
    return dialog.choice();
}

std::unique_ptr<printing::PageDevice> openPrinter(QWidget *owner, const QString &name, const QString &title)
{
    using printing::PageDevice;
    const QString printer = printers().contains(name) ? name : currentPrinter();
    if (printer != pdfPrinter)
        return std::make_unique<PageDevice>(PageDevice::Printer{printer, title});
    const QString path = askForPdf(owner);
    if (path.isEmpty())
        return nullptr;
    return std::make_unique<PageDevice>(PageDevice::PdfFile{path, title});
}

} // namespace modPrinter
