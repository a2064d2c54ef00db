/* The text catalogue: one line per unit, see inv_platform/lookup.h. */
#ifndef PLATFORM_LOOKUP_CATALOGUE_H
#define PLATFORM_LOOKUP_CATALOGUE_H

#include <stddef.h>
#include <stdint.h>
#include <string_view>

namespace inv::lookup
{

constexpr size_t max_catalogue_size = size_t{16} * 1024 * 1024;
constexpr size_t max_pattern_length = 255;

struct version {
    uint32_t major_number;
    uint32_t minor_number;
};

struct number_column {
    bool any;
    uint32_t value;
};

// One line, its texts still part of the catalogue.
struct catalogue_line {
    number_column pi_hw_type;
    number_column pd_hw_type;
    std::string_view pid_pattern;
    bool any_version;
    version first_version;
    version last_version;
    std::string_view file;
};

enum class line_kind { unit, blank, broken };

// Parses a line without its newline. For a broken one *reason says why.
line_kind parse_line(std::string_view line, catalogue_line &out, const char **reason);

// A unit to find; versions only count where has_version is set.
struct unit {
    uint32_t pi_hw_type;
    uint32_t pd_hw_type;
    std::string_view pid;
    bool has_version;
    version hw_version;
};

bool fits(const catalogue_line &line, const unit &wanted);

}  // namespace inv::lookup

#endif
