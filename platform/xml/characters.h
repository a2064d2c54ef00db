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

// Of ASCII names.
constexpr bool is_start_of_name(char c)
{
    auto folded = static_cast<unsigned char>(c | 0x20);
    return (folded >= 'a' && folded <= 'z') || c == '_' || c == ':';
}

// The text without white space at its ends.
constexpr std::string_view collapsed(std::string_view text)
{
    while (!text.empty() && is_white_space(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_white_space(text.back()))
        text.remove_suffix(1);
    return text;
}

}  // namespace inv::xml

#endif
