#include "views/recordform.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "toolkit/form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

// In characters; a page of two columns has narrower fields.
constexpr int fieldWidth = 44;
constexpr int narrowFieldWidth = 26;
// Cells of a column: label, field, button.
constexpr int cellsAColumn = 3;

} // namespace

RecordForm::RecordForm(QTabWidget &tabs, std::span<const FieldPage> pages) : m_tabs(tabs)
{
    for (const FieldPage &page : pages) {
        auto *frame = new QWidget;
        frame->setObjectName(page.frame);
        auto *grid = new QGridLayout(frame);
        const int height = (int(page.rows.size()) + page.columns - 1) / page.columns;
        for (int i = 0; i < int(page.rows.size()); ++i) {
            const FieldRow &row = page.rows[std::size_t(i)];
            const int line = i % height;
            const int cell = i / height * cellsAColumn;
            QWidget *widget = make(row);
            m_fields.insert(row.column, {&row, widget, tabs.count()});
            if (row.kind == FieldKind::Check) {
                grid->addWidget(widget, line, cell, 1, 2);
                continue;
            }
            widget->setMinimumWidth((page.columns == 1 ? fieldWidth : narrowFieldWidth) *
                                    m_tabs.fontMetrics().averageCharWidth());
            auto *label = new QLabel(row.label);
            label->setBuddy(widget);
            const bool memo = row.kind == FieldKind::Memo;
            grid->addWidget(label, line, cell, memo ? Qt::AlignTop : Qt::AlignVCenter);
            grid->addWidget(widget, line, cell + 1, 1, row.button.isEmpty() ? 2 : 1);
            if (memo)
                grid->setRowStretch(line, 1);
            if (row.button.isEmpty())
                continue;
            auto *button = new QPushButton(row.buttonCaption);
            button->setObjectName(row.button);
            button->setAccessibleName(withoutMnemonic(row.buttonCaption) % u' ' % row.label);
            m_buttons.insert(row.button, button);
            grid->addWidget(button, line, cell + 2);
        }
        for (int column = 0; column < page.columns; ++column)
            grid->setColumnStretch(column * cellsAColumn + 1, 1);
        grid->setRowStretch(height, 1);
        tabs.addTab(frame, page.caption);
    }
}

QWidget *RecordForm::make(const FieldRow &row)
{
    QWidget *made = nullptr;
    switch (row.kind) {
    case FieldKind::Check:
        made = new QCheckBox(row.label);
        break;
    case FieldKind::Choice:
        made = makeFreeCombo();
        break;
    case FieldKind::Memo: {
        auto *memo = new QPlainTextEdit;
        memo->setTabChangesFocus(true);
        made = memo;
        break;
    }
    case FieldKind::Text:
    case FieldKind::Password:
    case FieldKind::Number: {
        auto *line = new QLineEdit;
        selectAllOnFocus(*line);
        if (row.kind == FieldKind::Password)
            line->setEchoMode(QLineEdit::Password);
        made = line;
        break;
    }
    }
    made->setObjectName(row.control);
    made->setAccessibleName(row.label);
    return made;
}

const RecordForm::Field &RecordForm::at(QStringView column) const
{
    const auto found = m_fields.constFind(column.toString());
    Q_ASSERT(found != m_fields.constEnd());
    return *found;
}

void RecordForm::put(const Field &field, const QString &text)
{
    if (auto *line = qobject_cast<QLineEdit *>(field.widget))
        line->setText(text);
    else if (auto *combo = qobject_cast<QComboBox *>(field.widget))
        combo->setEditText(text);
    else if (auto *memo = qobject_cast<QPlainTextEdit *>(field.widget))
        setMemoText(*memo, text);
    else
        static_cast<QCheckBox *>(field.widget)->setChecked(text == "1"_L1);
}

void RecordForm::load(jet::Recordset &record)
{
    for (const Field &field : std::as_const(m_fields)) {
        const int column = record.fields().indexOf(QString(field.row->column));
        const Value value = column < 0 ? Value() : record.value(column);
        switch (field.row->kind) {
        case FieldKind::Check:
            put(field, QString::number(int(value.toBoolean())));
            break;
        case FieldKind::Number:
            // A row from an import file has no numbers but those in the file; it can be saved all the same.
            put(field, value.isNull() ? u"0"_s : value.toText());
            break;
        default:
            put(field, value.toText());
        }
    }
}

QString RecordForm::text(QStringView column) const
{
    const Field &field = at(column);
    if (const auto *line = qobject_cast<QLineEdit *>(field.widget))
        return line->text();
    if (const auto *combo = qobject_cast<QComboBox *>(field.widget))
        return combo->currentText();
    if (const auto *memo = qobject_cast<QPlainTextEdit *>(field.widget))
        return memoText(*memo);
    return QString::number(int(isChecked(column)));
}

void RecordForm::setText(QStringView column, const QString &text)
{
    put(at(column), text);
}

bool RecordForm::isChecked(QStringView column) const
{
    return static_cast<QCheckBox *>(at(column).widget)->isChecked();
}

int RecordForm::number(QStringView column) const
{
    bool isNumber = false;
    const QString typed = text(column);
    const int number = typed.trimmed().toInt(&isNumber);
    if (!isNumber) {
        show(column);
        throwError(jet::TypeMismatch,
                   at(column).row->label + ": '"_L1 + typed + "' is not a whole number."_L1);
    }
    return number;
}

QWidget *RecordForm::field(QStringView column) const
{
    return at(column).widget;
}

QPushButton *RecordForm::button(QLatin1StringView name) const
{
    return m_buttons.value(name);
}

void RecordForm::show(QStringView column) const
{
    const Field &field = at(column);
    m_tabs.setCurrentIndex(field.tab);
    field.widget->setFocus();
}
