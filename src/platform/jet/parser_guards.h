#pragma once

#include "platform/jet/errortexts.h"
#include "platform/jet/parser.h"

namespace jet {

/// Statements nest only as deep as the stack bears.
class DepthGuard final
{
public:
    explicit DepthGuard(Parser &parser) : m_parser(parser)
    {
        constexpr int deepest = 200;
        if (++parser.m_depth > deepest)
            parser.failTooComplex();
    }
    ~DepthGuard() { --m_parser.m_depth; }
    DepthGuard(const DepthGuard &) = delete;
    DepthGuard &operator=(const DepthGuard &) = delete;

private:
    Parser &m_parser;
};

/// Names the clause that a syntax error is reported in.
class ClauseGuard final
{
public:
    ClauseGuard(Parser &parser, std::string_view clause)
        : m_parser(parser)
        , m_clause(parser.m_clause)
        , m_start(parser.m_expressionStart)
    {
        parser.m_clause = clause;
        parser.m_expressionStart = std::string_view::npos;
    }
    ~ClauseGuard()
    {
        m_parser.m_clause = m_clause;
        m_parser.m_expressionStart = m_start;
    }
    ClauseGuard(const ClauseGuard &) = delete;
    ClauseGuard &operator=(const ClauseGuard &) = delete;

private:
    Parser &m_parser;
    std::string_view m_clause;
    std::size_t m_start;
};

} // namespace jet
