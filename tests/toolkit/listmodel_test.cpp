#include "toolkit/listmodel.h"

#include "toolkit/imagelist.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList column(const QAbstractItemModel &model, int column)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts += model.index(row, column).data().toString();
    return texts;
}

ListRows threeRows()
{
    ListRows rows(3);
    for (const QStringList &texts :
         {QStringList{u"7"_s, u"beta"_s, u"x"_s}, QStringList{u"8"_s, u"Alpha"_s, u""_s},
          QStringList{u"9"_s, u"ätna €"_s, u"z"_s}}) {
        const int row = rows.addRow();
        for (int cell = 0; cell < 3; ++cell)
            rows.setText(row, cell, texts.at(cell));
    }
    return rows;
}

class ListModelTest : public testing::Test
{
protected:
    ListModelTest()
    {
        model.setImages(&imageLists().ImageListList, &imageLists().ImageListHeaders);
        model.setColumns({u"ID"_s, u"Name"_s, u"Server"_s});
    }

    ListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(ListModelTest, AFillIsOneReset)
{
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
    model.setRows(threeRows());
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(inserts.count(), 0);
    EXPECT_EQ(column(model, 0), (QStringList{u"7"_s, u"8"_s, u"9"_s}));
    EXPECT_EQ(column(model, 1), (QStringList{u"beta"_s, u"Alpha"_s, u"ätna €"_s}));
    EXPECT_EQ(column(model, 2), (QStringList{u"x"_s, u""_s, u"z"_s}));
}

TEST_F(ListModelTest, RowsComeChangeAndGoOneAtATime)
{
    model.setRows(threeRows());
    EXPECT_EQ(model.appendRow(u"0"_s, {u"new"_s}), 3);
    model.setText(0, 1, u"changed"_s);
    model.setText(2, 2, u""_s);
    model.removeRow(1);
    EXPECT_EQ(column(model, 0), (QStringList{u"7"_s, u"9"_s, u"0"_s}));
    EXPECT_EQ(column(model, 1), (QStringList{u"changed"_s, u"ätna €"_s, u"new"_s}));
    EXPECT_EQ(column(model, 2), (QStringList{u"x"_s, u""_s, u""_s}));
}

TEST_F(ListModelTest, PicturesGoWithTheirRowsAndAreShownByNumber)
{
    model.setRows(threeRows());
    model.setPicture(2, 1, 11);
    model.setPicture(0, 1, 4);
    model.removeRow(0);
    EXPECT_EQ(model.rows().picture(0, 1), 0);
    EXPECT_EQ(model.rows().picture(1, 1), 11);
    EXPECT_FALSE(model.index(0, 1).data(Qt::DecorationRole).isValid());
    EXPECT_EQ(model.index(1, 1).data(Qt::DecorationRole).value<QIcon>().cacheKey(),
              imageLists().ImageListList.icon(11).cacheKey());

    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.setColumnPicture(1, 3);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(model.rows().picture(0, 1), 3);
    EXPECT_EQ(model.rows().picture(1, 1), 3);
    EXPECT_EQ(model.rows().picture(0, 2), 0);
}

TEST_F(ListModelTest, AnAppendedRowHasNoPictureAfterAWholeColumnGotOne)
{
    model.setRows(threeRows());
    model.setColumnPicture(1, 3);
    const int row = model.appendRow(u"0"_s, {u"new"_s});
    EXPECT_EQ(model.rows().picture(row, 1), 0);
}

TEST_F(ListModelTest, TagsAreKeptAndNeverShown)
{
    model.setRows(threeRows());
    model.setTag(2, u"mine"_s);
    model.removeRow(0);
    EXPECT_EQ(model.rows().tag(1), u"mine"_s);
    EXPECT_EQ(model.rows().tag(0), u""_s);
}

TEST_F(ListModelTest, HeadingsChange)
{
    model.addColumn(u"More"_s);
    model.setHeading(1, u"Other"_s);
    model.setHeadingPicture(2, 1);
    EXPECT_EQ(model.columnCount(), 4);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"Other"_s);
    EXPECT_TRUE(model.headerData(2, Qt::Horizontal, Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.headerData(1, Qt::Horizontal, Qt::DecorationRole).isValid());
    model.appendRow(u"1"_s, {u"a"_s, u"b"_s, u"c"_s});
    EXPECT_EQ(model.index(0, 3).data().toString(), u"c"_s);
}

namespace {

struct SortCase
{
    const char *name;
    QStringList before;
    Qt::SortOrder order;
    QStringList after;
};

class ListRowsSortTest : public testing::TestWithParam<SortCase>
{
};

const SortCase sortCases[] = {
    {"CaseDoesNotCount",
     {u"b"_s, u"A"_s, u"a"_s, u"B"_s},
     Qt::AscendingOrder,
     {u"A"_s, u"a"_s, u"b"_s, u"B"_s}},
    {"EqualStayInOrderDescendingToo",
     {u"b"_s, u"A"_s, u"a"_s, u"B"_s},
     Qt::DescendingOrder,
     {u"b"_s, u"B"_s, u"A"_s, u"a"_s}},
    {"EmptyIsFirst", {u"x"_s, u""_s, u"1"_s}, Qt::AscendingOrder, {u""_s, u"1"_s, u"x"_s}},
    {"NumbersSortAsText", {u"9"_s, u"10"_s, u"100"_s}, Qt::AscendingOrder, {u"10"_s, u"100"_s, u"9"_s}},
    {"AccentsFoldTheirCase", {u"ÉB"_s, u"éa"_s}, Qt::AscendingOrder, {u"éa"_s, u"ÉB"_s}},
};

} // namespace

TEST_P(ListRowsSortTest, SortsAsText)
{
    ListRows rows(2);
    for (const QString &text : GetParam().before) {
        const int row = rows.addRow();
        rows.setText(row, 1, text);
        rows.setPicture(row, 1, row + 1);
    }
    const std::vector<int> order = rows.sortedOrder(1, GetParam().order);
    rows.take(order);
    QStringList after;
    for (int row = 0; row < rows.rowCount(); ++row) {
        after += rows.text(row, 1);
        EXPECT_EQ(rows.picture(row, 1), order[std::size_t(row)] + 1);
    }
    EXPECT_EQ(after, GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(Cases, ListRowsSortTest, testing::ValuesIn(sortCases),
                         [](const auto &info) { return std::string(info.param.name); });
