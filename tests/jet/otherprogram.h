#pragma once

#include "base/error.h"
#include "platform/jet/connection.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

/// Another program on the same store: a child that holds what it has written back until told.
class OtherProgram final
{
public:
    explicit OtherProgram(const QString &path,
                          const QStringList &statements = {
                              QStringLiteral("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('theirs')")})
    {
        if (pipe(m_ready) != 0 || pipe(m_go) != 0)
            throw std::runtime_error("no pipe");
        m_process = fork();
        if (m_process == 0)
            _exit(run(path, statements));
        char byte = 0;
        EXPECT_EQ(read(m_ready[0], &byte, 1), 1);
    }
    ~OtherProgram()
    {
        finish();
        for (const int end : {m_ready[0], m_ready[1], m_go[0], m_go[1]})
            close(end);
    }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    [[nodiscard]] pid_t process() const { return m_process; }

    /// Lets it close its connection and waits for its end.
    void finish()
    {
        if (m_process <= 0)
            return;
        EXPECT_EQ(write(m_go[1], "x", 1), 1);
        int status = 0;
        waitpid(m_process, &status, 0);
        EXPECT_EQ(status, 0);
        m_process = 0;
    }

private:
    int run(const QString &path, const QStringList &statements)
    {
        try {
            jet::Connection connection;
            connection.open(jet::connectionString(path));
            for (const QString &statement : statements)
                connection.execute(statement);
            char byte = 'r';
            if (write(m_ready[1], &byte, 1) != 1 || read(m_go[0], &byte, 1) != 1)
                return 2;
            connection.close();
            return 0;
        } catch (const Error &) {
            return 1;
        }
    }

    int m_ready[2] = {};
    int m_go[2] = {};
    pid_t m_process = 0;
};
