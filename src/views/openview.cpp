#include "views/openview.h"

#include "base/error.h"
#include "messages/guard.h"
#include "messages/status.h"
#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "toolkit/statusbar.h"
#include "views/frmDisplay.h"
#include "views/mainwindowlink.h"
#include "views/modRender.h"

#include <QLabel>
#include <QMdiArea>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

QWidget *ownerOfViews()
{
    MainWindowLink *window = mainWindow();
    return window ? &window->mdiArea() : nullptr;
}

} // namespace

void openListRecordset(ListRecordset &recordset)
{
    recordset.reset();
    showHourglass(true);
    showStatusReading();
    // Only now: a command that ran inside the yield may have used the variable.
    recordset = std::make_unique<jet::Recordset>();
}

void closeListRecordset(ListRecordset &recordset)
{
    recordset.reset();
    showHourglass(false);
    if (MainWindowLink *window = mainWindow())
        window->mainStatusBar().setPanelText(1, u"Ready"_s);
}

frmDisplay *openView(frmDisplay *view, QStringView mode, const QString &title, ListRecordset &recordset,
                     const ReadRows &read)
{
    std::unique_ptr<frmDisplay> fresh(view ? nullptr : new frmDisplay);
    QPointer<frmDisplay> target = view ? view : fresh.get();
    frmDisplay *shown = nullptr;

    QWidget *owner = view ? view : ownerOfViews();
    guarded(owner, [&] {
        openListRecordset(recordset);
        if (!target)
            return; // closed inside the yield
        read(getConnectionString(), *recordset);
        modRender::renderList(*target->listDisplay, *recordset);
        target->SetAction(mode.toString());
        if (recordset->recordCount() == 0) {
            messageBox(owner, u"The requested query did not return data"_s, box::InformationIcon);
            return;
        }
        target->LblInfo->setText(title);
        static_cast<void>(fresh.release()); // the main window's from here on
        target->showView();
        shown = target;
    });
    closeListRecordset(recordset);
    return shown;
}
