// What might have stood at the place of a failure, for the reports of armed contexts.
#include <limits>

#include "decode/recovery.h"

#pragma weak rtxErrAddWords
#pragma weak rtxErrAddRange

namespace inv::decode
{

namespace
{

thread_local const enumeration *failed_lookup = nullptr;

template <typename Integer>
void explain_range(xb_context *ctx)
{
    rtxErrAddRange(ctx, static_cast<int64_t>(std::numeric_limits<Integer>::min()),
                   static_cast<int64_t>(std::numeric_limits<Integer>::max()));
}

constexpr const char *boolean_words[] = {"true", "false", "1", "0"};

template <typename Row>
void add_names(xb_context *ctx, const Row *rows, uint32_t count, const char *Row::*name)
{
    // As many as any table of the schema has; a longer one is cut.
    constexpr uint32_t most = 1024;
    const char *words[most];
    count = count < most ? count : most;
    for (uint32_t i = 0; i < count; ++i)
        words[i] = rows[i].*name;
    rtxErrAddWords(ctx, words, count);
}

}  // namespace

void explain_value(xb_context *ctx, item_kind kind)
{
    if (!is_armed(ctx))
        return;
    switch (kind) {
    case item_kind::int8:
        return explain_range<int8_t>(ctx);
    case item_kind::uint8:
        return explain_range<uint8_t>(ctx);
    case item_kind::int16:
        return explain_range<int16_t>(ctx);
    case item_kind::uint16:
        return explain_range<uint16_t>(ctx);
    case item_kind::int32:
        return explain_range<int32_t>(ctx);
    case item_kind::uint32:
        return explain_range<uint32_t>(ctx);
    case item_kind::int64:
        return explain_range<int64_t>(ctx);
    case item_kind::boolean:
        return rtxErrAddWords(ctx, boolean_words, 4);
    default:
        return;
    }
}

void explain_attribute(xb_context *ctx, const attribute_table &attributes)
{
    if (is_armed(ctx))
        add_names(ctx, attributes.names, static_cast<uint32_t>(attributes.count), &xb_attribute_row::name);
}

void explain_type(xb_context *ctx, const choice_description &choices)
{
    if (is_armed(ctx))
        add_names(ctx, choices.names, static_cast<uint32_t>(choices.count), &xb_type_name_row::name);
}

void note_failed_lookup(const enumeration &tokens)
{
    if (any_armed())
        failed_lookup = &tokens;
}

void explain_failed_token(xb_context *ctx)
{
    if (is_armed(ctx) && failed_lookup != nullptr)
        add_names(ctx, failed_lookup->rows, failed_lookup->count, &xb_enum_row::token);
    failed_lookup = nullptr;
}

}  // namespace inv::decode
