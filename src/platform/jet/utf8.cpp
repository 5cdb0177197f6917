#include "platform/jet/utf8.h"

namespace jet::utf8 {

bool isAscii(std::string_view text)
{
    unsigned char all = 0;
    for (const char c : text)
        all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}

std::size_t length(std::string_view text)
{
    if (isAscii(text))
        return text.size();
    std::size_t count = 0;
    for (const char *at = text.data(), *end = at + text.size(); at != end; ++count)
        (void)next(at, end);
    return count;
}

std::size_t offset(std::string_view text, std::size_t characters)
{
    const char *at = text.data();
    const char *const end = at + text.size();
    while (characters > 0 && at != end) {
        (void)next(at, end);
        --characters;
    }
    return std::size_t(at - text.data());
}

} // namespace jet::utf8
