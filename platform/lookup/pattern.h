/* Shell-like patterns: * stands for any octets, ? for one. */
#ifndef PLATFORM_LOOKUP_PATTERN_H
#define PLATFORM_LOOKUP_PATTERN_H

#include <string_view>

namespace inv::lookup
{

// Costs at most the product of both lengths.
bool matches_pattern(std::string_view text, std::string_view pattern);

}  // namespace inv::lookup

#endif
