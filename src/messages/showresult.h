#pragma once

#include <QString>

class QWidget;

/// A second text that the result window can save, under a menu entry of its own.
struct ResultAttachment
{
    QString menuText = {};
    QByteArray text = {}; ///< UTF-8
};

/// Shows the one result window, modeless, with the text and the title in its banner. It belongs to the
/// owner's window and stays above it; when that is a dialog and closes, to the window behind the dialog.
void showResult(QWidget *owner, const QString &text, const QString &title,
                const ResultAttachment &attachment = {});
