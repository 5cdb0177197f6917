#include "console.h"

#include "base/error.h"
#include "jsonlines.h"
#include "platform/jet/connection.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "platform/jet/storefile.h"
#include "sample/sampledata.h"
#include "session/identity.h"
#include "session/modRegistry.h"
#include "store/relationships.h"
#include "store/storecheck.h"
#include "store/storefile.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <istream>
#include <optional>
#include <ostream>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostSampleUsers = 1'000'000;

// The lines of the help have no room for more.
constexpr auto commandsHelp = "create  makes a new store\n"
                              "sql     runs standard input, one statement a line\n"
                              "check   reports what is wrong with the store\n"
                              "use     chooses the store to open, or prints it"_L1;

/// What the arguments of a command say, apart from its name.
struct Request
{
    QString path; ///< empty when none was given
    std::optional<QString> sample;
    bool repair = false;
};

int refuseUsage(Console &console, const QString &reason)
{
    console.complaints << "kelvane-store: " << reason.toStdString() << "\nSee kelvane-store --help.\n";
    return ExitUsage;
}

int refuse(Console &console, const Error &error)
{
    console.complaints << "kelvane-store: " << error.what() << '\n';
    return ExitRefused;
}

int create(const Request &request, Console &console)
{
    bool isNumber = true;
    const int users = request.sample ? request.sample->toInt(&isNumber) : 0;
    if (!isNumber || users < 0 || users > mostSampleUsers)
        return refuseUsage(console, "--sample takes a number from 0 to "_L1 +
                                        QString::number(mostSampleUsers) + ", not '"_L1 + *request.sample +
                                        u'\'');
    try {
        if (request.sample)
            createSampleStore(request.path, users);
        else
            createStore(request.path);
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

int sql(const Request &request, Console &console)
{
    jet::Connection connection;
    try {
        connection.open(jet::connectionString(request.path));
        connection.keepDeleteRules(relationships);
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

int check(const Request &request, Console &console)
{
    try {
        if (request.repair) {
            for (const QString &sentence : repairStore(request.path))
                console.out << sentence.toStdString() << '\n';
        }
        const QStringList findings = checkStore(request.path);
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

int use(const Request &request, Console &console)
{
    if (request.path.isEmpty()) {
        const QString used = modRegistry::getDataBase();
        console.out << (used.isEmpty() ? "" : used.toStdString() + '\n');
        return used.isEmpty() ? ExitNoStore : ExitDone;
    }
    try {
        const QString path = QDir::cleanPath(QFileInfo(request.path).absoluteFilePath());
        jet::checkStoreFile(path);
        modRegistry::saveDataBase(path);
        return ExitDone;
    } catch (const Error &error) {
        return refuse(console, error);
    }
}

struct Command
{
    QLatin1StringView name;
    int (*run)(const Request &, Console &);
    bool needsPath;
    bool takesSample = false;
    bool takesRepair = false;
};

constexpr Command commands[] = {
    {.name = "create"_L1, .run = create, .needsPath = true, .takesSample = true},
    {.name = "sql"_L1, .run = sql, .needsPath = true},
    {.name = "check"_L1, .run = check, .needsPath = true, .takesRepair = true},
    {.name = "use"_L1, .run = use, .needsPath = false},
};

} // namespace

int runCommand(const QStringList &arguments, Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Makes, checks and queries the store files of Kelvane."_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Shows this help."_s);
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption sample(u"sample"_s, u"create: fills the store with a company of USERS users."_s,
                                    u"USERS"_s);
    parser.addOption(sample);
    const QCommandLineOption repair(
        u"repair"_s, u"check: first removes rows of relationships that have lost an end, after a copy."_s);
    parser.addOption(repair);
    parser.addPositionalArgument(u"COMMAND"_s, commandsHelp, u"COMMAND"_s);
    parser.addPositionalArgument(u"PATH"_s, u"the store file"_s, u"[PATH]"_s);

    if (!parser.parse(arguments))
        return refuseUsage(console, parser.errorText());
    if (parser.isSet(help)) {
        console.out << parser.helpText().toStdString();
        return ExitDone;
    }
    if (parser.isSet(version)) {
        console.out << "kelvane-store " << fullVersion().toStdString() << '\n';
        return ExitDone;
    }

    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return refuseUsage(console, u"a command is missing"_s);
    const auto *command = std::ranges::find(commands, words[0], &Command::name);
    if (command == std::end(commands))
        return refuseUsage(console, "there is no command '"_L1 + words[0] + u'\'');
    if (words.size() > 2 || (words.size() < 2 && command->needsPath))
        return refuseUsage(console, command->name + " takes one path"_L1);
    if (parser.isSet(sample) && !command->takesSample)
        return refuseUsage(console, command->name + " does not take --sample"_L1);
    if (parser.isSet(repair) && !command->takesRepair)
        return refuseUsage(console, command->name + " does not take --repair"_L1);
    Request request{.path = words.value(1), .sample = {}, .repair = parser.isSet(repair)};
    if (parser.isSet(sample))
        request.sample = parser.value(sample);
    return command->run(request, console);
}
