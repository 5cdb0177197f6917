#include "toolkit/form.h"

#include "toolkit/banner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialog>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int fieldWidthInCharacters = 44;
constexpr auto textAsSet = "textAsSet";
constexpr auto textAsShown = "textAsShown";

class SelectsAllOnFocus final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::FocusIn)
            return false;
        // What is half typed when its menu closes, or another program goes, stays as it is.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        const bool comesBack = reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
        // After the click that brought the focus has put the cursor somewhere.
        if (!comesBack || !m_hadFocus)
            QMetaObject::invokeMethod(static_cast<QLineEdit *>(watched), &QLineEdit::selectAll,
                                      Qt::QueuedConnection);
        m_hadFocus = true;
        return false;
    }

private:
    bool m_hadFocus = false;
};

} // namespace

QString withoutMnemonic(QString caption)
{
    return caption.remove(u'&');
}

void selectAllOnFocus(QLineEdit &field)
{
    field.installEventFilter(new SelectsAllOnFocus(&field));
}

Form::Form(QDialog &dialog, QLatin1StringView name) : m_dialog(dialog), m_all(new QVBoxLayout(&dialog))
{
    dialog.setObjectName(name);
}

Banner *Form::banner(int picture)
{
    auto *banner = new Banner(&m_dialog);
    banner->setPicture(picture);
    m_all->addWidget(banner);
    return banner;
}

QGroupBox *Form::frame(QLatin1StringView name, QLatin1StringView caption)
{
    auto *frame = new QGroupBox(caption, &m_dialog);
    frame->setObjectName(name);
    m_rows = new QGridLayout(frame);
    m_rows->setColumnStretch(1, 1);
    m_all->addWidget(frame);
    return frame;
}

QGridLayout &Form::rows()
{
    if (!m_rows) {
        m_rows = new QGridLayout;
        m_rows->setColumnStretch(1, 1);
        m_all->addLayout(m_rows);
    }
    return *m_rows;
}

QLabel *Form::row(QLatin1StringView labelName, QLatin1StringView caption, QLatin1StringView name,
                  QWidget *field)
{
    QGridLayout &layout = rows();
    const int row = layout.rowCount();
    auto *label = new QLabel(caption);
    label->setObjectName(labelName);
    label->setBuddy(field);
    field->setObjectName(name);
    field->setAccessibleName(withoutMnemonic(caption));
    layout.addWidget(label, row, 0);
    layout.addWidget(field, row, 1);
    return label;
}

Form::Line Form::line(QLatin1StringView labelName, QLatin1StringView caption, QLatin1StringView name)
{
    auto *field = new QLineEdit;
    field->setMinimumWidth(fieldWidthInCharacters * m_dialog.fontMetrics().averageCharWidth());
    selectAllOnFocus(*field);
    return {row(labelName, caption, name, field), field};
}

void setMemoText(QPlainTextEdit &memo, const QString &text)
{
    memo.setPlainText(text);
    memo.setProperty(textAsSet, text);
    memo.setProperty(textAsShown, memo.toPlainText());
}

QString memoText(const QPlainTextEdit &memo)
{
    const QVariant shown = memo.property(textAsShown);
    if (shown.isValid() && memo.toPlainText() == shown.toString())
        return memo.property(textAsSet).toString();
    QString text = memo.document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, QLatin1StringView("\r\n"))
        .replace(QChar::LineSeparator, QLatin1StringView("\r\n"));
}

QComboBox *makeFreeCombo()
{
    auto *combo = new QComboBox;
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    selectAllOnFocus(*combo->lineEdit());
    return combo;
}

QComboBox *Form::combo(QLatin1StringView labelName, QLatin1StringView caption, QLatin1StringView name)
{
    QComboBox *made = makeFreeCombo();
    made->setMinimumWidth(fieldWidthInCharacters * m_dialog.fontMetrics().averageCharWidth());
    row(labelName, caption, name, made);
    return made;
}

QCheckBox *Form::check(QLatin1StringView name, QLatin1StringView caption)
{
    QGridLayout &layout = rows();
    auto *check = new QCheckBox(caption);
    check->setObjectName(name);
    layout.addWidget(check, layout.rowCount(), 0, 1, 2);
    return check;
}

void Form::add(QWidget &widget)
{
    m_all->addWidget(&widget, 1);
}

QPushButton *Form::buttonBeside(QLatin1StringView name, QLatin1StringView caption)
{
    QGridLayout &layout = rows();
    auto *button = new QPushButton(caption);
    button->setObjectName(name);
    const int row = layout.rowCount() - 1;
    int column = 2;
    while (layout.itemAtPosition(row, column))
        ++column;
    layout.addWidget(button, row, column);
    return button;
}

QPushButton *Form::button(QLatin1StringView name, QLatin1StringView caption)
{
    if (!m_buttons) {
        m_all->addStretch();
        m_buttons = new QHBoxLayout;
        m_buttons->addStretch();
        m_all->addLayout(m_buttons);
    }
    auto *button = new QPushButton(caption);
    button->setObjectName(name);
    m_buttons->addWidget(button);
    return button;
}

QPushButton *Form::defaultButton(QLatin1StringView name, QLatin1StringView caption)
{
    QPushButton *made = button(name, caption);
    made->setDefault(true);
    return made;
}

QPushButton *Form::closeButton(QLatin1StringView name, QLatin1StringView caption)
{
    QPushButton *made = button(name, caption);
    QObject::connect(made, &QPushButton::clicked, &m_dialog, &QDialog::reject);
    return made;
}
