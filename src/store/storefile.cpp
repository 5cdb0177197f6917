#include "store/storefile.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "platform/jet/errors.h"
#include "platform/jet/storefile.h"
#include "store/storesession.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

using namespace Qt::StringLiterals;

// Initialising a resource takes a function outside of any namespace.
static void initSchemaResource()
{
    Q_INIT_RESOURCE(schema);
}

namespace {

QStringList schemaStatements()
{
    initSchemaResource();
    QFile file(u":/store/schema.sql"_s);
    const bool embedded = file.open(QIODevice::ReadOnly);
    Q_ASSERT(embedded);
    Q_UNUSED(embedded)
    return QString::fromUtf8(file.readAll()).split(u";\n"_s, Qt::SkipEmptyParts);
}

/// The file under construction, gone with its journal unless it was moved to its place.
class DraftFile final
{
public:
    explicit DraftFile(const QString &path)
        : m_target(path)
        , m_path(path + u'.' + QUuid::createUuid().toString(QUuid::Id128).left(8) + u".new"_s)
    {
    }
    ~DraftFile()
    {
        for (const QLatin1StringView suffix : {""_L1, "-journal"_L1, "-wal"_L1, "-shm"_L1})
            QFile::remove(m_path + suffix);
    }
    Q_DISABLE_COPY_MOVE(DraftFile)

    [[nodiscard]] const QString &path() const { return m_path; }

    void moveToTarget()
    {
        QFile file(m_path);
        if (!file.rename(m_target))
            throwError(jet::Failure, "The store '"_L1 + QDir::toNativeSeparators(m_target) +
                                         "' could not be written: "_L1 + file.errorString());
    }

private:
    QString m_target;
    QString m_path;
};

void refuseTakenPlace(const QString &path)
{
    const QFileInfo target(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (path.isEmpty())
        throwError(jet::Failure, u"The store needs a file name."_s);
    if (target.exists() || target.isSymLink())
        throwError(jet::Failure,
                   "The store '"_L1 + shown + "' could not be made: the file already exists."_L1);
    if (!target.dir().exists())
        throwError(jet::Failure, "The store '"_L1 + shown + "' could not be made: there is no folder '"_L1 +
                                     QDir::toNativeSeparators(target.path()) + "'."_L1);
    if (!QFileInfo(target.path()).isWritable())
        throwError(jet::Failure, "The store '"_L1 + shown + "' could not be made: the folder '"_L1 +
                                     QDir::toNativeSeparators(target.path()) + "' cannot be written to."_L1);
}

} // namespace

void createStore(const QString &path, const std::function<void(StoreSession &)> &fill)
{
    refuseTakenPlace(path);
    DraftFile draft(path);
    jet::createDatabase(draft.path());
    {
        StoreSession store(jet::connectionString(draft.path()));
        for (const QString &statement : schemaStatements())
            store.execute(statement);
        if (fill)
            fill(store);
        store.close();
    }
    draft.moveToTarget();
}
