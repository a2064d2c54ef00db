#include "name_lookup.h"
#include "reading.h"

using namespace inv::xml;

namespace
{

// -1: any depth.
bool is_at_depth(int32_t depth, uint32_t level)
{
    return depth < 0 || static_cast<uint32_t>(depth) == level;
}

std::string_view name_ahead(const reader &r)
{
    return r.tags.elements[r.tags.depth].name;
}

// The name of the tag ahead; an end tag's begins with "/".
void add_name_ahead(xb_context_state &state)
{
    reader &r = state.reader;
    if (r.ahead_kind == event_kind::start_tag) {
        add_parameter(state, name_ahead(r));
        return;
    }
    const element *current = current_element(r.tags);
    std::string_view name = current == nullptr ? std::string_view() : current->name;
    char *text = static_cast<char *>(heap_allocate(state.memory, name.size() + 1));
    if (text == nullptr || current == nullptr) {
        add_parameter(state, {});
        return;
    }
    text[0] = '/';
    name.copy(text + 1, name.size());
    add_parameter(state, std::string_view(text, name.size() + 1));
}

// Index of the first row that has the name of the start tag ahead and a content index within
// first .. first + count - 1; -1 when there is none. Elements with a namespace fit no row.
int32_t find_row(const reader &r, const xb_element_row *rows, int32_t row_count, int64_t first, int64_t count)
{
    const element &tag = r.tags.elements[r.tags.depth];
    if (tag.kind != name_kind::plain)
        return -1;
    return find_name(rows, row_count, tag.name, tag.name_hash, [first, count](const xb_element_row &row) {
        return row.content_index >= first && row.content_index < first + count;
    });
}

// What may appear at a position ends with the element that is required there.
int32_t report_missing(xb_context_state &state, const xb_element_row *table, int32_t row_count,
                       const xb_sequence_row &allowed)
{
    std::string_view expected;
    for (int32_t i = 0; i < row_count && expected.empty(); ++i) {
        if (table[i].content_index == int64_t{allowed.first} + allowed.count - 1)
            expected = std::string_view(table[i].name, table[i].name_length);
    }
    add_parameter(state, expected);
    add_name_ahead(state);
    return XB_E_ELEMENT_MISSING;
}

int32_t report_unexpected(xb_context_state &state)
{
    add_name_ahead(state);
    return XB_E_ELEMENT_UNEXPECTED;
}

int32_t root_closed(xb_context_state &state)
{
    int32_t status = read_event(state);
    return status == XB_OK && state.reader.ahead_kind != event_kind::end_of_document ? XB_E_BAD_STATE
                                                                                     : status;
}

}  // namespace

int32_t rtXmlpMatchStartTag(xb_context *ctx, const char *local_name, int32_t depth)
{
    xb_context_state &state = *ctx->state;
    reader &r = state.reader;
    if (!is_at_depth(depth, r.tags.depth + 1))
        return XB_E_BAD_STATE;
    int32_t status = read_tag(state);
    if (status != XB_OK)
        return status;
    if (r.ahead_kind == event_kind::start_tag && r.tags.elements[r.tags.depth].local == local_name) {
        consume_tag(r);
        return XB_OK;
    }
    add_name_ahead(state);
    return XB_E_ROOT_MISMATCH;
}

int32_t rtXmlpMatchEndTag(xb_context *ctx, int32_t depth)
{
    xb_context_state &state = *ctx->state;
    reader &r = state.reader;
    if (r.tags.depth == 0 || !is_at_depth(depth, r.tags.depth))
        return XB_E_BAD_STATE;
    int32_t status = read_tag(state);
    if (status != XB_OK)
        return status;
    if (r.ahead_kind == event_kind::start_tag)
        return report_unexpected(state);
    consume_tag(r);
    return r.tags.depth == 0 ? root_closed(state) : XB_OK;
}

int32_t rtXmlpGetNextSeqElemID(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                               const xb_sequence_row *sequence, int32_t position, int32_t last_required,
                               bool group)
{
    xb_context_state &state = *ctx->state;
    reader &r = state.reader;
    r.group_mode = false;
    if (r.tags.depth == 0)
        return XB_E_BAD_STATE;
    int32_t status = read_tag(state);
    if (status != XB_OK)
        return status;
    const xb_sequence_row &allowed = sequence[position];
    bool is_start = r.ahead_kind == event_kind::start_tag;
    int32_t row = is_start ? find_row(r, table, row_count, allowed.first, allowed.count) : -1;
    if (row >= 0) {
        consume_tag(r);
        return table[row].content_index;
    }
    if (position <= last_required)
        return report_missing(state, table, row_count, allowed);
    return is_start && !group ? report_unexpected(state) : XB_END_OF_CONTENT;
}

int32_t rtXmlpGetNextElemID(xb_context *ctx, const xb_element_row *rows, int32_t row_count, int32_t depth)
{
    xb_context_state &state = *ctx->state;
    reader &r = state.reader;
    if (r.tags.depth == 0 || !is_at_depth(depth, r.tags.depth + 1))
        return XB_E_BAD_STATE;
    int32_t status = read_tag(state);
    if (status != XB_OK)
        return status;
    int32_t row = -1;
    if (r.ahead_kind == event_kind::start_tag)
        row = find_row(r, rows, row_count, INT32_MIN, int64_t{UINT32_MAX} + 1);
    if (row < 0)
        return XB_E_RUN_ENDED;
    consume_tag(r);
    return rows[row].content_index;
}
