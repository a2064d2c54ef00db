// The pull reader: events, the reading position and the text in front of it.
#ifndef PLATFORM_XML_READER_H
#define PLATFORM_XML_READER_H

#include "event_source.h"
#include "tags.h"

namespace inv::xml
{

constexpr size_t no_attribute = SIZE_MAX;

enum class leaf_state : uint8_t {
    none,
    ahead,  // the start tag ahead is that of a leaf
    open    // it was taken: the end tag is what comes next
};

// The row of an element table that a name was found in at a position of the content, for the short ways:
// tables stay as they are while they are in use, so that the same name is found there again.
struct row_guess {
    const xb_element_row *rows;
    const xb_sequence_row *sequence;
    int32_t row_count;
    int32_t position;
    int32_t row;  // -1: none yet
};

constexpr size_t guess_count = 256;

struct reader {
    event_source source;
    tag_stack tags;

    // The event read ahead or pushed back, never text.
    bool ahead;
    event_kind ahead_kind;
    position ahead_place;

    // The last tag that was read, for a push-back.
    bool can_push_back;
    event_kind last_kind;

    // The end of the element whose start tag is ahead or was taken last (see event::is_leaf).
    leaf_state leaf;
    bool leaf_significant;
    std::string_view leaf_text;
    position leaf_text_place;
    position leaf_end;

    // The text between the last tag and the event read ahead: the source's until it reads on.
    std::string_view text;
    bool has_text;
    position text_place;  // its first character, other than white space where there is one
    bool text_significant;
    bool text_taken;  // a value decoder has used it

    int32_t failure;  // ends all reading
    position failure_place;
    const char *failure_reason;  // not yet handed over as a parameter, or null

    position place;   // where the next error belongs
    size_t selected;  // attribute of the current tag, counted from its first; or no_attribute
    bool group_mode;
    row_guess guesses[guess_count];
};

// Gives back what the reader holds.
void reader_close(reader &r);

// Where an error of this status belongs now.
position error_place(xb_context_state &state, int32_t status);

// The place of the selected attribute's name.
position place_of_selected(reader &r);

}  // namespace inv::xml

#endif
