// The short ways: what nearly all of a document consists of, decoded in one step from its octets to the
// record. They take plain elements and values only and leave the reader as if it had read them one by
// one; everything else, mistakes above all, is left where it stands for the long way.
#include "inv_platform/name_hash.h"
#include "name_lookup.h"
#include "reading.h"
#include "scan.h"
#include "value_parsers.h"

using namespace inv::xml;

namespace
{

template <typename Integer>
bool store_integer(std::string_view text, void *to)
{
    Integer value;
    if (parse_integer(text, value) != XB_OK)
        return false;
    *static_cast<Integer *>(to) = value;
    return true;
}

bool store_boolean(std::string_view text, void *to)
{
    return parse_boolean(text, *static_cast<uint8_t *>(to)) == XB_OK;
}

bool store_text(heap &memory, std::string_view text, void *to)
{
    const char *copy = heap_copy_text(memory, text);
    if (copy == nullptr)
        return false;
    *static_cast<const char **>(to) = copy;
    return true;
}

bool store_token(const xb_tokens &tokens, std::string_view text, void *to)
{
    const uint32_t hash = inv::name_hash(text.data(), text.size());
    uint64_t bucket = uint64_t{hash} * tokens.count >> 32;
    for (uint32_t next = tokens.links[bucket].first; next != 0; next = tokens.links[next - 1].next) {
        const xb_enum_row &row = tokens.rows[next - 1];
        if (tokens.links[next - 1].hash == hash && row.token_length == text.size() &&
            memcmp(row.token, text.data(), text.size()) == 0) {
            *static_cast<uint32_t *>(to) = row.code;
            return true;
        }
    }
    return false;
}

// False for a value that is not valid, or not plain.
bool store_value(heap &memory, const xb_plain_row &row, std::string_view text, void *record)
{
    void *to = static_cast<char *>(record) + row.offset;
    switch (row.kind) {
    case XB_PLAIN_INT8:
        return store_integer<int8_t>(text, to);
    case XB_PLAIN_UINT8:
        return store_integer<uint8_t>(text, to);
    case XB_PLAIN_INT16:
        return store_integer<int16_t>(text, to);
    case XB_PLAIN_UINT16:
        return store_integer<uint16_t>(text, to);
    case XB_PLAIN_INT32:
        return store_integer<int32_t>(text, to);
    case XB_PLAIN_UINT32:
        return store_integer<uint32_t>(text, to);
    case XB_PLAIN_INT64:
        return store_integer<int64_t>(text, to);
    case XB_PLAIN_BOOLEAN:
        return store_boolean(text, to);
    case XB_PLAIN_TEXT:
        return store_text(memory, text, to);
    case XB_PLAIN_TOKEN:
        return store_token(*row.tokens, text, to);
    default:
        return false;
    }
}

bool store(heap &memory, const xb_plain_row &row, std::string_view text, void *record)
{
    if (!store_value(memory, row, text, record))
        return false;
    static_cast<uint8_t *>(record)[row.present_offset] |= row.present_mask;
    return true;
}

struct plain_element {
    std::string_view name;
    std::string_view text;
    const char *end;
};

// <name>text</name>, white space in front of it, everything plain and in front of `end`.
bool read_plain_element(const char *at, const char *end, plain_element &found)
{
    at = is_white_space(*at) ? skip_blanks(at) : at;
    if (at[0] != '<' || !is_start_of_name(at[1]))
        return false;
    const char *name = at + 1;
    const char *stop = skip_name(name + 1);
    if (*stop != '>')
        return false;
    const auto length = static_cast<size_t>(stop - name);
    const char *text = stop + 1;
    const char *tag = *text == '<' ? text : skip_text(text);
    if (static_cast<size_t>(end - tag) < length + 3 || tag[0] != '<' || tag[1] != '/' ||
        tag[2 + length] != '>' || memcmp(tag + 2, name, length) != 0)
        return false;
    found = {std::string_view(name, length), std::string_view(text, static_cast<size_t>(tag - text)),
             tag + length + 3};
    return true;
}

// Whether an element may be read past the reader, as it were.
bool can_read_plain(const reader &r)
{
    return !r.ahead && r.failure == XB_OK && r.leaf != leaf_state::open && r.tags.depth > 0 &&
           r.tags.depth < XB_MAX_DEPTH && !has_default_namespace(r.tags.scope) && r.source.lend != nullptr;
}

}  // namespace

int32_t rtXmlpDecPlainElements(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                               const xb_sequence_row *sequence, const xb_plain_row *plain, int32_t position,
                               int32_t position_count, void *record)
{
    reader &r = ctx->state->reader;
    const char *end = nullptr;
    // An armed context wants the place of each item.
    const char *at = ctx->state->armed == nullptr && can_read_plain(r) ? r.source.lend(r.source.state, &end) : nullptr;
    if (at == nullptr)
        return position;
    int32_t reached = position;
    plain_element next;
    while (reached < position_count && read_plain_element(at, end, next)) {
        const int64_t first = sequence[reached].first;
        const int64_t stop = first + sequence[reached].count;
        const int32_t row =
            find_name(table, row_count, next.name, inv::name_hash(next.name.data(), next.name.size()),
                      [first, stop](const xb_element_row &each) {
                          return each.content_index >= first && each.content_index < stop;
                      });
        if (row < 0 || !store(ctx->state->memory, plain[table[row].content_index], next.text, record))
            break;
        reached = table[row].content_index + 1;
        at = next.end;
    }
    if (reached == position)
        return position;
    r.source.take_back(r.source.state, at);
    r.can_push_back = false;
    r.group_mode = false;
    return reached;
}

int32_t rtXmlpDecPlainAttributes(xb_context *ctx, const xb_attribute_row *table, int32_t row_count,
                                 const xb_plain_row *plain, int32_t index, void *record, uint64_t *seen)
{
    const tag_stack &tags = ctx->state->reader.tags;
    if (tags.depth == 0 || ctx->state->armed != nullptr)
        return index;
    const element &tag = tags.elements[tags.depth - 1];
    const attribute *items = tags.attributes.items + tag.attribute_begin;
    const auto count =
        static_cast<int32_t>(std::min(tag.attribute_end - tag.attribute_begin, size_t{INT32_MAX}));
    for (; index < count; ++index) {
        const attribute &item = items[index];
        if (item.kind != name_kind::plain)
            break;
        const int32_t row = find_name(table, row_count, name_of(item), item.name_hash,
                                      [](const xb_attribute_row &) { return true; });
        if (row < 0 || !store(ctx->state->memory, plain[row], value_of(item), record))
            break;
        *seen |= uint64_t{1} << row;
    }
    return index;
}
