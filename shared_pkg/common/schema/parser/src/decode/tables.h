// Makes the lookup tables of the XML runtime out of item rows, at compile time.
#ifndef SRC_DECODE_TABLES_H
#define SRC_DECODE_TABLES_H

#include <array>
#include <string_view>

#include "decode/description.h"
#include "decode/name_links.h"

namespace inv::decode
{

constexpr uint16_t length_of(const char *text)
{
    return static_cast<uint16_t>(std::string_view(text).size());
}

constexpr bool is_skippable(const item &row)
{
    return row.occurs != occurrence::required;
}

template <size_t N>
constexpr int32_t last_required_of(const item (&items)[N])
{
    int32_t last = -1;
    for (size_t i = 0; i < N; ++i) {
        if (!is_skippable(items[i]))
            last = static_cast<int32_t>(i);
    }
    return last;
}

// From each position on: up to and including the next required row, or to the end.
template <size_t N>
constexpr std::array<xb_sequence_row, N> sequence_rows(const item (&items)[N])
{
    std::array<xb_sequence_row, N> rows = {};
    int32_t count = 0;
    for (size_t i = N; i-- > 0;) {
        count = is_skippable(items[i]) ? count + 1 : 1;
        rows[i] = {static_cast<int32_t>(i), count, -1};
    }
    return rows;
}

template <size_t N>
constexpr std::array<xb_element_row, N> element_rows(const item (&items)[N])
{
    std::array<xb_element_row, N> rows = {};
    for (size_t i = 0; i < N; ++i)
        rows[i] = {items[i].name, length_of(items[i].name), static_cast<int32_t>(i), {}};
    link_rows(rows);
    return rows;
}

template <size_t N>
constexpr std::array<xb_attribute_row, N> attribute_rows(const std::array<item, N> &items)
{
    std::array<xb_attribute_row, N> rows = {};
    for (size_t i = 0; i < N; ++i)
        rows[i] = {items[i].name, length_of(items[i].name), {}};
    link_rows(rows);
    return rows;
}

// What the runtime's short ways decode of the items.
constexpr uint8_t plain_kind_of(const item &row)
{
    if (row.occurs == occurrence::repeated && row.kind == item_kind::text)
        return XB_PLAIN_TEXT_LIST;
    if (row.occurs == occurrence::repeated || row.occurs == occurrence::counted)
        return XB_PLAIN_NONE;
    switch (row.kind) {
    case item_kind::int8:
        return XB_PLAIN_INT8;
    case item_kind::uint8:
        return XB_PLAIN_UINT8;
    case item_kind::int16:
        return XB_PLAIN_INT16;
    case item_kind::uint16:
        return XB_PLAIN_UINT16;
    case item_kind::int32:
        return XB_PLAIN_INT32;
    case item_kind::uint32:
        return XB_PLAIN_UINT32;
    case item_kind::int64:
        return XB_PLAIN_INT64;
    case item_kind::boolean:
        return XB_PLAIN_BOOLEAN;
    case item_kind::text:
        return XB_PLAIN_TEXT;
    case item_kind::octets:
        return XB_PLAIN_OCTETS;
    case item_kind::simple:
        if (row.has_tokens)
            return XB_PLAIN_TOKEN;
        return row.capacity != 0 ? XB_PLAIN_BUFFER : XB_PLAIN_NONE;
    default:
        return XB_PLAIN_NONE;
    }
}

constexpr xb_plain_row plain_row_of(const item &row)
{
    return {row.tokens, row.offset, row.present.offset, row.present.mask, plain_kind_of(row), row.capacity};
}

template <size_t N>
constexpr std::array<xb_plain_row, N> plain_rows(const item (&items)[N])
{
    std::array<xb_plain_row, N> rows = {};
    for (size_t i = 0; i < N; ++i)
        rows[i] = plain_row_of(items[i]);
    return rows;
}

template <size_t N>
constexpr std::array<xb_plain_row, N> plain_rows(const std::array<item, N> &items)
{
    std::array<xb_plain_row, N> rows = {};
    for (size_t i = 0; i < N; ++i)
        rows[i] = plain_row_of(items[i]);
    return rows;
}

template <typename T, size_t N, size_t M>
constexpr std::array<T, N + M> joined(const std::array<T, N> &first, const std::array<T, M> &second)
{
    std::array<T, N + M> rows = {};
    for (size_t i = 0; i < N + M; ++i)
        rows[i] = i < N ? first[i] : second[i - N];
    if constexpr (requires { rows[0].link; })
        link_rows(rows);
    return rows;
}

// Outer tables of derived types know two groups: the base's content is 0, the extension's 1.
template <size_t N>
constexpr std::array<xb_element_row, N> base_group_rows(const item (&items)[N])
{
    auto rows = element_rows(items);
    for (auto &row : rows)
        row.content_index = 0;
    return rows;
}

// The elements that can begin the extension's content: the leading ones that can be left out and the
// first required one.
template <const auto &Items>
constexpr auto leading_rows()
{
    constexpr auto leading = static_cast<size_t>(sequence_rows(Items)[0].count);
    std::array<xb_element_row, leading> rows = {};
    for (size_t i = 0; i < leading; ++i)
        rows[i] = {Items[i].name, length_of(Items[i].name), 1, {}};
    link_rows(rows);
    return rows;
}

template <size_t N>
constexpr bool any_counted(const item (&items)[N])
{
    bool counted = false;
    for (const item &row : items)
        counted = counted || row.occurs == occurrence::counted;
    return counted;
}

template <size_t N>
constexpr bool any_group(const item (&items)[N])
{
    bool group = false;
    for (const item &row : items)
        group = group || row.kind == item_kind::group;
    return group;
}

template <size_t N>
constexpr bool any_plain(const std::array<xb_plain_row, N> &rows)
{
    bool plain = false;
    for (const xb_plain_row &row : rows)
        plain = plain || row.kind != XB_PLAIN_NONE;
    return plain;
}

template <size_t N, size_t M>
constexpr content_table content_of(const item (&items)[N], const std::array<xb_sequence_row, N> &sequence,
                                   const std::array<xb_element_row, M> &elements,
                                   const std::array<xb_plain_row, N> &plain)
{
    return {.items = items,
            .sequence = sequence.data(),
            .count = static_cast<int32_t>(N),
            .last_required = last_required_of(items),
            .has_counted = any_counted(items),
            .has_groups = any_group(items),
            .elements = elements.data(),
            .element_count = static_cast<int32_t>(M),
            .plain = any_plain(plain) ? plain.data() : nullptr};
}

template <size_t N>
constexpr attribute_table attributes_of(const std::array<item, N> &items,
                                        const std::array<xb_attribute_row, N> &names,
                                        const std::array<xb_plain_row, N> &plain)
{
    static_assert(N <= 64, "one bit per attribute");
    attribute_table table = {names.data(), items.data(), static_cast<int32_t>(N), 0, plain.data()};
    for (size_t i = 0; i < N; ++i) {
        if (!is_skippable(items[i]))
            table.required |= uint64_t{1} << i;
    }
    return table;
}

}  // namespace inv::decode

#endif
