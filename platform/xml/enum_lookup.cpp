#include "inv_platform/xml_runtime.h"

#include <string_view>

int32_t rtxLookupEnum(const char *text, size_t length, const xb_enum_row *table, uint32_t row_count)
{
    if (text == nullptr)
        return XB_E_UNKNOWN_TOKEN;
    std::string_view wanted(text, length);
    uint32_t first = 0;
    uint32_t end = row_count;
    while (first < end) {
        uint32_t middle = first + (end - first) / 2;
        int order = wanted.compare(std::string_view(table[middle].token, table[middle].token_length));
        if (order == 0)
            return static_cast<int32_t>(middle);
        if (order < 0)
            end = middle;
        else
            first = middle + 1;
    }
    return XB_E_UNKNOWN_TOKEN;
}
