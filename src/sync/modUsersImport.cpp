#include "sync/modUsers.h"

#include "exchange/modImport.h"
#include "exchange/modImportSteps.h"
#include "messages/guard.h"
#include "messages/progresssteps.h"
#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "store/clsUsers.h"
#include "toolkit/pointer.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView fieldsOfALine[] = {
    "UserName"_L1, "ServerName"_L1, "FullName"_L1,   "Comment"_L1,     "UserComment"_L1, "HomeDirDrive"_L1,
    "HomeDir"_L1,  "Profile"_L1,    "ScriptPath"_L1, "AccDisabled"_L1, "NoChangePwd"_L1, "NoExpirePwd"_L1,
};
constexpr QLatin1StringView whenEmpty[] = {"No Username on Line "_L1, "No Server Information on Line "_L1};

// The three flags at the end go bare into the statement, so there is no user without them.
constexpr modImportSteps::LineFormat userLine{whenEmpty, std::size(fieldsOfALine)};

constexpr int textSize = 255;

/// The users of the good lines, in a recordset of the shape of Tbl_Users with all fields text.
class UserLines final
{
public:
    explicit UserLines(const QString &connectionString)
    {
        jet::Recordset structure;
        clsUsers().getStructure(connectionString, structure);
        for (int i = 0; i < structure.fields().count(); ++i)
            records.fields().append(structure.fields().item(i).name(), jet::FieldType::VarChar, textSize);
        records.open();
        for (std::size_t i = 0; i < m_places.size(); ++i)
            m_places[i] = records.fields().indexOf(QString(fieldsOfALine[i]));
        m_id = records.fields().indexOf(u"UserID");
    }

    void add(const modImportSteps::Fields &fields)
    {
        records.addNew();
        records.fields().item(m_id).setValue(u"0"_s);
        for (std::size_t i = 0; i < m_places.size(); ++i)
            records.fields().item(m_places[i]).setValue(fields[qsizetype(i)].toString());
    }

    jet::Recordset records;

private:
    std::array<int, std::size(fieldsOfALine)> m_places{};
    int m_id = 0;
};

modImportSteps::ImportReport readAndWrite(QWidget *owner, const QString &path, bool leaveExisting)
{
    const Hourglass hourglass;
    ProgressSteps steps(owner);
    const QString store = getConnectionString();
    UserLines users(store);
    modImportSteps::FileReport lines = modImportSteps::readLines(
        path, userLine, steps, [&](const modImportSteps::Fields &fields) { users.add(fields); });
    modImportSteps::ImportReport report;
    report.fileErrors = lines.errors;
    if (lines.isCancelled) {
        report.end = Report::End::Cancelled;
        return report;
    }
    const int count = users.records.recordCount();
    steps.phase(u"Writing Users to DB. Please Wait."_s, count, modImportSteps::strideOf(count));
    UserBatchReport batch = clsUsers().AddBatchFromFile(store, users.records, leaveExisting, steps);
    report.end = batch.end;
    report.added = batch.added;
    report.updated = batch.updated;
    report.failed = batch.failed;
    report.batchErrors = batch.text;
    return report;
}

void importUsers(QWidget *owner, const QString &path)
{
    const std::optional<bool> leaveExisting = modImportSteps::askLeaveExisting(owner);
    if (!leaveExisting)
        return;
    modImportSteps::reportImport(owner, path, readAndWrite(owner, path, *leaveExisting),
                                 u"The Operation was completed successfully\r\nYou may refresh your User "
                                 "Database View to see changes applied to your existing Users"_s);
}

} // namespace

void modUsers::importUsersFromFile(QWidget *owner, const QString &path)
{
    guarded(owner, [&] { importUsers(owner, path); });
}

void modUsers::registerImport()
{
    modImport::registerReader("Users (Root Data)"_L1, importUsersFromFile);
}
