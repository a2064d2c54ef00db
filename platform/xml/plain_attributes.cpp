// The short way for attributes: from the tag that has been read to the record in one call.
#include "context.h"
#include "name_lookup.h"
#include "plain_store.h"

using namespace inv::xml;

namespace
{

// Attributes mostly come in the order of the table: `guess` is the row behind the last one.
int32_t find_attribute(const xb_attribute_row *table, int32_t row_count, const attribute &item, int32_t guess)
{
    if (guess < row_count && table[guess].link.hash == item.name_hash &&
        has_name(table[guess], name_of(item)))
        return guess;
    return find_name(table, row_count, name_of(item), item.name_hash,
                     [](const xb_attribute_row &) { return true; });
}

}  // namespace

int32_t rtXmlpDecPlainAttributes(xb_context *ctx, const xb_attribute_row *table, int32_t row_count,
                                 const xb_plain_row *plain, int32_t index, void *record, uint64_t *seen)
{
    const tag_stack &tags = ctx->state->reader.tags;
    // An armed context wants the place of each value.
    if (tags.depth == 0 || ctx->state->armed != nullptr)
        return index;
    const element &tag = tags.elements[tags.depth - 1];
    const attribute *items = tags.attributes.items + tag.attribute_begin;
    const auto count =
        static_cast<int32_t>(std::min(tag.attribute_end - tag.attribute_begin, size_t{INT32_MAX}));
    int32_t row = -1;
    for (; index < count; ++index) {
        const attribute &item = items[index];
        if (item.kind != name_kind::plain)
            break;
        row = find_attribute(table, row_count, item, row + 1);
        // Values stand in the window, with its padding behind them, unless they were made or copied.
        const bool is_padded = !item.made_value && !tag.kept;
        if (row < 0 || !store_plain(ctx->state->memory, plain[row], value_of(item), is_padded, record))
            break;
        *seen |= uint64_t{1} << row;
    }
    return index;
}
