#include "sample/company.h"

#include "assets/assetstatements.h"
#include "base/oledate.h"
#include "base/text.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

namespace sample {

namespace {

constexpr int usersPerRoom = 3;

enum class Use { Personal, Common, Server };

struct Device
{
    QLatin1StringView type;
    QLatin1StringView manufacturer;
    QLatin1StringView model;
    QLatin1StringView typeNumber;
    QLatin1StringView description;
    int share; ///< of a hundred items
    Use use;
    bool computer;
};

// clang-format off
constexpr Device devices[] = {
    {"Monitor"_L1,  "Altmann"_L1,   "View 17"_L1,   "AV-17"_L1,   "17 inch tube"_L1,        12, Use::Personal, false},
    {"Monitor"_L1,  "Altmann"_L1,   "View 19"_L1,   "AV-19"_L1,   "19 inch flat panel"_L1,  10, Use::Personal, false},
    {"Monitor"_L1,  "Norfolk"_L1,   "Panel"_L1,     "NP 1500"_L1, "15 inch flat panel"_L1,   6, Use::Personal, false},
    {"Notebook"_L1, "Norfolk"_L1,   "Traveller"_L1, "NT 40"_L1,   "14 inch"_L1,              9, Use::Personal, true},
    {"Notebook"_L1, "Tiefenbach"_L1, "Leicht"_L1,   "TL-2"_L1,    "12 inch"_L1,              5, Use::Personal, true},
    {"PC"_L1,       "Altmann"_L1,   "Desk 300"_L1,  "AD-300"_L1,  "Office computer"_L1,     20, Use::Personal, true},
    {"PC"_L1,       "Altmann"_L1,   "Desk 500"_L1,  "AD-500"_L1,  "Office computer"_L1,     15, Use::Personal, true},
    {"PC"_L1,       "Brunel"_L1,    "Forge"_L1,     ""_L1,        "Workstation for CAD"_L1,  5, Use::Personal, true},
    {"Printer"_L1,  "Okapi"_L1,     "Jet 20"_L1,    "OJ20"_L1,    "Colour ink jet"_L1,       4, Use::Common,   false},
    {"Printer"_L1,  "Okapi"_L1,     "Laser 8"_L1,   "OL8"_L1,     "8 pages a minute"_L1,     8, Use::Common,   false},
    {"Scanner"_L1,  "Okapi"_L1,     "Flat"_L1,      "OF2"_L1,     ""_L1,                     2, Use::Common,   false},
    {"Server"_L1,   "Brunel"_L1,    "Anvil"_L1,     "BA-2"_L1,    "Two processors"_L1,       4, Use::Server,   true},
};

struct Product
{
    QLatin1StringView type;
    QLatin1StringView manufacturer;
    QLatin1StringView name;
    QLatin1StringView version;
    QLatin1StringView description;
};

constexpr Product products[] = {
    {"Accounting"_L1,  "Ledgerdale"_L1, "Balance"_L1,     "4.1"_L1,  "General ledger"_L1},
    {"Accounting"_L1,  "Ledgerdale"_L1, "Payroll"_L1,     "2.0"_L1,  ""_L1},
    {"Archiver"_L1,    "Quince"_L1,     "Press"_L1,       "7"_L1,    "Packs files"_L1},
    {"Backup"_L1,      "Quince"_L1,     "Safe"_L1,        "3.5"_L1,  ""_L1},
    {"CAD"_L1,         "Plumbline"_L1,  "Draft"_L1,       "12"_L1,   "Needs a licence key"_L1},
    {"CAD"_L1,         "Plumbline"_L1,  "Draft Viewer"_L1, "12"_L1,  ""_L1},
    {"Database"_L1,    "Norfolk"_L1,    "Tables"_L1,      "2.1"_L1,  ""_L1},
    {"Development"_L1, "Plumbline"_L1,  "Workbench"_L1,   "6.0"_L1,  ""_L1},
    {"Mail"_L1,        "Quince"_L1,     "Pigeon"_L1,      "1.9"_L1,  "Mail and calendar"_L1},
    {"Office"_L1,      "Norfolk"_L1,    "Calc"_L1,        "97"_L1,   "Spreadsheet"_L1},
    {"Office"_L1,      "Norfolk"_L1,    "Calc"_L1,        "2000"_L1, "Spreadsheet"_L1},
    {"Office"_L1,      "Norfolk"_L1,    "Slides"_L1,      "2000"_L1, "Presentations"_L1},
    {"Office"_L1,      "Norfolk"_L1,    "Writer"_L1,      "97"_L1,   "Word processor"_L1},
    {"Office"_L1,      "Norfolk"_L1,    "Writer"_L1,      "2000"_L1, "Word processor"_L1},
    {"Reader"_L1,      "Plumbline"_L1,  "Page"_L1,        "5.0"_L1,  ""_L1},
    {"Virus scanner"_L1, "Quince"_L1,   "Guard"_L1,       "8"_L1,    "The administrator's choice"_L1},
};
// clang-format on
constexpr int productCount = int(std::size(products));

constexpr QLatin1StringView roomKinds[] = {"Office"_L1,       "Office"_L1,     "Office"_L1,
                                           "Meeting room"_L1, "Laboratory"_L1, "Director's office"_L1};
constexpr QLatin1StringView suppliers[] = {"Berger & Sons"_L1, "Cable and Case Ltd"_L1, "Datenhaus"_L1,
                                           "O'Hara Systems"_L1};
constexpr QLatin1StringView usages[] = {"Office"_L1, "Office"_L1, "Field work"_L1, "Training"_L1};

void fillCatalogues(StoreSession &store)
{
    for (const Device &device : devices)
        store.execute(insertHWType(
            {device.type, device.manufacturer, device.model, device.typeNumber, device.description}));
    for (const Product &product : products)
        store.execute(insertSW({product.type, product.manufacturer, product.name, product.version,
                                escapeQuotes(product.description)}));
}

/// Rooms stand on the sites in turn; one on a site, unless there are fewer rooms than sites.
int roomOn(int site, int count, Draws &draw)
{
    const int onSite = (count + siteCount - 1 - site) / siteCount;
    return 1 + (onSite == 0 ? draw.below(count) : site + siteCount * draw.below(onSite));
}

int fillRooms(StoreSession &store, const QList<User> &users)
{
    constexpr int doorsPerFloor = 40;
    const int count = ceilingOf(int(users.size()), usersPerRoom);
    QList<QList<int>> seats(count + 1);
    for (int i = 0; i < users.size(); ++i) {
        Draws draw(i, Purpose::Seat);
        seats[roomOn(users[i].site, count, draw)].append(users[i].id);
    }
    for (int i = 0; i < count; ++i) {
        Draws draw(i, Purpose::Room);
        const int door = i / siteCount;
        const QString number = u"%1 %2.%3"_s.arg(QString(sites[i % siteCount].server.first(3)))
                                   .arg(door / doorsPerFloor)
                                   .arg(door % doorsPerFloor + 1, 2, 10, QChar(u'0'));
        store.execute(insertRoom(number, escapeQuotes(draw.from(roomKinds))));
        addRelations(store, usersOfRoom, i + 1, seats[i + 1]);
    }
    return count;
}

int drawDevice(Draws &draw)
{
    int share = draw.below(100);
    int device = 0;
    for (; share >= devices[device].share; ++device)
        share -= devices[device].share;
    return device;
}

HWRecord hardwareItem(int number, int device, int site, Draws &draw)
{
    constexpr double newest = 38353; // 2005-01-01
    constexpr int oldest = 2000;     // days before
    const Device &kind = devices[device];
    const QString digits = u"%1"_s.arg(number + 1, 6, 10, QChar(u'0'));
    HWRecord item;
    item.HWTypeID = device + 1;
    item.SerialNumber = kind.manufacturer.first(2).toString().toUpper() + u'-' + digits;
    item.AssetNumber = u'A' + digits;
    item.WarrantyNumber = draw.oneIn(3) ? QString() : u'W' + digits;
    item.CompanyPropertyNumber = "CP-"_L1 + digits;
    item.Supplier = escapeQuotes(draw.from(suppliers));
    item.PurchaseDate = oledate::toText(newest - draw.below(oldest));
    item.Usage = kind.use == Use::Server ? u"Server room"_s : QString(draw.from(usages));
    item.EUCD = kind.use == Use::Personal && kind.computer;
    item.Network = kind.computer || draw.oneIn(2);
    if (kind.computer)
        item.WorkStationName =
            sites[site].server.first(3) + (kind.use == Use::Server ? "SRV"_L1 : "WS"_L1) + digits;
    if (item.Network) {
        item.IPAddress = u"10.%1.%2.%3"_s.arg(site + 1).arg(number / 250 % 250).arg(number % 250 + 1);
        item.IPSubnet = u"255.255.0.0"_s;
    }
    return item;
}

/// Two to five of the products, no one twice.
QList<int> drawProducts(Draws &draw)
{
    constexpr int stride = 5; // without a common divisor with the number of products
    static_assert(productCount % stride != 0);
    QList<int> drawn;
    const int count = 2 + draw.below(4);
    for (int product = draw.below(productCount); drawn.size() < count; product += stride)
        drawn.append(1 + product % productCount);
    return drawn;
}

/// As many items as users: most with a user, what is used in common in a room, some in stock.
void fillHardware(StoreSession &store, const QList<User> &users, int rooms)
{
    const int count = int(users.size());
    for (int i = 0; i < count; ++i) {
        Draws draw(i, Purpose::Item);
        const User &user = users[draw.oneIn(3) ? draw.below(count) : i];
        const int device = drawDevice(draw);
        HWRecord item = hardwareItem(i, device, user.site, draw);
        const bool inStock = draw.oneIn(20);
        item.Status = inStock ? u"In stock"_s : draw.oneIn(40) ? u"In repair"_s : u"In use"_s;
        store.execute(insertHW(item));

        const int id = i + 1;
        if (devices[device].computer)
            addRelations(store, softwareOfItem, id, drawProducts(draw));
        if (inStock)
            continue;
        if (devices[device].use == Use::Personal)
            addRelations(store, usersOfItem, id, {{user.id}});
        else
            addRelations(store, roomsOfItem, id, {{roomOn(user.site, rooms, draw)}});
    }
}

} // namespace

void fillAssets(StoreSession &store, const QList<User> &users)
{
    fillCatalogues(store);
    fillHardware(store, users, fillRooms(store, users));
}

} // namespace sample
