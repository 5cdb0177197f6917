#include "sample/company.h"

#include "folders/folderstatements.h"
#include "store/groups.h"
#include "store/relations.h"
#include "store/storesession.h"
#include "store/userstatements.h"

#include <map>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

constexpr int departmentCount = int(std::size(departments));
constexpr int placeCount = siteCount * departmentCount;

constexpr int usersPerGlobalGroup = 20;
constexpr int usersPerLocalGroup = 40;
constexpr int usersPerHome = 4;
constexpr int usersPerSharedFolder = 4;

/// Objects that every department of every site has one of, then a second, a third ...
struct Place
{
    int site;
    int department;
    int number; ///< from 0

    [[nodiscard]] static Place of(int index)
    {
        return {index % siteCount, index / siteCount % departmentCount, index / placeCount};
    }
    /// A small company has not one for every place; then another one serves.
    [[nodiscard]] int index(int count) const
    {
        return (site + siteCount * (department + departmentCount * number)) % count;
    }
    [[nodiscard]] QString server() const { return sites[site].server; }
    [[nodiscard]] QString departmentName() const { return departments[department].name.toString(); }
};

/// The place of one of the objects of a site's department.
Place anyOf(int site, int department, int count, Draws &draw)
{
    return {site, department, draw.below(ceilingOf(count, placeCount))};
}

QString numbered(const QString &name, int number)
{
    return number == 0 ? name : name + u' ' + QString::number(number + 1);
}

void addUnlessThere(QList<int> &ids, int id)
{
    if (!ids.contains(id))
        ids.append(id);
}

int fillGlobalGroups(StoreSession &store, const QList<User> &users)
{
    const int count = ceilingOf(int(users.size()), usersPerGlobalGroup);
    QList<QList<int>> members(count);
    for (int i = 0; i < users.size(); ++i) {
        const User &user = users[i];
        Draws draw(i, Purpose::Membership);
        const int own = anyOf(user.site, user.department, count, draw).index(count);
        const int other = anyOf(user.site, draw.below(departmentCount), count, draw).index(count);
        members[own].append(user.id);
        if (other != own)
            members[other].append(user.id);
    }
    for (int i = 0; i < count; ++i) {
        const Place place = Place::of(i);
        int id = 0;
        addGroup(store, GroupKind::Global, place.server(), numbered(place.departmentName(), place.number),
                 "Staff of "_L1 + place.departmentName() + ", "_L1 + sites[place.site].division.toString(),
                 id);
        addRelations(store, usersOfGroup(GroupKind::Global), id, members[i]);
    }
    return count;
}

struct LocalGroupKind
{
    QLatin1StringView name;
    QLatin1StringView permission;
};

constexpr LocalGroupKind localGroupKinds[] = {{"Editors"_L1, "CH"_L1}, {"Readers"_L1, "R"_L1}};
constexpr int localGroupKindCount = int(std::size(localGroupKinds));

int fillLocalGroups(StoreSession &store, const QList<User> &users, int globalGroups)
{
    constexpr int globalGroupsEach = 3;
    constexpr int usersEach = 10;
    const int count = ceilingOf(int(users.size()), usersPerLocalGroup);
    for (int i = 0; i < count; ++i) {
        const Place place = Place::of(i);
        const LocalGroupKind &kind = localGroupKinds[place.number % localGroupKindCount];
        const QString name = place.departmentName() + u' ' + kind.name;
        int id = 0;
        addGroup(store, GroupKind::Local, place.server(), numbered(name, place.number / localGroupKindCount),
                 "Permission "_L1 + kind.permission + " on the folders of "_L1 + place.departmentName(), id);
        Draws draw(i, Purpose::LocalGroup);
        QList<int> memberGroups;
        for (int member = 0; member < globalGroupsEach; ++member)
            addUnlessThere(memberGroups,
                           1 + anyOf(place.site, place.department, globalGroups, draw).index(globalGroups));
        addRelations(store, globalGroupsOfGroup(), id, memberGroups);
        QList<int> members;
        for (int member = 0; member < usersEach; ++member)
            addUnlessThere(members, users[draw.below(int(users.size()))].id);
        addRelations(store, usersOfGroup(GroupKind::Local), id, members);
    }
    return count;
}

