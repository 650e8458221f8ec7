#define TOML_IMPLEMENTATION
#include "platform/posix/toml.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace
{
/// Every dot may put a table into another one, and each of them takes its piece of the stack when they are destroyed.
constexpr auto MOST_DOTS = 3000;
}

void ThrowDamagedToml()
{
    throw std::runtime_error("damaged TOML");
}

std::optional<toml::table> ParseToml(std::string_view text)
{
    if (std::count(text.begin(), text.end(), '.') > MOST_DOTS)
        return std::nullopt;
    try {
        return toml::parse(text);
    } catch (const std::runtime_error&) { // the library's own errors are of this kind too
        return std::nullopt;
    }
}

std::string FormatToml(const toml::table& table)
{
    // Neither literal nor multi-line strings: both drop bytes.
    constexpr auto flags = toml::format_flags::allow_unicode_strings | toml::format_flags::allow_binary_integers |
                           toml::format_flags::allow_octal_integers | toml::format_flags::allow_hexadecimal_integers;
    std::ostringstream text;
    text.exceptions(std::ios::badbit); // or a lack of memory would cut the text short
    text << toml::toml_formatter(table, flags) << "\n";
    return text.str();
}
