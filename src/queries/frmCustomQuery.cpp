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
    txtQRY->setPlainText(texts.statement);
}

frmCustomQuery::Texts frmCustomQuery::texts() const
{
    return {txtName->text(), txtDescription->text(), txtQRY->toPlainText()};
}

void frmCustomQuery::Execute()
{
    guarded(this, [this] {
        try {
            modCustomQuery::run(this, txtQRY->toPlainText().replace(u'\n', u' '), txtDescription->text());
        } catch (const Error &error) {
            mark(error.description());
            throw;
        }
    });
}

// "... Near 'FORM' at 10." The place counts the characters of the statement with single blanks.
void frmCustomQuery::mark(const QString &errorText)
{
    static const QRegularExpression place(u"Near '(.*)' at (\\d+)"_s);
    const QRegularExpressionMatch found = place.match(errorText);
    if (!found.hasMatch())
        return;
    const QString word = found.captured(1);
    const qsizetype wanted = found.captured(2).toLongLong() - 1;
    const QString typed = txtQRY->toPlainText();
    qsizetype counted = 0;
    bool afterBlank = true;
    qsizetype at = 0;
    for (; at < typed.size() && counted < wanted; ++at) {
        const bool blank = typed[at] == u' ' || typed[at] == u'\n';
        if (!blank || !afterBlank)
            ++counted;
        afterBlank = blank;
    }
    while (at < typed.size() && typed[at].isSpace())
        ++at;
    QTextCursor cursor = txtQRY->textCursor();
    cursor.setPosition(int(at));
    cursor.setPosition(int(std::min(typed.size(), at + word.size())), QTextCursor::KeepAnchor);
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
