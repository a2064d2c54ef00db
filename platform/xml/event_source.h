// The one door through which the reader gets a document's events.
//
// Whoever stands behind it reports the same events for the same document: attribute values
// normalised, line ends turned into single line feeds, references replaced, comments and
// processing instructions left out, names with their prefixes, everything as UTF-8. Text between
// two tags may come in any number of pieces.
#ifndef PLATFORM_XML_EVENT_SOURCE_H
#define PLATFORM_XML_EVENT_SOURCE_H

#include "input.h"

#include <cstdint>
#include <string_view>

namespace inv::xml
{

enum class event_kind : uint8_t { start_tag, text, end_tag, end_of_document, failure };

struct position {
    uint64_t line = 0;    // 1-based; 0: no position
    uint64_t column = 0;  // 1-based, in characters
    uint64_t offset = 0;  // 0-based, in octets
};

struct tag_attribute {
    std::string_view name;  // with prefix; namespace declarations are attributes here
    std::string_view value;
};

struct event {
    event_kind kind;
    position place;                   // a tag's '<', a text's first character, where reading failed
    std::string_view name;            // tags
    const tag_attribute *attributes;  // start tags, in document order
    size_t attribute_count;
    std::string_view markup;     // start tag as the document has it (UTF-8), empty if unknown
    std::string_view text;       // text
    bool significant;            // text: holds more than white space
    position significant_place;  // text: its first character other than white space
    int32_t status;              // failure: a status of the runtime
    std::string_view reason;     // failure
};

// Views of an event stay valid until the next call. After the end or a failure every further call
// yields the same event again.
struct event_source {
    void (*next)(void *state, event &out) = nullptr;
    void (*destroy)(void *state) = nullptr;
    void *state = nullptr;  // null: no source
};

// Events by way of expat, read in chunks of chunk_size octets. `in` must outlive the source.
// False when memory is out.
bool create_expat_source(event_source &source, input &in, size_t chunk_size);

}  // namespace inv::xml

#endif
