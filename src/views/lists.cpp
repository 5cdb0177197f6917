#include "views/lists.h"

#include "base/error.h"
#include "base/steps.h"
#include "messages/guard.h"
#include "messages/progresssteps.h"
#include "messages/reportbatch.h"
#include "messages/status.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "toolkit/pointer.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <algorithm>
#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

Report deleteEach(Steps &steps, const QString &connectionString, const QString &title,
                  const std::vector<int> &ids, const QStringList &names,
                  const std::function<void(const QString &, int)> &deleteOne)
{
    Report report;
    steps.phase(title, int(ids.size()));
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const QString &name = names[qsizetype(i)];
        if (!steps.step(name)) {
            report.end = Report::End::Cancelled;
            break;
        }
        try {
            deleteOne(connectionString, ids[i]);
            ++report.done;
        } catch (const jet::ChangesLost &lost) {
            ++report.failed;
            report.text += name % ": "_L1 % lost.description() % "\r\n"_L1;
            report.end = Report::End::Lost;
            break;
        } catch (const Error &error) {
            ++report.failed;
            report.text += name % ": "_L1 % error.description() % "\r\n"_L1;
        }
    }
    return report;
}

} // namespace

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

Handler deleteSelected(QString progressTitle, QString failureHeading,
                       std::function<void(const QString &, int)> deleteOne)
{
    return [=](const CommandContext &context) {
        const std::vector<int> ids = context.selectedIds();
        QStringList names;
        for (const int row : context.pane->selectedRows())
            names.append(modRender::objectName(context.mode, *context.pane, row));
        const auto run = [&](Steps &steps) {
            return deleteEach(steps, getConnectionString(), progressTitle, ids, names, deleteOne);
        };
        Report report;
        if (ids.size() > 1) {
            ProgressSteps steps(context.owner);
            report = run(steps);
        } else {
            NoSteps steps;
            report = run(steps);
        }
        if (!report.text.isEmpty())
            reportBatch(context.owner, report, failureHeading);
    };
}
