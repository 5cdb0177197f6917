#include "store/userstatements.h"

#include "base/error.h"
#include "base/text.h"
#include "platform/jet/errors.h"
#include "store/storesession.h"

#include <limits>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

constexpr bool Escaped = true;

// clang-format off
constexpr UserColumn allColumns[] = {
    {"UserID"_L1,          &UserRecord::UserID},
    {"UserName"_L1,        &UserRecord::UserName, Escaped},
    {"Password"_L1,        &UserRecord::Password},
    {"PasswordAge"_L1,     &UserRecord::PasswordAge},
    {"Privilege"_L1,       &UserRecord::Privilege},
    {"HomeDir"_L1,         &UserRecord::HomeDir},
    {"Comment"_L1,         &UserRecord::Comment, Escaped},
    {"FLAGS"_L1,           &UserRecord::FLAGS},
    {"NoChangePwd"_L1,     &UserRecord::NoChangePwd},
    {"NoExpirePwd"_L1,     &UserRecord::NoExpirePwd},
    {"AccDisabled"_L1,     &UserRecord::AccDisabled},
    {"AccLocked"_L1,       &UserRecord::AccLocked},
    {"ScriptPath"_L1,      &UserRecord::ScriptPath},
    {"AuthFlags"_L1,       &UserRecord::AuthFlags},
    {"FullName"_L1,        &UserRecord::FullName, Escaped},
    {"UserComment"_L1,     &UserRecord::UserComment, Escaped},
    {"Parms"_L1,           &UserRecord::Parms},
    {"Workstations"_L1,    &UserRecord::Workstations},
    {"LastLogon"_L1,       &UserRecord::LastLogon},
    {"LastLogoff"_L1,      &UserRecord::LastLogoff},
    {"AcctExpires"_L1,     &UserRecord::AcctExpires},
    {"MaxStorage"_L1,      &UserRecord::MaxStorage},
    {"UnitsPerWeek"_L1,    &UserRecord::UnitsPerWeek},
    {"LogonHours"_L1,      &UserRecord::LogonHours},
    {"BadPwCount"_L1,      &UserRecord::BadPwCount},
    {"NumLogons"_L1,       &UserRecord::NumLogons},
    {"LogonServer"_L1,     &UserRecord::LogonServer},
    {"CountryCode"_L1,     &UserRecord::CountryCode},
    {"CodePage"_L1,        &UserRecord::CodePage},
    {"PrimaryGroupID"_L1,  &UserRecord::PrimaryGroupID},
    {"Profile"_L1,         &UserRecord::Profile},
    {"HomeDirDrive"_L1,    &UserRecord::HomeDirDrive},
    {"PasswordExpired"_L1, &UserRecord::PasswordExpired},
    {"ServerName"_L1,      &UserRecord::ServerName},
    {"SID"_L1,             &UserRecord::SID},
    {"Salutation"_L1,      &UserRecord::Salutation},
    {"Title"_L1,           &UserRecord::Title},
    {"LastName"_L1,        &UserRecord::LastName},
    {"FirstName"_L1,       &UserRecord::FirstName},
    {"JobTitle"_L1,        &UserRecord::JobTitle},
    {"EmailAddress"_L1,    &UserRecord::EmailAddress},
    {"Department"_L1,      &UserRecord::Department},
    {"CostCenter"_L1,      &UserRecord::CostCenter},
    {"PhoneNumber"_L1,     &UserRecord::PhoneNumber},
    {"DirectDial"_L1,      &UserRecord::DirectDial},
    {"MobileNumber"_L1,    &UserRecord::MobileNumber},
    {"Division"_L1,        &UserRecord::Division},
};
constexpr std::size_t liveCount = 34;
static_assert(std::string_view(allColumns[liveCount - 1].name.latin1()) == "ServerName");

