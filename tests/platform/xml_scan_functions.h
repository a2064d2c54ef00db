// The searches of scan.h in both of their forms.
#ifndef TESTS_PLATFORM_XML_SCAN_FUNCTIONS_H
#define TESTS_PLATFORM_XML_SCAN_FUNCTIONS_H

#include <cstddef>
#include <cstdint>

struct scan_functions {
    const char *name;
    size_t block_size;
    const char *(*skip_blanks)(const char *at);
    const char *(*skip_white_space)(const char *at);
    const char *(*skip_name)(const char *at);
    const char *(*skip_value)(const char *at, char quote);
    const char *(*skip_text)(const char *at);
    const char *(*skip_to_mark)(const char *at, char mark);
    uint64_t (*count_octets)(const char *from, const char *to, char wanted);
    uint64_t (*count_characters)(const char *from, const char *to);
};

// As the target has them, and with 64-bit words.
scan_functions usual_scan_functions();
scan_functions scan_functions_by_words();

#endif
