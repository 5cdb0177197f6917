#include "queries/modCustomQuery.h"

#include "base/error.h"
#include "base/text.h"
#include "messages/guard.h"
#include "messages/progresssteps.h"
#include "platform/jet/interrupt.h"
#include "queries/clsCustomQuery.h"
#include "queries/frmCustomQuery.h"
#include "queries/frmQueryBuilder.h"
#include "session/connectionstring.h"
#include "toolkit/form.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"
#include "views/lists.h"
#include "views/modRender.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPlainTextEdit>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct TableMode
{
    QLatin1StringView table; ///< in lower case
    Mode mode;
};

constexpr TableMode tableModes[] = {
    {"tbl_customquery"_L1, Mode::QRY},
    {"tbl_folders"_L1, Mode::Folders},
    {"tbl_globalgroups"_L1, Mode::GlobalGroups},
    {"tbl_hw"_L1, Mode::HW},
    {"tbl_hwtype"_L1, Mode::HWType},
    {"tbl_localgroups"_L1, Mode::LocalGroups},
    {"tbl_rooms"_L1, Mode::Rooms},
    {"tbl_sw"_L1, Mode::SW},
    {"tbl_users"_L1, Mode::Users},
};

/// Lets the user cancel a statement. The window with Cancel comes up once the statement has run for a while.
class Cancelling final
{
public:
    explicit Cancelling(QWidget *owner) : m_owner(owner) { m_running.start(); }

    bool isCancelled()
    {
        constexpr qint64 patience = 700;
        if (!m_steps) {
            if (m_running.elapsed() < patience)
                return false;
            m_steps = std::make_unique<ProgressSteps>(m_owner, false);
            m_steps->phase(u"Executing Query"_s, 0);
        }
        return !m_steps->step(u"Running for %1 s"_s.arg(m_running.elapsed() / 1000));
    }

private:
    QWidget *m_owner;
    QElapsedTimer m_running;
    std::unique_ptr<ProgressSteps> m_steps;
};

void execute(QWidget *owner, const QString &statement, jet::Recordset &rows)
{
    Cancelling cancelling(owner);
    const jet::Interruptible interruptible([&] { return cancelling.isCancelled(); });
    clsCustomQuery().Execute(getConnectionString(), rows, statement);
}

void newQuery(const CommandContext &context)
{
    frmCustomQuery dialog(context.owner, frmCustomQuery::Action::NewQRY, context.newRow(),
                          [](const QString &connectionString, const frmCustomQuery::Texts &texts) {
                              clsCustomQuery().Add(connectionString, texts.name, texts.description,
                                                   escapeQuotes(texts.statement));
                          });
    dialog.exec();
}

void editQuery(const CommandContext &context)
{
    frmCustomQuery dialog(
        context.owner, frmCustomQuery::Action::EditQRY, context.target(),
        [id = context.id](const QString &connectionString, const frmCustomQuery::Texts &texts) {
            clsCustomQuery().update(connectionString, id, texts.name, texts.description,
                                    escapeQuotes(texts.statement));
        });
    dialog.load({context.subItem(1), context.subItem(2), context.subItem(3)});
    dialog.exec();
}

void executeQuery(const CommandContext &context)
{
    if (context.row < 0)
        messageBox(context.owner, u"Please select an Item from list"_s, box::WarningIcon);
    else
        modCustomQuery::run(context.owner, context.subItem(3), context.subItem(2));
}

} // namespace

std::span<const OpRow> modCustomQuery::handlers()
{
    static const OpRow table[] = {
        {Mode::QRY, Op::ListAll, listAll<&clsCustomQuery::getAll>(Mode::QRY, "All Custom Queries"_L1)},
        {Mode::QRY, Op::AddNew, newQuery},
        {Mode::QRY, Op::Edit, editQuery},
        {Mode::QRY, Op::Delete,
         deleteSelected<&clsCustomQuery::Delete>(u"Deleting Queries"_s,
                                                 u"The following Queries could not be deleted:"_s)},
        {Mode::QRY, Op::ExecuteQuery, executeQuery},
    };
    return table;
}

QString modCustomQuery::normalized(QString statement)
{
    while (statement.contains("  "_L1))
        statement.replace("  "_L1, " "_L1);
    return statement.trimmed();
}

Mode modCustomQuery::modeOfStatement(const QString &statement)
{
    QString lower = statement.toLower();
    for (QChar &character : lower)
        character = character.isSpace() ? u' ' : character;
    constexpr auto from = "from "_L1;
    const qsizetype found = lower.indexOf(from);
    if (found < 0)
        return Mode::Unknown;
    QString table = lower.mid(found + from.size()).section(u' ', 0, 0, QString::SectionSkipEmpty);
    for (const QChar sign : u"[]()"_s)
        table.remove(sign);
    table = table.trimmed();
    for (const TableMode &row : tableModes)
        if (table == row.table)
            return row.mode;
    return Mode::Unknown;
}

void modCustomQuery::run(QWidget *owner, const QString &typed, const QString &title, frmDisplay *view)
{
    const QString statement = normalized(typed);
    if (statement.isEmpty()) {
        messageBox(
            owner,
            u"The input is incomplete. Please provide the requested Data. Only Description Fields are not "
            "mandatory"_s,
            box::StopIcon);
        return;
    }
    if (messageBox(
            owner,
            u"Warning: By Executing a Query you can Change and/or Delete Data.\r\nAre you sure to continue?"_s,
            box::YesNo | box::WarningIcon) != box::ResultYes)
        return;

    std::unique_ptr<frmDisplay> fresh(view ? nullptr : new frmDisplay);
    frmDisplay *const target = view ? view : fresh.get();
    const Hourglass hourglass;
    jet::Recordset rows;
    execute(owner, statement, rows);
    const bool hasRows = rows.state() != 0 && rows.recordCount() > 0;
    modRender::renderList(*target->listDisplay, rows);
    target->SetAction(modeOfStatement(statement));
    if (!hasRows) {
        messageBox(owner, u"The requested query did not return data"_s, box::InformationIcon);
        return;
    }
    target->LblInfo->setText(title);
    static_cast<void>(fresh.release()); // the main window's from here on
    target->showView();
    // Unlike the ids of other views, the first column of a query can be read.
    constexpr int firstColumnWidth = 83;
    target->listDisplay->setColumnWidth(0, firstColumnWidth);
}

std::vector<modCustomQuery::SavedQuery> modCustomQuery::savedQueries()
{
    jet::Recordset rows;
    clsCustomQuery().getAll(getConnectionString(), rows);
    std::vector<SavedQuery> queries;
    if (rows.recordCount() == 0)
        return queries;
    for (rows.moveFirst(); !rows.eof(); rows.moveNext())
        queries.push_back({rows.value(u"Name").toText(), rows.value(u"Description").toText(),
                           rows.value(u"SQLString").toText()});
    return queries;
}

void modCustomQuery::openBuilder(QWidget *owner, QPlainTextEdit &target)
{
    frmQueryBuilder builder(owner, getConnectionString());
    builder.setText(memoText(target));
    if (builder.exec() == QDialog::Accepted)
        setMemoText(target, builder.text());
}
