#include "tour.h"

#include "gallery.h"

#include "base/error.h"
#include "messages/frmProgress.h"
#include "messages/frmResult.h"
#include "messages/progresssteps.h"
#include "messages/showresult.h"
#include "shell/application.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "toolkit/yield.h"
#include "views/frmDisplay.h"
#include "views/frmProperties.h"
#include "views/listpane.h"
#include "views/modServer.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMenu>
#include <QPointer>
#include <QTabWidget>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize mainWindowSize(1180, 720);

[[noreturn]] void missing(const QString &what)
{
    throwError(RuleViolation, what % " did not appear."_L1);
}

/// Takes the picture of each modal window that opens while `open` runs, by the names in
/// turn, and closes it. As many windows have to come as there are names.
void walkModal(Gallery &gallery, QStringList names, const std::function<void()> &open)
{
    CurrentError failure;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget *window = QApplication::activeModalWidget();
        if (!window || !window->isVisible())
            return;
        if (names.isEmpty())
            failure.set(Error(RuleViolation, "An unexpected window appeared: "_L1 % window->windowTitle()));
        try {
            if (!names.isEmpty())
                gallery.add(*window, names.takeFirst());
        } catch (const Error &error) {
            failure.set(error);
        }
        window->close();
    });
    watch.start(0);
    open();
    if (failure.isSet())
        throwError(failure.number, failure.description);
    if (!names.isEmpty())
        missing(names.first());
}

void trigger(const QString &entry)
{
    auto *action = mainForm().findChild<QAction *>(entry);
    if (!action)
        missing(entry);
    action->trigger();
    paintNow();
}

template <typename Window>
Window &topLevel()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<Window *>(widget); window && window->isVisible())
            return *window;
    }
    missing(QString::fromLatin1(Window::staticMetaObject.className()));
}

void walkMainWindow(Gallery &gallery)
{
    frmMain &window = mainForm();
    window.showNormal();
    window.resize(mainWindowSize);
    window.activateWindow();
    paintNow();
    gallery.add(window, u"main"_s);
}

frmDisplay &activeView()
{
    auto *view = qobject_cast<frmDisplay *>(mainForm().mdiArea().currentSubWindow());
    if (!view)
        missing(u"frmDisplay"_s);
    return *view;
}

void addMenu(Gallery &gallery, const QString &entry, const QString &name)
{
    auto *menu = mainForm().findChild<QMenu *>(entry);
    if (!menu)
        missing(entry);
    menu->popup(mainForm().mapToGlobal(QPoint(0, 0)));
    paintNow();
    gallery.add(*menu, name);
    menu->close();
}

void walkViews(Gallery &gallery)
{
    trigger(u"mnuShowAllUsers"_s);
    activeView().listDisplay->setRowSelected(1);
    activeView().listDisplay->setRowSelected(2);
    paintNow();
    gallery.add(mainForm(), u"users"_s);
    addMenu(gallery, u"mnuEditParent"_s, u"menu-edit"_s);
    addMenu(gallery, u"mnuWizard"_s, u"menu-relationships"_s);

    trigger(u"mnuShowAllUsers"_s);
    mainForm().Arrange(1);
    paintNow();
    gallery.add(mainForm(), u"users-tiled"_s);
    mainForm().mdiArea().closeAllSubWindows();
    paintNow();
}

void walkRooms(Gallery &gallery)
{
    trigger(u"mnuShowAllRooms"_s);
    frmDisplay &rooms = activeView();
    rooms.listDisplay->setContextColumn(1);
    rooms.run(Op::Sort);
    rooms.listDisplay->chooseRow(2);
    paintNow();
    gallery.add(mainForm(), u"rooms"_s);
    walkModal(gallery, {u"room-new"_s}, [&] { rooms.run(Op::AddNew); });
    walkModal(gallery, {u"room-edit"_s}, [&] { rooms.run(Op::Edit); });
    walkModal(gallery, {u"find"_s}, [&] { rooms.listDisplay->find(2); });
    walkModal(gallery, {u"print"_s}, [&] { rooms.run(Op::PrintData); });
    rooms.run(Op::Properties);
    paintNow();
    auto &properties = topLevel<frmProperties>();
    gallery.add(properties, u"room-properties"_s);
    properties.close();
    rooms.run(Op::ViewUsers);
    mainForm().Arrange(0);
    paintNow();
    gallery.add(mainForm(), u"rooms-users"_s);
    mainForm().mdiArea().closeAllSubWindows();
    paintNow();
}

