#pragma once

#include "platform/jet/types.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The tree of a statement as the parser builds it. Texts are pieces of the statement.
namespace jet {

struct Query;
struct Expression;
using ExpressionPtr = std::unique_ptr<Expression>;
using QueryPtr = std::unique_ptr<Query>;

enum class ExpressionKind {
    Literal, ///< `literal`
    Null,
    Boolean,     ///< `number`: -1 or 0
    Column,      ///< `qualifier` . `name`
    Negate,      ///< - a
    Not,         ///< Not a
    BitNot,      ///< BNot a
    Arithmetic,  ///< a `name` b: + - * / \ Mod ^ and the bitwise words
    Concatenate, ///< a & b & ...
    Compare,     ///< a `name` b
    Quantified,  ///< a `name` ANY or ALL (query)
    Logic,       ///< a `name` b: Xor, Eqv, Imp; a And b And ..., a Or b Or ...
    Like,        ///< a Like b
    Between,     ///< a Between b And c
    InList,      ///< a In (b, c, ...)
    InQuery,     ///< a In (query)
    IsNull,      ///< a Is Null
    Exists,      ///< Exists (query)
    Scalar,      ///< (query)
    Call,        ///< `name` (a, b, ...)
    CountRows,   ///< Count(*)
    Identity,    ///< @@IDENTITY
};

struct Expression
{
    ExpressionKind kind = ExpressionKind::Null;
    std::string_view name;
    std::string_view qualifier;
    std::vector<ExpressionPtr> arguments;
    QueryPtr query;
    int literal = -1;
    int number = 0;
    int depth = 0;          ///< of the tree below, sub-queries left out
    bool negated = false;   ///< Not Like, Not In, Not Between, Is Not Null
    bool all = false;       ///< ALL instead of ANY
    bool bracketed = false; ///< a name in brackets is never a constant
    std::string_view text;  ///< the whole expression as it was typed
};

struct SelectItem
{
    ExpressionPtr expression; ///< null for a star
    std::string_view alias;
    std::string_view starOf; ///< the table of t.*
};

struct OrderItem
{
    ExpressionPtr expression;
    bool descending = false;
};

enum class JoinKind { Inner, Left, Right, Cross };

/// A table, a query in parentheses or a join of two sources.
struct Source
{
    std::string_view table;
    std::string_view alias;
    QueryPtr query;
    JoinKind join = JoinKind::Inner;
    std::unique_ptr<Source> left;
    std::unique_ptr<Source> right;
    ExpressionPtr on;
};

struct Select
{
    bool distinct = false;
    bool distinctRow = false;
    std::optional<int> top;
    bool percent = false;
    int topLiteral = -1;
    std::vector<SelectItem> items;
    std::string_view into;
    std::vector<std::unique_ptr<Source>> from; ///< separated by commas
    ExpressionPtr where;
    std::vector<ExpressionPtr> groupBy;
    ExpressionPtr having;
    std::vector<OrderItem> orderBy; ///< of its own, for its TOP; that of all rows stands in the query
};

/// One or more SELECTs joined by UNION.
struct Query
{
    std::vector<Select> arms;
    std::vector<bool> unionAll; ///< between arm n and n + 1
    std::vector<OrderItem> orderBy;
    std::string_view text;
};

struct Assignment
{
    ExpressionPtr column;
    ExpressionPtr value;
};

struct Insert
{
    std::string_view table;
    std::vector<std::string_view> columns;
    std::vector<ExpressionPtr> values;
    QueryPtr query;
};

struct Update
{
    std::vector<std::unique_ptr<Source>> sources; ///< separated by commas
    std::vector<Assignment> assignments;
    ExpressionPtr where;
};

struct Delete
{
    std::string_view starOf;
    std::vector<std::unique_ptr<Source>> sources; ///< separated by commas
    ExpressionPtr where;
};

struct ColumnDefinition
{
    std::string_view name;
    ColumnType type;
    bool notNull = false;
    bool unique = false;
};

struct CreateTable
{
    std::string_view table;
    std::vector<ColumnDefinition> columns;
    std::vector<std::string_view> primaryKey;
};

struct IndexedColumn
{
    std::string_view name;
    bool descending = false;
};

struct CreateIndex
{
    std::string_view index;
    std::string_view table;
    std::vector<IndexedColumn> columns;
    bool unique = false;
};

struct DropTable
{
    std::string_view table;
};

struct DropIndex
{
    std::string_view index;
    std::string_view table;
};

using Statement = std::variant<Query, Insert, Update, Delete, CreateTable, CreateIndex, DropTable, DropIndex>;

} // namespace jet
