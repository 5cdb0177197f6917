#pragma once

#include "platform/jet/catalog.h"
#include "platform/jet/lexer.h"
#include "platform/jet/scope.h"
#include "platform/jet/tree.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace jet {

struct OutputColumn
{
    std::string name;
    ColumnType type;
    bool stored = false; ///< a column of a table as it is: within what its type takes
};

/// A statement in SQLite's words. Literal n of the statement is its parameter ?n+1.
struct EmittedStatement
{
    std::vector<std::string> before; ///< to be run first; without parameters
    std::string sql;
    std::vector<OutputColumn> columns; ///< of a query; empty for a statement that returns no rows
    bool writes = false;
    bool changesSchema = false;
    std::vector<int> pinned; ///< literals whose values shaped the SQL
};

/// Turns a tree into SQLite SQL: resolves every name against the catalog, checks types and
/// writes each operator as SQLite has to be told it. One use an object.
class Emitter final
{
public:
    Emitter(Catalog &catalog, const std::vector<Literal> &literals) : m_catalog(catalog), m_literals(literals)
    {
    }

    [[nodiscard]] EmittedStatement emit(const Statement &statement);

private:
    /// An expression in SQL.
    struct Piece
    {
        std::string sql;
        ColumnType type{};
        bool condition = false; ///< SQLite's 1 and 0, not the dialect's -1 and 0
        bool column = false;    ///< a column, which carries its collation along
        bool stored = false;    ///< a column of a table
        bool exact = false;     ///< whole and within 32 bits
        bool mayOverflow =
            false;         ///< a calculation that SQLite lets end in infinity or outside of the calendar
        char chain = '\0'; ///< '+' or '*': `sql` is a chain of these, 't': a call of jet_plus; the closing
                           ///< parenthesis is left out, so that more can follow
        std::size_t texts = 0; ///< the arguments of that call

        [[nodiscard]] std::string text() const { return chain == '\0' ? sql : sql + ')'; }
    };
    struct Output
    {
        Piece piece;
        std::string name;  ///< as the recordset will show it
        std::string table; ///< of a plain column without an alias, otherwise empty
        const Expression *expression = nullptr;
    };
    struct Rows
    {
        std::string sql;
        std::vector<OutputColumn> columns;
        bool limited = false; ///< `sql` ends with a LIMIT
    };
    /// A query of FROM, with the name it goes by there.
    struct DerivedTable
    {
        std::string rows;
        std::string name;
    };
    /// Ends what would take too much stack or time.
    class ComplexityGuard final
    {
    public:
        explicit ComplexityGuard(Emitter &emitter);
        ~ComplexityGuard() { --m_emitter.m_depth; }
        ComplexityGuard(const ComplexityGuard &) = delete;
        ComplexityGuard &operator=(const ComplexityGuard &) = delete;

    private:
        Emitter &m_emitter;
    };
    enum class Aggregates { Forbidden, Allowed, Inside };

    // emitter_select.cpp
    // Numbered rows have their columns called c0, c1 ... in place of their names, for the SQL around them.
    Rows query(const Query &query, Scope *outer, bool numbered = false);
    Rows unionOf(const Query &query, Scope *outer, bool numbered);
    static std::vector<OutputColumn> unionColumns(const std::vector<Rows> &arms);
    static std::string converted(const Rows &arm, const std::vector<OutputColumn> &columns, bool numbered);
    Rows select(const Select &select, const std::vector<OrderItem> &order, Scope *outer, bool numbered);
    std::vector<Output> outputs(const Select &select, Scope &scope);
    static void nameOutputs(std::vector<Output> &outputs);
    void checkGrouping(const Select &select, const std::vector<Output> &outputs,
                       const std::vector<OrderItem> &order, Scope &scope);
    void checkGrouped(const Expression &expression, const std::set<std::string> &keys, Scope &scope);
    std::string groupsOf(const Select &select, Scope &scope);
    bool isPosition(const OrderItem &item);
    /// The column, from 1, that the item names by its number.
    std::size_t position(const OrderItem &item, std::size_t columns);
    std::string orderKey(const OrderItem &item, const std::vector<Output> &outputs, const Select &select,
                         Scope &scope);
    std::string distinctRows(const Select &select, Scope &scope) const;
    std::string withTop(const Select &select, const std::string &rows, const std::vector<Output> &outputs,
                        const std::vector<OrderItem> &order, std::size_t keys, bool numbered) const;
    static std::string numberedName(std::size_t index);
    static std::string outputName(const Output &output, std::size_t index, bool numbered);

