#include "trace/print.h"

#include <time.h>

#include "trace/format.h"

namespace inv::trace
{

void print_record(FILE *to, const record &from)
{
    char text[max_line];
    size_t length = format_record(from, text);
    if (length != 0 && text[length - 1] == '\n')
        text[--length] = '\0';
    for (size_t i = 0; i < length; ++i) {
        auto octet = static_cast<unsigned char>(text[i]);
        if (octet < 0x20 || octet == 0x7F)
            text[i] = '.';
    }
    auto seconds = static_cast<time_t>(from.header.time / 1'000'000'000u);
    auto microseconds = static_cast<unsigned>(from.header.time % 1'000'000'000u / 1000u);
    tm date{};
    gmtime_r(&seconds, &date);
    char stamp[32];
    strftime(stamp, sizeof stamp, "%Y-%m-%dT%H:%M:%S", &date);
    fprintf(to, "%s.%06uZ [%u] %u: %s\n", stamp, microseconds, from.header.thread, from.header.id, text);
}

}  // namespace inv::trace
