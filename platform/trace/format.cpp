#include "trace/format.h"

#include <stdio.h>
#include <string.h>

namespace inv::trace
{

namespace
{

constexpr const char *mismatch = "<?>";
constexpr int max_width = 255;

struct line_writer {
    char *text;
    size_t used;
};

struct argument_reader {
    const char *kinds;
    const uint8_t *values;
};

struct argument {
    char kind;  // NUL: there was none left
    uint64_t number;
    const char *text;
    uint16_t text_length;
};

// What stands between % and the end of a conversion.
struct conversion {
    bool left_aligned;
    bool zero_filled;
    bool is_long;
    int width;
    char letter;  // NUL when the format ends early
};

void append(line_writer &line, const char *text, size_t length)
{
    size_t room = max_line - 1 - line.used;
    length = length < room ? length : room;
    memcpy(line.text + line.used, text, length);
    line.used += length;
}

template <typename value_type>
value_type take(argument_reader &from)
{
    value_type value;
    memcpy(&value, from.values, sizeof value);
    from.values += sizeof value;
    return value;
}

argument next_argument(argument_reader &from)
{
    argument result{};
    result.kind = *from.kinds;
    if (result.kind == '\0')
        return result;
    ++from.kinds;
    if (result.kind == 'd') {
        result.number = take<uint32_t>(from);
    } else if (result.kind == 'D') {
        result.number = take<uint64_t>(from);
    } else {
        result.text_length = take<uint16_t>(from);
        if (result.text_length != null_text) {
            result.text = reinterpret_cast<const char *>(from.values);
            from.values += result.text_length;
        }
    }
    return result;
}

// Parses the conversion behind a % and returns what follows it.
const char *parse_conversion(const char *format, conversion &out)
{
    out = {};
    for (; *format == '-' || *format == '0'; ++format)
        (*format == '-' ? out.left_aligned : out.zero_filled) = true;
    for (; *format >= '0' && *format <= '9'; ++format)
        if (out.width <= max_width)
            out.width = out.width * 10 + (*format - '0');
    out.width = out.width < max_width ? out.width : max_width;
    for (; *format == 'l'; ++format)
        out.is_long = true;
    out.letter = *format;
    return out.letter == '\0' ? format : format + 1;
}

// True when the conversion asks for what the argument is.
bool agrees(const conversion &wanted, char kind)
{
    switch (wanted.letter) {
    case 's':
        return kind == 's' && !wanted.is_long;
    case 'p':
        return kind == 'D' && !wanted.is_long;
    case 'd':
    case 'u':
    case 'x':
        return kind == (wanted.is_long ? 'D' : 'd');
    default:
        return false;
    }
}

int print_number(char *out, size_t size, const conversion &how, const argument &value)
{
    int width = how.left_aligned ? -how.width : how.width;
    bool zero_filled = how.zero_filled && !how.left_aligned;
    auto number = static_cast<unsigned long long>(value.number);
    if (how.letter == 'x')
        return snprintf(out, size, zero_filled ? "%0*llx" : "%*llx", width, number);
    if (how.letter == 'u')
        return snprintf(out, size, zero_filled ? "%0*llu" : "%*llu", width, number);
    auto signed_number = value.kind == 'd' ? static_cast<int32_t>(static_cast<uint32_t>(value.number))
                                           : static_cast<long long>(value.number);
    return snprintf(out, size, zero_filled ? "%0*lld" : "%*lld", width, signed_number);
}

void append_argument(line_writer &line, const conversion &how, const argument &value)
{
    char field[QTRACE_MAX_TEXT + max_width + 1];
    int width = how.left_aligned ? -how.width : how.width;
    int length = 0;
    if (how.letter == 's' && value.text == nullptr)
        length = snprintf(field, sizeof field, "%*s", width, "(null)");
    else if (how.letter == 's')
        length =
            snprintf(field, sizeof field, "%*.*s", width, static_cast<int>(value.text_length), value.text);
    else if (how.letter == 'p')
        length = snprintf(field, sizeof field, "%*p", width, reinterpret_cast<void *>(value.number));
    else
        length = print_number(field, sizeof field, how, value);
    if (length > 0)
        append(line, field, static_cast<size_t>(length));
}

}  // namespace

size_t format_record(const record &from, char (&text)[max_line])
{
    line_writer line{text, 0};
    argument_reader arguments{from.header.kinds, from.values};
    const char *format = from.header.format;
    while (*format != '\0') {
        size_t plain = strcspn(format, "%");
        append(line, format, plain);
        format += plain;
        if (*format == '\0')
            break;
        conversion how;
        format = parse_conversion(format + 1, how);
        if (how.letter == '%') {
            append(line, "%", 1);
            continue;
        }
        argument value = next_argument(arguments);
        if (agrees(how, value.kind))
            append_argument(line, how, value);
        else
            append(line, mismatch, strlen(mismatch));
    }
    text[line.used] = '\0';
    return line.used;
}

}  // namespace inv::trace
