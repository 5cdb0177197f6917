#include "toolkit/commondialog.h"

#include "base/error.h"
#include "platform/settings/settings.h"
#include "session/identity.h"
#include "toolkit/pointer.h"

#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString section = u"FileDialogs"_s;
const QString lastFolder = u"LastFolder"_s;

CommonDialogHandler &handlerInPlace()
{
    static CommonDialogHandler handler;
    return handler;
}

/// "All Files | *.*" to "All Files (*)". On this platform "*.*" would miss the names
/// without a dot.
QString dialogFilter(const QString &filter)
{
    QStringList filters;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts.at(i + 1).split(u';');
        for (QString &pattern : patterns) {
            pattern = pattern.trimmed();
            if (pattern == "*.*"_L1)
                pattern = u"*"_s;
        }
        filters += parts.at(i).trimmed() % " ("_L1 % patterns.join(u' ') % ")"_L1;
    }
    return filters.join(";;"_L1);
}

QString askUser(const CommonDialog &dialog, CommonDialog::Kind kind, QWidget *parent)
{
    const PointerScope normalPointer(false);
    const QString filter = dialogFilter(dialog.filter);
    const QString chosen = kind == CommonDialog::Kind::Open
                               ? QFileDialog::getOpenFileName(parent, {}, dialog.fileName, filter)
                               : QFileDialog::getSaveFileName(parent, {}, dialog.fileName, filter, nullptr,
                                                              QFileDialog::DontConfirmOverwrite);
    if (parent)
        parent->window()->activateWindow();
    return chosen;
}

} // namespace

void CommonDialog::show(Kind kind, QWidget *parent)
{
    const CommonDialogHandler handler = handlerInPlace();
    CommonDialog offered = *this;
    if (fileName.isEmpty())
        offered.fileName = settings::getSetting(programTitle(), section, lastFolder);
    const QString chosen = handler ? handler(offered, kind) : askUser(offered, kind, parent);
    if (chosen.isEmpty())
        throwError(CancelError, u"Cancel was selected."_s);
    fileName = chosen;
    // Convenience only: settings that cannot be written must not cost the choice.
    attempt([&] { settings::saveSetting(programTitle(), section, lastFolder, QFileInfo(chosen).path()); });
}

void CommonDialog::showOpen(QWidget *parent)
{
    show(Kind::Open, parent);
}

void CommonDialog::showSave(QWidget *parent)
{
    show(Kind::Save, parent);
}

void setCommonDialogHandler(CommonDialogHandler handler)
{
    handlerInPlace() = std::move(handler);
}
