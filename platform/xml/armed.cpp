#include "armed.h"

#include "reading.h"

#include <new>

namespace inv::xml
{

namespace
{

size_t hash_of(const void *address)
{
    return static_cast<size_t>(reinterpret_cast<uintptr_t>(address) * 0x9E3779B97F4A7C15u >> 20);
}

// The slot that holds the address, or the free one where it belongs. There is a free one.
uint32_t &slot_of(const armed_state &armed, const void *address)
{
    const size_t mask = armed.slots.count - 1;
    size_t at = hash_of(address) & mask;
    while (armed.slots.items[at] != 0 && armed.items.items[armed.slots.items[at] - 1].address != address)
        at = (at + 1) & mask;
    return armed.slots.items[at];
}

bool grow_slots(armed_state &armed)
{
    growing_array<uint32_t> old = armed.slots;
    growing_array<uint32_t> grown;
    const size_t count = std::max(old.count * 2, size_t{1024});
    if (!make_room(grown, count))
        return false;
    memset(grown.items, 0, count * sizeof(uint32_t));
    grown.count = count;
    armed.slots = grown;
    release_array(old);
    for (size_t i = 0; i < armed.items.count; ++i)
        slot_of(armed, armed.items.items[i].address) = static_cast<uint32_t>(i + 1);
    return true;
}

const noted_item *find_item(const armed_state &armed, const void *address)
{
    uint32_t slot = armed.slots.count == 0 ? 0 : slot_of(armed, address);
    return slot == 0 ? nullptr : &armed.items.items[slot - 1];
}

void keep_item(armed_state &armed, const noted_item &item)
{
    if (armed.slots.count <= armed.items.count * 2 &&
        (armed.items.count >= UINT32_MAX / 4 || !grow_slots(armed)))
        return;
    uint32_t &slot = slot_of(armed, item.address);
    if (slot != 0)
        armed.items.items[slot - 1] = item;
    else if (append(armed.items, item))
        slot = static_cast<uint32_t>(armed.items.count);
}

uint32_t narrowed(uint64_t number)
{
    return static_cast<uint32_t>(std::min(number, uint64_t{UINT32_MAX}));
}

// The record of the innermost of the first `depth` open elements that has one.
const void *record_around(const armed_state &armed, const tag_stack &tags, uint32_t depth)
{
    while (depth > 0 && (armed.open[depth - 1].item == nullptr ||
                         armed.open[depth - 1].tag_offset != tags.elements[depth - 1].place.offset))
        --depth;
    return depth == 0 ? nullptr : armed.open[depth - 1].item;
}

bool is_final(const xb_context_state &state, int32_t status)
{
    return state.armed == nullptr || !may_record(state) || state.reader.failure != XB_OK ||
           status == XB_E_NO_MEMORY || status == XB_E_BAD_STATE || state.reader.tags.depth == 0;
}

// What was recorded is dealt with: what fails next is another failure.
void settle(xb_context_state &state)
{
    end_travel(state.errors);
    state.errors.parameter_count = 0;
}

// Reads on until the end tag of the current element is ahead.
int32_t skip_content(xb_context_state &state)
{
    reader &r = state.reader;
    const uint32_t depth = r.tags.depth;
    for (;;) {
        int32_t status = read_event(state);
        if (status != XB_OK)
            return record_error(state, status, true, "", 0);
        if (r.ahead_kind != event_kind::start_tag && r.tags.depth == depth)
            break;
        consume_tag(r);
    }
    r.text_taken = true;
    return XB_OK;
}

int32_t skip_element(xb_context_state &state)
{
    consume_tag(state.reader);
    int32_t status = skip_content(state);
    if (status == XB_OK)
        consume_tag(state.reader);
    return status;
}

}  // namespace

void release_armed(armed_state *armed)
{
    if (armed == nullptr)
        return;
    release_array(armed->items);
    release_array(armed->slots);
    release_array(armed->errors);
    memory::release(armed);
}

void begin_document(armed_state &armed)
{
    std::fill(std::begin(armed.open), std::end(armed.open), open_item{});
}

bool may_record(const xb_context_state &state)
{
    return state.armed == nullptr || state.errors.count < XB_MAX_ARMED_ERRORS;
}

void note_error(xb_context_state &state)
{
    armed_state &armed = *state.armed;
    const reader &r = state.reader;
    xb_error_details details = {};
    details.item = record_around(armed, r.tags, r.tags.depth);
    if (r.tags.depth > 0)
        details.element = heap_copy_text(state.memory, r.tags.elements[r.tags.depth - 1].name);
    const xb_context self = {&state};
    xb_error error;
    rtxErrGet(&self, state.errors.count - 1, &error);
    details.at_attribute = r.selected != no_attribute && error.status != XB_E_ATTRIBUTE_MISSING;
    details.at_tag = error.status == XB_E_ATTRIBUTE_MISSING;
    for (uint32_t i = 0; i <= r.tags.depth && i < XB_MAX_DEPTH; ++i)
        details.at_tag = details.at_tag || r.tags.elements[i].place.offset == error.offset;
    // Records and details go by the same index: what is lost for want of memory must not shift the rest.
    while (armed.errors.count + 1 < state.errors.count)
        if (!append(armed.errors, xb_error_details{}))
            return;
    append(armed.errors, details);
}

}  // namespace inv::xml

