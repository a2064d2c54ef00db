// Finds names in the tables of a schema.
#ifndef PLATFORM_XML_NAME_LOOKUP_H
#define PLATFORM_XML_NAME_LOOKUP_H

#include "inv_platform/xml_runtime.h"
#include "octets.h"

#include <string_view>

namespace inv::xml
{

template <typename Row>
inline bool has_name(const Row &row, std::string_view name)
{
    return row.name_length == name.size() && same_octets(row.name, name.data(), name.size());
}

// The first row of this name that is allowed, or -1.
template <typename Row, typename IsAllowed>
inline int32_t find_name(const Row *rows, int32_t row_count, std::string_view name, uint32_t hash,
                         IsAllowed is_allowed)
{
    if (row_count > 1 && rows[0].link.hash != 0) {
        const uint64_t scaled = static_cast<uint64_t>(hash) * static_cast<uint32_t>(row_count);
        for (uint32_t next = rows[scaled >> 32].link.first; next != 0; next = rows[next - 1].link.next) {
            const Row &row = rows[next - 1];
            if (row.link.hash == hash && is_allowed(row) && has_name(row, name))
                return static_cast<int32_t>(next - 1);
        }
        return -1;
    }
    for (int32_t i = 0; i < row_count; ++i) {
        if (is_allowed(rows[i]) && has_name(rows[i], name))
            return i;
    }
    return -1;
}

}  // namespace inv::xml

#endif
