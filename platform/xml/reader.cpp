// How reading works.
//
// The event source pushes nothing: read_ahead() asks it for the next event, a tag or the document's end
// together with the text in front of it, and keeps that as the one "ahead". Every function
// below looks at the event ahead and then either takes it with consume_tag() or leaves it for the
// next call. There is never more than one, and pushing back is nothing but making the tag that was
// taken last the event ahead again. A lookup that finds what it does not want (the end of the
// content, in group mode another element, the end of a run) simply leaves it ahead, so a push-back
// after it has nothing to do.
//
//   <module name="m">  text  <slot>
//   ^ current tag             ^ ahead: read, stacked, not open
//
// A start tag that is read ahead is already stacked (tags.h) with its attributes, but not open: the
// attribute functions see the current tag until consume_tag() opens the next. The same slot keeps
// an element that was closed, whose end tag can therefore be pushed back too. Declarations are in
// scope while their element is open.
//
// A leaf is an element that holds nothing but plain text. Its end comes with its start tag in one event and
// is kept in the reader; once the start tag has been taken, the end tag becomes the event ahead without
// the source. The short ways (plain_elements.cpp, plain_attributes.cpp) go further: they read whole leaves
// from the source's octets, past the event ahead, and leave the reader as if it had read them.
//
// Text between the last tag and the event ahead belongs to whoever asks: value decoders take it as
// the current element's value; lookups and end tags accept white space only, unless a value
// decoder has taken it.
//
// A failure of the source (or a tag that cannot be stacked) is final: every later read returns
// it. All other failures leave the reader where it is.
//
// reader.place says where an error that is recorded next belongs: every read sets it to the event
// ahead, value decoders to the value's first character. A selected attribute overrides it. Places
// within a tag are worked out from the tag's text only when an error is recorded.
#include "reader.h"

#include "armed.h"
#include "reading.h"

namespace inv::xml
{

namespace
{

std::string_view name_of_open_element(void *owner)
{
    const reader &r = *static_cast<reader *>(owner);
    return r.tags.depth == 0 ? std::string_view() : r.tags.elements[r.tags.depth - 1].name;
}

// What stays when the source goes on.
bool keep_what_is_used(void *owner)
{
    reader &r = *static_cast<reader *>(owner);
    // In the order of the document, so that lines are counted once.
    bool kept = keep_open_elements(r.tags, r.source);
    complete(r.source, r.place);
    return kept;
}

int32_t fail(xb_context_state &state, int32_t status, position place, std::string_view reason)
{
    reader &r = state.reader;
    r.failure = status;
    r.failure_place = place;
    r.failure_reason = reason.empty() ? nullptr : heap_copy_text(state.memory, reason);
    return status;
}

void take_leaf(reader &r, const event &next)
{
    r.leaf = next.is_leaf ? leaf_state::ahead : leaf_state::none;
    if (!next.is_leaf)
        return;
    r.leaf_text = next.leaf_text;
    r.leaf_significant = next.leaf_significant;
    r.leaf_text_place = next.leaf_text_place;
    r.leaf_end = next.leaf_end;
}

// The end tag of the leaf that is open becomes the event ahead.
void close_leaf(reader &r)
{
    r.leaf = leaf_state::none;
    r.ahead = true;
    r.ahead_kind = event_kind::end_tag;
    r.ahead_place = r.leaf_end;
    r.text = r.leaf_text;
    r.has_text = !r.leaf_text.empty();
    r.text_significant = r.leaf_significant;
    r.text_place = r.leaf_text_place;
}

int32_t take_event(xb_context_state &state, const event &next)
{
    reader &r = state.reader;
    r.text = next.text;
    r.has_text = next.has_text;
    r.text_significant = next.significant;
    if (next.has_text)
        r.text_place = next.text_place;
    if (next.kind == event_kind::failure)
        return fail(state, next.status, next.place, next.reason);
    if (next.kind == event_kind::start_tag) {
        int32_t status = stack_tag(r.tags, next);
        if (status != XB_OK)
            return fail(state, status, next.place,
                        status == XB_E_UNDECLARED_PREFIX ? next.name : std::string_view());
        take_leaf(r, next);
    }
    r.ahead = true;
    r.ahead_kind = next.kind;
    r.ahead_place = next.place;
    return XB_OK;
}

}  // namespace

void reader_close(reader &r)
{
    if (r.source.state != nullptr)
        r.source.destroy(r.source.state);
    release_tags(r.tags);
    r = {};
    r.selected = no_attribute;
}

int32_t read_next(xb_context_state &state)
{
    reader &r = state.reader;
    if (r.failure != XB_OK)
        return r.failure;
    if (r.source.state == nullptr)
        return XB_E_BAD_STATE;
    // What is stacked next takes the slot of the element that was closed last.
    r.can_push_back = false;
    if (r.leaf == leaf_state::open) {
        close_leaf(r);
        return XB_OK;
    }
    cut_to_open_elements(r.tags);
    event next;
    r.source.next(r.source.state, next);
    return take_event(state, next);
}

int32_t hand_over_failure(xb_context_state &state, int32_t status)
{
    reader &r = state.reader;
    if (status != r.failure)
        return status;
    r.place = r.failure_place;
    if (r.failure_reason != nullptr)
        add_parameter(state, r.failure_reason);
    r.failure_reason = nullptr;
    return status;
}

int32_t refuse_text(xb_context_state &state)
{
    reader &r = state.reader;
    r.selected = no_attribute;
    r.place = r.text_place;
    end_travel(state.errors);
    return XB_E_TEXT_UNEXPECTED;
}

position place_of_selected(reader &r)
{
    element &tag = r.tags.elements[r.tags.depth - 1];
    complete(r.source, tag.place);
    return place_of_attribute(r.tags, tag, r.tags.attributes.items[tag.attribute_begin + r.selected]);
}

position error_place(xb_context_state &state, int32_t status)
{
    reader &r = state.reader;
    if (status != XB_E_ATTRIBUTE_MISSING && r.selected != no_attribute)
        return place_of_selected(r);
    bool is_tags = status == XB_E_ATTRIBUTE_MISSING && r.tags.depth > 0;
    position &place = is_tags ? r.tags.elements[r.tags.depth - 1].place : r.place;
    complete(r.source, place);
    return place;
}

}  // namespace inv::xml

