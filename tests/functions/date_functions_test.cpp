#include "platform/jet/clock.h"

#include "sqltest.h"

namespace {

#define INVALID "-2147467259 Invalid procedure call"
#define OVERFLOW_ERROR "-2147467259 Overflow"
#define MISMATCH "-2147217913 Data type mismatch in criteria expression."

class DateFunctionsTest : public SqlTest
{
protected:
    DateFunctionsTest()
    {
        jet::setClock([] { return QDateTime(QDate(2005, 3, 4), QTime(14, 30, 15, 750)); });
    }
    ~DateFunctionsTest() override { jet::setClock({}); }

    /// The expressions are dates, shown as the store shows them.
    void checkDates(std::span<const SqlCase> cases) { check(cases, "jet_datetext"); }
};

} // namespace

TEST_F(DateFunctionsTest, ReadTheClock)
{
    checkDates({{
        {"jet_now()", "3/4/2005 2:30:15 PM"},
        {"jet_today()", "3/4/2005"},
        {"jet_time()", "2:30:15 PM"},
    }});
    EXPECT_EQ(values("SELECT jet_timer()"), "52215.75");
}

TEST_F(DateFunctionsTest, Add)
{
    checkDates({{
        {"jet_dateadd('m', 1, '1/31/2005')", "2/28/2005"},
        {"jet_dateadd('m', 1, '1/31/2004')", "2/29/2004"},
        {"jet_dateadd('M', -2, '1/31/2005')", "11/30/2004"},
        {"jet_dateadd('yyyy', 1, '2/29/2004 6:00')", "2/28/2005 6:00:00 AM"},
        {"jet_dateadd('q', -1, '5/31/2005')", "2/28/2005"},
        {"jet_dateadd('d', 1, '12/31/2004')", "1/1/2005"},
        {"jet_dateadd('w', 3, '12/31/2004')", "1/3/2005"},
        {"jet_dateadd('ww', -1, '1/3/2005')", "12/27/2004"},
        {"jet_dateadd('h', 25, '1/1/2005 23:30')", "1/3/2005 12:30:00 AM"},
        {"jet_dateadd('n', -1, '1/1/2005')", "12/31/2004 11:59:00 PM"},
        {"jet_dateadd('s', 1, '12/31/1899 23:59:59')", "1/1/1900"},
        {"jet_dateadd('h', -6, '12/30/1899 1:00')", "12/29/1899 7:00:00 PM"}, // before day 0
        {"jet_dateadd('d', 1.5, '1/1/2005')", "1/3/2005"},
        {"jet_dateadd('x', 1, '1/1/2005')", INVALID},
        {"jet_dateadd('yyyy', 8000, '1/1/2005')", INVALID},
        {"jet_dateadd('d', -2000000000, '1/1/2005')", INVALID},
        {"jet_dateadd('d', 3e9, '1/1/2005')", OVERFLOW_ERROR},
        {"jet_dateadd('d', 1, 'never')", MISMATCH},
    }});
}

TEST_F(DateFunctionsTest, CountBoundaries)
{
    check({{
        {"jet_datediff('d', '12/31/2004', '3/4/2005')", "63"},
        {"jet_datediff('yyyy', '12/31/2004', '1/1/2005')", "1"},
        {"jet_datediff('q', '3/31/2005', '4/1/2005')", "1"},
        {"jet_datediff('m', '1/31/2005', '2/1/2005')", "1"},
        {"jet_datediff('m', '2/1/2005', '1/31/2004')", "-13"},
        {"jet_datediff('d', '1/1/2005 23:59', '1/2/2005 0:01')", "1"},
        {"jet_datediff('h', '1/1/2005 1:59', '1/1/2005 2:01')", "1"},
        {"jet_datediff('n', '1/1/2005 1:00:59', '1/1/2005 1:01:00')", "1"},
        {"jet_datediff('s', '1/1/2005', '1/2/2005')", "86400"},
        {"jet_datediff('h', '12/29/1899 23:00', '12/30/1899 1:00')", "2"},
        {"jet_datediff('w', '1/3/2005', '1/16/2005')", "1"},
        {"jet_datediff('ww', '1/8/2005', '1/9/2005')", "1"}, // Saturday to Sunday
        {"jet_datediff('ww', '1/8/2005', '1/9/2005', 2)", "0"},
        {"jet_datediff('s', '1/1/100', '12/31/9999')", OVERFLOW_ERROR},
        {"jet_datediff('d', NULL, '1/1/2005')", "NULL"},
    }});
}