constexpr UserColumn importFileColumns[] = {
    {"UserID"_L1,       &UserRecord::UserID},
    {"UserName"_L1,     &UserRecord::UserName},
    {"ServerName"_L1,   &UserRecord::ServerName},
    {"FullName"_L1,     &UserRecord::FullName},
    {"Comment"_L1,      &UserRecord::Comment},
    {"UserComment"_L1,  &UserRecord::UserComment},
    {"HomeDirDrive"_L1, &UserRecord::HomeDirDrive},
    {"HomeDir"_L1,      &UserRecord::HomeDir},
    {"Profile"_L1,      &UserRecord::Profile},
    {"ScriptPath"_L1,   &UserRecord::ScriptPath},
    {"AccDisabled"_L1,  &UserRecord::AccDisabled},
    {"NoChangePwd"_L1,  &UserRecord::NoChangePwd},
    {"NoExpirePwd"_L1,  &UserRecord::NoExpirePwd},
};
// clang-format on

void appendValue(QString &sql, const UserColumn &column, const QString &value, Escaping escaping)
{
    if (!column.isText()) {
        sql += value;
        return;
    }
    sql += u'\'';
    if (escaping == Escaping::Batch && column.escapedInBatch && value.contains(u'\''))
        sql += escapeQuotes(value);
    else
        sql += value;
    sql += u'\'';
}

// clang-format off
constexpr RelationStatements userFolders = {
    "DELETE FROM Tbl_UserFolderPermission WHERE UserID={id}"_L1,
    "SELECT Permission FROM Tbl_UserFolderPermission WHERE UserID = {id} AND FolderID= {item}"_L1,
    "INSERT INTO Tbl_UserFolderPermission(UserID,FolderID,Permission) VALUES ({id},{item},'{permission}')"_L1,
    "UPDATE Tbl_UserFolderPermission SET Permission ='{permission}' WHERE UserID = {id} AND FolderID = {item}"_L1,
};
// clang-format on

} // namespace

std::span<const UserColumn> userColumns()
{
    return allColumns;
}

std::span<const UserColumn> liveColumns()
{
    return userColumns().first(liveCount);
}

std::span<const UserColumn> liveUpdateColumns()
{
    return userColumns().first(liveCount + 1);
}

std::span<const UserColumn> fileColumns()
{
    return importFileColumns;
}

UserInsert::UserInsert(std::span<const UserColumn> columns, Escaping escaping)
    : m_columns(columns)
    , m_escaping(escaping)
    , m_head("INSERT INTO TBL_USERS ("_L1)
{
    for (const UserColumn &column : columns)
        m_head += (&column == columns.data() ? "["_L1 : ",["_L1) + column.name + u']';
    m_head += ") VALUES ("_L1;
}

QString UserInsert::with(std::span<const QString> values) const
{
    QString sql;
    qsizetype room = m_head.size() + 1;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        room += values[i].size() + 3;
    sql.reserve(room);
    sql += m_head;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (i > 0)
            sql += u',';
        appendValue(sql, m_columns[i], values[i], m_escaping);
    }
    sql += u')';
    return sql;
}

QString updateUser(std::span<const UserColumn> columns, std::span<const QString> values, Escaping escaping)
{
    QString sql;
    qsizetype room = 64;
    for (std::size_t i = 0; i < columns.size(); ++i)
        room += columns[i].name.size() + values[i].size() + 10;
    sql.reserve(room);
    sql += "UPDATE Tbl_Users SET "_L1;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        sql += i == 0 ? "["_L1 : ", ["_L1;
        sql += columns[i].name;
        sql += "]="_L1;
        appendValue(sql, columns[i], values[i], escaping);
    }
    return sql;
}

QList<QString> userValues(const UserRecord &user)
{
    QList<QString> values;
    values.reserve(qsizetype(userColumns().size()));
    for (const UserColumn &column : userColumns()) {
        if (const auto *text = std::get_if<QString UserRecord::*>(&column.member))
            values.append(user.*(*text));
        else
            values.append(QString::number(user.*std::get<int UserRecord::*>(column.member)));
    }
    return values;
}

const RelationStatements &foldersOfUser()
{
    return userFolders;
}

int nextUserId(StoreSession &store)
{
    const Value highest = store.scalar(u"Select MAX (UserID) as ID From Tbl_Users"_s);
    if (highest.isNull())
        return 1;
    if (highest.toInteger() >= std::numeric_limits<int>::max())
        throwError(jet::TypeMismatch, u"There is no UserID above %1."_s.arg(highest.toInteger()));
    return int(highest.toInteger()) + 1;
}
