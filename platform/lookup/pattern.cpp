#include "lookup/pattern.h"

namespace inv::lookup
{

bool matches_pattern(std::string_view text, std::string_view pattern)
{
    constexpr size_t none = std::string_view::npos;
    size_t t = 0;
    size_t p = 0;
    size_t star = none;        // the latest * met
    size_t star_text_end = 0;  // what it stands for ends here
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            star_text_end = t;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t])) {
            ++p;
            ++t;
        } else if (star != none) {
            // Only the latest * needs to grow: whatever an earlier one could gain, it can too.
            p = star + 1;
            t = ++star_text_end;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == none;
}

}  // namespace inv::lookup
