#pragma once

#include "platform/jet/errors.h"
#include "platform/jet/words.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

inline constexpr std::string_view queryTooComplex = "Query is too complex.";
inline constexpr std::string_view dataTypeMismatch = "Data type mismatch in criteria expression.";
inline constexpr std::string_view notUpdatable = "Operation must use an updatable query.";

/// Raises an Error whose text is UTF-8.
[[noreturn]] void raiseError(int number, std::string_view text);

/// A piece of a statement as a message shows it: its first characters, on one line.
[[nodiscard]] std::string excerpt(std::string_view text);

/// Raises SyntaxError, or another number, with the text, and the word at the place and its
/// character position.
[[noreturn]] void raiseSyntax(std::string_view text, std::string_view statement, std::size_t offset,
                              std::size_t end, int number = SyntaxError);

/// Raises "WHAT in query expression 'EXPRESSION'."
[[noreturn]] void raiseInExpression(int number, std::string_view what, std::string_view expression);

/// " Did you mean 'NAME'?"
[[nodiscard]] std::string didYouMean(std::string_view name);

/// The name that the word may have been meant to be, empty when none is near.
[[nodiscard]] std::string_view nearest(std::string_view word, const std::vector<std::string_view> &names);

/// didYouMean() with the nearest of the names, or nothing when none is near.
[[nodiscard]] std::string suggestion(std::string_view word, const std::vector<std::string_view> &names);

/// Raises MissingTable for a table or query to read from.
[[noreturn]] void raiseMissingSource(std::string_view name, const std::vector<std::string_view> &known);

[[noreturn]] void raiseTypeMismatch(std::string_view expression, std::string_view left,
                                    std::string_view right);

} // namespace jet
