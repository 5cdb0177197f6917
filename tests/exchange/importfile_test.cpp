#include "base/error.h"
#include "base/errornumbers.h"
#include "exchange/modImportFile.h"
#include "support/storetest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class ImportFileTest : public FolderTest
{
protected:
    QString write(const QByteArray &bytes) const
    {
        QFile file(path(u"data.txt"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    static QStringList linesOf(const QString &path)
    {
        ImportFile file(path);
        QStringList lines;
        for (QString line; file.readLine(line);)
            lines.append(line);
        EXPECT_EQ(file.lineCount(), lines.size());
        return lines;
    }
};

} // namespace

TEST_F(ImportFileTest, LinesAndEncodings)
{
    const struct
    {
        const char *name;
        QByteArray bytes;
        QStringList lines;
    } cases[] = {
        {"nothing", "", {}},
        {"one line end", "\n", {u""_s}},
        {"no end at the end", "a\nb", {u"a"_s, u"b"_s}},
        {"an end at the end", "a\nb\n", {u"a"_s, u"b"_s}},
        {"Windows ends", "a\r\nb\r\n", {u"a"_s, u"b"_s}},
        {"Mac ends", "a\rb\r", {u"a"_s, u"b"_s}},
        {"mixed ends and empty lines", "a\r\n\r\n\nb\r\rc", {u"a"_s, u""_s, u""_s, u"b"_s, u""_s, u"c"_s}},
        {"blanks stay", " a ; b \n", {u" a ; b "_s}},
        {"UTF-8", "M\xc3\xbcller;\xe2\x82\xac", {u"Müller;€"_s}},
        {"UTF-8 with a mark", "\xef\xbb\xbfM\xc3\xbcller\n", {u"Müller"_s}},
        {"a mark alone", "\xef\xbb\xbf", {}},
        {"Windows-1252",
         "M\xfcller;\x80;\x93"
         "a\x94\nb",
         {u"Müller;€;“a”"_s, u"b"_s}},
        {"Windows-1252 with UTF-8 before", "M\xc3\xbcller\nM\xfcller", {u"MÃ¼ller"_s, u"Müller"_s}},
        {"Windows-1252 at the very end", "caf\xe9", {u"café"_s}},
        {"UTF-16 with a mark",
         QByteArray("\xff\xfe"
                    "M\0\xfc\0\n\0"
                    "b\0",
                    10),
         {u"Mü"_s, u"b"_s}},
        {"UTF-16 without a mark", QByteArray("M\0\xfc\0\n\0b\0", 8), {u"Mü"_s, u"b"_s}},
        {"UTF-16 the other way round", QByteArray("\0M\0\xfc\0\n\0b", 8), {u"Mü"_s, u"b"_s}},
        {"a null character", QByteArray("a\0b\nc", 5), {QStringList{QString(u"a\0b"_s), u"c"_s}}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(linesOf(write(c.bytes)), c.lines) << c.name;
}

TEST_F(ImportFileTest, NothingIsLostWhereChunksMeet)
{
    // An end of line and a character of several bytes at every place around the seam.
    for (int shift = -6; shift <= 3; ++shift) {
        const QString before(65536 + shift, u'x');
        const QStringList lines = {before, u"ü€ö"_s, QString(70000, u'ä'), u""_s, u"last"_s};
        EXPECT_EQ(linesOf(write(lines.join(u"\r\n"_s).toUtf8())), lines) << shift;
    }
}

TEST_F(ImportFileTest, FilesThatCannotBeReadAreNamedWithTheReason)
{
    const auto refusal = [](const QString &path) {
        EXPECT_FALSE(attempt([&] { ImportFile file(path); }));
        EXPECT_EQ(currentError().number, FileAccessError);
        EXPECT_TRUE(currentError().description.contains(path)) << currentError().description.toStdString();
        return currentError().description;
    };
    EXPECT_TRUE(refusal(path(QString())).contains(u"folder"));
    EXPECT_GT(refusal(path(u"vanished.txt"_s)).size(), path(u"vanished.txt"_s).size() + 40);
    EXPECT_TRUE(refusal(write("\xef\xbb\xbfM\xfcller")).contains(u"UTF-8"));
    QFile gigantic(path(u"gigantic.txt"_s));
    ASSERT_TRUE(gigantic.open(QIODevice::WriteOnly) && gigantic.resize(512 * 1024 * 1024 + 1)); // sparse
    EXPECT_TRUE(refusal(gigantic.fileName()).endsWith(u"It is larger than 512 MB. Import it in parts."));
}
