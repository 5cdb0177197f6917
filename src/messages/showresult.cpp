#include "messages/showresult.h"

#include "messages/frmResult.h"

#include <QDialog>
#include <QPointer>
#include <QScreen>

#include <algorithm>

namespace {

// Only windows of the dialog kind are kept above their owner.
constexpr Qt::WindowFlags windowFlags = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                        Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

// A window that belongs to a dialog ends with it, so it is handed on when the dialog
// finishes: the result stays readable.
void giveTo(QPointer<frmResult> window, QWidget *owner)
{
    if (window->parentWidget() != owner)
        window->setParent(owner, windowFlags);
    const auto *dialog = qobject_cast<QDialog *>(owner);
    if (!dialog)
        return;
    QObject::connect(
        dialog, &QDialog::finished, window,
        [window, dialog] {
            if (!window || !window->isVisible() || window->parentWidget() != dialog)
                return;
            giveTo(window, dialog->parentWidget() ? dialog->parentWidget()->window() : nullptr);
            window->show();
        },
        Qt::SingleShotConnection);
}

// Over what it belongs to, and once only: after that it stays where the user puts it.
void place(QWidget &window, const QWidget *owner)
{
    if (!owner)
        return;
    QRect at(QPoint(), window.size());
    at.moveCenter(owner->window()->geometry().center());
    const QRect room = owner->screen()->availableGeometry();
    window.move(std::max(room.left(), std::min(at.left(), room.right() - at.width())),
                std::max(room.top(), std::min(at.top(), room.bottom() - at.height())));
}

} // namespace

void showResult(QWidget *owner, const QString &text, const QString &title, const ResultAttachment &attachment)
{
    static QPointer<frmResult> window;
    const bool isNew = !window;
    if (isNew)
        window = new frmResult;
    giveTo(window, owner ? owner->window() : nullptr);
    if (isNew)
        place(*window, window->parentWidget());
    window->setResult(text, title, attachment);
    window->show();
    window->raise();
    window->activateWindow();
}
