#include "runner.h"

#include "base/error.h"
#include "casefile.h"
#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "support/freshstore.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <list>
#include <map>

using namespace Qt::StringLiterals;
using casefile::Case;
using casefile::Row;
using casefile::Step;

namespace {

QString readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throwError(53, "File not found: "_L1 + path);
    return QString::fromUtf8(file.readAll());
}

/// Makes each fixture's store once and hands out copies of it.
class Fixtures final
{
public:
    explicit Fixtures(QString folder) : m_folder(std::move(folder)) {}

    QString freshCopy(const QString &fixture)
    {
        QString &made = m_made[fixture];
        if (made.isEmpty())
            made = make(fixture);
        const QString copy = m_temporary.filePath("store.mdb"_L1);
        QFile::remove(copy);
        if (!QFile::copy(made, copy))
            throwError(75, "Path/File access error: "_L1 + copy);
        return copy;
    }

private:
    QString make(const QString &fixture)
    {
        const QString path = m_temporary.filePath("fixture-"_L1 + fixture + ".mdb"_L1);
        makeFreshStore(path);
        if (!fixture.isEmpty()) {
            jet::Connection connection;
            connection.open(jet::connectionString(path));
            for (const QString &line :
                 readFile(m_folder + "/fixtures/"_L1 + fixture + ".sql"_L1).split(u'\n'))
                if (!line.trimmed().isEmpty() && !line.startsWith(u'#'))
                    connection.execute(line);
            connection.close();
        }
        return path;
    }

    QString m_folder;
    QTemporaryDir m_temporary;
    std::map<QString, QString> m_made;
};

std::vector<Row> rowsOf(jet::Recordset &recordset)
{
    std::vector<Row> rows;
    for (; !recordset.eof(); recordset.moveNext()) {
        Row row;
        for (int field = 0; field < recordset.fields().count(); ++field)
            row.push_back(recordset.value(field));
        rows.push_back(std::move(row));
    }
    return rows;
}

bool sameRow(const Row &expected, const Row &actual)
{
    return std::equal(expected.begin(), expected.end(), actual.begin(), actual.end(), casefile::same);
}

bool sameRows(const Step &step, const std::vector<Row> &actual)
{
    return step.anyOrder
               ? std::is_permutation(step.rows.begin(), step.rows.end(), actual.begin(), actual.end(),
                                     sameRow)
               : std::equal(step.rows.begin(), step.rows.end(), actual.begin(), actual.end(), sameRow);
}

std::string text(const std::vector<Row> &rows)
{
    QString all;
    for (const Row &row : rows)
        all += "  "_L1 + casefile::written(row) + u'\n';
    return all.isEmpty() ? "  no rows\n" : all.toStdString();
}

void checkRows(const Step &step, jet::Connection &connection)
{
    jet::Recordset recordset;
    recordset.open(step.sql, connection);
    ASSERT_EQ(recordset.state(), 1) << "returns no rows at all";
    if (step.columns) {
        QStringList names;
        for (int field = 0; field < recordset.fields().count(); ++field)
            names.append(recordset.fields().item(field).name());
        EXPECT_EQ(step.columns->join(" | "_L1).toStdString(), names.join(" | "_L1).toStdString());
    }
    const int count = recordset.recordCount();
    const std::vector<Row> actual = rowsOf(recordset);
    EXPECT_EQ(std::size_t(count), actual.size());
    if (step.count >= 0) {
        EXPECT_EQ(step.count, count) << text(actual);
    }
    if (step.rows.empty())
        return;
    EXPECT_TRUE(sameRows(step, actual)) << "expected\n" << text(step.rows) << "actual\n" << text(actual);
}

void checkDone(const Step &step, jet::Connection &connection)
{
    jet::Recordset recordset;
    recordset.open(step.sql, connection);
    EXPECT_EQ(recordset.state(), 0) << "returns rows";
}

void checkError(const Step &step, jet::Connection &connection)
{
    try {
        connection.execute(step.sql);
        ADD_FAILURE() << "is not refused";
    } catch (const Error &error) {
        EXPECT_EQ(step.error->number, error.number()) << error.what();
        EXPECT_TRUE(error.description().contains(step.error->fragment, Qt::CaseInsensitive)) << error.what();
    }
}

void runStep(const Step &step, jet::Connection &connection)
{
    if (step.error) {
        checkError(step, connection);
    } else if (step.expectsRows()) {
        checkRows(step, connection);
        checkRows(step, connection); // the same again from the cache of prepared statements
    } else if (step.done) {
        checkDone(step, connection);
    } else {
        connection.execute(step.sql);
    }
}

class CaseTest final : public testing::Test
{
public:
    CaseTest(Fixtures &fixtures, const Case &testCase) : m_fixtures(fixtures), m_case(testCase) {}

    void TestBody() override
    {
        jet::Connection connection;
        connection.open(jet::connectionString(m_fixtures.freshCopy(m_case.fixture)));
        for (const Step &step : m_case.steps) {
            SCOPED_TRACE("line " + std::to_string(step.line) + ": " + step.sql.toStdString());
            try {
                runStep(step, connection);
            } catch (const Error &error) {
                ADD_FAILURE() << error.number() << " " << error.what();
            }
        }
    }

private:
    Fixtures &m_fixtures;
    const Case &m_case;
};

/// Letters, digits and underlines, for the filters of the test runner.
std::string testName(const QString &words)
{
    std::string name;
    for (const QChar letter : words)
        name += letter.isLetterOrNumber() && letter.unicode() < 128 ? char(letter.unicode()) : '_';
    return name;
}

void registerFile(const QString &folder, const QString &path, const std::vector<Case> &cases,
                  Fixtures &fixtures)
{
    const std::string suite = testName(QDir(folder).relativeFilePath(path).chopped(int(qstrlen(".test"))));
    const std::string source = path.toStdString();
    for (const Case &testCase : cases)
        testing::RegisterTest(suite.c_str(), testName(testCase.name).c_str(), nullptr, nullptr,
                              source.c_str(), testCase.line,
                              [&]() -> testing::Test * { return new CaseTest(fixtures, testCase); });
}

} // namespace

void registerCases(const QString &folder)
{
    // The registered tests point into both until the process ends.
    static Fixtures fixtures(folder);
    static std::list<std::vector<Case>> files;
    QStringList paths;
    for (QDirIterator at(folder, {u"*.test"_s}, QDir::Files, QDirIterator::Subdirectories); at.hasNext();)
        paths.append(at.next());
    paths.sort();
    for (const QString &path : paths) {
        try {
            registerFile(folder, path, files.emplace_back(casefile::parse(readFile(path))), fixtures);
        } catch (const Error &mistake) {
            throwError(mistake.number(), path + ": "_L1 + mistake.description());
        }
    }
}
