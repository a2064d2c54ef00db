// From texts to numbers, by XML Schema's lexical rules.
#ifndef PLATFORM_XML_VALUE_PARSERS_H
#define PLATFORM_XML_VALUE_PARSERS_H

#include "characters.h"
#include "inv_platform/xml_runtime.h"

#include <array>
#include <charconv>
#include <limits>
#include <type_traits>

namespace inv::xml
{

struct signed_text {
    bool negative;
    std::string_view magnitude;
};

inline signed_text split_sign(std::string_view text)
{
    bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    return {negative, text};
}

// The magnitude is worked out with one bit more than the type has, so that its least value fits.
template <typename Integer>
int32_t parse_integer(std::string_view text, Integer &value)
{
    auto [negative, magnitude] = split_sign(collapsed(text));
    uint64_t number = 0;
    const char *end = magnitude.data() + magnitude.size();
    auto parsed = std::from_chars(magnitude.data(), end, number);
    if (magnitude.empty() || parsed.ptr != end)
        return XB_E_BAD_INTEGER;
    auto greatest = static_cast<uint64_t>(std::numeric_limits<Integer>::max());
    const uint64_t least = std::is_signed_v<Integer> ? greatest + 1 : 0;
    const uint64_t limit = negative ? least : greatest;
    if (parsed.ec != std::errc() || number > limit)
        return XB_E_OUT_OF_RANGE;
    value = static_cast<Integer>(negative ? 0 - number : number);
    return XB_OK;
}

inline int32_t parse_boolean(std::string_view text, uint8_t &value)
{
    text = collapsed(text);
    bool is_true = text == "true" || text == "1";
    if (!is_true && text != "false" && text != "0")
        return XB_E_BAD_BOOLEAN;
    value = is_true ? 1 : 0;
    return XB_OK;
}

inline constexpr std::array<int8_t, 256> hex_digits = [] {
    std::array<int8_t, 256> table = {};
    table.fill(-1);
    for (int8_t i = 0; i < 10; ++i)
        table[static_cast<size_t>('0' + i)] = i;
    for (int8_t i = 0; i < 6; ++i)
        table[static_cast<size_t>('a' + i)] = table[static_cast<size_t>('A' + i)] =
            static_cast<int8_t>(10 + i);
    return table;
}();

inline int hex_digit(char c)
{
    return hex_digits[static_cast<unsigned char>(c)];
}

inline bool is_hexadecimal(std::string_view text)
{
    for (char c : text) {
        if (hex_digit(c) < 0)
            return false;
    }
    return text.size() % 2 == 0;
}

inline void convert_hexadecimal(std::string_view text, uint8_t *octets)
{
    for (size_t i = 0; i < text.size(); i += 2)
        octets[i / 2] = static_cast<uint8_t>(hex_digit(text[i]) << 4 | hex_digit(text[i + 1]));
}

}  // namespace inv::xml

#endif
