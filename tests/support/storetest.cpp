#include "support/storetest.h"

#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "platform/settings/settings.h"
#include "session/modRegistry.h"
#include "store/storesession.h"
#include "support/freshstore.h"

using namespace Qt::StringLiterals;

void FolderTest::SetUp()
{
    ASSERT_TRUE(m_folder.isValid());
    settings::setFolder(m_folder.path());
}

void StoreTest::SetUp()
{
    FolderTest::SetUp();
    makeFreshStore(storePath());
    modRegistry::saveDataBase(storePath());
}

QString StoreTest::storePath() const
{
    return path(u"store.mdb"_s);
}

QString StoreTest::connection() const
{
    return jet::connectionString(storePath());
}

void StoreTest::execute(const QString &sql) const
{
    StoreSession session(connection());
    session.execute(sql);
    session.close();
}

QStringList StoreTest::column(const QString &sql) const
{
    jet::Recordset rows;
    StoreSession(connection()).open(sql, rows);
    QStringList texts;
    for (; !rows.eof(); rows.moveNext())
        texts += rows.value(0).toText();
    return texts;
}

Value StoreTest::scalar(const QString &sql) const
{
    return StoreSession(connection()).scalar(sql);
}
