// Writes what the fuzzers start from: make-seeds CASES OUT

#include "base/error.h"
#include "casefile.h"
#include "platform/jet/connection.h"
#include "platform/jet/sqlitesetup.h"
#include "platform/jet/storefile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <sqlite3.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throwError(53, "File not found: "_L1 + path);
    return file.readAll();
}

class Seeds final
{
public:
    explicit Seeds(const QString &folder) : m_folder(folder) { m_folder.mkpath(u"."_s); }

    void add(const QByteArray &content)
    {
        QFile file(m_folder.filePath(QString::number(++m_count)));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            throwError(75, "Path/File access error: "_L1 + file.fileName());
    }

private:
    QDir m_folder;
    int m_count = 0;
};

/// Each statement for the translator, each case for the executor, and their words.
void writeStatements(const QString &cases, const QString &out)
{
    static const QRegularExpression wordPattern(u"[A-Za-z_][A-Za-z_0-9]+"_s);
    Seeds statements(out + "/translate"_L1);
    Seeds runs(out + "/execute"_L1);
    QSet<QString> words;
    for (QDirIterator at(cases, {u"*.test"_s}, QDir::Files, QDirIterator::Subdirectories); at.hasNext();) {
        for (const casefile::Case &testCase : casefile::parse(QString::fromUtf8(contentOf(at.next())))) {
            QByteArray all;
            for (const casefile::Step &step : testCase.steps) {
                statements.add(step.sql.toUtf8());
                all += step.sql.toUtf8() + '\n';
                for (auto word = wordPattern.globalMatch(step.sql); word.hasNext();)
                    words.insert(word.next().captured());
            }
            runs.add(all.chopped(1));
        }
    }
    QFile dictionary(out + "/words"_L1);
    if (!dictionary.open(QIODevice::WriteOnly))
        throwError(75, "Path/File access error: "_L1 + dictionary.fileName());
    for (const QString &word : words)
        dictionary.write('"' + word.toUtf8() + "\"\n");
}

/// A store of a few small pages: the fewer bytes, the more of them count.
QByteArray smallPages(const QString &path, const QStringList &statements)
{
    jet::createDatabase(path);
    {
        jet::Connection connection;
        connection.open(jet::connectionString(path));
        for (const QString &statement : statements)
            connection.execute(statement);
        connection.close();
    }
    sqlite3 *handle = nullptr;
    sqlite3_open(path.toUtf8().constData(), &handle);
    jet::registerDialect(handle);
    const int result = sqlite3_exec(handle, "PRAGMA page_size = 512; VACUUM", nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    if (result != SQLITE_OK)
        throwError(75, "Path/File access error: "_L1 + path);
    const QByteArray content = contentOf(path);
    QFile::remove(path);
    return content;
}

void writeStores(const QString &out)
{
    Seeds stores(out + "/open"_L1);
    const QString path = out + "/store.mdb"_L1;
    QStringList statements = {
        u"CREATE TABLE Tbl_Rooms (ID COUNTER PRIMARY KEY, RoomNumber TEXT, Description TEXT)"_s,
        u"CREATE INDEX IDX_Rooms_RoomNumber ON Tbl_Rooms (RoomNumber)"_s,
    };
    stores.add(smallPages(path, {}));
    stores.add(smallPages(path, statements));
    statements.append(
        u"CREATE TABLE Tbl_HW (ID COUNTER PRIMARY KEY, Seen DATETIME, EUCD YESNO, Price DOUBLE)"_s);
    for (int room = 0; room < 40; ++room)
        statements.append("INSERT INTO Tbl_Rooms (RoomNumber, Description) VALUES ('A-"_L1 +
                          QString::number(room * 37 % 40) + "', 'Front')"_L1);
    statements.append("UPDATE Tbl_Rooms SET Description = '"_L1 + QString(2000, u'x') + "' WHERE ID = 7"_L1);
    statements.append(u"INSERT INTO Tbl_HW (Seen, EUCD, Price) VALUES (#3/4/2005#, True, 1.5)"_s);
    stores.add(smallPages(path, statements));
    statements.append(u"DELETE FROM Tbl_Rooms WHERE ID > 10"_s);
    stores.add(smallPages(path, statements));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    try {
        const QString out = QString::fromLocal8Bit(argv[2]);
        writeStatements(QString::fromLocal8Bit(argv[1]), out);
        writeStores(out);
        return 0;
    } catch (const Error &error) {
        fprintf(stderr, "make-seeds: %s\n", error.what());
        return 1;
    }
}
