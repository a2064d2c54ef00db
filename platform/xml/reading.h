// The reader's steps. What nearly every step does is inline.
#ifndef PLATFORM_XML_READING_H
#define PLATFORM_XML_READING_H

#include "context.h"

namespace inv::xml
{

// Reads the next event ahead where none is.
int32_t read_next(xb_context_state &state);

// Leaves the place and parameter of the reader's failure for the error record.
int32_t hand_over_failure(xb_context_state &state, int32_t status);

// XB_E_TEXT_UNEXPECTED, at the text in front of the event ahead.
int32_t refuse_text(xb_context_state &state);

// Makes sure that an event is ahead. Returns the reader's failure, if any, without leaving a trace
// of it.
inline int32_t read_ahead(xb_context_state &state)
{
    return state.reader.ahead ? XB_OK : read_next(state);
}

// The same for a caller that is about to return the failure: leaves its place and parameter for
// the error record and makes the event read ahead the present place.
inline int32_t read_event(xb_context_state &state)
{
    reader &r = state.reader;
    int32_t status = read_ahead(state);
    r.selected = no_attribute;
    if (status != XB_OK)
        return hand_over_failure(state, status);
    end_travel(state.errors);
    r.place = r.ahead_place;
    return XB_OK;
}

// The same where no text may stand: XB_E_TEXT_UNEXPECTED for text other than white space. Text comes
// first in the document, so it is complained about before what follows it.
inline int32_t read_tag(xb_context_state &state)
{
    read_ahead(state);
    if (state.reader.text_significant && !state.reader.text_taken)
        return refuse_text(state);
    return read_event(state);
}

// Takes the tag read ahead: opens its element, or closes the current one.
inline void consume_tag(reader &r)
{
    r.ahead = false;
    r.last_kind = r.ahead_kind;
    r.can_push_back = true;
    r.group_mode = false;
    r.has_text = r.text_significant = r.text_taken = false;
    if (r.ahead_kind == event_kind::start_tag) {
        r.leaf = r.leaf == leaf_state::ahead ? leaf_state::open : leaf_state::none;
        enter_element(r.tags);
    } else {
        r.leaf = leaf_state::none;
        leave_element(r.tags);
    }
}

}  // namespace inv::xml

#endif