using namespace inv::xml;

namespace
{

xb_error_details *newest_details(xb_context *ctx)
{
    armed_state *armed = ctx->state->armed;
    bool noted =
        armed != nullptr && armed->errors.count > 0 && armed->errors.count == ctx->state->errors.count;
    return noted ? &armed->errors.items[armed->errors.count - 1] : nullptr;
}

// A complaint about text may hide that reading failed behind it.
int32_t final_status(xb_context_state &state, int32_t status)
{
    const int32_t failure = state.reader.failure;
    if (state.armed == nullptr || failure == XB_OK || failure == status)
        return status;
    settle(state);
    return record_error(state, read_event(state), true, "", 0);
}

}  // namespace

int32_t rtxArmContext(xb_context *ctx)
{
    xb_context_state &state = *ctx->state;
    if (state.armed != nullptr)
        return XB_OK;
    if (state.reader.source.state != nullptr)
        return XB_E_BAD_STATE;
    void *block = inv::memory::request(sizeof(armed_state));
    if (block == nullptr)
        return XB_E_NO_MEMORY;
    state.armed = new (block) armed_state{};
    return XB_OK;
}

bool rtxIsArmed(const xb_context *ctx)
{
    return ctx->state->armed != nullptr;
}

void rtxNoteItem(xb_context *ctx, const void *item, bool is_record)
{
    armed_state *armed = ctx->state->armed;
    reader &r = ctx->state->reader;
    const uint32_t depth = r.tags.depth;
    if (armed == nullptr || depth == 0)
        return;
    const bool is_attribute = r.selected != no_attribute;
    element &tag = r.tags.elements[depth - 1];
    complete(r.source, tag.place);
    const position place = is_attribute ? place_of_selected(r) : tag.place;
    if (is_record)
        armed->open[depth - 1] = {item, tag.place.offset};
    const void *parent = record_around(*armed, r.tags, is_attribute ? depth : depth - 1);
    keep_item(*armed, {item, parent, place.offset, narrowed(place.line), narrowed(place.column)});
}

bool rtxPlaceOfItem(const xb_context *ctx, const void *item, xb_place *place)
{
    const armed_state *armed = ctx->state->armed;
    const noted_item *noted = armed == nullptr ? nullptr : find_item(*armed, item);
    if (noted != nullptr)
        *place = {noted->line, noted->column, noted->offset, noted->parent};
    return noted != nullptr;
}

int32_t rtxResumeAtEnd(xb_context *ctx, int32_t status)
{
    if (is_final(*ctx->state, status))
        return final_status(*ctx->state, status);
    settle(*ctx->state);
    return skip_content(*ctx->state);
}

int32_t rtxResumeAtTag(xb_context *ctx, int32_t status, bool skip)
{
    xb_context_state &state = *ctx->state;
    if (is_final(state, status))
        return final_status(state, status);
    settle(state);
    int32_t read = read_event(state);
    if (read != XB_OK)
        return record_error(state, read, true, "", 0);
    state.reader.text_taken = true;
    bool is_start = state.reader.ahead_kind == event_kind::start_tag;
    return skip && is_start ? skip_element(state) : XB_OK;
}

int32_t rtxPeekTag(xb_context *ctx, const char **local, const char **name, uint64_t *offset)
{
    xb_context_state &state = *ctx->state;
    reader &r = state.reader;
    if (state.armed == nullptr)
        return XB_E_BAD_STATE;
    int32_t status = read_event(state);
    if (status != XB_OK)
        return status;
    *local = nullptr;
    *name = nullptr;
    *offset = r.ahead_place.offset;
    if (r.ahead_kind != event_kind::start_tag)
        return 0;
    const element &tag = r.tags.elements[r.tags.depth];
    *name = heap_copy_text(state.memory, tag.name);
    if (tag.kind == name_kind::plain)
        *local = heap_copy_text(state.memory, tag.local);
    return *name == nullptr || (tag.kind == name_kind::plain && *local == nullptr) ? XB_E_NO_MEMORY : 1;
}

void rtxErrAddWords(xb_context *ctx, const char *const *words, uint32_t count)
{
    xb_error_details *details = newest_details(ctx);
    const size_t size = count * sizeof *words;
    void *copy = details == nullptr || count == 0 ? nullptr : heap_allocate(ctx->state->memory, size);
    if (copy == nullptr)
        return;
    memcpy(copy, words, size);
    details->words = static_cast<const char *const *>(copy);
    details->word_count = count;
}

void rtxErrAddRange(xb_context *ctx, int64_t lowest, int64_t highest)
{
    xb_error_details *details = newest_details(ctx);
    if (details == nullptr)
        return;
    details->has_range = true;
    details->lowest = lowest;
    details->highest = highest;
}

void rtxErrAddMisplacement(xb_context *ctx, xb_misplacement misplaced)
{
    xb_error_details *details = newest_details(ctx);
    if (details != nullptr)
        details->misplaced = misplaced;
}

bool rtxErrGetDetails(const xb_context *ctx, uint32_t index, xb_error_details *details)
{
    const armed_state *armed = ctx->state->armed;
    if (armed == nullptr || index >= armed->errors.count)
        return false;
    *details = armed->errors.items[index];
    return true;
}
