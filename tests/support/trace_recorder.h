// The trace library of the test build: keeps every line, formatted, and lets a test decide what each call
// answers. Belongs to tests declared with inv_add_test(... FAKE_PLATFORM).
#ifndef TESTS_SUPPORT_TRACE_RECORDER_H
#define TESTS_SUPPORT_TRACE_RECORDER_H

#include <cstdint>
#include <string>
#include <vector>

namespace trace_recorder
{

// One qtrace_internal() call. `text` is the formatted line with its newline.
struct line {
    uint32_t id = 0;
    uint32_t size_word = 0;
    uint32_t has_string = 0;
    std::string kinds;
    std::string text;

    bool operator==(const line &) const = default;
};

// One qtrace_open_internal() call.
struct open_call {
    std::string name;
    uint32_t buffer_size = 0;
    uint32_t flags = 0;
    std::string path;
    std::string catalogue_id;
    uint32_t zero = 0;
};

// Opens the library's channel through inv_parser_init() when it is not open, and forgets all lines.
void start();

// Puts the library back to "no channel was ever opened", answers back to success, all records forgotten.
void reset();

// Forgets the lines only.
void clear();

// Since the last clear() or reset(), oldest first.
std::vector<line> lines();
std::vector<uint32_t> ids();

// The lines as text, one "id size has_string kinds text" each, newlines within a text written \n.
// Every pointer (0x and hexadecimal digits, or (nil)) is written PTR, so that dumps can be compared.
std::string dump();

// Since the last reset().
std::vector<open_call> open_calls();
std::vector<void *> configurations();        // what qtrace_enable_configuration() was given
std::vector<uint32_t> dump_on_exit_calls();  // what qtrace_set_dump_on_exit() was given

// What the calls answer from now on. A failing open stores a handle that is none.
void set_open_result(int32_t result);
void set_enable_result(int32_t result);
void set_write_result(int32_t result);

}  // namespace trace_recorder

#endif
