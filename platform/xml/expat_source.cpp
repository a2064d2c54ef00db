// Events by way of expat.
//
// Expat pushes; the reader pulls. What expat's handlers report is queued in memory that is used
// again once the queue has drained. A full queue suspends the parser, so that a long run of small
// elements in one chunk does not make it grow; only a single tag or run of text may, and entities
// up to a limit. Names are taken as they stand: namespaces are the reader's.
#include "expat_source.h"

#include "inv_platform/name_hash.h"
#include "inv_platform/system_memory.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>

namespace inv::xml
{

namespace
{

constexpr size_t greatest_chunk = size_t{64} << 20;
constexpr size_t greatest_grown_chunk = size_t{512} << 20;

// Releases of expat that are in use look at an unfinished token from its start again with each chunk. Chunks
// that grow with the token keep this linear.
void fit_chunk_to_token(expat_source &source)
{
    const XML_Index at = XML_GetCurrentByteIndex(source.parser);
    const size_t grown = std::min(source.chunk_size * 2, greatest_grown_chunk);
    source.chunk_size = at == source.token_at ? grown : source.least_chunk;
    source.token_at = at;
}

void look_at_head(expat_source &source, const unsigned char *octets, size_t count)
{
    for (size_t i = 0; i < count && source.head_length < std::size(source.head); ++i)
        source.head[source.head_length++] = octets[i];
    source.byte_order_mark = source.head[0] == 0xEF;
}

XML_Status feed_chunk(expat_source &source)
{
    void *buffer = XML_GetBuffer(source.parser, static_cast<int>(source.chunk_size));
    if (buffer == nullptr && source.chunk_size > source.least_chunk) {
        source.chunk_size = source.least_chunk;
        buffer = XML_GetBuffer(source.parser, static_cast<int>(source.chunk_size));
    }
    if (buffer == nullptr)
        return XML_STATUS_ERROR;
    int error = 0;
    ptrdiff_t count = input_read(*source.in, buffer, source.chunk_size, &error);
    if (count < 0) {
        source.aborted = true;
        end_with(source, XB_E_FILE_READ, strerror_r(error, source.reason, sizeof source.reason));
        return XML_STATUS_ERROR;
    }
    look_at_head(source, static_cast<const unsigned char *>(buffer), static_cast<size_t>(count));
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
        source.fill = 0;
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
    made->reference_at = no_reference;
    made->reader = reader;
    made->least_chunk = made->chunk_size = std::clamp(chunk_size, size_t{1}, greatest_chunk);
    set_handlers(*made);
    source = {next_event, destroy, nullptr, nullptr, nullptr, nullptr, made};
    return true;
}

}  // namespace inv::xml
