#include "views/lists.h"

#include "messages/progresssteps.h"
#include "messages/reportbatch.h"
#include "messages/status.h"
#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "toolkit/pointer.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <algorithm>
#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;

Handler properties(std::vector<PropertyList> lists)
{
    return [lists = std::move(lists)](const CommandContext &context) {
        const Hourglass hourglass;
        std::vector<PropertyTab> tabs;
        std::ranges::transform(lists, std::back_inserter(tabs), &PropertyList::tab);
        auto window = std::make_unique<frmProperties>(context.owner, tabs);
        for (const PropertyList &list : lists) {
            jet::Recordset rows;
            list.read(getConnectionString(), rows, context.id);
            modRender::renderList(*window->list(list.tab), rows);
        }
        window->LblInfo->setText(context.name);
        window->SetAction(context.mode);
        window.release()->show(); // it deletes itself when it is closed
    };
}

Handler deleteSelected(QString progressTitle, QString failureHeading, DeleteMethod deleteAll)
{
    return [=](const CommandContext &context) {
        const std::vector<int> ids = context.selectedIds();
        QStringList names;
        for (const int row : context.pane->selectedRows())
            names.append(modRender::objectName(context.mode, *context.pane, row));
        const auto run = [&](Steps &steps) {
            steps.phase(progressTitle, int(ids.size()));
            return deleteAll(getConnectionString(), ids, names, steps);
        };
        Report report;
        if (ids.size() > 1) {
            ProgressSteps steps(context.owner);
            report = run(steps);
        } else {
            NoSteps steps;
            report = run(steps);
        }
        if (!report.text.isEmpty() || !report.note.isEmpty())
            reportBatch(context.owner, report, failureHeading);
    };
}
