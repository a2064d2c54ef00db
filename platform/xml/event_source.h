// The one door through which the reader gets a document's events.
//
// Whoever stands behind it reports the same events for the same document: attribute values
// normalised, line ends turned into single line feeds, references replaced, comments and
// processing instructions left out, names with their prefixes, everything as UTF-8, each tag
// together with the text in front of it.
#ifndef PLATFORM_XML_EVENT_SOURCE_H
#define PLATFORM_XML_EVENT_SOURCE_H

#include "growing_array.h"
#include "input.h"
#include "text_stack.h"

#include <cstdint>
#include <string_view>

namespace inv::xml
{

enum class event_kind : uint8_t { start_tag, end_tag, end_of_document, failure };

// Line 0: only the offset is known so far (see event_source::locate), or there is no position.
struct position {
    uint64_t line = 0;    // 1-based
    uint64_t column = 0;  // 1-based, in characters
    uint64_t offset = 0;  // 0-based, in octets
};

enum class name_kind : uint8_t { plain, xsi, foreign, undeclared_prefix };

constexpr uint32_t not_in_markup = UINT32_MAX;

struct attribute {
    const char *name;  // with prefix
    const char *value;
    uint32_t name_length;
    uint32_t value_length;
    uint32_t name_hash;
    uint32_t markup_at;  // where the name starts in its tag's markup, or not_in_markup
    bool made_value;     // the value does not stand in the markup
    name_kind kind;      // the reader's to settle
};

inline std::string_view name_of(const attribute &item)
{
    return std::string_view(item.name, item.name_length);
}

inline std::string_view value_of(const attribute &item)
{
    return std::string_view(item.value, item.value_length);
}

struct event {
    event_kind kind;
    position place;  // a tag's '<'; where reading failed
    // Start tags.
    std::string_view name;
    uint32_t name_hash;
    size_t attribute_count;   // that were appended to the reader's array, in document order
    std::string_view markup;  // the tag as the document has it (UTF-8), empty if unknown
    bool has_colons;          // in one of the tag's names
    bool has_declarations;    // of namespaces among the attributes
    bool stable;              // all texts of the tag are in the stack that the reader lends
    // The end tag follows at once, with nothing but plain text in front of it; it gets no event.
    bool is_leaf;
    bool leaf_significant;
    std::string_view leaf_text;
    position leaf_text_place;
    position leaf_end;
    // The text in front of any event; empty CDATA sections are no text.
    std::string_view text;
    bool has_text;
    bool significant;     // it holds more than white space
    position text_place;  // its first character, other than white space where there is one
    // Failures.
    int32_t status;  // of the runtime
    std::string_view reason;
};

// What the reader lends its source.
struct event_reader {
    growing_array<attribute> *attributes;
    text_stack *texts;  // for texts that the source has to make; cut back by the reader
    // The name of the innermost open element.
    std::string_view (*open_name)(void *owner);
    // Told before views of earlier events become invalid; false: memory is out.
    bool (*keep)(void *owner);
    void *owner;
};

// Views of an event stay valid until a later call tells the reader to keep what it needs. After the
// end or a failure every further call yields that event again, without the text in front of it.
struct event_source {
    void (*next)(void *state, event &out) = nullptr;
    void (*destroy)(void *state) = nullptr;
    // Completes a position that is not older than the views; null when all positions are complete.
    void (*locate)(void *state, position &place) = nullptr;
    // Lends the octets that come next within an element's content, followed by window_padding octets
    // of 0 at least, and takes back where they were read to. Null where a source cannot.
    const char *(*lend)(void *state) = nullptr;  // null: not now
    void (*take_back)(void *state, const char *at) = nullptr;
    position (*place_of)(void *state, const char *at) = nullptr;  // of one of these octets
    void *state = nullptr;                                        // null: no source
};

// Completes a position that may have its offset only.
inline void complete(const event_source &source, position &place)
{
    if (place.line == 0 && source.locate != nullptr && source.state != nullptr)
        source.locate(source.state, place);
}

// Events by way of expat, read in chunks of chunk_size octets: whatever expat can read. `in` must
// outlive the source. False when memory is out.
bool create_expat_source(event_source &source, input &in, size_t chunk_size, const event_reader &reader);

// The fast road for UTF-8 without a document type declaration; takes the other one for all else. `in`
// must be one that can be read again from its start.
bool create_fast_source(event_source &source, input &in, size_t chunk_size, const event_reader &reader);

}  // namespace inv::xml

#endif
