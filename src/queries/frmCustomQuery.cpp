#include "queries/frmCustomQuery.h"

#include "base/error.h"
#include "messages/guard.h"
#include "queries/modCustomQuery.h"
#include "session/connectionstring.h"
#include "session/help.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "toolkit/messagebox.h"
#include "views/savedialog.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

constexpr int queryPicture = 9;
constexpr int statementLines = 8;
constexpr auto title = "Custom Query"_L1;

} // namespace

frmCustomQuery::frmCustomQuery(QWidget *owner, Action action, RowTarget source, Store store)
    : QDialog(owner)
    , m_source(std::move(source))
    , m_store(std::move(store))
{
    Form form(*this, "frmCustomQuery"_L1);
    picLogoContainer = form.banner(queryPicture);
    LblInfo = picLogoContainer->LblInfo;
    LblInfo->setText(action == Action::NewQRY ? u"Add New Custom Query"_s : u"Edit Custom Query"_s);
    frameQuery = form.frame("frameQuery"_L1, title);
    txtName = form.line("lblName"_L1, "Name"_L1, "txtName"_L1).field;
    txtDescription = form.line("lblDescription"_L1, "Description"_L1, "txtDescription"_L1).field;
    txtQRY = new QPlainTextEdit;
    txtQRY->setTabChangesFocus(true);
    txtQRY->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtQRY->setMinimumHeight(statementLines * txtQRY->fontMetrics().lineSpacing());
    form.row("lblQRY"_L1, "Query [SQL]"_L1, "txtQRY"_L1, txtQRY);
    cmdQueryBuilder = form.button("cmdQueryBuilder"_L1, "Query Builder"_L1);
    cmdRules = form.button("cmdRules"_L1, "&Rules..."_L1);
    cmdExecute = form.button("cmdExecute"_L1, "&Execute"_L1);
    cmdOK = form.defaultButton("cmdOK"_L1, "&Save"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
    setWindowTitle(title);

    connect(cmdQueryBuilder, &QPushButton::clicked, this,
            [this] { guarded(this, [this] { modCustomQuery::openBuilder(this, *txtQRY); }); });
    connect(cmdRules, &QPushButton::clicked, this,
            [this] { guarded(this, [] { openHelp(u"manual.html"_s); }); });
    connect(cmdExecute, &QPushButton::clicked, this, &frmCustomQuery::Execute);
    connect(cmdOK, &QPushButton::clicked, this, &frmCustomQuery::Save);
    txtName->setFocus();
}

void frmCustomQuery::load(const Texts &texts)
{
    txtName->setText(texts.name);
    txtDescription->setText(texts.description);
    setMemoText(*txtQRY, texts.statement);
}

frmCustomQuery::Texts frmCustomQuery::texts() const
{
    return {txtName->text(), txtDescription->text(), memoText(*txtQRY)};
}

void frmCustomQuery::Execute()
{
    guarded(this, [this] {
        const QString statement = memoText(*txtQRY);
        try {
            modCustomQuery::run(this, statement, txtDescription->text());
        } catch (const Error &error) {
            mark(statement, error.description());
            throw;
        }
    });
}

// "... Near 'FORM' at 10." The place counts the characters of the statement that was run.
void frmCustomQuery::mark(const QString &statement, const QString &errorText)
{
    static const QRegularExpression place(u"Near '(.*)' at (\\d+)"_s);
    const QRegularExpressionMatch found = place.match(errorText);
    if (!found.hasMatch())
        return;
    const qsizetype wanted = found.captured(2).toLongLong() - 1;
    // Each character of the statement as typed: is it one that was run, and one that the edit shows?
    qsizetype run = 0;
    int shown = 0;
    bool begun = false;
    bool afterBlank = false;
    for (const QChar character : statement) {
        begun = begun || !character.isSpace();
        const bool kept = begun && (character != u' ' || !afterBlank);
        if (kept && run++ == wanted)
            break;
        afterBlank = character == u' ';
        shown += character == u'\r' ? 0 : 1;
    }
    QTextCursor cursor = txtQRY->textCursor();
    cursor.setPosition(shown);
    cursor.setPosition(
        std::min(txtQRY->document()->characterCount() - 1, shown + int(found.captured(1).size())),
        QTextCursor::KeepAnchor);
    txtQRY->setTextCursor(cursor);
    txtQRY->setFocus();
}

void frmCustomQuery::Save()
{
    saveAndAccept(
        *this,
        [this] {
            m_store(getConnectionString(), texts());
            UpdateSource();
        },
        txtName);
}

void frmCustomQuery::UpdateSource() const
{
    const Texts saved = texts();
    m_source.put({saved.name, saved.description, saved.statement});
}