using PermissionsById = std::map<int, Permissions>;

constexpr QLatin1StringView topics[] = {"Budget"_L1,   "Contracts"_L1, "Minutes"_L1,
                                        "Projects"_L1, "Reports"_L1,   "Templates"_L1};
constexpr int topicCount = int(std::size(topics));

class Folders final
{
public:
    Folders(StoreSession &store, const QList<User> &users, int globalGroups, int localGroups)
        : m_store(store)
        , m_users(users)
        , m_globalGroups(globalGroups)
        , m_localGroups(localGroups)
    {
    }

    void fill()
    {
        for (int i = 0; i < ceilingOf(int(m_users.size()), usersPerSharedFolder); ++i)
            addShared(i);
        for (int i = 0; i < m_users.size(); i += usersPerHome)
            m_ofUsers[m_users[i].id].add(addFolder(m_users[i].home, {}), u"Full Control"_s);
        for (const auto &[user, given] : m_ofUsers)
            addRelations(m_store, foldersOfUser(), user, given.ids, given.permissions);
        for (const auto &[group, given] : m_ofLocalGroups)
            addRelations(m_store, foldersOfGroup(GroupKind::Local), group, given.ids, given.permissions);
        for (const auto &[group, given] : m_ofGlobalGroups)
            addRelations(m_store, foldersOfGroup(GroupKind::Global), group, given.ids, given.permissions);
        for (const QString &account :
             {u"Administrators"_s, u"SYSTEM"_s, QString(sites[0].server + "\\Domain Admins"_L1)})
            m_store.execute(insertDefaultFolderPermission(account, u"Full Control"_s));
    }

private:
    int addFolder(const QString &path, const QString &description)
    {
        m_store.execute(insertFolder(folderPath(path), description));
        return ++m_lastId;
    }

    /// Both kinds of local groups have permissions, some users and global groups, too.
    void addShared(int index)
    {
        const Place place = Place::of(index);
        QString path = "\\\\"_L1 + place.server() + "\\Data\\"_L1 + place.departmentName();
        QString description = place.departmentName() + ", common files"_L1;
        if (place.number > 0) {
            const QLatin1StringView topic = topics[(place.number - 1) % topicCount];
            path += u'\\' + numbered(topic, (place.number - 1) / topicCount);
            description = topic + " of "_L1 + place.departmentName();
        }
        const int folder = addFolder(path, description);

        Draws draw(index, Purpose::SharedFolder);
        const int pair = draw.below(ceilingOf(m_localGroups, placeCount * localGroupKindCount));
        for (int kind = 0; kind < localGroupKindCount; ++kind) {
            const Place group = {place.site, place.department, pair * localGroupKindCount + kind};
            m_ofLocalGroups[1 + group.index(m_localGroups)].add(folder, localGroupKinds[kind].permission);
        }
        constexpr QLatin1StringView ownPermissions[] = {"R"_L1, "CH"_L1, "L"_L1};
        if (draw.oneIn(2))
            m_ofUsers[m_users[draw.below(int(m_users.size()))].id].add(folder, draw.from(ownPermissions));
        if (draw.oneIn(5))
            m_ofGlobalGroups[1 +
                             anyOf(place.site, place.department, m_globalGroups, draw).index(m_globalGroups)]
                .add(folder, u"R"_s);
    }

    StoreSession &m_store;
    const QList<User> &m_users;
    int m_globalGroups;
    int m_localGroups;
    int m_lastId = 0;
    PermissionsById m_ofUsers;
    PermissionsById m_ofLocalGroups;
    PermissionsById m_ofGlobalGroups;
};

} // namespace

void fillGroups(StoreSession &store, const QList<User> &users)
{
    const int globalGroups = fillGlobalGroups(store, users);
    const int localGroups = fillLocalGroups(store, users, globalGroups);
    Folders(store, users, globalGroups, localGroups).fill();
}

} // namespace sample
