#pragma once

#include "platform/jet/connection.h"
#include "platform/jet/database.h"
#include "support/freshstore.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>
#include <sys/wait.h>
#include <unistd.h>

/// A new store in a folder of its own, and a connection to it.
class OpenStore : public testing::Test
{
protected:
    OpenStore()
    {
        makeFreshStore(path);
        connection.open(jet::connectionString(path));
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("plan.mdb"));
    jet::Connection connection;
};

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

/// "ok", or what is wrong with the file.
inline std::string integrityOf(const jet::Connection &connection)
{
    std::string said;
    sqlite3_exec(
        connection.database().handle(), "PRAGMA integrity_check",
        [](void *text, int, char **columns, char **) {
            *static_cast<std::string *>(text) += columns[0];
            return 0;
        },
        &said, nullptr);
    return said;
}

/// What a process of its own returns from the work, or -1 when it crashes or does not end.
template <typename Work>
[[nodiscard]] int inAnotherProcess(const Work &work)
{
    constexpr unsigned patience = 60; // seconds
    const pid_t child = fork();
    if (child == 0) {
        alarm(patience);
        _exit(work());
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
