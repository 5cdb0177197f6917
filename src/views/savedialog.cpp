#include "views/savedialog.h"

#include "base/error.h"
#include "messages/guard.h"
#include "toolkit/messagebox.h"
#include "views/families.h"
#include "views/livehooks.h"
#include "views/modServer.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

void saveAndAccept(QDialog &dialog, const std::function<void()> &save, QWidget *fieldAtFault)
{
    bool saved = false;
    bool isRule = false;
    guarded(&dialog, [&] {
        saved = attempt(save);
        if (saved)
            return;
        const CurrentError failure = currentError();
        isRule = failure.number == RuleViolation;
        messageBox(&dialog, failure.description, box::StopIcon);
    });
    if (saved)
        dialog.accept();
    else if (fieldAtFault && isRule)
        fieldAtFault->setFocus();
}

bool refuse(QWidget *owner, const QString &text, QWidget *field)
{
    messageBox(owner, text, box::WarningIcon);
    if (field)
        field->setFocus();
    return false;
}

void offerFolders(QPushButton &button, QLineEdit &field)
{
    const auto &browse = liveHooks().browseForFolder;
    button.setEnabled(bool(browse));
    if (!browse)
        button.setToolTip(notYetImplemented());
    QObject::connect(&button, &QPushButton::clicked, &field, [&field] {
        guarded(field.window(), [&] {
            if (const QString folder = liveHooks().browseForFolder(field.window()); !folder.isEmpty())
                field.setText(folder);
        });
    });
}

void offerServers(QPushButton &button, QLineEdit &field)
{
    QObject::connect(&button, &QPushButton::clicked, &field, [&field] {
        guarded(field.window(), [&] {
            if (const QString server = modServer::selectServer(field.window()); !server.isEmpty())
                field.setText(server);
        });
    });
}
