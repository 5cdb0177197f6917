#include "assets/clsHW.h"
#include "folders/clsFolders.h"
#include "platform/jet/errors.h"
#include "store/clsGlobalGroups.h"
#include "store/clsUsers.h"
#include "store/statement.h"
#include "support/companytest.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The error that a method of a new object raises, which the object must keep.
template <typename Records, typename Step>
CurrentError errorKeptOf(Step step)
{
    Records records;
    const CurrentError error = errorOf([&] { step(records); });
    EXPECT_EQ(records.errorNumber(), error.number);
    EXPECT_EQ(records.errorDescription(), error.description);
    return error;
}

} // namespace

TEST_F(CompanyTest, AMissingStoreIsToldAndKept)
{
    const QString nowhere = jet::connectionString(folder.filePath(u"nowhere.kvs"_s));
    jet::Recordset records;
    jet::Recordset objects;
    makeRecords(objects, {u"Name"_s, u"Server"_s, u"Description"_s, u"Permission"_s},
                {{u"a"_s, u"b"_s, u"c"_s, u"R"_s}});
    UserRecord user;
    QString text;
    int id = 0;
    const std::pair<const char *, CurrentError> cases[] = {
        {"TestConnection", errorKeptOf<clsUsers>([&](auto &all) { all.TestConnection(nowhere); })},
        {"getAll", errorKeptOf<clsUsers>([&](auto &all) { all.getAll(nowhere, records); })},
        {"Add of a user", errorKeptOf<clsUsers>([&](auto &all) { all.Add(nowhere, user); })},
        {"addRooms", errorKeptOf<clsUsers>([&](auto &all) { all.addRooms(nowhere, 1, QList<int>{1}); })},
        {"Add of a group",
         errorKeptOf<clsGlobalGroups>([&](auto &all) { all.Add(nowhere, u"S"_s, u"N"_s, {}, id); })},
        {"Add of a folder", errorKeptOf<clsFolders>([&](auto &all) { all.Add(nowhere, u"C:\\Data"_s, {}); })},
        {"addPermittedObjects", errorKeptOf<clsFolders>([&](auto &all) {
             text += all.addPermittedObjects(nowhere, u"D:\\Data\\"_s, objects);
         })},
    };
    for (const auto &[name, error] : cases) {
        EXPECT_EQ(error.number, jet::Failure) << name;
        EXPECT_TRUE(error.description.contains(u"nowhere.kvs")) << name << error.description.toStdString();
    }
    EXPECT_EQ(text, QString());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"nowhere.kvs"_s)));
    EXPECT_NO_THROW(clsUsers().TestConnection(connection));
}

TEST(StatementTest, AValueIsNotLookedIntoForMarkers)
{
    EXPECT_EQ(joined("A {name} {id} {name}"_L1, {{"name"_L1, u"{id}"_s}, {"id"_L1, u"{name}"_s}}),
              u"A {id} {name} {id}"_s);
    EXPECT_EQ(withId("ID ={id}"_L1, -7), u"ID =-7"_s);
}
