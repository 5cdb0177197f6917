#include "store/storesession.h"

#include "platform/jet/database.h"
#include "platform/jet/errors.h"
#include "store/relationships.h"

StoreSession::StoreSession(const QString &connectionString)
{
    m_connection.open(connectionString);
    m_connection.keepDeleteRules(relationships);
}

StoreSession::~StoreSession()
{
    if (isOpen() && !m_isPatient)
        setPatience(jet::Database::usualPatience);
}

void StoreSession::close()
{
    if (!isOpen())
        return;
    if (!m_isPatient)
        setPatience(jet::Database::usualPatience);
    m_connection.close();
}

bool StoreSession::hasPendingChanges() const
{
    return m_connection.database().hasPendingChanges();
}

void StoreSession::setPatience(std::chrono::milliseconds patience)
{
    m_isPatient = patience == jet::Database::usualPatience;
    m_connection.database().setPatience(patience);
}

void StoreSession::execute(const QString &sql)
{
    m_connection.execute(sql);
}

void StoreSession::executeSkippingErrors(const QString &sql)
{
    try {
        execute(sql);
    } catch (const jet::StoreFailure &) {
        throw;
    } catch (const Error &) {
    }
}

bool StoreSession::exists(const QString &sql)
{
    m_test.open(sql, m_connection);
    const bool found = !m_test.eof();
    m_test.close();
    return found;
}

Value StoreSession::scalar(const QString &sql)
{
    m_test.open(sql, m_connection);
    Value value = m_test.eof() ? Value() : m_test.value(0);
    m_test.close();
    return value;
}

void StoreSession::open(const QString &sql, jet::Recordset &result)
{
    result.open(sql, m_connection);
}
