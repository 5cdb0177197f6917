#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/clsSW.h"
#include "base/text.h"
#include "folders/clsFolders.h"
#include "platform/jet/errors.h"
#include "queries/clsCustomQuery.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "support/deleting.h"
#include "support/recordtest.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A family whose rows are known by the first of their texts, the last ones being no part of it.
struct Catalogue
{
    const char *name;
    QString table;
    QString refusal;
    QStringList columns;
    qsizetype keys;
    std::function<void(const QString &, const QStringList &)> add;
    std::function<void(const QString &, int, const QStringList &)> update;
    std::function<void(const QString &, int)> remove;
};

void PrintTo(const Catalogue &catalogue, std::ostream *out)
{
    *out << catalogue.name;
}

template <typename Records>
Catalogue products(const char *name, const QString &table, const QString &refusal, const QStringList &columns)
{
    return {name,
            table,
            refusal,
            columns,
            4,
            [](const QString &store, const QStringList &v) {
                Records().Add(store, v[0], v[1], v[2], v[3], v[4]);
            },
            [](const QString &store, int id, const QStringList &v) {
                Records().update(store, id, v[0], v[1], v[2], v[3], v[4]);
            },
            [](const QString &store, int id) { (void)deleteAll(Records(), store, std::span(&id, 1)); }};
}

template <typename Groups>
Catalogue groups(const char *name, const QString &table, const QString &refusal)
{
    return {name,
            table,
            refusal,
            {u"Name"_s, u"Server"_s, u"Description"_s},
            2,
            [](const QString &store, const QStringList &v) {
                int id = 0;
                Groups().Add(store, v[1], v[0], v[2], id);
            },
            [](const QString &store, int id, const QStringList &v) {
                Groups().update(store, id, v[1], v[0], v[2]);
            },
            [](const QString &store, int id) { (void)deleteAll(Groups(), store, std::span(&id, 1)); }};
}

const Catalogue catalogues[] = {
    groups<clsGlobalGroups>(
        "GlobalGroups", u"Tbl_GlobalGroups"_s,
        u"Cannot add/edit Global Group. The Global Group already exists in the Database"_s),
    groups<clsLocalGroups>("LocalGroups", u"Tbl_LocalGroups"_s,
                           u"Cannot add/edit Local Group. The Local Group already exists in the Database"_s),
    {"Folders",
     u"Tbl_Folders"_s,
     u"The specified Folder already exists in the Database"_s,
     {u"FolderName"_s, u"Description"_s},
     1,
     [](const QString &store, const QStringList &v) { clsFolders().Add(store, v[0], v[1]); },
     [](const QString &store, int id, const QStringList &v) { clsFolders().update(store, id, v[0], v[1]); },
     [](const QString &store, int id) { (void)deleteAll(clsFolders(), store, std::span(&id, 1)); }},
    {"FolderDefaults",
     u"Tbl_FolderDefaultPermissions"_s,
     u"The specified Default Permission already exists in the Database"_s,
     {u"Account"_s, u"Permission"_s},
     1,
     [](const QString &store, const QStringList &v) {
         clsFolders().AddDefaultFolderPermission(store, v[0], v[1]);
     },
     [](const QString &store, int id, const QStringList &v) {
         clsFolders().updateDefaultFolderPermission(store, id, v[0], v[1]);
     },
     [](const QString &store, int id) {
         (void)deleteAll(clsFolders(), &clsFolders::DeleteDefaultFolderPermissions, store, std::span(&id, 1));
     }},
    products<clsHWType>("HWType", u"Tbl_HWType"_s,
                        u"A Hardwaretype with the same charachteristics already exists in the Database."_s,
                        {u"Type"_s, u"Manufacturer"_s, u"Model"_s, u"TypeNumber"_s, u"Description"_s}),
    products<clsSW>("SW", u"Tbl_SW"_s,
                    u"A Software with the same charachteristics already exists in the Database."_s,
                    {u"Type"_s, u"Manufacturer"_s, u"Name"_s, u"Version"_s, u"Description"_s}),
    {"Rooms",
     u"Tbl_Rooms"_s,
     u"A Room with the same Number alredy exists in the Database"_s,
     {u"RoomNumber"_s, u"Description"_s},
     1,
     [](const QString &store, const QStringList &v) { clsRooms().Add(store, v[0], v[1]); },
     [](const QString &store, int id, const QStringList &v) { clsRooms().update(store, id, v[0], v[1]); },
     [](const QString &store, int id) { (void)deleteAll(clsRooms(), store, std::span(&id, 1)); }},
    {"CustomQuery",
     u"Tbl_CustomQuery"_s,
     u"A Custom Query with the same Name already exists in the Database."_s,
     {u"Name"_s, u"Description"_s, u"SQLString"_s},
     1,
     [](const QString &store, const QStringList &v) { clsCustomQuery().Add(store, v[0], v[1], v[2]); },
     [](const QString &store, int id, const QStringList &v) {
         clsCustomQuery().update(store, id, v[0], v[1], v[2]);
     },
     [](const QString &store, int id) { (void)deleteAll(clsCustomQuery(), store, std::span(&id, 1)); }},
};

