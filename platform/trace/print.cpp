#include "trace/print.h"

#include <algorithm>
#include <string.h>
#include <string_view>
#include <time.h>

#include "trace/format.h"

namespace inv::trace
{

namespace
{

// Length of the well-formed UTF-8 character at the text's start; 0: there is none.
size_t character_length(std::string_view text)
{
    const auto octet = [text](size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const auto continues = [octet](size_t i) { return (octet(i) & 0xC0) == 0x80; };
    const unsigned first = octet(0);
    const unsigned second = octet(1);
    if (first < 0x80)
        return 1;
    if (!continues(1))
        return 0;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    // What shorter characters could say, surrogates and what is beyond the last character are no UTF-8.
    if ((first & 0xF0) == 0xE0)
        return continues(2) && (first != 0xE0 || second >= 0xA0) && (first != 0xED || second < 0xA0) ? 3 : 0;
    const bool is_in_range = (first == 0xF0 && second >= 0x90) || (first > 0xF0 && first < 0xF4) ||
                             (first == 0xF4 && second < 0x90);
    return is_in_range && continues(2) && continues(3) ? 4 : 0;
}

// Of a character, or of an octet that belongs to none: many terminals take U+0080 to U+009F for controls,
// and some octets of these numbers.
bool is_control(std::string_view character)
{
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 2)
        return first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
    return character.size() == 1 && (first < 0x20 || (first >= 0x7F && first < 0xA0));
}

// Makes a dot of each control character. Returns the length that is left.
size_t replace_controls(char *text, size_t length)
{
    size_t written = 0;
    for (size_t at = 0; at < length;) {
        const std::string_view rest(text + at, length - at);
        const std::string_view character = rest.substr(0, std::max(character_length(rest), size_t{1}));
        at += character.size();
        if (is_control(character)) {
            text[written++] = '.';
        } else {
            memmove(text + written, character.data(), character.size());
            written += character.size();
        }
    }
    return written;
}

}  // namespace

void print_record(FILE *to, const record &from)
{
    char text[max_line];
    size_t length = format_record(from, text);
    if (length != 0 && text[length - 1] == '\n')
        --length;
    text[replace_controls(text, length)] = '\0';
    auto seconds = static_cast<time_t>(from.header.time / 1'000'000'000u);
    auto microseconds = static_cast<unsigned>(from.header.time % 1'000'000'000u / 1000u);
    tm date{};
    gmtime_r(&seconds, &date);
    char stamp[32];
    strftime(stamp, sizeof stamp, "%Y-%m-%dT%H:%M:%S", &date);
    fprintf(to, "%s.%06uZ [%u] %u: %s\n", stamp, microseconds, from.header.thread, from.header.id, text);
}

}  // namespace inv::trace
