// What expat reports, on its way into the queue.
#include "characters.h"
#include "expat_source.h"
#include "markup_walk.h"

#include <iterator>
#include <strings.h>
#include <utility>

namespace inv::xml
{

namespace
{

constexpr size_t queue_octets = size_t{64} * 1024;
constexpr size_t queue_events = 1024;
// What one reference may expand to in the queue, which it has to fit into as a whole; and so do references
// that follow each other with nothing between.
constexpr size_t most_of_one_reference = size_t{1} << 20;
constexpr size_t most_of_references = size_t{4} << 20;

// Values that the document type gives may come to this many octets, or to this many times what has
// been read of the document; expat bounds entities likewise, but not these.
constexpr uint64_t free_default_octets = uint64_t{8} << 20;
constexpr uint64_t greatest_default_factor = 100;

// Of a document type: expat walks through an element's declared attributes for each of its tags, and
// older releases recurse into entities that consist of one another.
constexpr size_t most_declarations = 1000;

constexpr std::string_view entity_unknown = "undefined entity";

// Ends the parse from inside a handler.
void abort_with(expat_source &source, int32_t status, std::string_view reason)
{
    if (source.aborted)
        return;
    source.aborted = true;
    end_with(source, status, reason);
    XML_StopParser(source.parser, XML_FALSE);
}

// `name` is what stands behind the '&'.
bool is_of_character(std::string_view name)
{
    return name.starts_with('#') || name == "amp" || name == "lt" || name == "gt" || name == "quot" ||
           name == "apos";
}

// How the document has its characters: of UTF-16, which octet of the two comes first.
enum class character_form : uint8_t { octets, little, big };

// As expat tells them apart: by the mark, or by the zero octet of a '<'.
character_form form_of_characters(const expat_source &source)
{
    const unsigned first = source.head[0];
    const unsigned second = source.head[1];
    if (first == 0 || (first == 0xFE && second == 0xFF))
        return character_form::big;
    return second == 0 || (first == 0xFF && second == 0xFE) ? character_form::little : character_form::octets;
}

// The document's characters from where the present event starts, as many as the longest predefined reference
// has. What is no ASCII in UTF-16 comes out as a control character.
std::string_view first_characters(const expat_source &source, char (&characters)[6])
{
    int offset = 0;
    int size = 0;
    const char *buffer = XML_GetInputContext(source.parser, &offset, &size);
    if (buffer == nullptr || offset < 0)
        return {};
    const character_form form = form_of_characters(source);
    const int width = form == character_form::octets ? 1 : 2;
    const int low = form == character_form::big ? 1 : 0;
    size_t count = 0;
    for (; count < std::size(characters) && offset + width <= size; offset += width) {
        const bool is_octet = width == 1 || buffer[offset + 1 - low] == '\0';
        characters[count++] = is_octet ? buffer[offset + low] : '\x7F';
    }
    return std::string_view(characters, count);
}

// The end of an empty-element tag has no octets of its own: at its place stands what follows the tag.
bool is_without_octets(const expat_source &source)
{
    return XML_GetCurrentByteCount(source.parser) == 0;
}

// Where an event comes out of an entity, the place in the document is that of the reference. In a CDATA
// section it is that of the text, in which an ampersand says nothing.
bool is_inside_entity(const expat_source &source)
{
    if (source.in_character_data || is_without_octets(source))
        return false;
    char characters[6];
    const std::string_view first = first_characters(source, characters);
    return first.starts_with('&') && !is_of_character(first.substr(1, first.find(';') - 1));
}

size_t fill_of(const expat_source &source)
{
    return source.octets.count + source.events.count * sizeof(queued_event) +
           source.attributes.count * sizeof(queued_attribute);
}

// Told of each event that has been queued. Never pauses inside an entity: releases of expat that are in use
// forget the rest of one then.
void pause_when_full(expat_source &source)
{
    const size_t fill_before = std::exchange(source.fill, fill_of(source));
    if (!is_inside_entity(source)) {
        source.reference_at = no_reference;
        if (source.paused || (source.octets.count < queue_octets && source.events.count < queue_events))
            return;
        source.paused = true;
        XML_StopParser(source.parser, XML_TRUE);
        return;
    }
    const XML_Index at = XML_GetCurrentByteIndex(source.parser);
    if (at != source.reference_at)
        source.fill_in_front = fill_before;
    source.reference_at = at;
    if (source.fill - source.fill_in_front > most_of_one_reference || source.fill > most_of_references)
        abort_with(source, XB_E_MALFORMED, "entities expand too far");
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
        if (!is_of_character(markup.substr(at + 1, markup.find(';', at) - at - 1)))
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
    // Such an end stands where its tag does.
    if (kind == queued_kind::end_tag && source.events.count > 0 && is_without_octets(source))
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

void XMLCALL on_character_data(void *user)
{
    expat_source &source = *static_cast<expat_source *>(user);
    source.in_character_data = !is_inside_entity(source);
}

void XMLCALL on_end_of_character_data(void *user)
{
    static_cast<expat_source *>(user)->in_character_data = false;
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

}  // namespace

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

void set_handlers(expat_source &source)
{
    XML_SetUserData(source.parser, &source);
    XML_SetElementHandler(source.parser, on_start_tag, on_end_tag);
    XML_SetCharacterDataHandler(source.parser, on_text);
    XML_SetCdataSectionHandler(source.parser, on_character_data, on_end_of_character_data);
    XML_SetXmlDeclHandler(source.parser, on_declaration);
    XML_SetSkippedEntityHandler(source.parser, on_skipped_entity);
    XML_SetNotStandaloneHandler(source.parser, on_unread_declarations);
    XML_SetAttlistDeclHandler(source.parser, on_attribute_declaration);
    XML_SetEntityDeclHandler(source.parser, on_entity_declaration);
    XML_SetExternalEntityRefHandler(source.parser, on_external_entity);
}

}  // namespace inv::xml
