// Lexer, parser and emitter: any text is refused or becomes SQL that SQLite takes.

#include "base/error.h"
#include "fuzzkit.h"
#include "platform/jet/connection.h"
#include "platform/jet/database.h"
#include "platform/jet/parser.h"

using namespace Qt::StringLiterals;

namespace {

jet::Database &database()
{
    static jet::Connection connection;
    if (connection.state() == jet::StateClosed) {
        const QString path = fuzz::temporaryPath(u"store.mdb"_s);
        fuzz::putFile(path, fuzz::smallStore());
        connection.open(jet::connectionString(path));
    }
    return connection.database();
}

bool same(const jet::Literal &left, const jet::Literal &right)
{
    return left.kind == right.kind && left.text == right.text && left.quote == right.quote;
}

// A prepared statement is found by the shape and gets the lifted literals: both readers of a
// statement must see the same ones.
void compareLiterals(const std::vector<jet::Literal> &lifted, const std::vector<jet::Literal> &parsed)
{
    if (!std::equal(lifted.begin(), lifted.end(), parsed.begin(), parsed.end(), same))
        fuzz::fault(u"the lifted literals are others than the parsed ones"_s);
}

void compile(const std::string &sql)
{
    sqlite3_stmt *statement = nullptr;
    sqlite3 *handle = database().handle();
    const int result =
        sqlite3_prepare_v2(handle, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
    const jet::StatementHandle owner(statement);
    const QString message = QString::fromUtf8(sqlite3_errmsg(handle));
    // What remains is beyond a limit of SQLite, or raised by a function of constant arguments.
    if (result == SQLITE_ERROR && (message.contains("syntax error"_L1) || message.startsWith("no such"_L1) ||
                                   message.startsWith("ambiguous"_L1) || message.startsWith("misuse"_L1) ||
                                   message.startsWith("wrong number"_L1) || message.contains("token"_L1)))
        fuzz::fault(message + " in "_L1 + QString::fromStdString(sql));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size)).toUtf8();
    const std::string_view view(text.constData(), std::size_t(text.size()));
    fuzz::mayBeRefused([&] {
        jet::LiftedStatement lifted;
        jet::liftLiterals(view, lifted);
        jet::Parser parser(view);
        const jet::Statement tree = parser.parse();
        compareLiterals(lifted.literals, parser.literals());
        const jet::EmittedStatement emitted =
            jet::Emitter(database().catalog(), parser.literals()).emit(tree);
        if (emitted.before.empty())
            compile(emitted.sql);
    });
    return 0;
}
