#include "toolkit/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

void setClipboardText(const QString &text)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(text);
}
