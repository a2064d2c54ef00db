// What the tests of the trace channel share.
#ifndef TESTS_PLATFORM_TRACE_SUPPORT_H
#define TESTS_PLATFORM_TRACE_SUPPORT_H

#include <cstdint>
#include <string>
#include <vector>

#include "inv_platform/trace.h"

struct trace_line {
    uint32_t id;
    std::string text;

    bool operator==(const trace_line &) const = default;
};

inline std::vector<trace_line> read_lines(void *channel)
{
    std::vector<trace_line> lines;
    auto keep = [](void *user, uint32_t id, const char *text) {
        static_cast<std::vector<trace_line> *>(user)->push_back({id, text});
    };
    uint32_t count = qtrace_read(channel, keep, &lines);
    if (count != lines.size())
        lines.push_back({count, "qtrace_read() counted wrong"});
    return lines;
}

// Channels cannot be closed; LeakSanitizer finds them through the list the platform keeps.
inline void *open_channel(uint32_t buffer_size = 1024000)
{
    void *channel = nullptr;
    qtrace_open_internal(&channel, "test", buffer_size, 259, "./buffer", "0123456789abcdef", 0);
    return channel;
}

#endif