    // emitter_from.cpp
    void addSources(const Source &source, Scope &scope);
    void addSources(const std::vector<std::unique_ptr<Source>> &sources, Scope &scope);
    std::string from(const std::vector<std::unique_ptr<Source>> &sources, Scope &scope);
    /// Has the table or query give its row id to the text of from(), and returns its name there.
    std::string rowIdOf(const ScopeSource &source, const std::vector<std::unique_ptr<Source>> &sources,
                        Scope &scope) const;
    std::string joined(const Source &source, Scope &scope);
    std::string joinCondition(const Source &join, Scope &scope);
    void innerParts(const Source &source, Scope &scope, std::vector<std::string> &tables,
                    std::vector<std::string> &conditions);

    // emitter_expression.cpp
    Piece expression(const Expression &expression, Scope &scope);
    Piece ofKind(const Expression &expression, Scope &scope);
    static void requireBounded(std::string_view sql);
    Piece literal(const Expression &expression);
    Piece column(const Expression &expression, Scope &scope);
    static Piece columnPiece(const ScopeSource &source, const TableColumn &column);
    Piece alias(const Expression &expression, Scope &scope);
    std::string conditionIn(const Expression &source, Scope &scope);
    Piece compare(const Expression &expression, Scope &scope);
    Piece between(const Expression &expression, Scope &scope);
    Piece inList(const Expression &expression, bool negated, Scope &scope);
    std::string conditionOf(const Expression &expression, Scope &scope, std::string_view clause,
                            Aggregates aggregates = Aggregates::Forbidden);
    [[noreturn]] void raiseUnknown(const Expression &expression, const Scope &scope) const;
    void requireComparable(const Expression &expression, const Piece &left, const Piece &right) const;
    std::string fingerprint(const Expression &expression, Scope &scope);

    // emitter_operator.cpp
    Piece arithmetic(const Expression &expression, Scope &scope);
    Piece product(const Expression &expression, Scope &scope);
    Piece infix(std::string_view sign, const Piece &left, const Piece &right);
    Piece concatenate(const Expression &expression, Scope &scope);
    Piece logic(const Expression &expression, Scope &scope);
    std::string asBits(const Piece &piece);

    // emitter_subquery.cpp
    Rows singleColumn(const Expression &source, Scope &scope, bool numbered);
    Piece subquery(const Expression &expression, Scope &scope);
    Piece quantified(const Expression &expression, Scope &scope);
    Piece scalar(const Expression &expression, Scope &scope);

    // emitter_call.cpp
    static bool isAggregate(const Expression &expression);
    Piece call(const Expression &expression, Scope &scope);
    Piece aggregate(const Expression &expression, Scope &scope);
    Piece branches(const Expression &expression, Scope &scope);
    Piece function(const Expression &expression, Scope &scope);
    std::string argument(const Piece &piece, char kind);

    // emitter_write.cpp
    void write(const Query &query, EmittedStatement &result);
    void write(const Insert &insert, EmittedStatement &result);
    void write(const Update &update, EmittedStatement &result);
    void write(const Delete &statement, EmittedStatement &result);
    std::string where(const ExpressionPtr &condition, Scope &scope);
    std::string coerced(const Piece &piece, const TableColumn &column);
    std::string insertedRows(const Insert &insert, std::vector<const TableColumn *> &columns,
                             const Table &table);

    /// Of a condition in SQLite's words.
    static Piece conditionPiece(std::string sql)
    {
        return {.sql = std::move(sql), .type = {DataType::Short}, .condition = true};
    }
    static std::string value(const Piece &piece);
    static std::string condition(const Piece &piece);
    static std::string collated(const Piece &piece);
    static std::string asText(const Piece &piece);
    /// A text of whatever it is.
    static std::string writtenOut(const Piece &piece);
    static std::string as(DataType type, const Piece &piece);
    std::string asNumber(const Piece &piece);
    void pin(int literal);

    Catalog &m_catalog;
    const std::vector<Literal> &m_literals;
    Aggregates m_aggregates = Aggregates::Forbidden;
    std::string_view m_clause;
    bool m_literalsAsValues = false;
    int m_subqueries = 0;
    int m_depth = 0;
    int m_steps = 0;
    std::map<const Source *, DerivedTable> m_derivedTables;
    std::vector<int> m_pinned;
};

} // namespace jet
