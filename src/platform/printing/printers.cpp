#include "platform/printing/printers.h"

#include "base/error.h"
#include "base/errornumbers.h"

#include <QPrinterInfo>
#include <QProcess>

#include <utility>

using namespace Qt::StringLiterals;

namespace printing {
namespace {

constexpr int patience = 60'000; // milliseconds until a job is taken or refused

[[noreturn]] void refuse(const QString &printer, const QString &reason)
{
    throwError(PrinterError,
               "The Printer '"_L1 % printer % "' did not take the print job: "_L1 % reason.simplified());
}

// QPrinter would send a job itself, but it says nothing when the printer is gone or refuses the job.
void printBySpooler(const QString &printer, const QString &title, const QByteArray &document)
{
    QProcess spooler;
    spooler.start(u"lp"_s, {u"-d"_s, printer, u"-t"_s, title, u"--"_s, u"-"_s});
    if (!spooler.waitForStarted())
        refuse(printer, u"the program lp (package cups-client) could not be started."_s);
    spooler.write(document);
    spooler.closeWriteChannel();
    if (!spooler.waitForFinished(patience)) {
        spooler.kill();
        spooler.waitForFinished();
        refuse(printer, u"the print service does not answer."_s);
    }
    if (spooler.exitStatus() != QProcess::NormalExit || spooler.exitCode() != 0)
        refuse(printer, QString::fromLocal8Bit(spooler.readAllStandardError()));
}

Printers &printers()
{
    static Printers installed{QPrinterInfo::availablePrinterNames, QPrinterInfo::defaultPrinterName,
                              printBySpooler};
    return installed;
}

} // namespace

QStringList printerNames()
{
    return printers().names();
}

QString defaultPrinterName()
{
    return printers().defaultName();
}

void print(const QString &printer, const QString &title, const QByteArray &document)
{
    printers().print(printer, title, document);
}

Printers installPrinters(Printers replacement)
{
    return std::exchange(printers(), std::move(replacement));
}

} // namespace printing
