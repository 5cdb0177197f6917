#include "openstore.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

int numberOf(const std::function<void()> &step)
{
    try {
        step();
    } catch (const Error &error) {
        return error.number();
    }
    return 0;
}

class RecordsetTest : public OpenStore
{
protected:
    void SetUp() override
    {
        for (const char *room : {"A", "B"})
            connection.execute("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('"_L1 + QLatin1StringView(room) +
                               "')"_L1);
    }

    void openRooms()
    {
        rooms.open(u"SELECT ID, RoomNumber, Description FROM Tbl_Rooms ORDER BY ID"_s, connection);
    }

    jet::Recordset rooms;
};

} // namespace

TEST_F(RecordsetTest, WhatIsClosedOrOpenSaysSo)
{
    EXPECT_EQ(numberOf([&] { rooms.close(); }), jet::ObjectClosed);
    EXPECT_EQ(numberOf([&] { rooms.moveFirst(); }), jet::ObjectClosed);
    EXPECT_EQ(numberOf([&] { (void)rooms.recordCount(); }), jet::ObjectClosed);
    openRooms();
    EXPECT_EQ(numberOf([&] { openRooms(); }), jet::ObjectOpen);
    EXPECT_EQ(numberOf([&] { connection.open(jet::connectionString(path)); }), jet::ObjectOpen);

    jet::Connection closed;
    jet::Recordset rows;
    EXPECT_EQ(numberOf([&] { closed.close(); }), jet::ObjectClosed);
    EXPECT_EQ(numberOf([&] { rows.open(u"SELECT 1"_s, closed); }), jet::ConnectionClosed);
    EXPECT_EQ(numberOf([&] { closed.open("Provider=Other;Data Source="_L1 + path); }), jet::ProviderMissing);
}

TEST_F(RecordsetTest, WalksFromTheFirstToBehindTheLast)
{
    openRooms();
    EXPECT_EQ(rooms.value(u"RoomNumber").toText(), u"A"_s);
    rooms.moveLast();
    EXPECT_EQ(rooms.value(u"roomnumber").toText(), u"B"_s);
    EXPECT_FALSE(rooms.eof());
    rooms.moveNext();
    EXPECT_TRUE(rooms.eof());
    EXPECT_EQ(numberOf([&] { (void)rooms.value(0); }), jet::NoCurrentRecord);
    EXPECT_EQ(numberOf([&] { rooms.moveNext(); }), jet::NoCurrentRecord);
    rooms.moveFirst();
    EXPECT_EQ(rooms.value(1).toText(), u"A"_s);
    EXPECT_TRUE(rooms.value(2).isNull());
}

TEST_F(RecordsetTest, KnowsItsFieldsByNameAndPlace)
{
    openRooms();
    EXPECT_EQ(rooms.fields().count(), 3);
    EXPECT_EQ(rooms.fields().item(u"roomNUMBER").name(), u"RoomNumber"_s);
    EXPECT_EQ(rooms.fields().indexOf(u"Nowhere"), -1);
    EXPECT_EQ(numberOf([&] { (void)rooms.value(u"Nowhere"); }), jet::ItemNotFound);
    EXPECT_EQ(numberOf([&] { (void)rooms.value(3); }), jet::ItemNotFound);
    EXPECT_EQ(numberOf([&] { (void)rooms.value(-1); }), jet::ItemNotFound);
    EXPECT_NE(rooms.texts(1), nullptr);
    EXPECT_EQ(rooms.texts(0), nullptr);
}

TEST_F(RecordsetTest, AResultWithoutRowsHasTexts)
{
    rooms.open(u"SELECT RoomNumber FROM Tbl_Rooms WHERE ID = 0"_s, connection);
    EXPECT_NE(rooms.texts(0), nullptr);
    rooms.close();
    rooms.open(u"SELECT ID, RoomNumber, Description FROM Tbl_Rooms WHERE ID = 0"_s, connection);
    ASSERT_NE(rooms.texts(2), nullptr);
    EXPECT_TRUE(rooms.texts(2)->isNull(0));
}

TEST_F(RecordsetTest, RowsMadeInMemoryNeedNoStore)
{
    jet::Recordset made;
    made.fields().append(u"Name"_s, jet::FieldType::VarChar, 255);
    made.fields().append(u"Count"_s, jet::FieldType::Long, 4);
    EXPECT_EQ(numberOf([&] { made.addNew(); }), jet::ObjectClosed);
    made.open();
    EXPECT_EQ(numberOf([&] { (void)made.value(0); }), jet::NoCurrentRecord);
    made.addNew();
    EXPECT_TRUE(made.value(0).isNull());
    made.fields().item(u"name").setValue(u"anna"_s);
    made.fields().item(1).setValue(qint64(7));
    made.addNew();
    made.moveFirst();
    EXPECT_EQ(made.recordCount(), 2);
    EXPECT_EQ(made.value(0).toText(), u"anna"_s);
    EXPECT_EQ(made.value(1).toInteger(), 7);

    openRooms();
    EXPECT_NE(numberOf([&] { rooms.fields().item(1).setValue(u"C"_s); }), 0);
}

TEST_F(RecordsetTest, TheListOfTablesIsByName)
{
    jet::Recordset tables;
    connection.openSchema(jet::SchemaTables, tables);
    EXPECT_EQ(tables.recordCount(), 23);
    EXPECT_EQ(tables.value(u"TABLE_NAME").toText(), u"Tbl_CustomQuery"_s);
    EXPECT_EQ(tables.value(u"TABLE_TYPE").toText(), u"TABLE"_s);
    EXPECT_EQ(numberOf([&] { connection.openSchema(jet::SchemaTables, tables); }), jet::ObjectOpen);
    EXPECT_EQ(tables.fields().count(), 2);
    openRooms();
    rooms.close();
    connection.openSchema(jet::SchemaTables, rooms);
    EXPECT_EQ(rooms.fields().count(), 2);
    EXPECT_EQ(rooms.value(0).toText(), u"Tbl_CustomQuery"_s);
    jet::Recordset other;
    EXPECT_NE(numberOf([&] { connection.openSchema(4, other); }), 0);
}

TEST_F(RecordsetTest, AStoreMayStandAtAnyPath)
{
    for (const QString &name :
         {u"a;b=c.mdb"_s, u" blanks .mdb "_s, u"\"quoted\".mdb"_s, u"end;"_s, u"a;b.mdb"_s}) {
        const QString odd = folder.filePath(name);
        makeFreshStore(odd);
        jet::Connection opened;
        EXPECT_EQ(numberOf([&] { opened.open(jet::connectionString(odd)); }), 0) << name.toStdString();
        jet::Recordset rows;
        rows.open(u"SELECT * FROM Tbl_Rooms"_s, opened);
        EXPECT_EQ(rows.recordCount(), 0);
    }
}
