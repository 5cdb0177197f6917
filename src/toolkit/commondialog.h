#pragma once

#include <QString>

#include <functional>

class QWidget;

/// What a cancelled file dialog raises.
inline constexpr int CancelError = 32755;

/// The choice of one file name.
class CommonDialog final
{
public:
    enum class Kind { Open, Save };

    /// Pairs of a text and a pattern, all divided by "|": "All Files | *.*".
    QString filter;
    /// The name offered before, the name chosen after. Without one the folder of the last choice is offered.
    QString fileName;

    /// An existing file. A cancelled dialog raises CancelError and leaves fileName as it was.
    void showOpen(QWidget *parent);
    /// Any file; the caller asks about one that exists already.
    void showSave(QWidget *parent);

private:
    void show(Kind kind, QWidget *parent);
};

/// Gives the chosen name in place of the user; an empty name cancels.
using CommonDialogHandler = std::function<QString(const CommonDialog &dialog, CommonDialog::Kind kind)>;
/// An empty handler brings the dialogs back.
void setCommonDialogHandler(CommonDialogHandler handler);
