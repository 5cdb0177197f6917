#include "sample/sampledata.h"

#include "base/text.h"
#include "queries/querystatements.h"
#include "sample/company.h"
#include "store/storefile.h"
#include "store/storesession.h"

namespace sample {

namespace {

struct Query
{
    QLatin1StringView name;
    QLatin1StringView description;
    QLatin1StringView statement;
};

// clang-format off
constexpr Query queries[] = {
    {"Disabled accounts"_L1, "Users whose account is disabled"_L1,
     "SELECT UserID, LastName, FirstName, UserName, ServerName FROM Tbl_Users WHERE AccDisabled = True ORDER BY LastName, FirstName"_L1},
    {"Folders without description"_L1, "Folders nobody has described"_L1,
     "SELECT ID, FolderName, Description FROM Tbl_Folders WHERE Description = '' OR Description IS NULL ORDER BY FolderName"_L1},
    {"Hardware per type"_L1, "How many items of each type"_L1,
     "SELECT Tbl_HWType.ID, Type, Manufacturer, Model, COUNT(*) AS Items FROM Tbl_HWType INNER JOIN Tbl_HW ON Tbl_HWType.ID = Tbl_HW.HWTypeID GROUP BY Tbl_HWType.ID, Type, Manufacturer, Model ORDER BY Type, Manufacturer, Model"_L1},
    {"Irish names"_L1, "Users whose name begins with O'"_L1,
     "SELECT UserID, LastName, FirstName, UserName, ServerName FROM Tbl_Users WHERE LastName LIKE 'O''%' ORDER BY LastName"_L1},
    {"Old hardware"_L1, "The ten oldest items"_L1,
     "SELECT TOP 10 ID, SerialNumber, PurchaseDate, Status FROM Tbl_HW ORDER BY PurchaseDate"_L1},
    {"Users of Accounting"_L1, "Users and their phone numbers"_L1,
     "SELECT UserID, LastName, FirstName, DirectDial FROM Tbl_Users WHERE Department = 'Accounting' ORDER BY LastName"_L1},
};
// clang-format on

} // namespace

void fillQueries(StoreSession &store)
{
    for (const Query &query : queries)
        store.execute(
            insertCustomQuery(query.name, escapeQuotes(query.description), escapeQuotes(query.statement)));
}

} // namespace sample

void createSampleStore(const QString &path, int users)
{
    createStore(path, [users](StoreSession &store) {
        if (users == 0)
            return;
        const QList<sample::User> staff = sample::fillUsers(store, users);
        sample::fillGroups(store, staff);
        sample::fillAssets(store, staff);
        sample::fillQueries(store);
    });
}