using namespace inv::xml;

int32_t rtXmlpCreateReader(xb_context *ctx)
{
    xb_context_state &state = *ctx->state;
    if (!state.in.open || state.reader.source.state != nullptr)
        return XB_E_BAD_STATE;
    reader_close(state.reader);
    if (state.armed != nullptr)
        begin_document(*state.armed);
    end_travel(state.errors);
    reader &r = state.reader;
    r.place = {1, 1, 0};
    const event_reader lent = {&r.tags.attributes, &r.tags.made_texts, name_of_open_element,
                               keep_what_is_used, &r};
    auto *create = state.slow_road || !input_can_rewind(state.in) ? create_expat_source : create_fast_source;
    return create(r.source, state.in, state.chunk_size, lent) ? XB_OK : XB_E_NO_MEMORY;
}

void rtXmlpMarkLastEventActive(xb_context *ctx)
{
    reader &r = ctx->state->reader;
    if (r.ahead || !r.can_push_back)
        return;
    r.can_push_back = false;
    r.selected = no_attribute;
    r.has_text = r.text_significant = r.text_taken = false;
    if (r.last_kind == event_kind::start_tag) {
        r.leaf = r.leaf == leaf_state::open ? leaf_state::ahead : leaf_state::none;
        leave_element(r.tags);
    } else {
        enter_element(r.tags);
    }
    r.ahead = true;
    r.ahead_kind = r.last_kind;
}

bool rtXmlpIsEmptyElement(xb_context *ctx)
{
    // A failure is left to the next read, which returns it.
    if (read_ahead(*ctx->state) != XB_OK)
        return true;
    return ctx->state->reader.ahead_kind != event_kind::start_tag && !ctx->state->reader.text_significant;
}

bool rtXmlpIsDecodeAsGroup(xb_context *ctx)
{
    return ctx->state->reader.group_mode;
}

void rtXmlpForceDecodeAsGroup(xb_context *ctx)
{
    ctx->state->reader.group_mode = true;
}
