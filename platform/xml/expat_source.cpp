// Events by way of expat.
//
// Expat pushes; the reader pulls. What expat's handlers report is queued in memory that is used
// again once the queue has drained. A full queue suspends the parser, so that a long run of small
// elements in one chunk does not make it grow; only a single tag or run of text may, and an entity
// up to a limit. Names are taken as they stand: namespaces are the reader's.
#include "characters.h"
#include "event_source.h"
#include "growing_array.h"
#include "inv_platform/name_hash.h"
#include "inv_platform/xml_runtime.h"
#include "markup_walk.h"

#include <algorithm>
#include <cstring>
#include <expat.h>
#include <new>
#include <strings.h>

namespace inv::xml
{

namespace
{

constexpr size_t queue_octets = size_t{64} * 1024;
constexpr size_t queue_events = 1024;
// What one reference may expand to in the queue, which it has to fit into as a whole.
constexpr size_t most_of_one_reference = size_t{1} << 20;
constexpr size_t greatest_chunk = size_t{64} << 20;
constexpr size_t greatest_grown_chunk = size_t{512} << 20;

// Values that the document type gives may come to this many octets, or to this many times what has
// been read of the document; expat bounds entities likewise, but not these.
constexpr uint64_t free_default_octets = uint64_t{8} << 20;
constexpr uint64_t greatest_default_factor = 100;

// Of a document type: expat walks through an element's declared attributes for each of its tags, and
// older releases recurse into entities that consist of one another.
constexpr size_t most_declarations = 1000;

constexpr std::string_view entity_unknown = "undefined entity";

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

struct expat_source {
    XML_Parser parser;
    input *in;
    event_reader reader;
    size_t chunk_size;  // asked for at the next reading
    size_t least_chunk;
    XML_Index token_at;  // where expat stood after the last chunk
    bool first_chunk_seen;
    bool last_chunk_fed;
    bool paused;               // the parser is suspended until the queue has drained
    bool aborted;              // a handler gave up; `ending` says why
    bool finished;             // `ending` follows the queue
    bool foreign_markup;       // the declaration names another encoding than UTF-8
    bool byte_order_mark;      // of UTF-8, which expat counts as a character of line 1
    bool unread_declarations;  // the document relies on declarations that stand outside of it
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

position here(const expat_source &source)
{
    XML_Index offset = XML_GetCurrentByteIndex(source.parser);
    uint64_t line = XML_GetCurrentLineNumber(source.parser);
    uint64_t column = XML_GetCurrentColumnNumber(source.parser) + 1;
    if (line == 1 && source.byte_order_mark && column > 1)
        --column;
    return {line, column, offset < 0 ? 0 : static_cast<uint64_t>(offset)};
}

void end_with(expat_source &source, int32_t status, std::string_view reason)
{
    source.finished = true;
    source.ending = {};
    source.ending.kind = status == XB_OK ? event_kind::end_of_document : event_kind::failure;
    source.ending.status = status;
    source.ending.reason = reason;
    source.ending.place = here(source);
}

// Ends the parse from inside a handler.
void abort_with(expat_source &source, int32_t status, std::string_view reason)
{
    if (source.aborted)
        return;
    source.aborted = true;
    end_with(source, status, reason);
    XML_StopParser(source.parser, XML_FALSE);
}

// Where an event comes out of an entity, the place in the document is that of the reference.
bool is_inside_entity(const expat_source &source)
{
    int offset = 0;
    int size = 0;
    const char *buffer = XML_GetInputContext(source.parser, &offset, &size);
    if (buffer == nullptr || offset < 0 || size - offset < 2)
        return false;
    return buffer[offset] == '&' || (buffer[offset] == '\0' && buffer[offset + 1] == '&');
}

// Never inside an entity: releases of expat that are in use forget the rest of one then.
void pause_when_full(expat_source &source)
{
    if (source.paused || (source.octets.count < queue_octets && source.events.count < queue_events))
        return;
    if (!is_inside_entity(source)) {
        source.paused = true;
        XML_StopParser(source.parser, XML_TRUE);
    } else if (source.octets.count + source.events.count * sizeof(queued_event) > most_of_one_reference) {
        abort_with(source, XB_E_MALFORMED, "entities expand too far");
    }
}

// The document's octets from where the present event starts, empty when they cannot be had. Inside
// an entity's replacement that is the reference.
std::string_view raw_octets(const expat_source &source)
{
    int offset = 0;
    int size = 0;
    const char *buffer = XML_GetInputContext(source.parser, &offset, &size);
    if (source.foreign_markup || buffer == nullptr || offset < 0 || size - offset < 2)
        return {};
    // Markup of UTF-16 has a zero octet in one of these places.
    if (buffer[offset] == '\0' || buffer[offset + 1] == '\0')
        return {};
    return std::string_view(buffer + offset, static_cast<size_t>(size - offset));
}

// The start tag as it stands in the document.
std::string_view raw_tag(const expat_source &source)
{
    std::string_view raw = raw_octets(source);
    int length = XML_GetCurrentByteCount(source.parser);
    if (raw.empty() || raw.front() != '<' || length < 0)
        return {};
    return raw.substr(0, static_cast<size_t>(length));
}

bool has_entity_reference(std::string_view markup)
{
    for (size_t at = markup.find('&'); at != std::string_view::npos; at = markup.find('&', at + 1)) {
        std::string_view name = markup.substr(at + 1, markup.find(';', at) - at - 1);
        bool is_known = name.starts_with('#') || name == "amp" || name == "lt" || name == "gt" ||
                        name == "quot" || name == "apos";
        if (!is_known)
            return true;
    }
    return false;
}

// Expat silently leaves a reference out of an attribute value when a declaration that it has not
// read could explain it. Where that may have happened, and where nobody can tell, the tag is refused.
bool may_have_holes(const expat_source &source)
{
    if (!source.unread_declarations)
        return false;
    std::string_view raw = raw_tag(source);
    return raw.empty() || has_entity_reference(raw);
}

// A long default value in every tag would make the work grow faster than the document.
bool defaults_are_bounded(expat_source &source, std::string_view name, std::string_view value)
{
    source.default_octets += name.size() + value.size();
    return source.default_octets <= free_default_octets ||
           source.default_octets / greatest_default_factor <= here(source).offset;
}

bool queue_attributes(expat_source &source, const XML_Char **names_and_values, queued_event &queued)
{
    std::string_view markup = raw_tag(source);
    size_t markup_at = first_attribute_in(markup);
    const XML_Char **defaults = names_and_values + XML_GetSpecifiedAttributeCount(source.parser);
    queued.first_attribute = source.attributes.count;
    for (const XML_Char **item = names_and_values; *item != nullptr; item += 2) {
        queued_attribute attribute = {};
        // One that only the document type gives stands nowhere in the tag.
        attribute.markup_at =
            item < defaults && markup_at < markup.size() ? static_cast<uint32_t>(markup_at) : not_in_markup;
        if (item >= defaults && !defaults_are_bounded(source, item[0], item[1])) {
            abort_with(source, XB_E_MALFORMED, "default values expand too far");
            return false;
        }
        if (!keep_text(source.octets, item[0], attribute.name) ||
            !keep_text(source.octets, item[1], attribute.value) || !append(source.attributes, attribute))
            return false;
        markup_at = next_attribute_in(markup, markup_at);
    }
    queued.attribute_count = source.attributes.count - queued.first_attribute;
    return true;
}

void queue_tag(expat_source &source, queued_kind kind, const XML_Char *name, const XML_Char **attributes)
{
    if (source.aborted)
        return;
    queued_event queued = {};
    queued.kind = kind;
    queued.place = here(source);
    // The end of an empty-element tag has no octets of its own; it stands where its tag does.
    if (kind == queued_kind::end_tag && source.events.count > 0 &&
        XML_GetCurrentByteCount(source.parser) == 0)
        queued.place = source.events.items[source.events.count - 1].place;
    bool kept = keep_text(source.octets, name, queued.text);
    if (kept && attributes != nullptr && attributes[0] != nullptr) {
        if (may_have_holes(source))
            abort_with(source, XB_E_MALFORMED, entity_unknown);
        kept = !source.aborted && queue_attributes(source, attributes, queued) &&
               keep_text(source.octets, raw_tag(source), queued.markup);
    }
    // The first reason to give up stands.
    if (!kept || !append(source.events, queued))
        abort_with(source, XB_E_NO_MEMORY, {});
    else
        pause_when_full(source);
}

void XMLCALL on_start_tag(void *user, const XML_Char *name, const XML_Char **attributes)
{
    queue_tag(*static_cast<expat_source *>(user), queued_kind::start_tag, name, attributes);
}

void XMLCALL on_end_tag(void *user, const XML_Char *name)
{
    queue_tag(*static_cast<expat_source *>(user), queued_kind::end_tag, name, nullptr);
}

// Expat reports line feeds alone, so white space in front of other text is on the same line.
position place_of_first_significant(const expat_source &source, std::string_view text)
{
    position place = here(source);
    std::string_view raw = raw_octets(source);
    if (!raw.empty() && raw.front() == text.front() && raw.front() != '&') {
        size_t blanks = text.find_first_not_of(white_space);
        place.column += blanks;
        place.offset += blanks;
    }
    return place;
}

bool queue_text(expat_source &source, std::string_view text)
{
    bool joins =
        source.events.count > 0 && source.events.items[source.events.count - 1].kind == queued_kind::text;
    if (!joins) {
        queued_event queued = {};
        queued.kind = queued_kind::text;
        queued.place = here(source);
        queued.text.start = source.octets.count;
        if (!append(source.events, queued))
            return false;
    }
    queued_event &queued = source.events.items[source.events.count - 1];
    if (!queued.significant && text.find_first_not_of(white_space) != std::string_view::npos) {
        queued.significant = true;
        queued.significant_place = place_of_first_significant(source, text);
    }
    if (!append_text(source.octets, text))
        return false;
    queued.text.length += text.size();
    return true;
}

void XMLCALL on_text(void *user, const XML_Char *text, int length)
{
    expat_source &source = *static_cast<expat_source *>(user);
    if (source.aborted || length <= 0)
        return;
    if (!queue_text(source, std::string_view(text, static_cast<size_t>(length))))
        abort_with(source, XB_E_NO_MEMORY, {});
    else
        pause_when_full(source);
}

void XMLCALL on_declaration(void *user, const XML_Char *, const XML_Char *encoding, int)
{
    expat_source &source = *static_cast<expat_source *>(user);
    if (encoding != nullptr && strcasecmp(encoding, "UTF-8") != 0 && strcasecmp(encoding, "US-ASCII") != 0)
        source.foreign_markup = true;
}

// A reference whose text is not known would silently leave a hole in a value.
void XMLCALL on_skipped_entity(void *user, const XML_Char *, int is_parameter_entity)
{
    if (!is_parameter_entity)
        abort_with(*static_cast<expat_source *>(user), XB_E_MALFORMED, entity_unknown);
}

int XMLCALL on_unread_declarations(void *user)
{
    static_cast<expat_source *>(user)->unread_declarations = true;
    return XML_STATUS_OK;
}

void count_declaration(expat_source &source)
{
    if (++source.declarations > most_declarations)
        abort_with(source, XB_E_MALFORMED, "too many declarations");
}

// The hole that a reference has left cannot be seen in the value, nor later in the tags that get it.
void XMLCALL on_attribute_declaration(void *user, const XML_Char *, const XML_Char *, const XML_Char *,
                                      const XML_Char *default_value, int)
{
    expat_source &source = *static_cast<expat_source *>(user);
    if (source.unread_declarations && default_value != nullptr)
        abort_with(source, XB_E_MALFORMED, entity_unknown);
    count_declaration(source);
}

void XMLCALL on_entity_declaration(void *user, const XML_Char *, int, const XML_Char *, int, const XML_Char *,
                                   const XML_Char *, const XML_Char *, const XML_Char *)
{
    count_declaration(*static_cast<expat_source *>(user));
}

int XMLCALL on_external_entity(XML_Parser parser, const XML_Char *, const XML_Char *, const XML_Char *,
                               const XML_Char *)
{
    abort_with(*static_cast<expat_source *>(XML_GetUserData(parser)), XB_E_MALFORMED,
               "external entities are not loaded");
    return XML_STATUS_ERROR;
}

// Releases of expat that are in use look at an unfinished token from its start again with each chunk. Chunks
// that grow with the token keep this linear.
void fit_chunk_to_token(expat_source &source)
{
    const XML_Index at = XML_GetCurrentByteIndex(source.parser);
    const size_t grown = std::min(source.chunk_size * 2, greatest_grown_chunk);
    source.chunk_size = at == source.token_at ? grown : source.least_chunk;
    source.token_at = at;
}

XML_Status feed_chunk(expat_source &source)
{
    void *buffer = XML_GetBuffer(source.parser, static_cast<int>(source.chunk_size));
    if (buffer == nullptr)
        return XML_STATUS_ERROR;
    int error = 0;
    ptrdiff_t count = input_read(*source.in, buffer, source.chunk_size, &error);
    if (count < 0) {
        source.aborted = true;
        end_with(source, XB_E_FILE_READ, strerror_r(error, source.reason, sizeof source.reason));
        return XML_STATUS_ERROR;
    }
    if (!source.first_chunk_seen && count > 0) {
        source.first_chunk_seen = true;
        source.byte_order_mark = *static_cast<const unsigned char *>(buffer) == 0xEF;
    }
    source.last_chunk_fed = count == 0;
    XML_Status status = XML_ParseBuffer(source.parser, static_cast<int>(count), count == 0);
    fit_chunk_to_token(source);
    return status;
}

void parse_further(expat_source &source)
{
    bool resumed = source.paused;
    source.paused = false;
    XML_Status status = resumed ? XML_ResumeParser(source.parser) : feed_chunk(source);
    if (status == XML_STATUS_SUSPENDED || source.aborted)
        return;
    source.paused = false;
    if (status == XML_STATUS_ERROR) {
        XML_Error error = XML_GetErrorCode(source.parser);
        const XML_LChar *text = XML_ErrorString(error);
        end_with(source, error == XML_ERROR_NO_MEMORY ? XB_E_NO_MEMORY : XB_E_MALFORMED,
                 text == nullptr ? "" : text);
    } else if (source.last_chunk_fed) {
        end_with(source, XB_OK, {});
    }
}

void refill(expat_source &source)
{
    while (source.next == source.events.count && !source.finished) {
        source.next = 0;
        source.events.count = 0;
        source.attributes.count = 0;
        source.octets.count = 0;
        parse_further(source);
    }
}

bool gather_text(expat_source &source, const queued_event &queued)
{
    if (!source.has_text)
        source.text_place = queued.place;
    source.has_text = true;
    if (queued.significant && !source.significant) {
        source.significant = true;
        source.text_place = queued.significant_place;
    }
    return append_text(source.text, view(source.octets, queued.text));
}

bool deliver_attribute(expat_source &source, const queued_attribute &queued, event &out)
{
    std::string_view name, value;
    if (!push_text(*source.reader.texts, view(source.octets, queued.name), name) ||
        !push_text(*source.reader.texts, view(source.octets, queued.value), value))
        return false;
    attribute item = {};
    item.name = name.data();
    item.name_length = static_cast<uint32_t>(name.size());
    item.value = value.data();
    item.value_length = static_cast<uint32_t>(value.size());
    item.name_hash = name_hash(name.data(), name.size());
    item.markup_at = queued.markup_at;
    item.made_value = true;
    out.has_colons = out.has_colons || name.find(':') != std::string_view::npos;
    out.has_declarations = out.has_declarations || name.starts_with("xmlns");
    ++out.attribute_count;
    return append(*source.reader.attributes, item);
}

bool deliver_tag(expat_source &source, const queued_event &queued, event &out)
{
    out.kind = queued.kind == queued_kind::start_tag ? event_kind::start_tag : event_kind::end_tag;
    out.place = queued.place;
    if (!push_text(*source.reader.texts, view(source.octets, queued.text), out.name) ||
        !push_text(*source.reader.texts, view(source.octets, queued.markup), out.markup))
        return false;
    out.name_hash = name_hash(out.name.data(), out.name.size());
    out.has_colons = out.name.find(':') != std::string_view::npos;
    out.stable = true;
    for (size_t i = 0; i < queued.attribute_count; ++i) {
        if (!deliver_attribute(source, source.attributes.items[queued.first_attribute + i], out))
            return false;
    }
    return true;
}

// Gathers texts up to the next tag and delivers that; false: memory is out.
bool deliver_next(expat_source &source, event &out)
{
    for (;;) {
        refill(source);
        if (source.next == source.events.count) {
            out = source.ending;
            return true;
        }
        const queued_event &queued = source.events.items[source.next++];
        if (queued.kind != queued_kind::text)
            return deliver_tag(source, queued, out);
        if (!gather_text(source, queued))
            return false;
    }
}

void next_event(void *state, event &out)
{
    expat_source &source = *static_cast<expat_source *>(state);
    source.text.count = 0;
    source.has_text = source.significant = false;
    out = {};
    if (!deliver_next(source, out)) {
        source.next = source.events.count;
        end_with(source, XB_E_NO_MEMORY, {});
        out = source.ending;
    }
    out.has_text = source.has_text;
    out.significant = source.significant;
    out.text_place = source.text_place;
    if (source.has_text)
        out.text = std::string_view(source.text.items, source.text.count);
}

void destroy(void *state)
{
    expat_source *source = static_cast<expat_source *>(state);
    XML_ParserFree(source->parser);
    release_array(source->events);
    release_array(source->attributes);
    release_array(source->octets);
    release_array(source->text);
    memory::release(source);
}

void set_handlers(expat_source &source)
{
    XML_SetUserData(source.parser, &source);
    XML_SetElementHandler(source.parser, on_start_tag, on_end_tag);
    XML_SetCharacterDataHandler(source.parser, on_text);
    XML_SetXmlDeclHandler(source.parser, on_declaration);
    XML_SetSkippedEntityHandler(source.parser, on_skipped_entity);
    XML_SetNotStandaloneHandler(source.parser, on_unread_declarations);
    XML_SetAttlistDeclHandler(source.parser, on_attribute_declaration);
    XML_SetEntityDeclHandler(source.parser, on_entity_declaration);
    XML_SetExternalEntityRefHandler(source.parser, on_external_entity);
}

}  // namespace

bool create_expat_source(event_source &source, input &in, size_t chunk_size, const event_reader &reader)
{
    void *block = memory::request(sizeof(expat_source));
    if (block == nullptr)
        return false;
    expat_source *made = new (block) expat_source{};
    constexpr XML_Memory_Handling_Suite memory_suite = {memory::request, memory::resize, memory::release};
    made->parser = XML_ParserCreate_MM(nullptr, &memory_suite, nullptr);
    if (made->parser == nullptr) {
        memory::release(block);
        return false;
    }
    made->in = &in;
    made->reader = reader;
    made->least_chunk = made->chunk_size = std::clamp(chunk_size, size_t{1}, greatest_chunk);
    set_handlers(*made);
    source = {next_event, destroy, nullptr, nullptr, nullptr, nullptr, made};
    return true;
}

}  // namespace inv::xml
