// White space as XML has it.
#ifndef PLATFORM_XML_CHARACTERS_H
#define PLATFORM_XML_CHARACTERS_H

#include <string_view>

namespace inv::xml
{

constexpr std::string_view white_space = " \t\r\n";

constexpr bool is_white_space(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// The text without white space at its ends.
constexpr std::string_view collapsed(std::string_view text)
{
    size_t first = text.find_first_not_of(white_space);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(white_space) - first + 1);
}

}  // namespace inv::xml

#endif
