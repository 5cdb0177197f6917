#include "sample/company.h"

#include "base/oledate.h"
#include "base/text.h"
#include "store/storesession.h"
#include "store/userstatements.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

struct FirstName
{
    QStringView name;
    bool female;
};

constexpr FirstName firstNames[] = {
    {u"Anna", true},      {u"Björn", false},    {u"Céline", true},  {u"Dörte", true},   {u"Émile", false},
    {u"Françoise", true}, {u"Günther", false},  {u"Hélène", true},  {u"Ingrid", true},  {u"Jürgen", false},
    {u"Käthe", true},     {u"Lars", false},     {u"Márta", true},   {u"Niall", false},  {u"Özlem", true},
    {u"Paul", false},     {u"Renée", true},     {u"Søren", false},  {u"Thomas", false}, {u"Ute", true},
    {u"Věra", true},      {u"Wolfgang", false}, {u"Xavier", false}, {u"Łukasz", false}, {u"Zoë", true},
};

constexpr QStringView lastNames[] = {
    u"Adams",   u"Ärmel",    u"Böhm",       u"Brandt",  u"Çelik",    u"D'Angelo",  u"Dvořák",  u"Eßer",
    u"Fischer", u"Großmann", u"Hübner",     u"Ibáñez",  u"Jäger",    u"König",     u"Lefèvre", u"L'Hôte",
    u"Müller",  u"Nowak",    u"Nuñez",      u"O'Brien", u"O'Connor", u"Öztürk",    u"Peters",  u"Quandt",
    u"Rößler",  u"Schäfer",  u"Smith",      u"Strauß",  u"Tóth",     u"Übelacker", u"Vogel",   u"Weiß",
    u"Wójcik",  u"Yıldız",   u"Zimmermann", u"Žižka",
};

constexpr QLatin1StringView titles[] = {""_L1, ""_L1, ""_L1, ""_L1, ""_L1, ""_L1, "Dr."_L1, "Prof."_L1};

/// Lower case ASCII letters, as logon names and mail addresses want them.
QString plainLetters(QStringView name)
{
    QString plain;
    for (const QChar letter : name) {
        switch (letter.toLower().unicode()) {
        case u'ä':
            plain += "ae"_L1;
            break;
        case u'ö':
        case u'ø':
            plain += "oe"_L1;
            break;
        case u'ü':
            plain += "ue"_L1;
            break;
        case u'ß':
            plain += "ss"_L1;
            break;
        case u'ı':
            plain += u'i';
            break;
        case u'ł':
            plain += u'l';
            break;
        default: {
            const QChar base = QString(letter.toLower()).normalized(QString::NormalizationForm_D).front();
            if (base >= u'a' && base <= u'z')
                plain += base;
        }
        }
    }
    return plain;
}

constexpr double firstDay = 38353; // 2005-01-01

class Staff final
{
public:
    UserRecord user(int number, User &summary)
    {
        Draws draw(number);
        const FirstName &first = draw.from(firstNames);
        const QStringView last = draw.from(lastNames);
        const Site &site = draw.from(sites);

        UserRecord user;
        user.UserID = 1000 + number;
        user.UserName = logonName(first.name, last);
        user.ServerName = site.server;
        setAccount(user, draw, site);
        const Department &department = draw.from(departments);
        setContact(user, draw, site, department, first, last);
        user.FullName = user.FirstName + u' ' + user.LastName;
        user.Comment = user.JobTitle + ", "_L1 + user.Department;
        summary = {user.UserID, int(&site - sites), int(&department - departments), user.HomeDir};
        return user;
    }

private:
    /// Names that are taken get a number behind.
    QString logonName(QStringView first, QStringView last)
    {
        const QString name = plainLetters(first).left(1) + plainLetters(last);
        const int taken = m_taken[name]++;
        return taken == 0 ? name : name + QString::number(taken + 1);
    }

    static void setAccount(UserRecord &user, Draws &draw, const Site &site)
    {
        user.PasswordAge = QString::number(draw.below(90));
        user.Privilege = draw.oneIn(50) ? 2 : 1;
        user.NoChangePwd = draw.oneIn(20);
        user.NoExpirePwd = draw.oneIn(10);
        user.AccDisabled = draw.oneIn(15);
        user.AccLocked = draw.oneIn(80);
        user.PasswordExpired = draw.oneIn(30);
        user.FLAGS = 0x201 | (user.AccDisabled ? 0x2 : 0) | (user.AccLocked ? 0x10 : 0) |
                     (user.NoChangePwd ? 0x40 : 0) | (user.NoExpirePwd ? 0x10000 : 0);
        user.HomeDir = "\\\\"_L1 + site.server + "\\Home$\\"_L1 + user.UserName;
        user.HomeDirDrive = u"H:"_s;
        user.Profile = "\\\\"_L1 + site.server + "\\Profiles$\\"_L1 + user.UserName;
        user.ScriptPath = u"logon.bat"_s;
        const double lastLogon = firstDay + draw.below(300) + draw.below(86400) / 86400.0;
        user.LastLogon = oledate::toText(lastLogon);
        user.LastLogoff = oledate::toText(lastLogon + (1 + draw.below(9)) / 24.0);
        user.MaxStorage = -1;
        user.UnitsPerWeek = 168;
        user.BadPwCount = draw.oneIn(6) ? 1 + draw.below(3) : 0;
        user.NumLogons = draw.below(2000);
        user.LogonServer = u"\\\\*"_s;
        user.CountryCode = site.countryCode;
        user.CodePage = site.codePage;
        user.PrimaryGroupID = 513;
    }

    static void setContact(UserRecord &user, Draws &draw, const Site &site, const Department &department,
                           const FirstName &first, QStringView last)
    {
        const QString extension = u"%1"_s.arg(user.UserID % 10000, 4, 10, QChar(u'0'));
        user.Salutation = first.female ? u"Ms."_s : u"Mr."_s;
        user.Title = draw.from(titles);
        user.LastName = last.toString();
        user.FirstName = first.name.toString();
        user.JobTitle = draw.from(department.jobs).toString();
        user.EmailAddress = user.UserName + "@example.com"_L1;
        user.Department = department.name.toString();
        user.CostCenter = department.costCenter;
        user.PhoneNumber = site.dialCode + "-0"_L1;
        user.DirectDial = site.dialCode + u'-' + extension;
        user.MobileNumber = draw.oneIn(3) ? u"+49 170 555"_s + extension : QString();
        user.Division = site.division.toString();
    }

    QHash<QString, int> m_taken;
};

} // namespace

QList<User> fillUsers(StoreSession &store, int count)
{
    Staff staff;
    const UserInsert insert(userColumns());
    QList<User> users(count);
    for (int number = 0; number < count; ++number) {
        QList<QString> values = userValues(staff.user(number, users[number]));
        for (QString &value : values)
            value = escapeQuotes(value);
        store.execute(insert.with(values));
    }
    return users;
}

} // namespace sample
