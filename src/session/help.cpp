#include "session/help.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "platform/desktop/desktop.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

QString helpFolder()
{
    const QString beside = QCoreApplication::applicationDirPath() + "/Help"_L1;
    if (QFileInfo::exists(beside))
        return beside;
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation, u"kelvane/Help"_s,
                                  QStandardPaths::LocateDirectory);
}

void openHelp(const QString &page)
{
    const QString path = helpFolder() + u'/' + page.section(u'#', 0, 0);
    if (!QFileInfo::exists(path))
        throwError(FileAccessError, "The help page '"_L1 + path + "' was not found."_L1);
    QUrl url = QUrl::fromLocalFile(path);
    url.setFragment(page.section(u'#', 1));
    if (!desktop::openDocument(url.toString()))
        throwError(FileAccessError,
                   "The help page '"_L1 + path + "' could not be opened: there is no program for it."_L1);
}
