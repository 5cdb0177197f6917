#include "platform/jet/errormark.h"

#include <charconv>
#include <new>
#include <sqlite3.h>
#include <string>

namespace jet {
namespace {

// A message of ours is this character, the number, the same character, the text.
constexpr char numberMark = '\x01';

} // namespace

void resultError(sqlite3_context *context, int number, std::string_view text)
{
    try {
        const std::string message = numberMark + std::to_string(number) + numberMark + std::string(text);
        sqlite3_result_error(context, message.data(), int(message.size()));
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    }
}

int takeErrorNumber(std::string_view &message)
{
    if (message.empty() || message.front() != numberMark)
        return 0;
    const std::size_t end = message.find(numberMark, 1);
    int number = 0;
    if (end == std::string_view::npos ||
        std::from_chars(message.data() + 1, message.data() + end, number).ec != std::errc())
        return 0;
    message.remove_prefix(end + 1);
    return number;
}

} // namespace jet
