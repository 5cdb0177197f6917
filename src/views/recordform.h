#pragma once

#include <QHash>
#include <QLatin1StringView>
#include <QString>

#include <span>

class QLabel;
class QPushButton;
class QTabWidget;
class QWidget;

namespace jet {
class Recordset;
}

enum class FieldKind : quint8 { Text, Password, Number, Check, Choice, Memo };

/// One field of a record's window.
struct FieldRow
{
    QLatin1StringView control;
    QLatin1StringView label;
    QLatin1StringView column; ///< of the record
    FieldKind kind = FieldKind::Text;
    QLatin1StringView button = {}; ///< beside the field
    QLatin1StringView buttonCaption = {};
};

/// One tab.
struct FieldPage
{
    QLatin1StringView caption;
    QLatin1StringView frame;
    std::span<const FieldRow> rows;
    int columns = 1; ///< of label and field; filled one after the other, from top to bottom
};

/// The window of a record as a table of fields: makes the tabs with their labels, fields and buttons, in the
/// order of the Tab key, shows a record in them and reads them. A text field selects its text when it gets
/// the focus.
class RecordForm final
{
public:
    RecordForm(QTabWidget &tabs, std::span<const FieldPage> pages);

    /// Shows the current record; Null is the empty text. A column that the record lacks leaves its field
    /// empty.
    void load(jet::Recordset &record);

    /// The text of a field, a number as typed; "1" or "0" for a check box.
    [[nodiscard]] QString text(QStringView column) const;
    void setText(QStringView column, const QString &text);
    [[nodiscard]] bool isChecked(QStringView column) const;
    /// Raises TypeMismatch, and shows the field, for a text that is not a whole number.
    [[nodiscard]] int number(QStringView column) const;

    /// A column that has no field is an error of the program.
    [[nodiscard]] QWidget *field(QStringView column) const;
    [[nodiscard]] QPushButton *button(QLatin1StringView name) const;
    /// Brings the field's tab to the front and gives it the focus.
    void show(QStringView column) const;

private:
    struct Field
    {
        const FieldRow *row;
        QWidget *widget;
        int tab;
    };
    [[nodiscard]] const Field &at(QStringView column) const;
    [[nodiscard]] QWidget *make(const FieldRow &row);
    static void put(const Field &field, const QString &text);

    QTabWidget &m_tabs;
    QHash<QString, Field> m_fields; ///< by column
    QHash<QString, QPushButton *> m_buttons;
};
