#include "openstore.h"

#include "base/error.h"
#include "platform/jet/errors.h"

#include <QDir>
#include <QFile>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

void makeForeignDatabase(const QString &path)
{
    sqlite3 *handle = nullptr;
    sqlite3_open(path.toUtf8().constData(), &handle);
    sqlite3_exec(handle, "CREATE TABLE Tbl_Users (UserID INTEGER)", nullptr, nullptr, nullptr);
    sqlite3_close(handle);
}

void cutStore(const QString &path, double part)
{
    makeFreshStore(path);
    const QByteArray whole = contentOf(path);
    writeFile(path, whole.left(qsizetype(double(whole.size()) * part)));
}

void overwriteStore(const QString &path, double from, double to)
{
    makeFreshStore(path);
    QByteArray whole = contentOf(path);
    const auto begin = qsizetype(double(whole.size()) * from);
    const auto end = qsizetype(double(whole.size()) * to);
    writeFile(path, whole.replace(begin, end - begin, QByteArray(end - begin, '\xA5')));
}

struct BadFile
{
    const char *name;
    std::function<void(const QString &)> make;
    const char *told = ""; ///< what the text says besides the name
};

const BadFile badFiles[] = {
    {"Missing", [](const QString &) {}, "Could not find file"},
    {"InAMissingFolder", [](const QString &path) { QDir().rmdir(QFileInfo(path).path()); },
     "is not a valid path"},
    {"AFolder", [](const QString &path) { QDir().mkpath(path); }, "is not a valid path"},
    {"Empty", [](const QString &path) { writeFile(path, ""); }},
    {"AText", [](const QString &path) { writeFile(path, QByteArray("Dear diary,\n").repeated(2000)); }},
    {"AnotherKindOfDatabase", makeForeignDatabase},
    {"CutInTheHeader", [](const QString &path) { cutStore(path, 0.0005); }},
    {"CutInTheMiddle", [](const QString &path) { cutStore(path, 0.5); }},
    {"OverwrittenInside", [](const QString &path) { overwriteStore(path, 0.02, 0.9); }},
};

class BadFileTest : public testing::TestWithParam<BadFile>
{
};

/// What opening the file and reading a table of it is answered with.
std::optional<Error> openAndRead(const QString &path)
{
    try {
        jet::Connection connection;
        connection.open(jet::connectionString(path));
        connection.execute(u"SELECT * FROM Tbl_Rooms"_s);
        connection.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('1')"_s);
        connection.close();
        return std::nullopt;
    } catch (const Error &error) {
        return error;
    }
}

} // namespace

TEST_P(BadFileTest, IsRefusedByNameAndLeftAlone)
{
    const QTemporaryDir folder;
    QDir().mkdir(folder.filePath("in"_L1));
    const QString path = folder.filePath("in/plan.mdb"_L1);
    GetParam().make(path);
    const QByteArray before = contentOf(path);
    const QStringList filesBefore = QDir(folder.filePath("in"_L1)).entryList();

    const std::optional<Error> error = openAndRead(path);

    ASSERT_TRUE(error) << "was opened and written";
    EXPECT_EQ(error->number(), jet::Failure) << error->what();
    EXPECT_TRUE(error->description().contains("plan.mdb"_L1)) << error->what();
    EXPECT_TRUE(error->description().contains(QLatin1StringView(GetParam().told))) << error->what();
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(QDir(folder.filePath("in"_L1)).entryList(), filesBefore);
}

INSTANTIATE_TEST_SUITE_P(Files, BadFileTest, testing::ValuesIn(badFiles),
                         [](const auto &info) { return std::string(info.param.name); });

namespace {

constexpr QFile::Permissions readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions writable = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

struct ReadOnly
{
    const char *name;
    QFile::Permissions ofFile;
};

class ReadOnlyTest : public testing::TestWithParam<ReadOnly>
{
};

} // namespace

// Without a place for a journal a writable file is as good as a read-only one.
TEST_P(ReadOnlyTest, IsReadAndRefusesWrites)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("plan.mdb"_L1);
    makeFreshStore(path);
    const QByteArray before = contentOf(path);
    QFile::setPermissions(path, GetParam().ofFile);
    QFile::setPermissions(folder.path(), readable | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);

    // Permission bits do not bind the superuser, so the question is asked as nobody.
    enum Outcome { Refused, OtherError, NotAsked, Written };
    const int outcome = inAnotherProcess([&] {
        constexpr uid_t nobody = 65534;
        if (getuid() == 0 && setuid(nobody) != 0)
            return NotAsked;
        try {
            jet::Connection connection;
            connection.open(jet::connectionString(path));
            connection.execute(u"SELECT * FROM Tbl_Rooms"_s);
            connection.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('1')"_s);
        } catch (const Error &error) {
            const bool told = error.number() == jet::Failure &&
                              error.description().contains("updat"_L1, Qt::CaseInsensitive);
            return told ? Refused : OtherError;
        }
        return Written;
    });
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (outcome == NotAsked)
        GTEST_SKIP() << "this process may not become another user";
    EXPECT_EQ(outcome, Refused);
    EXPECT_EQ(contentOf(path), before);
}

INSTANTIATE_TEST_SUITE_P(Folders, ReadOnlyTest,
                         testing::Values(ReadOnly{"FileAndFolder", readable},
                                         ReadOnly{"FolderAlone", readable | writable}),
                         [](const auto &info) { return std::string(info.param.name); });
