#include "shell/modCompact.h"

#include "base/error.h"
#include "messages/progresssteps.h"
#include "messages/status.h"
#include "platform/desktop/desktop.h"
#include "session/modRegistry.h"
#include "shell/frmMain.h"
#include "store/compaction.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString applicationFolder()
{
    const QString own = QCoreApplication::applicationDirPath();
    if (QFileInfo(own).isWritable())
        return own;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(data);
    return data;
}

void compactDatabase(frmMain &window)
{
    const QString folder = applicationFolder();
    Compaction sizes;
    bool compacted = false;
    {
        const Hourglass hourglass;
        showStatusWriting();
        ProgressSteps steps(&window, true, false);
        compacted = attempt([&] { sizes = compactStore(modRegistry::getDataBase(), folder, steps); });
    }
    const QString failure = currentError().description;
    showStatusReady();
    if (compacted) {
        const QLocale locale;
        messageBox(&window,
                   "Your Database has been successfully compacted\r\n"_L1 %
                       locale.formattedDataSize(sizes.before) % " before, "_L1 %
                       locale.formattedDataSize(sizes.after) % " now"_L1,
                   box::InformationIcon);
        return;
    }
    messageBox(&window,
               failure %
                   "\r\nThe Database could not be compacted. A Backup copy of the Orignal Database can be "
                   "found in the Application Folder."_L1,
               box::StopIcon);
    desktop::openDocument(folder);
}
