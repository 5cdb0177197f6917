#include "queries/frmQueryBuilder.h"

#include "base/error.h"
#include "messages/guard.h"
#include "queries/clsCustomQuery.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"

#include <QComboBox>
#include <QCompleter>
#include <QFontDatabase>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

constexpr int queryPicture = 9;
constexpr int statementLines = 8;

constexpr QLatin1StringView keywords[] = {
    "SELECT"_L1,     "INSERT INTO"_L1, "UPDATE"_L1,     "DELETE * FROM"_L1, "FROM"_L1,     "WHERE"_L1,
    "INNER JOIN"_L1, "LEFT JOIN"_L1,   "RIGHT JOIN"_L1, "OUTER JOIN"_L1,    "ORDER BY"_L1, "ASC"_L1,
    "DESC"_L1,       "DISTINCT"_L1,    "*"_L1,          "TOP()"_L1,         "AS"_L1,       "LIKE"_L1,
    "SET"_L1,        "VALUES"_L1,      "GROUP BY"_L1,
};

bool holdsAny(const QString &text, std::initializer_list<QLatin1StringView> words)
{
    return std::ranges::any_of(words, [&](QLatin1StringView word) { return text.contains(word); });
}

} // namespace

frmQueryBuilder::frmQueryBuilder(QWidget *owner, const QString &connectionString)
    : QDialog(owner)
    , m_connectionString(connectionString)
{
    Form form(*this, "frmQueryBuilder"_L1);
    Banner *banner = form.banner(queryPicture);
    LblInfo = banner->LblInfo;
    LblInfo->setText(u"Build your Query"_s);
    FrameQuery = form.frame("FrameQuery"_L1, "Your Query"_L1);
    cboSQLStatements = makeFreeCombo();
    lblSQlStatements =
        form.row("lblSQlStatements"_L1, "SQL Statements"_L1, "cboSQLStatements"_L1, cboSQLStatements);
    cboTables = form.combo("lblTables"_L1, "Tables"_L1, "cboTables"_L1);
    cboFields = form.combo("lblFields"_L1, "Fields"_L1, "cboFields"_L1);
    txtQRY = new QPlainTextEdit;
    txtQRY->setTabChangesFocus(true);
    txtQRY->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtQRY->setMinimumHeight(statementLines * txtQRY->fontMetrics().lineSpacing());
    form.row("lblQRY"_L1, "Your Query"_L1, "txtQRY"_L1, txtQRY);
    cmdReset = form.button("cmdReset"_L1, "&Reset"_L1);
    cmdOK = form.button("cmdOK"_L1, "&OK"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
    setWindowTitle(u"Query Builder"_s);
    connectControls();
    Initialize();
    cboSQLStatements->setFocus();
}

void frmQueryBuilder::connectControls()
{
    // Enter belongs to the lists.
    for (QPushButton *button : {cmdReset, cmdOK, cmdCancel})
        button->setAutoDefault(false);
    for (QComboBox *combo : {cboSQLStatements, cboTables, cboFields}) {
        combo->completer()->setCompletionMode(QCompleter::InlineCompletion);
        combo->installEventFilter(this);
        combo->lineEdit()->installEventFilter(this);
    }
    txtQRY->installEventFilter(this);
    connect(cboTables, &QComboBox::activated, this, [this] { GetFields(cboTables->currentText()); });
    connect(cmdReset, &QPushButton::clicked, this, [this] { guarded(this, [this] { Initialize(); }); });
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void frmQueryBuilder::setText(const QString &statement)
{
    setMemoText(*txtQRY, statement);
    txtQRY->moveCursor(QTextCursor::End);
    m_lastText = statement;
}

QString frmQueryBuilder::text() const
{
    return memoText(*txtQRY);
}

void frmQueryBuilder::Initialize()
{
    txtQRY->clear();
    cboSQLStatements->clear();
    for (const QLatin1StringView keyword : keywords)
        cboSQLStatements->addItem(keyword);
    cboFields->clear();
    GetTables();
    for (QComboBox *combo : {cboSQLStatements, cboTables, cboFields}) {
        combo->setCurrentIndex(-1);
        combo->clearEditText();
    }
}

void frmQueryBuilder::GetTables()
{
    cboTables->clear();
    attempt([this] { cboTables->addItems(clsCustomQuery().tableNames(m_connectionString)); });
}

void frmQueryBuilder::GetFields(const QString &table)
{
    cboFields->clear();
    attempt([&] { cboFields->addItems(clsCustomQuery().fieldNames(m_connectionString, table)); });
    cboFields->setCurrentIndex(-1);
}

void frmQueryBuilder::insert(const QString &value)
{
    m_lastText = text();
    QTextCursor cursor = txtQRY->textCursor();
    cursor.setPosition(cursor.selectionStart());
    cursor.insertText(value);
    txtQRY->setTextCursor(cursor);
    FocusDecision();
}

void frmQueryBuilder::undo()
{
    txtQRY->setPlainText(m_lastText);
    txtQRY->moveCursor(QTextCursor::End);
}

void frmQueryBuilder::FocusDecision()
{
    const QString keyword = cboSQLStatements->currentText();
    if (holdsAny(keyword, {","_L1, "ORDER BY"_L1, "WHERE"_L1, "SET"_L1, "GROUP BY"_L1}))
        cboFields->setFocus();
    else if (holdsAny(keyword, {"="_L1, ">"_L1, "<"_L1, "LIKE"_L1}))
        cboSQLStatements->setFocus();
    else if (holdsAny(keyword, {"SELECT"_L1, "JOIN"_L1, "FROM"_L1, "INSERT"_L1, "DELETE"_L1, "UPDATE"_L1}))
        cboTables->setFocus();
}

bool frmQueryBuilder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (watched == txtQRY) {
        if (key.matches(QKeySequence::Undo)) {
            undo();
            return true;
        }
        if (isEnter) {
            cboSQLStatements->setFocus();
            return true;
        }
        return QDialog::eventFilter(watched, event);
    }
    if (!isEnter)
        return QDialog::eventFilter(watched, event);
    if (watched == cboSQLStatements || watched == cboSQLStatements->lineEdit()) {
        insert(u' ' % cboSQLStatements->currentText() % u' ');
    } else if (watched == cboTables || watched == cboTables->lineEdit()) {
        GetFields(cboTables->currentText());
        insert(" ["_L1 % cboTables->currentText() % "] "_L1);
    } else {
        insert(" ["_L1 % cboTables->currentText() % "].["_L1 % cboFields->currentText() % "] "_L1);
    }
    return true;
}
