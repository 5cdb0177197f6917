#include "viewtest.h"

#include "toolkit/banner.h"
#include "toolkit/listview.h"
#include "views/modRender.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

class RenderTest : public FolderTest
{
};

struct PictureCase
{
    const char *name;
    QString field;
    QString value;
    int picture;
};

const PictureCase pictureCases[] = {
    {"PlainCell", u"LastName"_s, u"Ames"_s, 0},
    {"NotAvailable", u"LastName"_s, u"N/A"_s, 10},
    {"UserName", u"UserName"_s, u"ames"_s, 14},
    {"FieldNamesCountTheirCase", u"Username"_s, u"ames"_s, 0},
    {"Server", u"Server"_s, u"SRV"_s, 11},
    {"ServerName", u"ServerName"_s, u"SRV"_s, 11},
    {"Description", u"Description"_s, u"text"_s, 12},
    {"DescriptionWinsOverNotAvailable", u"Description"_s, u"N/A"_s, 12},
    {"UserNameWinsOverNotAvailable", u"UserName"_s, u"N/A"_s, 14},
    {"Change", u"Permission"_s, u"CH"_s, 13},
    {"Read", u"Permission"_s, u"R"_s, 13},
    {"FullControl", u"Permission"_s, u"Full Control"_s, 13},
    {"List", u"Permission"_s, u"L"_s, 13},
    {"PermissionWordsCountTheirCase", u"Permission"_s, u"full control"_s, 0},
    {"PermissionWinsOverDescription", u"Description"_s, u"R"_s, 13},
    {"PermissionWinsOverServer", u"Server"_s, u"L"_s, 13},
    {"FolderName", u"FolderName"_s, u"C:\\"_s, 4},
    {"FolderNameWinsOverPermission", u"FolderName"_s, u"R"_s, 4},
    {"GlobalGroup", u"GlobalGroup"_s, u"CH"_s, 1},
    {"LocalGroup", u"LocalGroup"_s, u"N/A"_s, 2},
    {"EmptyDescription", u"Description"_s, u""_s, 12},
};

class CellPictureTest : public testing::TestWithParam<PictureCase>
{
};

} // namespace

TEST_P(CellPictureTest, TheLastTestThatMatchesWins)
{
    const PictureCase &c = GetParam();
    jet::Recordset records;
    fill(records, {c.field, c.field}, {{Value(c.value), Value(c.value)}});
    ListView list;
    modRender::renderList(list, records);
    EXPECT_EQ(list.picture(0, 1), c.picture);
    EXPECT_EQ(list.picture(0, 0), 0) << "The id has no picture.";
}

