#include "exchange/modImport.h"

#include "exchange/frmImport.h"
#include "exchange/modImportSteps.h"
#include "messages/guard.h"
#include "messages/progresssteps.h"
#include "messages/showresult.h"
#include "platform/desktop/desktop.h"
#include "session/connectionstring.h"
#include "store/clsUsers.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

QHash<QString, modImport::Writer> &writers()
{
    static QHash<QString, modImport::Writer> registered;
    return registered;
}

void warn(QWidget *owner, const QString &text)
{
    messageBox(owner, text, box::Ok | box::WarningIcon);
}

/// Tells what is wrong with the name of the data file, if anything is.
bool isDataFile(QWidget *owner, const QString &path)
{
    if (path.isEmpty())
        warn(owner, u"Please specify the Data File"_s);
    else if (const QFileInfo file(path); !file.isFile())
        warn(owner, u"The File you specified could not be found"_s);
    else
        return true;
    return false;
}

Report readAndWrite(QWidget *owner, const QString &path, const ImportFormat &format, bool leaveExisting,
                    modImportSteps::ImportLines &lines)
{
    const QString store = getConnectionString();
    clsUsers().TestConnection(store); // before a long file is read
    const Hourglass hourglass;
    ProgressSteps steps(owner);
    Report report;
    if (!modImportSteps::readLines(path, lines, steps)) {
        report.end = Report::End::Cancelled;
        return report;
    }
    modImportSteps::beginPhase(steps, format.writing, lines.records().recordCount());
    report = writers().value(format.type)(store, lines.records(), leaveExisting, steps);
    for (const int record : report.refused)
        lines.refuse(record);
    return report;
}

void importAndReport(QWidget *owner, const ImportFormat &format, const QString &path)
{
    bool leaveExisting = false;
    if (format.updates) {
        const std::optional<bool> answer = modImportSteps::askLeaveExisting(owner);
        if (!answer)
            return;
        leaveExisting = *answer;
    }
    modImportSteps::ImportLines lines(format);
    const Report report = readAndWrite(owner, path, format, leaveExisting, lines);
    modImportSteps::reportImport(owner, path, format, report, lines);
}

} // namespace

namespace modImport {

void registerWriter(QLatin1StringView type, Writer writer)
{
    Q_ASSERT(importFormat(QString(type)));
    writers().insert(type, writer);
}

void showImport(QWidget *owner)
{
    frmImport dialog(owner);
    for (const ImportFormat &format : importFormats())
        dialog.cboImportType->addItem(format.type);
    dialog.cboImportType->setCurrentIndex(-1);
    dialog.exec();
}

void startImport(QWidget *owner, const QString &type, const QString &path)
{
    if (!isDataFile(owner, path))
        return;
    if (messageBox(owner, u"Are you sure you want to start the selected Import?"_s,
                   box::YesNo | box::WarningIcon) == box::ResultYes)
        importFile(owner, type, path);
}

void importFile(QWidget *owner, const QString &type, const QString &path)
{
    if (!writers().contains(type))
        return warn(owner, u"Please Select the Import Type"_s);
    guarded(owner, [&] { importAndReport(owner, *importFormat(type), path); });
}

void previewFile(QWidget *owner, const QString &path)
{
    if (isDataFile(owner, path) && !desktop::openDocument(path))
        warn(owner, "The File '"_L1 + path + "' could not be opened: there is no program for it."_L1);
}

void showFormat(QWidget *owner, const QString &type)
{
    const ImportFormat *format = importFormat(type);
    showResult(owner, format ? format->help : "The Information you requested could not be found."_L1,
               u"Import Format Information"_s);
}

} // namespace modImport
