// The file lookup of the test build: the test says which file a unit has.
// Belongs to tests declared with inv_add_test(... FAKE_PLATFORM).
#ifndef TESTS_SUPPORT_FAKE_PLATFORM_H
#define TESTS_SUPPORT_FAKE_PLATFORM_H

#include "inv_parser/handle.h"

#include <cstdint>
#include <functional>

namespace fake_platform
{

// One lookup as the library made it. Versions are 0 and `loc` is null for the first generation.
struct lookup {
    uint32_t pi_hw_type = 0;
    uint32_t pd_hw_type = 0;
    const char *pid = nullptr;
    uint32_t hw_maj_ver = 0;
    uint32_t hw_min_ver = 0;
    const fru_xml_loc_info *loc = nullptr;
};

// Answers a lookup with a file name that stays valid until the next one, or null.
using file_name_source = std::function<const char *(const lookup &)>;

// Serves both generations of the lookup. Without a source no unit has a file.
void set_file_name(file_name_source source);

// Every unit has this file. Copied; null: no unit has a file.
void set_only_file_name(const char *name);

}  // namespace fake_platform

#endif