INSTANTIATE_TEST_SUITE_P(Cells, CellPictureTest, testing::ValuesIn(pictureCases),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(RenderTest, RecordsBecomeRows)
{
    jet::Recordset records;
    fill(records, {u"ID"_s, u"Name"_s, u"Description"_s},
         {{Value(7), Value(u"first"_s), Value()},
          {Value(), Value(), Value(true)},
          {Value(0), Value(2.5), Value(u""_s)}});
    ListView list;
    QAbstractItemModelTester tester(list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.resize(600, 300);
    modRender::renderList(list, records);

    ASSERT_EQ(list.rowCount(), 3);
    EXPECT_EQ(list.itemText(0), u"7"_s);
    EXPECT_EQ(list.subItem(0, 1), u"first"_s);
    EXPECT_EQ(list.subItem(0, 2), u""_s);
    EXPECT_EQ(list.itemText(1), u""_s) << "Null gives an empty cell.";
    EXPECT_EQ(list.subItem(1, 1), u""_s);
    EXPECT_EQ(list.subItem(1, 2), u"True"_s);
    EXPECT_EQ(list.itemText(2), u"0"_s);
    EXPECT_EQ(list.subItem(2, 1), u"2.5"_s);
    EXPECT_EQ(list.heading(2), u"Description"_s);
    EXPECT_EQ(list.columnWidth(0), 0);
    EXPECT_EQ(list.columnWidth(1), list.columnWidth(2));
}

TEST_F(RenderTest, WhatWasThereBeforeIsGone)
{
    jet::Recordset records;
    fill(records, {u"ID"_s, u"A"_s, u"B"_s, u"C"_s},
         {{Value(1), Value(u"a"_s), Value(u"b"_s), Value(u"c"_s)}});
    jet::Recordset empty;
    fill(empty, {u"ID"_s, u"Name"_s}, {});
    ListView list;
    modRender::renderList(list, records);
    list.selectAll();
    modRender::renderList(list, empty);
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_EQ(list.heading(1), u"Name"_s) << "The headings show without rows.";
    EXPECT_FALSE(list.isColumnHidden(1));
    EXPECT_EQ(list.selectedCount(), 0);
}

TEST_F(RenderTest, ARecordsetThatIsNotOpenGivesHeadingsOnly)
{
    jet::Recordset closed;
    closed.fields().append(u"ID"_s, jet::FieldType::Long, 0);
    closed.fields().append(u"Name"_s, jet::FieldType::Text, 50);
    ListView list;
    modRender::renderList(list, closed);
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_EQ(list.columnCount(), 2);

    jet::Recordset bare;
    modRender::renderList(list, bare);
    EXPECT_EQ(list.columnCount(), 0);
}

TEST_F(RenderTest, OneFieldIsOneHiddenColumn)
{
    jet::Recordset records;
    fill(records, {u"ID"_s}, {{Value(1)}, {Value(2)}});
    ListView list;
    modRender::renderList(list, records);
    EXPECT_EQ(list.rowCount(), 2);
    EXPECT_TRUE(list.isColumnHidden(0));
    EXPECT_EQ(list.itemText(1), u"2"_s);
}

TEST_F(RenderTest, ContextOfTheModes)
{
    struct Case
    {
        std::optional<Mode> mode;
        int banner;
        QString text;
        int panel1, panel2;
        bool live;
    };
    const Case cases[] = {
        {Mode::HW, 5, u"You are Viewing Database Objects"_s, 15, 2, false},
        {Mode::Unknown, 10, u"You are Viewing Database Objects"_s, 15, 2, false},
        {Mode::NTServers, 11, u"You are Viewing Live System Objects"_s, 16, 1, true},
        {std::nullopt, 10, u"as it was"_s, 0, 0, false},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.banner);
        frmDisplay view;
        view.StatusBar->setPanelText(1, u"as it was"_s);
        modRender::renderContext({*view.picLogoContainer, *view.StatusBar, view}, c.mode);
        EXPECT_EQ(view.picLogoContainer->picture(), c.banner);
        EXPECT_EQ(view.StatusBar->panelText(1), c.text);
        EXPECT_EQ(view.StatusBar->panelPicture(1), c.panel1);
        EXPECT_EQ(view.StatusBar->panelPicture(2), c.panel2);
        EXPECT_EQ(view.picNT->isHidden(), !c.live);
        const QColor title = view.LblInfo->palette().color(view.LblInfo->foregroundRole());
        EXPECT_EQ(title == QColor(255, 0, 0), c.live);
    }
}

TEST_F(RenderTest, ComboEntriesCarryTheirIds)
{
    jet::Recordset records;
    fill(records, {u"ID"_s, u"Type"_s}, {{Value(4), Value(u"Printer"_s)}, {Value(9), Value(u"Monitor"_s)}});
    QComboBox combo;
    modRender::fillComboFromRecordset(records, combo);
    ASSERT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.itemText(0), u"Printer"_s);
    EXPECT_EQ(combo.itemData(1).toInt(), 9);

    jet::Recordset none;
    fill(none, {u"ID"_s, u"Type"_s}, {});
    modRender::fillComboFromRecordset(none, combo);
    EXPECT_EQ(combo.count(), 2);
}
