#include "fuzzkit.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "store/storefile.h"

#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace fuzz {
namespace {

constexpr int stepsAtOnce = 1000;
constexpr int mostCalls = 200;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fault("cannot read "_L1 + path);
    return file.readAll();
}

int stopAtLast(void *calls)
{
    return ++*static_cast<int *>(calls) > mostCalls ? 1 : 0;
}

} // namespace

QString temporaryPath(const QString &name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

const QByteArray &smallStore()
{
    static const QByteArray store = [] {
        const QString path = temporaryPath(u"model.mdb"_s);
        createStore(path);
        jet::Connection connection;
        connection.open(jet::connectionString(path));
        const QByteArray rows = contentOf(QStringLiteral(KELVANE_CASES "/fixtures/small.sql"));
        for (const QByteArray &line : rows.split('\n')) {
            if (!line.isEmpty() && !line.startsWith('#'))
                connection.execute(QString::fromUtf8(line));
        }
        connection.close();
        return contentOf(path);
    }();
    return store;
}

void putFile(const QString &path, const QByteArray &content)
{
    QFile::remove(path + "-journal"_L1);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        fault("cannot write "_L1 + path);
}

void boundTime(sqlite3 *handle)
{
    static int calls = 0;
    calls = 0;
    sqlite3_progress_handler(handle, stepsAtOnce, stopAtLast, &calls);
}

bool mayBeRefused(const std::function<void()> &step)
{
    try {
        step();
        return true;
    } catch (const Error &error) {
        if (error.number() == 0 || error.description().trimmed().isEmpty())
            fault(u"an error without a number or a text"_s);
        return false;
    }
}

void fault(const QString &what)
{
    fprintf(stderr, "FAULT: %s\n", what.toUtf8().constData());
    abort();
}

} // namespace fuzz
