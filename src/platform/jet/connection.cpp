#include "platform/jet/connection.h"

#include "base/error.h"
#include "platform/jet/database.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr auto provider = "Microsoft.Jet.OLEDB.4.0"_L1;

QString takeQuoted(QStringView &rest)
{
    QString value;
    rest = rest.mid(rest.indexOf(u'"') + 1);
    while (!rest.isEmpty()) {
        const bool isQuote = rest.front() == u'"';
        const bool isDoubled = isQuote && rest.mid(1).startsWith(u'"');
        if (isQuote && !isDoubled)
            break;
        value += rest.front();
        rest = rest.mid(isDoubled ? 2 : 1);
    }
    rest = rest.mid(1);
    return value;
}

// Moves behind the value. A part without an equals sign belongs to the value before it: paths may hold
// semicolons.
QString takeValue(QStringView &rest)
{
    if (rest.trimmed().startsWith(u'"'))
        return takeQuoted(rest);
    const auto beginsPart = [&rest](qsizetype at) {
        const QStringView part = rest.mid(at + 1);
        const qsizetype end = part.indexOf(u';');
        return part.left(end < 0 ? part.size() : end).contains(u'=');
    };
    qsizetype end = rest.indexOf(u';');
    while (end >= 0 && !beginsPart(end))
        end = rest.indexOf(u';', end + 1);
    QStringView value = end < 0 ? rest : rest.left(end);
    rest = end < 0 ? QStringView() : rest.mid(end + 1);
    while (value.endsWith(u';'))
        value.chop(1);
    return value.trimmed().toString();
}

QString property(const QString &connectionString, QLatin1StringView name)
{
    QStringView rest(connectionString);
    for (qsizetype equals = rest.indexOf(u'='); equals >= 0; equals = rest.indexOf(u'=')) {
        const QStringView key = rest.left(equals);
        rest = rest.mid(equals + 1);
        const QString value = takeValue(rest);
        if (key.mid(key.lastIndexOf(u';') + 1).trimmed().compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

} // namespace

QString connectionString(const QString &path)
{
    const bool plain = !path.contains(u'=') && !path.startsWith(u'"') && !path.endsWith(u';') &&
                       QStringView(path).trimmed().size() == path.size();
    const QString source = plain ? path : u'"' + QString(path).replace(u'"', "\"\""_L1) + u'"';
    return "Provider="_L1 + provider + ";Data Source="_L1 + source;
}

void flushPendingWrites()
{
    Database::flushAll();
}

void commitPendingWrites()
{
    Database::commitAll();
}

Connection::Connection() = default;

Connection::~Connection()
{
    letGo();
}

void Connection::letGo()
{
    if (m_database && std::exchange(m_holds, false))
        m_database->release();
}

void Connection::open(const QString &connectionString)
{
    if (m_database)
        throwError(ObjectOpen, u"Operation is not allowed when the object is open."_s);
    if (property(connectionString, "Provider"_L1).compare(provider, Qt::CaseInsensitive) != 0)
        throwError(ProviderMissing, u"Provider cannot be found. It may not be properly installed."_s);
    m_database = Database::open(property(connectionString, "Data Source"_L1));
}

void Connection::close()
{
    if (!m_database)
        throwError(ObjectClosed, u"Operation is not allowed when the object is closed."_s);
    m_database->requireIdle();
    letGo();
    const std::shared_ptr<Database> database = std::exchange(m_database, nullptr);
    database->close(database.use_count() == 1);
}

Database &Connection::database() const
{
    if (!m_database)
        throwError(ConnectionClosed,
                   u"The connection cannot be used to perform this operation. It is either closed or invalid "
                   "in this context."_s);
    return *m_database;
}

void Connection::execute(const QString &sql)
{
    database().execute(sql);
}

void Connection::keepDeleteRules(std::span<const DeleteRule> rules)
{
    database().keepDeleteRules(rules);
}

void Connection::beginWriting()
{
    Database &open = database();
    if (!std::exchange(m_holds, true))
        open.hold();
    open.beginWriting();
}

void Connection::commit()
{
    database().commit();
}

void Connection::rollBack()
{
    database().rollBack();
}

void Connection::openSchema(int schema, Recordset &recordset)
{
    if (schema != SchemaTables)
        throwError(Failure, u"Object or provider is not capable of performing requested operation."_s);
    constexpr int nameSize = 64;
    Database &open = database();
    recordset.fields().clear();
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
