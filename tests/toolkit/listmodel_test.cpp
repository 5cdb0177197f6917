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
    EXPECT_EQ(model.picture(0, 1), 0);
    EXPECT_EQ(model.picture(1, 1), 11);
    EXPECT_FALSE(model.index(0, 1).data(Qt::DecorationRole).isValid());
    EXPECT_EQ(model.index(1, 1).data(Qt::DecorationRole).value<QIcon>().cacheKey(),
              imageLists().ImageListList.icon(11).cacheKey());

    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.setColumnPicture(1, 3);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(model.picture(0, 1), 3);
    EXPECT_EQ(model.picture(1, 1), 3);
    EXPECT_EQ(model.picture(0, 2), 0);
}

TEST_F(ListModelTest, AnAppendedRowHasNoPictureAfterAWholeColumnGotOne)
{
    model.setRows(threeRows());
    model.setColumnPicture(1, 3);
    const int row = model.appendRow(u"0"_s, {u"new"_s});
    EXPECT_EQ(model.picture(row, 1), 0);
}

TEST_F(ListModelTest, KeysFindTheirRowsAfterSortingRemovingAndAdding)
{
    model.setRows(threeRows());
    const int alpha = model.key(1);
    const int atna = model.key(2);
    model.reorder(std::vector<int>{2, 0, 1});
    EXPECT_EQ(column(model, 0), (QStringList{u"9"_s, u"7"_s, u"8"_s}));
    EXPECT_EQ(model.rowOfKey(alpha), 2);
    model.removeRow(1);
    model.appendRow(u"0"_s, {u"new"_s});
    EXPECT_EQ(model.rowOfKey(alpha), 1);
    EXPECT_EQ(model.rowOfKey(atna), 0);
    EXPECT_EQ(column(model, 1), (QStringList{u"ätna €"_s, u"Alpha"_s, u"new"_s}));
    model.setText(1, 1, u"changed"_s);
    model.takeRows(std::vector<int>{1});
    EXPECT_EQ(column(model, 1), QStringList{u"changed"_s});
    EXPECT_EQ(model.rowOfKey(atna), -1);
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
