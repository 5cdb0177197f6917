#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Flags and results of messageBox().
namespace box {

inline constexpr int Ok = 0;
inline constexpr int OkCancel = 1;
inline constexpr int YesNoCancel = 3;
inline constexpr int YesNo = 4;

inline constexpr int StopIcon = 16;
inline constexpr int QuestionIcon = 32;
inline constexpr int WarningIcon = 48;
inline constexpr int InformationIcon = 64;

inline constexpr int ResultOk = 1;
inline constexpr int ResultCancel = 2;
inline constexpr int ResultYes = 6;
inline constexpr int ResultNo = 7;

[[nodiscard]] constexpr int buttons(int flags)
{
    return flags & 0x0f;
}
[[nodiscard]] constexpr int icon(int flags)
{
    return flags & 0xf0;
}

} // namespace box

/// Asks or tells, titled with the program's title, and waits for the answer. The box belongs to the
/// owner's window, which is active again afterwards; without an owner it stands alone. The flags
/// are the sum of one button set and one icon. The text is shown as it is, never as
/// markup. Closing the box without an answer is the last of its buttons: OK, Cancel or No.
int messageBox(QWidget *owner, const QString &text, int flags);

using MessageBoxHandler = std::function<int(QWidget *owner, const QString &text, int flags)>;
/// Answers every box in place of the user; an empty handler brings the boxes back.
void setMessageBoxHandler(MessageBoxHandler handler);
