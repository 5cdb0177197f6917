#include "workbench.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "sample/sampledata.h"
#include "store/storefile.h"

#include <QFile>
#include <QTemporaryDir>

#include <map>

using namespace Qt::StringLiterals;

namespace workbench {

QString freshPath(const QString &suffix)
{
    static const QTemporaryDir folder;
    static int count = 0;
    return folder.filePath(QString::number(++count) + u'.' + suffix);
}

QString emptyStore()
{
    const QString path = freshPath(u"mdb"_s);
    createStore(path);
    return path;
}

const QString &sampleStore(int users)
{
    static std::map<int, QString> stores;
    QString &path = stores[users];
    if (path.isEmpty()) {
        path = freshPath(u"mdb"_s);
        createSampleStore(path, users);
    }
    return path;
}

QString copyOf(const QString &store)
{
    const QString path = freshPath(u"mdb"_s);
    if (!QFile::copy(store, path))
        throwError(FileAccessError, "Path/File access error: "_L1 + path);
    return path;
}

void removeStore(const QString &path)
{
    QFile::remove(path);
}

void measure(benchmark::State &state, const std::function<void()> &step)
{
    using Clock = std::chrono::steady_clock;
    try {
        const Clock::time_point start = Clock::now();
        step();
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    } catch (const Error &error) {
        state.SkipWithError(error.what());
    }
}

} // namespace workbench