TEST_F(DateFunctionsTest, TakeApart)
{
    check({{
        {"jet_year('3/4/2005 14:30:15')", "2005"},
        {"jet_month(38415)", "3"},
        {"jet_day(38415.99)", "4"},
        {"jet_hour('3/4/2005 14:30:15')", "14"},
        {"jet_minute('14:30:15')", "30"},
        {"jet_second('14:30:15')", "15"},
        {"jet_hour(-1.25)", "6"},
        {"jet_year(NULL)", "NULL"},
        {"jet_year('x')", MISMATCH},
        {"jet_weekday('3/6/2005')", "1"},
        {"jet_weekday('3/6/2005', 2)", "7"},
        {"jet_weekday('3/6/2005', 0)", "1"},
        {"jet_weekday('3/6/2005', 8)", INVALID},
        {"jet_weekday('12/24/1899')", "1"},
        {"jet_datepart('q', '9/30/2005')", "3"},
        {"jet_datepart('y', '12/31/2004')", "366"},
        {"jet_datepart('w', '3/4/2005')", "6"},
        {"jet_datepart('ww', '1/1/2005')", "1"},
        {"jet_datepart('ww', '1/2/2005')", "2"},
        {"jet_datepart('ww', '12/31/2004')", "53"},
        {"jet_datepart('ww', '1/2/2005', 2, 2)", "53"}, // still of the year before
        {"jet_datepart('ww', '1/3/2005', 2, 2)", "1"},
        {"jet_datepart('ww', '12/31/2002', 2, 2)", "1"}, // already of the next year
        {"jet_datepart('ww', '1/8/2005', 1, 3)", "1"},
        {"jet_datepart('ww', '12/31/9999')", "53"},
        {"jet_datepart('x', '1/1/2005')", INVALID},
        {"jet_monthname(3)", "'March'"},
        {"jet_monthname(3, -1)", "'Mar'"},
        {"jet_monthname(13)", INVALID},
        {"jet_weekdayname(1)", "'Sunday'"},
        {"jet_weekdayname(7, 0, 2)", "'Sunday'"},
        {"jet_weekdayname(2, -1)", "'Mon'"},
        {"jet_weekdayname(0)", INVALID},
        {"jet_isdate('t', '1/15/2005')", "-1"},
        {"jet_isdate('t', '38415')", "0"},
        {"jet_isdate('n', 38415)", "0"},
        {"jet_isdate('d', 38415)", "-1"},
        {"jet_isdate('d', NULL)", "0"},
    }});
}

TEST_F(DateFunctionsTest, PutTogether)
{
    checkDates({{
        {"jet_dateserial(2005, 3, 4)", "3/4/2005"},
        {"jet_dateserial(2005, 14, 1)", "2/1/2006"},
        {"jet_dateserial(2005, 3, 0)", "2/28/2005"},
        {"jet_dateserial(2005, 0, 31)", "12/31/2004"},
        {"jet_dateserial(29, 1, 1)", "1/1/2029"},
        {"jet_dateserial(30, 1, 1)", "1/1/1930"},
        {"jet_dateserial(99999, 1, 1)", INVALID},
        {"jet_dateserial(9999, 13, 0)", "12/31/9999"},
        {"jet_dateserial(10000, 1, -100)", "9/22/9999"},
        {"jet_dateserial(100, -3, 200)", "3/19/100"},
        {"jet_dateserial(100, 1, 0)", INVALID},
        {"jet_dateserial(9999, 13, 1)", INVALID},
        {"jet_dateserial(2147483647, 2147483647, 2147483647)", INVALID},
        {"jet_dateserial(-2147483648, -2147483648, -2147483648)", INVALID},
        {"jet_timeserial(14, 30, 15)", "2:30:15 PM"},
        {"jet_timeserial(12, -15, 0)", "11:45:00 AM"},
        {"jet_timeserial(25, 0, 0)", "12/31/1899 1:00:00 AM"},
        {"jet_datevalue('3/4/2005 14:30')", "3/4/2005"},
        {"jet_timevalue('3/4/2005 14:30')", "2:30:00 PM"},
        {"jet_datevalue(-1.25)", "12/29/1899"},
    }});
}
