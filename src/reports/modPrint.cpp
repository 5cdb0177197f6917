#include "reports/modPrint.h"

#include "base/error.h"
#include "base/text.h"
#include "messages/progresssteps.h"
#include "messages/status.h"
#include "platform/printing/pagedevice.h"
#include "reports/modPrinter.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"

#include <QLabel>
#include <QScopeGuard>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr auto reportTitle = "Kelvane Confidential Report"_L1;
constexpr int titleCharacters = 13;
constexpr int stride = 200; // rows between two looks at the progress window

// Millimetres.
constexpr double leftRule = 10;
constexpr double rightEnd = 287; // of all lines
constexpr double rules[] = {20, 28, 36, 200};
constexpr double leftText = 15;
constexpr double rightText = 282;
constexpr double reportTitleBottom = 20;
constexpr double viewTitleBottom = 28;
constexpr double columnTitleBottom = 35;
constexpr double firstRow = 38;
constexpr double lastRow = 190;
constexpr double tableWidth = 272;
constexpr double rowGap = 1;

// Dots.
constexpr int ruleWidth = 6;
constexpr int rowLineWidth = 1;

bool askYesNo(QWidget *owner, const QString &question)
{
    return messageBox(owner, question, box::YesNo | box::QuestionIcon) == box::ResultYes;
}

/// Never the first column: the ids.
std::vector<int> chooseColumns(QWidget *owner, const ListView &list)
{
    std::vector<int> columns;
    const bool all = askYesNo(owner, u"Would you like to Print all Columns?"_s);
    for (int column = 1; column < list.columnCount(); ++column)
        if (all || askYesNo(owner, fillMarker(u"Print Column $ ?"_s, list.heading(column))))
            columns.push_back(column);
    return columns;
}

/// One copy of a list.
class ListPrint final
{
public:
    ListPrint(const ListView &list, const QString &title, const std::vector<int> &columns,
              printing::PageDevice &printer)
        : m_list(list)
        , m_title(title)
        , m_columns(columns)
        , m_printer(printer)
    {
    }

    /// False when the steps were cancelled.
    [[nodiscard]] bool run(Steps &steps)
    {
        beginPage();
        const int rows = m_list.rowCount();
        for (int row = 0; row < rows; ++row) {
            if (!steps.step("Page "_L1 % QString::number(m_page)))
                return false;
            const double y = firstRow + m_rowOnPage * m_rowHeight;
            printRow(row, y);
            // Without rows there would be a page of nothing but the header.
            if (y > lastRow && row + 1 < rows) {
                m_printer.endDocument();
                beginPage();
            } else if (y <= lastRow) {
                ++m_rowOnPage;
                const double lineAt = y + m_rowHeight - rowGap;
                m_printer.line(leftText, lineAt, rightEnd, lineAt);
            }
        }
        m_printer.endDocument();
        return true;
    }

private:
    void beginPage()
    {
        m_printer.newPage();
        ++m_page;
        printHeader();
        m_printer.setLineWidth(rowLineWidth);
        m_printer.setFont(8, QFont::Normal);
        m_rowOnPage = 0;
        m_rowHeight = m_printer.textHeight() + rowGap;
    }

    void printHeader()
    {
        m_printer.setLineWidth(ruleWidth);
        for (const double rule : rules)
            m_printer.line(leftRule, rule, rightEnd, rule);

        m_printer.setFont(12, QFont::Bold);
        const double height = m_printer.textHeight();
        m_printer.text(leftText, reportTitleBottom - height, reportTitle);
        const QString counts =
            QString::number(m_list.rowCount()) % " Record(s) - Page "_L1 % QString::number(m_page);
        m_printer.text(rightText - m_printer.textWidth(counts), reportTitleBottom - height, counts);
        m_printer.text(leftText, viewTitleBottom - height, m_title);

        m_printer.setFont(10, QFont::Bold);
        const double titlesAt = columnTitleBottom - m_printer.textHeight();
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_printer.text(left(i), titlesAt, m_list.heading(m_columns[i]).left(titleCharacters) % ".."_L1);
    }

    void printRow(int row, double y)
    {
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_printer.text(left(i), y, m_list.text(row, m_columns[i]));
    }

    [[nodiscard]] double left(std::size_t index) const
    {
        return leftText + double(index) * tableWidth / double(m_columns.size());
    }

    const ListView &m_list;
    const QString &m_title;
    const std::vector<int> &m_columns;
    printing::PageDevice &m_printer;
    int m_page = 0;
    int m_rowOnPage = 0;
    double m_rowHeight = 0;
};

void printData(const CommandContext &context)
{
    if (!context.view || !context.pane)
        return;
    const PointerScope pointerBefore(true);
    showStatusPrinting();
    const auto ready = qScopeGuard([] { attempt(showStatusReady); });

    const modPrinter::Choice choice = modPrinter::selectPrinter(context.owner);
    if (choice.cancelled)
        return;
    const QString title = context.view->LblInfo->text();
    const auto printer = modPrinter::openPrinter(context.owner, choice.printer, title);
    if (!printer)
        return;
    ProgressSteps steps(context.owner);
    modPrint::printList(context.owner, *context.pane, title, *printer, choice.copies, steps);
}

} // namespace

namespace modPrint {

std::span<const OpRow> handlers()
{
    static const std::vector<OpRow> table = [] {
        std::vector<OpRow> rows;
        for (int mode = 0; mode < modeCount; ++mode)
            rows.push_back({Mode(mode), Op::PrintData, printData});
        return rows;
    }();
    return table;
}

void printList(QWidget *owner, const ListView &list, const QString &title, printing::PageDevice &printer,
               int copies, Steps &steps)
{
    const std::vector<int> columns = chooseColumns(owner, list);
    if (columns.empty()) {
        messageBox(owner, u"Warning! No Data to Print...."_s, box::WarningIcon);
        return;
    }
    for (int copy = 1; copy <= copies; ++copy) {
        steps.phase(copies == 1 ? u"Printing Data"_s
                                : u"Printing Data, Copy %1 of %2"_s.arg(copy).arg(copies),
                    list.rowCount(), stride);
        if (!ListPrint(list, title, columns, printer).run(steps))
            return;
    }
    printer.finish();
}

} // namespace modPrint
