// What expat's handlers queue and the source delivers.
#ifndef PLATFORM_XML_EXPAT_SOURCE_H
#define PLATFORM_XML_EXPAT_SOURCE_H

#include "event_source.h"
#include "growing_array.h"
#include "inv_platform/xml_runtime.h"

#include <expat.h>

namespace inv::xml
{

struct queued_attribute {
    text_span name;
    text_span value;
    uint32_t markup_at;
};

enum class queued_kind : uint8_t { start_tag, end_tag, text };

struct queued_event {
    queued_kind kind;
    bool significant;
    position place;
    position significant_place;
    text_span text;  // name of a tag, or the text
    text_span markup;
    size_t first_attribute;
    size_t attribute_count;
};

constexpr XML_Index no_reference = -1;

struct expat_source {
    XML_Parser parser;
    input *in;
    event_reader reader;
    size_t chunk_size;  // asked for at the next reading
    size_t least_chunk;
    XML_Index token_at;     // where expat stood after the last chunk
    unsigned char head[2];  // the document's first octets, as far as they have come
    size_t head_length;
    bool last_chunk_fed;
    bool paused;               // the parser is suspended until the queue has drained
    bool aborted;              // a handler gave up; `ending` says why
    bool finished;             // `ending` follows the queue
    bool foreign_markup;       // the declaration names another encoding than UTF-8
    bool byte_order_mark;      // of UTF-8, which expat counts as a character of line 1
    bool unread_declarations;  // the document relies on declarations that stand outside of it
    size_t fill;               // of the queue after the last event
    XML_Index reference_at;    // of the entity reference that the last event came out of, or no_reference
    size_t fill_in_front;      // of that reference
    bool in_character_data;    // in a CDATA section of the document itself
    uint64_t default_octets;   // of attributes that the document type has given so far
    size_t declarations;
    event ending;
    char reason[128];
    growing_array<queued_event> events;
    size_t next;
    growing_array<queued_attribute> attributes;
    growing_array<char> octets;
    // The text in front of the next tag.
    growing_array<char> text;
    bool has_text;
    bool significant;
    position text_place;
};

position here(const expat_source &source);

// No event follows those that are queued but this one.
void end_with(expat_source &source, int32_t status, std::string_view reason);

// What expat calls: see expat_handlers.cpp.
void set_handlers(expat_source &source);

}  // namespace inv::xml

#endif
