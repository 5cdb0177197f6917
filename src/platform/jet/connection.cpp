#include "platform/jet/connection.h"

#include "base/error.h"
#include "platform/jet/database.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr auto provider = "Microsoft.Jet.OLEDB.4.0"_L1;

// A part without an equals sign belongs to the value before it: paths may hold semicolons.
QString property(const QString &connectionString, QLatin1StringView name)
{
    QString value;
    bool found = false;
    for (const QStringView part : QStringView(connectionString).split(u';')) {
        const qsizetype equals = part.indexOf(u'=');
        if (equals < 0) {
            if (found && !part.isEmpty())
                value += u';' + part;
            continue;
        }
        if (found)
            break;
        found = part.left(equals).trimmed().compare(name, Qt::CaseInsensitive) == 0;
        if (found)
            value = part.mid(equals + 1).toString();
    }
    return value.trimmed();
}

} // namespace

QString connectionString(const QString &path)
{
    return "Provider="_L1 + provider + ";Data Source="_L1 + path;
}

void createDatabase(const QString &path)
{
    Database::create(path);
}

void flushPendingWrites()
{
    Database::flushAll();
}

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::open(const QString &connectionString, const QString &user, const QString &password,
                      int options)
{
    Q_UNUSED(user);
    Q_UNUSED(password);
    Q_UNUSED(options);
    if (m_database)
        raise(ObjectOpen, u"Operation is not allowed when the object is open."_s);
    if (property(connectionString, "Provider"_L1).compare(provider, Qt::CaseInsensitive) != 0)
        raise(ProviderMissing, u"Provider cannot be found. It may not be properly installed."_s);
    m_database = Database::open(property(connectionString, "Data Source"_L1));
}

void Connection::close()
{
    if (!m_database)
        raise(ObjectClosed, u"Operation is not allowed when the object is closed."_s);
    const std::shared_ptr<Database> database = std::move(m_database);
    m_database.reset();
    database->flush();
}

Database &Connection::database() const
{
    if (!m_database)
        raise(ConnectionClosed,
              u"The connection cannot be used to perform this operation. It is either closed or invalid "
              "in this context."_s);
    return *m_database;
}

void Connection::execute(const QString &sql)
{
    database().execute(sql);
}

void Connection::openSchema(int schema, Recordset &recordset)
{
    if (schema != SchemaTables)
        raise(Failure, u"Object or provider is not capable of performing requested operation."_s);
    constexpr int nameSize = 64;
    Database &open = database();
    open.catalog().refresh();
    recordset.fields().append(u"TABLE_NAME"_s, FieldType::VarChar, nameSize);
    recordset.fields().append(u"TABLE_TYPE"_s, FieldType::VarChar, nameSize);
    recordset.open();
    for (const std::string &table : open.catalog().tableNames()) {
        recordset.addNew();
        recordset.fields().item(0).setValue(QString::fromStdString(table));
        recordset.fields().item(1).setValue(u"TABLE"_s);
    }
    if (recordset.recordCount() > 0)
        recordset.moveFirst();
}

} // namespace jet
