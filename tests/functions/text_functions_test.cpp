#include "sqltest.h"

namespace {

#define INVALID "-2147467259 Invalid procedure call"
#define MISMATCH "-2147217913 Data type mismatch in criteria expression."

using TextFunctionsTest = SqlTest;

} // namespace

TEST_F(TextFunctionsTest, CutTexts)
{
    check({{
        {"jet_left('abc', 2)", "'ab'"},
        {"jet_left('abc', 9)", "'abc'"},
        {"jet_left('äöü', 2)", "'äö'"},
        {"jet_left('abc', 0)", "''"},
        {"jet_left('abc', -1)", INVALID},
        {"jet_left(12345, 2)", "'12'"},
        {"jet_left(NULL, 2)", "NULL"},
        {"jet_left('abc', NULL)", "NULL"},
        {"jet_right('abc', 2)", "'bc'"},
        {"jet_right('äöü', 9)", "'äöü'"},
        {"jet_right('abc', -1)", INVALID},
        {"jet_mid('abcdef', 3)", "'cdef'"},
        {"jet_mid('abcdef', 2, 3)", "'bcd'"},
        {"jet_mid('abc', 9)", "''"},
        {"jet_mid('äöü', 2, 1)", "'ö'"},
        {"jet_mid('abc', 0)", INVALID},
        {"jet_mid('abc', 1, -1)", INVALID},
        {"jet_mid('abcdef', 2.5, 1)", "'b'"}, // rounded to even
        {"jet_len('äöü')", "3"},
        {"jet_len('')", "0"},
        {"jet_len(12.5)", "4"},
        {"jet_len(NULL)", "NULL"},
        {"jet_trim('  a b  ')", "'a b'"},
        {"jet_ltrim('  a ')", "'a '"},
        {"jet_rtrim('  a ')", "'  a'"},
    }});
}

TEST_F(TextFunctionsTest, ChangeLetters)
{
    check({{
        {"jet_ucase('äbc ß')", "'ÄBC ß'"},
        {"jet_lcase('ÄБC')", "'äбc'"},
        {"jet_strconv('hELLO big-world', 3)", "'Hello Big-world'"},
        {"jet_strconv('Ab', 1)", "'AB'"},
        {"jet_strconv('Ab', 64)", INVALID},
        {"jet_strreverse('aßc')", "'cßa'"},
        {"jet_space(3)", "'   '"},
        {"jet_space(-1)", INVALID},
        {"jet_space(2000000000)", "-2147467259 Out of string space"},
        {"jet_replace(jet_space(10000), ' ', jet_space(20000))", "-2147467259 Out of string space"},
        {"jet_cat(jet_space(60000000), jet_space(60000000))", "-2147467259 Out of string space"},
        {"jet_string(3, 'xy')", "'xxx'"},
        {"jet_string(2, 65)", "'AA'"},
        {"jet_string(2, '')", INVALID},
        {"jet_chr(65)", "'A'"},
        {"jet_chr(128)", "'€'"},
        {"jet_chr(256)", INVALID},
        {"jet_asc('€uro')", "128"},
        {"jet_asc('漢')", "63"},
        {"jet_asc('')", INVALID},
        {"jet_ascw('漢')", "28450"},
        {"jet_chrw(28450)", "'漢'"},
        {"jet_chrw(55296)", INVALID},
    }});
}

TEST_F(TextFunctionsTest, FindTexts)
{
    check({{
        {"jet_instr('Found', 'f')", "1"},
        {"jet_instr('Found', 'x')", "0"},
        {"jet_instr('äÖü', 'ö')", "2"},
        {"jet_instr(3, 'ababab', 'a')", "3"},
        {"jet_instr(4, 'ababab', 'AB')", "5"},
        {"jet_instr(1, 'aAbB', 'A', 0)", "2"},
        {"jet_instr(1, 'aAbB', 'A', 1)", "1"},
        {"jet_instr('abc', '')", "1"},
        {"jet_instr('', 'a')", "0"},
        {"jet_instr('', '')", "0"},
        {"jet_instr(9, 'abc', 'a')", "0"},
        {"jet_instr(0, 'abc', 'a')", INVALID},
        {"jet_instr(1, 'abc', 'a', 7)", INVALID},
        {"jet_instr(NULL, 'a')", "NULL"},
        {"jet_instrrev('ababab', 'AB')", "5"},
        {"jet_instrrev('ababab', 'ab', 4)", "3"},
        {"jet_instrrev('ababab', 'ab', 5)", "3"},
        {"jet_instrrev('abc', 'x')", "0"},
        {"jet_instrrev('abc', '')", "3"},
        {"jet_instrrev('abc', 'a', 0)", INVALID},
        {"jet_strcomp('a', 'A')", "0"},
        {"jet_strcomp('a', 'A', 0)", "1"},
        {"jet_strcomp('a', 'B', 1)", "-1"},
        {"jet_strcomp('b', NULL)", "NULL"},
    }});
}

TEST_F(TextFunctionsTest, ReplaceTexts)
{
    check({{
        {"jet_replace('C:\\Data\\x', '\\', '/')", "'C:/Data/x'"},
        {"jet_replace('aXbxc', 'x', '--')", "'a--b--c'"},
        {"jet_replace('aXbxc', 'x', '-', 1, -1, 0)", "'aXb-c'"},
        {"jet_replace('ÄäÄ', 'Ä', 'a')", "'aaa'"},
        {"jet_replace('aaa', 'a', 'aa')", "'aaaaaa'"},
        {"jet_replace('aaa', 'a', '', 1, 2)", "'a'"},
        {"jet_replace('abcabc', 'b', 'x', 3)", "'caxc'"}, // begins at the third
        {"jet_replace('abc', '', 'x')", "'abc'"},
        {"jet_replace('abc', 'b', 'x', 1, 0)", "'abc'"},
        {"jet_replace('abc', 'b', 'x', 0)", INVALID},
        {"jet_replace(NULL, 'a', 'b')", MISMATCH},
        {"jet_replace('a', 'a', NULL)", MISMATCH},
    }});
}
