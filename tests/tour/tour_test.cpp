#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

struct Result
{
    int status;
    QString errors;
};

Result tour(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(KELVANE_TOUR), arguments);
    EXPECT_TRUE(process.waitForFinished(120'000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardError())};
}

} // namespace

TEST(TourTest, EveryVariantLeavesTheSamePictures)
{
    const QTemporaryDir folder;
    const QDir out(folder.filePath(u"new/pictures"_s));
    const Result result = tour({out.path()});
    ASSERT_EQ(result.status, 0) << qPrintable(result.errors);
    EXPECT_FALSE(result.errors.contains("Cannot open file"_L1)) << qPrintable(result.errors);

    QStringList names = out.entryList(QDir::Files);
    const qsizetype pictures = names.size();
    names.removeIf(
        [](const QString &name) { return name.contains("-dark."_L1) || name.contains("-200."_L1); });
    EXPECT_EQ(pictures, names.size() * 3);
    EXPECT_GE(names.size(), 11);
    names.replaceInStrings(u".png"_s, QString());
    for (const QString &name : names) {
        SCOPED_TRACE(qPrintable(name));
        const QImage light(out.filePath(name + u".png"_s));
        const QImage dark(out.filePath(name + u"-dark.png"_s));
        const QImage large(out.filePath(name + u"-200.png"_s));
        ASSERT_FALSE(light.isNull() || dark.isNull() || large.isNull());
        EXPECT_EQ(light.size(), dark.size());
        EXPECT_GT(large.width(), light.width());
        EXPECT_GT(qGray(light.pixel(1, light.height() - 3)), qGray(dark.pixel(1, dark.height() - 3)));
    }
}

TEST(TourTest, BadArgumentsAreExplained)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"file"_s);
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));

    struct Case
    {
        const char *name;
        QStringList arguments;
        int status;
        QString says;
    };
    const Case cases[] = {
        {"nothing", {}, 2, u"takes a folder"_s},
        {"empty", {QString()}, 2, u"takes a folder"_s},
        {"unknown variant", {folder.path(), u"sepia"_s}, 2, u"no variant 'sepia'"_s},
        {"unknown option", {u"--sepia"_s, folder.path()}, 2, u"Unknown option 'sepia'"_s},
        {"a file", {file}, 1, file + u" is not a folder."_s},
        {"below a file", {file + u"/x"_s}, 1, u"The folder "_s + file + u"/x cannot be made."_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        const Result result = tour(row.arguments);
        EXPECT_EQ(result.status, row.status);
        EXPECT_TRUE(result.errors.contains(row.says)) << qPrintable(result.errors);
    }
}
