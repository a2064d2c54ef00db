// How reading works.
//
// The event source pushes nothing: read_ahead() asks it for events until one that is not text
// comes, gathers the text on the way, and keeps that event as the one "ahead". Every function
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

#include "context.h"

namespace inv::xml
{

namespace
{

void forget_text(reader &r)
{
    r.text.count = 0;
    r.has_text = false;
    r.text_significant = false;
    r.text_taken = false;
}

bool gather_text(reader &r, const event &piece)
{
    if (!r.has_text)
        r.text_place = piece.place;
    r.has_text = true;
    if (piece.significant && !r.text_significant) {
        r.text_significant = true;
        r.text_place = piece.significant_place;
    }
    return append_text(r.text, piece.text);
}

int32_t fail(xb_context_state &state, int32_t status, position place, std::string_view reason)
{
    reader &r = state.reader;
    r.failure = status;
    r.failure_place = place;
    r.failure_reason = reason.empty() ? nullptr : heap_copy_text(state.memory, reason);
    return status;
}

int32_t take_event(xb_context_state &state, const event &next)
{
    reader &r = state.reader;
    if (next.kind == event_kind::failure)
        return fail(state, next.status, next.place, next.reason);
    if (next.kind == event_kind::start_tag) {
        int32_t status = stack_tag(r.tags, next);
        if (status != XB_OK)
            return fail(state, status, next.place,
                        status == XB_E_UNDECLARED_PREFIX ? next.name : std::string_view());
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
    release_array(r.text);
    r = {};
    r.selected = no_attribute;
}

int32_t read_ahead(xb_context_state &state)
{
    reader &r = state.reader;
    if (r.ahead || r.failure != XB_OK)
        return r.failure;
    if (r.source.state == nullptr)
        return XB_E_BAD_STATE;
    // What is stacked next takes the slot of the element that was closed last.
    r.can_push_back = false;
    for (;;) {
        event next;
        r.source.next(r.source.state, next);
        if (next.kind != event_kind::text)
            return take_event(state, next);
        if (!gather_text(r, next))
            return fail(state, XB_E_NO_MEMORY, next.place, {});
    }
}

int32_t read_event(xb_context_state &state)
{
    reader &r = state.reader;
    int32_t status = read_ahead(state);
    r.selected = no_attribute;
    if (status == XB_OK) {
        end_travel(state.errors);
        r.place = r.ahead_place;
    } else if (status == r.failure) {
        r.place = r.failure_place;
        if (r.failure_reason != nullptr)
            add_parameter(state, r.failure_reason);
        r.failure_reason = nullptr;
    }
    return status;
}

int32_t read_tag(xb_context_state &state)
{
    reader &r = state.reader;
    read_ahead(state);
    // Text comes first in the document, so it is complained about before what follows it.
    if (r.text_significant && !r.text_taken) {
        r.selected = no_attribute;
        r.place = r.text_place;
        end_travel(state.errors);
        return XB_E_TEXT_UNEXPECTED;
    }
    return read_event(state);
}

void consume_tag(reader &r)
{
    r.ahead = false;
    r.last_kind = r.ahead_kind;
    r.can_push_back = true;
    r.group_mode = false;
    forget_text(r);
    if (r.ahead_kind == event_kind::start_tag)
        enter_element(r.tags);
    else
        leave_element(r.tags);
}

position place_of_selected(reader &r)
{
    const element &tag = r.tags.elements[r.tags.depth - 1];
    const attribute &item = r.tags.attributes.items[tag.attribute_begin + r.selected];
    return place_of_attribute(r.tags, tag, item.tag_index);
}

position error_place(xb_context_state &state, int32_t status)
{
    reader &r = state.reader;
    if (status == XB_E_ATTRIBUTE_MISSING && r.tags.depth > 0)
        return r.tags.elements[r.tags.depth - 1].place;
    return r.selected == no_attribute ? r.place : place_of_selected(r);
}

}  // namespace inv::xml

using namespace inv::xml;

int32_t rtXmlpCreateReader(xb_context *ctx)
{
    xb_context_state &state = *ctx->state;
    if (!state.in.open || state.reader.source.state != nullptr)
        return XB_E_BAD_STATE;
    reader_close(state.reader);
    end_travel(state.errors);
    state.reader.place = {1, 1, 0};
    return create_expat_source(state.reader.source, state.in, state.chunk_size) ? XB_OK : XB_E_NO_MEMORY;
}

void rtXmlpMarkLastEventActive(xb_context *ctx)
{
    reader &r = ctx->state->reader;
    if (r.ahead || !r.can_push_back)
        return;
    r.can_push_back = false;
    r.selected = no_attribute;
    forget_text(r);
    if (r.last_kind == event_kind::start_tag)
        leave_element(r.tags);
    else
        enter_element(r.tags);
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
