#pragma once

#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "support/companytest.h"

/// One of the two kinds of groups: where its rows lie, what is said of it and which of the
/// company's groups are of it, Staff at the front.
struct GroupNames
{
    const char *groups;
    const char *users;
    const char *permissions;
    QString notFound;
    QString server;
    int staff;
    Rows rows;
};

inline GroupNames namesOf(const clsGlobalGroups &)
{
    using namespace company;
    return {"Tbl_GlobalGroups",
            "Tbl_GlobalGroupsUsers",
            "Tbl_GlobalGroupFolderPermission",
            QStringLiteral(" Global Group not found"),
            QStringLiteral("DC0"),
            21,
            {globalStaff, globalGuests, globalAdmins}};
}

inline GroupNames namesOf(const clsLocalGroups &)
{
    using namespace company;
    return {"Tbl_LocalGroups",
            "Tbl_LocalGroupsUsers",
            "Tbl_LocalGroupFolderPermission",
            QStringLiteral(" Local Group not found"),
            QStringLiteral("SRV0"),
            31,
            {localStaff, localGuests, localAdmins}};
}

/// What both kinds of groups do, told once.
template <typename Groups>
class GroupTwins : public CompanyTest
{
protected:
    /// Group and user of each row, the group by its place in the company: 1 for Staff.
    Rows memberships() { return byPlace(names.users); }

    /// Group, folder and permission of each row.
    Rows permissions() { return byPlace(names.permissions); }

    Groups groups;
    GroupNames names = namesOf(groups);
    const QString first = names.server + u'1';
    const QString second = names.server + u'2';
    const int staff = names.staff;
    const int guests = names.staff + 1;

private:
    Rows byPlace(const char *table)
    {
        Rows all = content(table);
        for (QString &row : all)
            row.remove(0, 1);
        return all;
    }
};

using GroupClasses = testing::Types<clsGlobalGroups, clsLocalGroups>;

struct GroupClassNames
{
    template <typename Groups>
    static std::string GetName(int)
    {
        return std::is_same_v<Groups, clsGlobalGroups> ? "Global" : "Local";
    }
};
