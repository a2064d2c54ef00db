// Chains the rows of name tables by the hashes of their names, at compile time.
#ifndef SRC_DECODE_NAME_LINKS_H
#define SRC_DECODE_NAME_LINKS_H

#include <array>
#include <cstddef>

#include "inv_platform/name_hash.h"
#include "inv_platform/xml_runtime.h"

namespace inv::decode
{

constexpr size_t bucket_of(uint32_t hash, size_t count)
{
    return static_cast<size_t>(uint64_t{hash} * count >> 32);
}

// Backwards, so that each chain is in table order.
template <typename LinkOf>
constexpr void link_names(size_t count, LinkOf link_of)
{
    for (size_t i = count; i-- > 0;) {
        xb_name_link &bucket = link_of(bucket_of(link_of(i).hash, count));
        link_of(i).next = bucket.first;
        bucket.first = static_cast<uint16_t>(i + 1);
    }
}

template <typename Row, size_t N>
constexpr void link_rows(std::array<Row, N> &rows)
{
    for (Row &row : rows)
        row.link = {name_hash(row.name, row.name_length), 0, 0};
    link_names(N, [&](size_t i) -> xb_name_link & { return rows[i].link; });
}

template <size_t N>
constexpr std::array<xb_name_link, N> token_links(const xb_enum_row (&rows)[N])
{
    std::array<xb_name_link, N> links = {};
    for (size_t i = 0; i < N; ++i)
        links[i] = {name_hash(rows[i].token, rows[i].token_length), 0, 0};
    link_names(N, [&](size_t i) -> xb_name_link & { return links[i]; });
    return links;
}

}  // namespace inv::decode

#endif
