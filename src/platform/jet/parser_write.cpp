#include "platform/jet/errortexts.h"
#include "platform/jet/parser.h"
#include "platform/jet/parser_guards.h"

namespace jet {

Insert Parser::insert()
{
    const ClauseGuard clause(*this, "INSERT INTO statement");
    expect("INTO");
    Insert insert;
    insert.table = identifier();
    if (at("(") && !at("SELECT", 1)) {
        take();
        do {
            if (atIdentifier() && at(".", 1)) {
                if (!sameName(peek().text, insert.table))
                    fail();
                m_at += 2;
            }
            insert.columns.push_back(identifier());
        } while (accept(","));
        expect(")");
    }
    if (accept("VALUES")) {
        expect("(");
        do
            insert.values.push_back(clauseExpression());
        while (accept(","));
        expect(")");
        if (at(","))
            failAt("Missing semicolon (;) at end of SQL statement", peek());
    } else if (at("SELECT") || at("TABLE") || at("("))
        insert.query = query();
    expectEndOfClause();
    if (insert.values.empty() && !insert.query)
        fail();
    return insert;
}

Update Parser::update()
{
    const ClauseGuard clause(*this, "UPDATE statement");
    Update update;
    update.sources = sources();
    expect("SET");
    do {
        Assignment assignment;
        const std::size_t start = peek().offset;
        assignment.column = make(ExpressionKind::Column, start);
        assignment.column->name = identifier();
        if (accept(".") || accept("!")) {
            assignment.column->qualifier = assignment.column->name;
            assignment.column->name = identifier();
        }
        assignment.column->text = textFrom(start);
        expect("=");
        assignment.value = clauseExpression();
        update.assignments.push_back(std::move(assignment));
    } while (accept(","));
    if (accept("WHERE")) {
        const ClauseGuard where(*this, "WHERE clause");
        update.where = clauseExpression();
    }
    expectEndOfClause();
    return update;
}

Delete Parser::deleteRows()
{
    const ClauseGuard clause(*this, "DELETE statement");
    Delete statement;
    accept("DISTINCTROW");
    if (!accept("*") && atIdentifier()) {
        statement.starOf = identifier();
        expect(".");
        expect("*");
    }
    expect("FROM");
    {
        const ClauseGuard from(*this, "FROM clause");
        statement.sources = sources();
    }
    if (accept("WHERE")) {
        const ClauseGuard where(*this, "WHERE clause");
        statement.where = clauseExpression();
    }
    expectEndOfClause();
    return statement;
}

Statement Parser::create()
{
    if (accept("TABLE"))
        return createTable();
    const bool unique = accept("UNIQUE");
    if (accept("INDEX"))
        return createIndex(unique);
    fail();
}

CreateTable Parser::createTable()
{
    const ClauseGuard clause(*this, "CREATE TABLE statement");
    CreateTable table;
    table.table = identifier();
    expect("(");
    do {
        if (at("CONSTRAINT") || at("PRIMARY")) {
            if (accept("CONSTRAINT"))
                identifier();
            expectPrimaryKey(table);
            expect("(");
            do
                table.primaryKey.push_back(identifier());
            while (accept(","));
            expect(")");
        } else
            table.columns.push_back(columnDefinition(table));
    } while (accept(","));
    expect(")");
    expectEndOfClause();
    return table;
}

void Parser::expectPrimaryKey(const CreateTable &table)
{
    const Token word = peek();
    expect("PRIMARY");
    expect("KEY");
    if (!table.primaryKey.empty())
        failAt("Primary key already exists", word);
}

ColumnDefinition Parser::columnDefinition(CreateTable &table)
{
    ColumnDefinition column;
    column.name = identifier();
    const Token word = peek();
    column.type.type = word.kind == TokenKind::Name ? typeByName(word.text) : DataType::Unknown;
    if (column.type.type == DataType::Unknown)
        fail();
    take();
    if (isText(column.type.type) && at("(")) {
        take();
        const Token width = peek();
        if (width.kind != TokenKind::Integer)
            fail();
        const double characters = m_literals[std::size_t(width.literal)].number;
        if (characters < 1 || characters > widestText)
            failAt("Size of field '" + std::string(column.name) + "' is too " +
                       (characters < 1 ? "short" : "long"),
                   width);
        take();
        expect(")");
        column.type = {DataType::Text, static_cast<int>(characters)};
    }
    for (;;) {
        if (at("NOT") && at("NULL", 1)) {
            m_at += 2;
            column.notNull = true;
        } else if (at("PRIMARY")) {
            expectPrimaryKey(table);
            table.primaryKey.push_back(column.name);
        } else if (accept("UNIQUE"))
            column.unique = true;
        else
            return column;
    }
}

CreateIndex Parser::createIndex(bool unique)
{
    const ClauseGuard clause(*this, "CREATE INDEX statement");
    CreateIndex index;
    index.unique = unique;
    index.index = identifier();
    expect("ON");
    index.table = identifier();
    expect("(");
    do {
        IndexedColumn column{.name = identifier()};
        column.descending = accept("DESC");
        if (!column.descending)
            accept("ASC");
        index.columns.push_back(column);
    } while (accept(","));
    expect(")");
    expectEndOfClause();
    return index;
}

Statement Parser::drop()
{
    const ClauseGuard clause(*this, "DROP TABLE or DROP INDEX");
    if (accept("TABLE")) {
        const DropTable table{identifier()};
        expectEndOfClause();
        return table;
    }
    expect("INDEX");
    DropIndex index;
    index.index = identifier();
    expect("ON");
    index.table = identifier();
    expectEndOfClause();
    return index;
}

} // namespace jet
