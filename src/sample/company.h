#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringView>

#include <iterator>

class StoreSession;

/// The parts of the sample company. Each is a function of the number of users alone: what is
/// drawn is drawn from the number of the object it belongs to.
///
/// All write into a new store, whose counters begin at 1: the n-th row of a table has the id n.
/// They write over one session, as a method of a record class would commit each row.
namespace sample {

using Qt::Literals::StringLiterals::operator""_L1;

struct Site
{
    QLatin1StringView server;
    QStringView division;
    QLatin1StringView dialCode;
    int countryCode;
    int codePage;
};

inline constexpr Site sites[] = {
    {"BERLIN01"_L1, u"Germany North", "+49 30 555"_L1, 49, 850},
    {"MUENCHEN01"_L1, u"Germany South", "+49 89 555"_L1, 49, 850},
    {"WIEN01"_L1, u"Österreich", "+43 1 555"_L1, 43, 850},
    {"PARIS01"_L1, u"France", "+33 1 555"_L1, 33, 850},
    {"DUBLIN01"_L1, u"Ireland", "+353 1 555"_L1, 353, 850},
    {"PRAHA01"_L1, u"Česko", "+420 2 555"_L1, 420, 852},
};

struct Department
{
    QStringView name;
    QLatin1StringView costCenter;
    QStringView jobs[3];
};

inline constexpr Department departments[] = {
    {u"Accounting", "4100"_L1, {u"Accountant", u"Controller", u"Payroll Clerk"}},
    {u"Facility Management", "4300"_L1, {u"Caretaker", u"Facility Manager", u"Receptionist"}},
    {u"Human Resources", "4200"_L1, {u"Recruiter", u"HR Manager", u"Trainer"}},
    {u"IT Operations", "5100"_L1, {u"Administrator", u"Help Desk Agent", u"Network Engineer"}},
    {u"Production", "6100"_L1, {u"Shift Leader", u"Machinist", u"Quality Inspector"}},
    {u"Research & Development", "5200"_L1, {u"Developer", u"Laboratory Assistant", u"Project Manager"}},
    {u"Sales", "7100"_L1, {u"Account Manager", u"Sales Assistant", u"Sales Director"}},
};

inline constexpr int siteCount = int(std::size(sites));

/// How many shares it takes for all of the users.
constexpr int ceilingOf(int users, int share)
{
    return (users + share - 1) / share;
}

/// What is drawn for. Another number gives another sample company.
enum class Purpose : quint32 {
    User = 0,
    Membership = 1,
    LocalGroup = 2,
    SharedFolder = 3,
    Room = 11,
    Seat = 12,
    Item = 13
};

/// The draws of one object, a function of its number and their purpose.
class Draws final
{
public:
    explicit Draws(int number, Purpose purpose = Purpose::User)
        : m_state(quint32(number) * 0x9e3779b9u + 0x7f4a7c15u + quint32(purpose) * 0x85ebca6bu)
    {
    }

    int below(int limit)
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 17;
        m_state ^= m_state << 5;
        return int(m_state % quint32(limit));
    }
    bool oneIn(int times) { return below(times) == 0; }
    template <typename T, std::size_t size>
    const T &from(const T (&table)[size])
    {
        return table[below(int(size))];
    }

private:
    quint32 m_state;
};

/// A user as the other parts need it: indexes into the tables above.
struct User
{
    int id;
    int site;
    int department;
    QString home;
};

[[nodiscard]] QList<User> fillUsers(StoreSession &store, int count);
/// Global and local groups with their members, folders and who may what on them.
void fillGroups(StoreSession &store, const QList<User> &users);
/// Hardware with its types, rooms and software, and who or what stands where.
void fillAssets(StoreSession &store, const QList<User> &users);
void fillQueries(StoreSession &store);

} // namespace sample
