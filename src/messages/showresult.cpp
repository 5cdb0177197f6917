#include "messages/showresult.h"

#include "messages/frmResult.h"
#include "messages/status.h"

#include <QDialog>
#include <QPointer>

namespace {

// A window that belongs to a dialog ends with it, so it is handed on when the dialog
// finishes: the result stays readable.
void giveTo(QPointer<frmResult> window, QWidget *owner)
{
    if (window->parentWidget() != owner)
        window->setParent(owner, Qt::Window);
    const auto *dialog = qobject_cast<QDialog *>(owner);
    if (!dialog)
        return;
    QObject::connect(
        dialog, &QDialog::finished, window,
        [window] {
            if (!window || !window->isVisible())
                return;
            giveTo(window, ownerOfNewWindows());
            window->show();
        },
        Qt::SingleShotConnection);
}

} // namespace

void showResult(const QString &text, const QString &title)
{
    static QPointer<frmResult> window;
    if (!window)
        window = new frmResult;
    giveTo(window, ownerOfNewWindows());
    window->setResult(text, title);
    window->show();
    window->raise();
    window->activateWindow();
}
