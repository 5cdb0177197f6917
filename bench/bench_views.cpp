#include "workbench.h"

#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/clsSW.h"
#include "base/error.h"
#include "folders/clsFolders.h"
#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "queries/clsCustomQuery.h"
#include "session/modRegistry.h"
#include "shell/application.h"
#include "shell/frmMain.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"
#include "sync/frmUser.h"
#include "views/frmDisplay.h"
#include "views/lists.h"
#include "views/mainwindowlink.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int companySize = 40'000;

struct View
{
    Mode mode;
    void (*read)(const QString &connectionString, jet::Recordset &rows);
};

constexpr View views[] = {
    {Mode::GlobalGroups, readAll<&clsGlobalGroups::getAll>},
    {Mode::LocalGroups, readAll<&clsLocalGroups::getAll>},
    {Mode::Users, readAll<&clsUsers::getAll>},
    {Mode::Folders, readAll<&clsFolders::getAll>},
    {Mode::FolderDefaultPermissions, readAll<&clsFolders::getAllFolderDefaultPermissions>},
    {Mode::HWType, readAll<&clsHWType::getAll>},
    {Mode::HW, readAll<&clsHW::getAll>},
    {Mode::Rooms, readAll<&clsRooms::getAll>},
    {Mode::SW, readAll<&clsSW::getAll>},
    {Mode::QRY, readAll<&clsCustomQuery::getAll>},
};

void openAll(Mode mode)
{
    runWithoutList(&mainForm(), mode, Op::ListAll);
    QApplication::processEvents();
    if (!mainWindow()->targetDisplay())
        throwError(1, u"No view was opened."_s);
}

void closeAll()
{
    for (frmDisplay *view : mainForm().findChildren<frmDisplay *>())
        delete view;
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

void OpenView(benchmark::State &state)
{
    const View &view = views[state.range(0)];
    modRegistry::saveDataBase(workbench::sampleStore(companySize));
    registerFamilies();
    mainForm().show();
    openAll(view.mode); // fonts, pictures and caches are there before anything is measured
    closeAll();
    for (auto _ : state) {
        workbench::measure(state, [&] { openAll(view.mode); });
        closeAll();
    }
}

void ReadView(benchmark::State &state)
{
    const QString store = jet::connectionString(workbench::sampleStore(companySize));
    for (auto _ : state) {
        jet::Recordset rows;
        workbench::measure(state, [&] { views[state.range(0)].read(store, rows); });
        state.counters["rows"] = rows.recordCount();
    }
}

void readUser(jet::Recordset &user)
{
    clsUsers().getUserByID(jet::connectionString(workbench::sampleStore(workbench::many)),
                           1000 + workbench::few, user);
}

void OpenUser(benchmark::State &state)
{
    modRegistry::saveDataBase(workbench::sampleStore(workbench::many));
    for (auto _ : state) {
        workbench::measure(state, [] {
            jet::Recordset user;
            readUser(user);
            frmUser dialog(nullptr, frmUser::Action::EditUser);
            dialog.load(user);
            dialog.show();
            QApplication::processEvents();
        });
    }
}

/// The record and as many bare widgets as the form has, each with a label and a text.
void OpenUserByHand(benchmark::State &state)
{
    for (auto _ : state) {
        workbench::measure(state, [] {
            jet::Recordset user;
            readUser(user);
            QDialog dialog;
            auto *all = new QVBoxLayout(&dialog);
            auto *tabs = new QTabWidget;
            all->addWidget(tabs);
            int column = 0;
            for (const int fields : {21, 2, 12, 12}) {
                auto *page = new QWidget;
                auto *grid = new QGridLayout(page);
                for (int i = 0; i < fields; ++i, ++column) {
                    grid->addWidget(new QLabel(user.fields().item(column).name()), i, 0);
                    grid->addWidget(new QLineEdit(user.value(column).toText()), i, 1);
                }
                tabs->addTab(page, u"Page"_s);
            }
            all->addWidget(new QPushButton(u"Save"_s));
            dialog.show();
            QApplication::processEvents();
        });
    }
}

void each(benchmark::internal::Benchmark *benchmark)
{
    workbench::timedByStep(benchmark->DenseRange(0, int(std::size(views)) - 1), 5);
}

} // namespace

BENCHMARK(OpenView)->Apply(each);
BENCHMARK(ReadView)->Apply(each);
BENCHMARK(OpenUser)->Apply([](auto *benchmark) {
    workbench::timedByStep(benchmark->Arg(workbench::many), 5);
});
BENCHMARK(OpenUserByHand)->Apply([](auto *benchmark) {
    workbench::timedByStep(benchmark->Arg(workbench::many), 5);
});
