#pragma once

#include <QLatin1StringView>
#include <QString>

class Banner;
class QCheckBox;
class QComboBox;
class QDialog;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;
class QWidget;

/// Builds a dialog from top to bottom, which is also the order of the Tab key. Every control gets its name;
/// a field gets its label as buddy and as accessible name, and selects its text when it gets the focus.
///
///     Form form(*this, "frmRoom"_L1);
///     banner = form.banner(6);
///     form.frame("frameRoom"_L1);
///     txtNumber = form.line("lblNumber"_L1, "Number"_L1, "txtNumber"_L1).field;
///     cmdOK = form.defaultButton("cmdOK"_L1, "&Save"_L1);
///     cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
class Form final
{
public:
    Form(QDialog &dialog, QLatin1StringView name);

    /// Picture of ImageListContext.
    Banner *banner(int picture);
    /// The rows that follow are inside of it.
    QGroupBox *frame(QLatin1StringView name, QLatin1StringView caption = {});

    struct Line
    {
        QLabel *label;
        QLineEdit *field;
    };
    Line line(QLatin1StringView labelName, QLatin1StringView caption, QLatin1StringView name);
    /// A list of choices with free text.
    QComboBox *combo(QLatin1StringView labelName, QLatin1StringView caption, QLatin1StringView name);
    /// A row with any other control, which is named and given to the form.
    QLabel *row(QLatin1StringView labelName, QLatin1StringView caption, QLatin1StringView name,
                QWidget *field);
    /// A row of its own, without a label.
    QCheckBox *check(QLatin1StringView name, QLatin1StringView caption);
    /// Beside the last row, and beside the buttons it has there already.
    QPushButton *buttonBeside(QLatin1StringView name, QLatin1StringView caption);

    // The buttons at the bottom, from left to right. A button that has the focus takes the Enter key; the
    // default button takes it everywhere else.
    QPushButton *button(QLatin1StringView name, QLatin1StringView caption);
    QPushButton *defaultButton(QLatin1StringView name, QLatin1StringView caption);
    /// Any widget of its own, above the buttons.
    void add(QWidget &widget);
    /// Clicking it rejects the dialog, as Esc does.
    QPushButton *closeButton(QLatin1StringView name, QLatin1StringView caption);

private:
    QGridLayout &rows();

    QDialog &m_dialog;
    QVBoxLayout *m_all;
    QGridLayout *m_rows = nullptr;
    QHBoxLayout *m_buttons = nullptr;
};

/// All of its text is selected whenever the field gets the focus.
void selectAllOnFocus(QLineEdit &field);
/// A text of several lines as it was set, while nobody has changed it; after that with \r\n between the
/// lines. The edit itself would turn line ends and some blanks into others.
void setMemoText(QPlainTextEdit &memo, const QString &text);
[[nodiscard]] QString memoText(const QPlainTextEdit &memo);
/// An empty list of choices with free text.
[[nodiscard]] QComboBox *makeFreeCombo();

/// A caption without the mark of its mnemonic: "&Save" is "Save".
[[nodiscard]] QString withoutMnemonic(QString caption);