/// Takes a picture of each tab of the dialog that opens, the first under the name alone.
void walkTabs(Gallery &gallery, const QString &name, const std::function<void()> &open)
{
    QTimer::singleShot(0, qApp, [&gallery, name] {
        QWidget *dialog = QApplication::activeModalWidget();
        auto *tabs = dialog ? dialog->findChild<QTabWidget *>() : nullptr;
        for (int tab = 0; tabs && tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            paintNow();
            gallery.add(*dialog, tab == 0 ? name : name % u'-' % QString::number(tab + 1));
        }
        if (dialog)
            dialog->close();
    });
    open();
}

void walkInventory(Gallery &gallery)
{
    const struct
    {
        QString entry;
        QString name;
        bool hasTabs;
    } kinds[] = {
        {u"mnuShowAllGlobalGroups"_s, u"globalgroup"_s, false},
        {u"mnuShowAllLocalGroups"_s, u"localgroup"_s, false},
        {u"mnuShowAllFolders"_s, u"folder"_s, false},
        {u"mnuFodlerDefaultPermissionsShowAll"_s, u"defaultpermission"_s, false},
        {u"mnuShowAllHardwareTypes"_s, u"hardwaretype"_s, false},
        {u"mnuShowAllSoftware"_s, u"software"_s, false},
        {u"mnuShowAllHardware"_s, u"hardware"_s, true},
        {u"mnuShowAllUsers"_s, u"user"_s, true},
    };
    for (const auto &kind : kinds) {
        trigger(kind.entry);
        frmDisplay &view = activeView();
        view.listDisplay->chooseRow(1);
        paintNow();
        gallery.add(mainForm(), kind.name % "-list"_L1);
        const auto edit = [&view] { view.run(Op::Edit); };
        if (kind.hasTabs)
            walkTabs(gallery, kind.name % "-edit"_L1, edit);
        else
            walkModal(gallery, {kind.name % "-edit"_L1}, edit);
        mainForm().mdiArea().closeAllSubWindows();
        paintNow();
    }
    walkTabs(gallery, u"options"_s, [] { trigger(u"mnuOptions"_s); });
    walkModal(gallery, {u"server"_s}, [] { static_cast<void>(modServer::selectServer(&mainForm())); });
}

void walkMessages(Gallery &gallery)
{
    {
        ProgressSteps steps(&mainForm());
        steps.phase(u"Exporting User Settings"_s, 12);
        for (const QString &item : {u"CENTRAL\\a.weber"_s, u"CENTRAL\\m.keller"_s})
            static_cast<void>(steps.step(item));
        gallery.add(topLevel<frmProgress>(), u"progress"_s);
    }

    showResult(
        &mainForm(),
        u"The following Users could not be deleted:\r\n\r\nCENTRAL\\m.keller\r\nCENTRAL\\j.meyer\r\n"_s,
        u"Import/Export Result"_s);
    paintNow();
    auto &result = topLevel<frmResult>();
    gallery.add(result, u"result"_s);
    result.close();
    paintNow();
}

} // namespace

void walkWindows(Gallery &gallery)
{
    walkModal(gallery, {u"start"_s, u"warning-domain"_s, u"warning-controller"_s}, [] { Main(); });
    walkMainWindow(gallery);
    walkViews(gallery);
    walkRooms(gallery);
    walkInventory(gallery);
    walkModal(gallery, {u"import"_s}, [] { trigger(u"mnuImport"_s); });
    walkModal(gallery, {u"about"_s}, [] { trigger(u"mnuAbout"_s); });
    walkMessages(gallery);
}
