#include "workbench.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "exchange/modImport.h"
#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "session/modRegistry.h"
#include "sync/modUsers.h"
#include "toolkit/messagebox.h"

#include <QFile>

#include <malloc.h>

#include <string>

using namespace Qt::StringLiterals;

namespace {

QString fileOf(int lines)
{
    const QString path = workbench::freshPath(u"txt"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throwError(FileAccessError, file.errorString());
    for (int line = 1; line <= lines; ++line) {
        const QByteArray name = "user" + QByteArray::number(line);
        file.write(name + ";BERLIN01;Full Name of " + name +
                   ";A comment of usual length;Nothing to add;H:;\\\\BERLIN01\\home\\" + name +
                   ";\\\\BERLIN01\\profiles\\" + name + ";logon.cmd;0;0;1\r\n");
    }
    return path;
}

/// A line of /proc/self/status, in bytes.
double ownMemory(const char *what)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        throwError(FileAccessError, status.errorString());
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith(what))
            return line.simplified().split(' ').value(1).toDouble() * 1024;
    throwError(FileAccessError, u"The system does not tell the memory of a process."_s);
}

/// From here on the greatest memory is counted anew.
void forgetPeak()
{
    malloc_trim(0);
    QFile references(u"/proc/self/clear_refs"_s);
    if (!references.open(QIODevice::WriteOnly) || references.write("5") != 1)
        throwError(FileAccessError, references.errorString());
}

void expectUsers(const QString &store, int users)
{
    jet::Connection connection;
    connection.open(jet::connectionString(store));
    jet::Recordset count;
    count.open(u"SELECT Count(*) FROM Tbl_Users"_s, connection);
    if (count.value(0).toInteger() != users)
        throwError(1, u"Not all lines were imported."_s);
}

/// The command of the menu, from the question to the report.
void ImportFile(benchmark::State &state)
{
    const int lines = int(state.range(0));
    const QString file = fileOf(lines);
    setMessageBoxHandler([](QWidget *, const QString &, int flags) {
        return (flags & box::YesNoCancel) == box::YesNoCancel ? box::ResultNo : box::ResultOk;
    });
    modUsers::registerImports();
    for (auto _ : state) {
        const QString store = workbench::emptyStore();
        modRegistry::saveDataBase(store);
        forgetPeak();
        const double before = ownMemory("VmRSS:");
        workbench::measure(state, [&] { modImport::importFile(nullptr, u"Users (Root Data)"_s, file); });
        state.counters["bytes"] = ownMemory("VmHWM:") - before;
        expectUsers(store, lines);
        workbench::removeStore(store);
    }
    state.counters["file"] = double(QFile(file).size());
    setMessageBoxHandler({});
    QFile::remove(file);
}

} // namespace

BENCHMARK(ImportFile)->Apply([](auto *benchmark) {
    workbench::timedByStep(benchmark->Arg(workbench::few), 5);
});
BENCHMARK(ImportFile)->Apply(workbench::mostRows);
