#include "console.h"

#include "base/error.h"
#include "jsonlines.h"
#include "platform/jet/connection.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "sample/sampledata.h"
#include "store/storecheck.h"
#include "store/storefile.h"

#include <istream>
#include <ostream>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostSampleUsers = 1'000'000;

constexpr auto usage = "usage: kelvane-store create PATH [--sample USERS]\n"
                       "       kelvane-store sql PATH    one statement a line from standard input,\n"
                       "                                 one JSON object a statement to standard output\n"
                       "       kelvane-store check PATH  tells what is wrong with the store, a line each\n";

int refuseUsage(Console &console, const QString &reason)
{
    console.complaints << "kelvane-store: " << reason.toStdString() << '\n' << usage;
    return ExitUsage;
}

int refuse(Console &console, const Error &error)
{
    console.complaints << "kelvane-store: " << error.what() << '\n';
    return ExitRefused;
}

int create(const QStringList &arguments, Console &console)
{
    try {
        if (arguments.size() == 1) {
            createStore(arguments[0]);
            return ExitDone;
        }
        if (arguments.size() != 3 || arguments[1] != "--sample"_L1)
            return refuseUsage(console, u"create takes a path and, if wanted, --sample with a number"_s);
        bool isNumber = false;
        const int users = arguments[2].toInt(&isNumber);
        if (!isNumber || users < 0 || users > mostSampleUsers)
            return refuseUsage(console, "--sample takes a number from 0 to "_L1 +
                                            QString::number(mostSampleUsers) + ", not '"_L1 + arguments[2] +
                                            u'\'');
        createSampleStore(arguments[0], users);
        return ExitDone;
    } catch (const Error &error) {
        return refuse(console, error);
    }
}

/// Characters of another encoding would be lost in the store without a word.
QString decoded(const std::string &line)
{
    if (!QUtf8StringView(line).isValidUtf8())
        throwError(jet::SyntaxError, u"The statement is no valid UTF-8."_s);
    return QString::fromStdString(line);
}

/// Whoever asks no further for now must find the store written and free.
void flushBeforeWaiting(Console &console)
{
    if (console.in.rdbuf()->in_avail() <= 0)
        jet::commitPendingWrites();
}

/// Whether the statement was accepted.
bool answer(const std::string &statement, jet::Connection &connection, Console &console)
{
    std::ostream &out = console.out;
    bool accepted = true;
    try {
        jet::Recordset rows;
        try {
            rows.open(decoded(statement), connection);
        } catch (const Error &) {
            flushBeforeWaiting(console);
            throw;
        }
        flushBeforeWaiting(console);
        if (rows.state() == jet::StateOpen)
            jsonlines::writeRows(out, rows);
        else
            jsonlines::writeDone(out);
    } catch (const Error &error) {
        jsonlines::writeError(out, error);
        accepted = false;
    }
    out.flush();
    return accepted;
}

int sql(const QStringList &arguments, Console &console)
{
    if (arguments.size() != 1)
        return refuseUsage(console, u"sql takes one path"_s);
    jet::Connection connection;
    try {
        connection.open(jet::connectionString(arguments[0]));
    } catch (const Error &error) {
        return refuse(console, error);
    }
    int status = ExitDone;
    for (std::string line; std::getline(console.in, line);) {
        const bool isBlank = line.find_first_not_of(" \t\r") == std::string::npos;
        if (!isBlank && !answer(line, connection, console))
            status = ExitRefused;
    }
    try {
        connection.close();
    } catch (const Error &error) {
        return refuse(console, error);
    }
    return status;
}

int check(const QStringList &arguments, Console &console)
{
    if (arguments.size() != 1)
        return refuseUsage(console, u"check takes one path"_s);
    try {
        const QStringList findings = checkStore(arguments[0]);
        for (const QString &finding : findings)
            console.out << finding.toStdString() << '\n';
        if (findings.isEmpty())
            console.out << "The store is in order.\n";
        return findings.isEmpty() ? ExitDone : ExitFindings;
    } catch (const Error &error) {
        refuse(console, error);
        return ExitUnreadable;
    }
}

} // namespace

int runCommand(const QStringList &arguments, Console &console)
{
    if (arguments.isEmpty())
        return refuseUsage(console, u"a command is missing"_s);
    if (arguments == QStringList{u"--help"_s} || arguments == QStringList{u"-h"_s}) {
        console.out << usage;
        return ExitDone;
    }
    if (arguments[0] == "create"_L1 && arguments.size() > 1)
        return create(arguments.mid(1), console);
    if (arguments[0] == "sql"_L1)
        return sql(arguments.mid(1), console);
    if (arguments[0] == "check"_L1)
        return check(arguments.mid(1), console);
    return refuseUsage(console, arguments[0] == "create"_L1
                                    ? u"create takes a path"_s
                                    : "there is no command '"_L1 + arguments[0] + u'\'');
}
