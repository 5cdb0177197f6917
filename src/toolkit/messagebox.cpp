#include "toolkit/messagebox.h"

#include "session/identity.h"
#include "toolkit/pointer.h"

#include <QMessageBox>
#include <QPointer>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace {

struct Choice
{
    QMessageBox::StandardButton button;
    int result;
};

// The order is that on the box; the last is what closing the box means.
constexpr Choice okChoices[] = {{QMessageBox::Ok, box::ResultOk}};
constexpr Choice okCancelChoices[] = {{QMessageBox::Ok, box::ResultOk},
                                      {QMessageBox::Cancel, box::ResultCancel}};
constexpr Choice yesNoCancelChoices[] = {{QMessageBox::Yes, box::ResultYes},
                                         {QMessageBox::No, box::ResultNo},
                                         {QMessageBox::Cancel, box::ResultCancel}};
constexpr Choice yesNoChoices[] = {{QMessageBox::Yes, box::ResultYes}, {QMessageBox::No, box::ResultNo}};

std::span<const Choice> choicesOf(int flags)
{
    switch (box::buttons(flags)) {
    case box::OkCancel:
        return okCancelChoices;
    case box::YesNoCancel:
        return yesNoCancelChoices;
    case box::YesNo:
        return yesNoChoices;
    default:
        return okChoices;
    }
}

QMessageBox::Icon iconOf(int flags)
{
    switch (box::icon(flags)) {
    case box::StopIcon:
        return QMessageBox::Critical;
    case box::QuestionIcon:
        return QMessageBox::Question;
    case box::WarningIcon:
        return QMessageBox::Warning;
    case box::InformationIcon:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

MessageBoxHandler &handlerInPlace()
{
    static MessageBoxHandler handler;
    return handler;
}

int askUser(QWidget *owner, const QString &text, int flags)
{
    const PointerScope normalPointer(false);
    const std::span<const Choice> choices = choicesOf(flags);

    QPointer<QWidget> window = owner ? owner->window() : nullptr;
    QMessageBox dialog(window);
    dialog.setObjectName("messageBox"_L1);
    dialog.setWindowTitle(programTitle());
    dialog.setIcon(iconOf(flags));
    dialog.setTextFormat(Qt::PlainText);
    dialog.setTextInteractionFlags(Qt::TextSelectableByMouse);
    dialog.setText(QString(text).replace("\r\n"_L1, "\n"_L1));
    for (const Choice &choice : choices)
        dialog.addButton(choice.button);
    dialog.setDefaultButton(choices.front().button);
    dialog.setEscapeButton(choices.back().button);

    const int button = dialog.exec();
    if (window)
        window->activateWindow();
    const auto chosen =
        std::ranges::find(choices, button, [](const Choice &choice) { return int(choice.button); });
    return chosen == choices.end() ? choices.back().result : chosen->result;
}

} // namespace

int messageBox(QWidget *owner, const QString &text, int flags)
{
    // A copy: a box may be answered by something that sets another handler.
    const MessageBoxHandler handler = handlerInPlace();
    return handler ? handler(owner, text, flags) : askUser(owner, text, flags);
}

void setMessageBoxHandler(MessageBoxHandler handler)
{
    handlerInPlace() = std::move(handler);
}
