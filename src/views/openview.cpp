#include "views/openview.h"

#include "messages/guard.h"
#include "messages/status.h"
#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <QLabel>

#include <memory>

using namespace Qt::StringLiterals;

frmDisplay *openView(QWidget *owner, frmDisplay *view, Mode mode, const QString &title, const ReadRows &read)
{
    std::unique_ptr<frmDisplay> fresh(view ? nullptr : new frmDisplay);
    frmDisplay *const target = view ? view : fresh.get();
    frmDisplay *shown = nullptr;

    guarded(owner, [&] {
        const Hourglass hourglass;
        showStatusReading();
        jet::Recordset recordset;
        read(getConnectionString(), recordset);
        modRender::renderList(*target->listDisplay, recordset);
        target->SetAction(mode);
        if (recordset.recordCount() == 0) {
            messageBox(owner, u"The requested query did not return data"_s, box::InformationIcon);
            return;
        }
        target->LblInfo->setText(title);
        static_cast<void>(fresh.release()); // the main window's from here on
        target->showView();
        shown = target;
    });
    showStatusReady();
    return shown;
}