class CatalogueTest : public RecordTest, public testing::WithParamInterface<Catalogue>
{
protected:
    /// A row with a different text in each column, all of them paths that a folder may have.
    [[nodiscard]] QStringList texts(const QString &prefix) const
    {
        QStringList values;
        for (const QString &column : GetParam().columns)
            values += prefix + column + u'\\';
        return values;
    }

    Rows content() const
    {
        return rows("SELECT ID, ["_L1 + GetParam().columns.join(u"], ["_s) + "] FROM "_L1 + GetParam().table +
                    " ORDER BY ID"_L1);
    }

    static QString row(int id, const QStringList &values)
    {
        return QString::number(id) + u'|' + values.join(u'|');
    }

    void expectRefused(const std::function<void()> &step)
    {
        const Rows before = content();
        const CurrentError error = errorOf(step);
        EXPECT_EQ(error.number, RuleViolation);
        EXPECT_EQ(error.description, GetParam().refusal);
        EXPECT_EQ(content(), before);
    }
};

} // namespace

TEST_P(CatalogueTest, ARowIsKnownByItsKey)
{
    const Catalogue &catalogue = GetParam();
    const QStringList first = texts(u"a "_s);
    catalogue.add(connection, first);
    EXPECT_EQ(content(), Rows{row(1, first)});

    QStringList sameKey = first;
    for (QString &text : sameKey)
        text = text.toUpper();
    sameKey.last() = u"another description\\"_s;
    expectRefused([&] { catalogue.add(connection, sameKey); });

    for (qsizetype i = 0; i < catalogue.keys; ++i) {
        QStringList other = first;
        other[i].prepend(u"else "_s);
        catalogue.add(connection, other);
        EXPECT_EQ(content().last(), row(int(i) + 2, other));
    }
}

TEST_P(CatalogueTest, UpdateTestsTheWholeKeyOfTheOtherRows)
{
    const Catalogue &catalogue = GetParam();
    const QStringList first = texts(u"a "_s);
    const QStringList second = texts(u"b "_s);
    catalogue.add(connection, first);
    catalogue.add(connection, second);

    catalogue.update(connection, 2, second);
    EXPECT_EQ(content(), (Rows{row(1, first), row(2, second)})) << "its own row is left out";
    QStringList sameKey = first;
    sameKey.last() = u"another description\\"_s;
    expectRefused([&] { catalogue.update(connection, 2, sameKey); });
    for (qsizetype i = 0; i < catalogue.keys; ++i) {
        QStringList other = first;
        other[i].prepend(u"else "_s);
        catalogue.update(connection, 2, other);
        EXPECT_EQ(content(), (Rows{row(1, first), row(2, other)}));
    }
}

TEST_P(CatalogueTest, AnEmptyKeyIsAKey)
{
    const Catalogue &catalogue = GetParam();
    const QStringList empty(catalogue.columns.size(), QString());
    catalogue.add(connection, empty);
    EXPECT_EQ(content().join(u'\n').remove(u'\\'), row(1, empty));
    expectRefused([&] { catalogue.add(connection, empty); });
}

TEST_P(CatalogueTest, AnApostropheIsRefusedInEachTextAndKeptWhenEscaped)
{
    const Catalogue &catalogue = GetParam();
    const QStringList first = texts(u"a "_s);
    catalogue.add(connection, first);
    for (qsizetype i = 0; i < first.size(); ++i) {
        QStringList quoted = texts(u"q "_s);
        quoted[i] = u"it's"_s;
        EXPECT_EQ(errorOf([&] { catalogue.add(connection, quoted); }).number, jet::SyntaxError) << i;
        EXPECT_EQ(errorOf([&] { catalogue.update(connection, 1, quoted); }).number, jet::SyntaxError) << i;
    }
    EXPECT_EQ(content(), Rows{row(1, first)});

    QStringList escaped = texts(u"q "_s);
    escaped.last() = escapeQuotes(u"it's 'so'"_s);
    catalogue.add(connection, escaped);
    escaped.last() = u"it's 'so'"_s;
    EXPECT_EQ(content().last(), row(2, escaped));
}

TEST_P(CatalogueTest, DeleteTakesOneRowWhoseIdIsNeverUsedAgain)
{
    const Catalogue &catalogue = GetParam();
    for (const QString &prefix : {u"a "_s, u"b "_s})
        catalogue.add(connection, texts(prefix));
    catalogue.remove(connection, 2);
    catalogue.remove(connection, 99);
    EXPECT_EQ(content(), Rows{row(1, texts(u"a "_s))});
    catalogue.remove(connection, 1);
    catalogue.add(connection, texts(u"c "_s));
    EXPECT_EQ(content(), Rows{row(3, texts(u"c "_s))});
}

INSTANTIATE_TEST_SUITE_P(Records, CatalogueTest, testing::ValuesIn(catalogues),
                         [](const auto &info) { return std::string(info.param.name); });
