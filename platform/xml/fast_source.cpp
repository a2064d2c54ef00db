// The fast road: events straight from a window of the document.
//
// Tags are tokenised where they stand; names, values and texts are handed out as views of the window
// unless a reference, a line end or white space in a value makes them read otherwise. A token that the
// window cuts is read again from its start once the rest has come (window.h), so no scan keeps a state
// between two windows. Line and column are worked out only for places that somebody asks for.
//
// In front of the root element everything that is not plain (a document type, another encoding, a
// mistake) is left to expat, which then begins at the document's start. From the root's tag on the two
// roads differ in nothing but speed.
#include "characters.h"
#include "document_start.h"
#include "epilog_fault.h"
#include "fast_text.h"
#include "inv_platform/system_memory.h"
#include "scan.h"
#include "start_tag.h"

#include <cstring>
#include <new>

namespace inv::xml
{

namespace
{

// --- Tags ----------------------------------------------------------------------------------------

void close_element(fast_source &source)
{
    if (--source.depth == 0)
        source.where = part::epilog;
}

// Most elements hold nothing but plain text: their end is read along with their tag, when it is at hand.
void look_at_leaf(fast_source &source, event &out)
{
    const char *text = source.at;
    const char *first = is_white_space(*text) ? skip_blanks(text) : text;
    const char *stop = *first == '<' ? first : skip_text(first);
    const std::string_view name = out.name;
    auto available = static_cast<size_t>(source.lex.view.end - stop);
    if (stop[0] != '<' || stop[1] != '/' || available < name.size() + 3 || stop[2 + name.size()] != '>' ||
        memcmp(stop + 2, name.data(), name.size()) != 0)
        return;
    out.is_leaf = true;
    out.leaf_text = std::string_view(text, static_cast<size_t>(stop - text));
    out.leaf_significant = first < stop;
    out.leaf_text_place = {0, 0, offset_of(source.lex.view, first < stop ? first : text)};
    out.leaf_end = {0, 0, offset_of(source.lex.view, stop)};
    source.at = stop + name.size() + 3;
    close_element(source);
}

bool read_start_tag(fast_source &source, event &out)
{
    bool is_empty = false;
    const char *tag = nullptr;
    bool read = read_token(source, [&](const char *&at) {
        tag = at;
        return lex_start_tag(source.lex, at, source.reader, out, is_empty);
    });
    if (!read)
        return false;
    out.kind = event_kind::start_tag;
    out.place = {0, 0, offset_of(source.lex.view, tag)};
    source.where = part::content;
    source.empty_place = out.place;
    ++source.depth;
    put_text(source, tag, out);
    source.end_is_due = is_empty && source.where != part::over;
    out.is_leaf = false;
    if (!is_empty && source.where != part::over)
        look_at_leaf(source, out);
    return source.where != part::over;
}

bool read_end_tag(fast_source &source, event &out)
{
    const char *tag = nullptr;
    bool read = read_token(source, [&](const char *&at) {
        tag = at;
        return lex_end_tag(source.lex, at, source.reader.open_name(source.reader.owner));
    });
    if (!read)
        return false;
    out.kind = event_kind::end_tag;
    out.place = {0, 0, offset_of(source.lex.view, tag)};
    close_element(source);
    put_text(source, tag, out);
    return source.where != part::over;
}

// What was read is no text: the text in front of it and behind it go together.
bool go_on_behind(fast_source &source, const char *after)
{
    if (source.run < source.at && !gather(source, {}))
        return false;
    source.run = source.at = after;
    return true;
}

lexed lex_plain_instruction(lexer &lex, const char *&at)
{
    const char *start = at;
    bool is_declaration = false;
    lexed result = lex_instruction(lex, at, is_declaration);
    return result == lexed::ok && is_declaration ? fail_at(lex, start, XML_ERROR_MISPLACED_XML_PI) : result;
}

bool skip_instruction(fast_source &source)
{
    const char *after = nullptr;
    return read_aside(
               source, [&](const char *&at) { return lex_plain_instruction(source.lex, at); }, after) &&
           go_on_behind(source, after);
}

// "<!" within content: a comment or a CDATA section.
bool skip_exclamation(fast_source &source)
{
    bool is_comment = false;
    const char *after = nullptr;
    if (!read_aside(
            source, [&](const char *&at) { return starts_with(source.lex, at, "<!--", is_comment); }, after))
        return false;
    if (is_comment)
        return read_aside(
                   source, [&](const char *&at) { return lex_comment(source.lex, at); }, after) &&
               go_on_behind(source, after);
    std::string_view text;
    if (read_aside(
            source, [&](const char *&at) { return lex_character_data(source.lex, at, text); }, after,
            XML_ERROR_UNCLOSED_CDATA_SECTION))
        return gather_character_data(source, text, after);
    note_character_data_to_fault(source);
    return false;
}

// From a tag's end up to the end of the next tag.
bool read_content(fast_source &source, event &out)
{
    for (;;) {
        if ((*source.at != '<' && !read_text(source)) || !see_octets(source, 2, XML_ERROR_UNCLOSED_TOKEN))
            return false;
        char kind = source.at[1];
        if (kind == '/')
            return read_end_tag(source, out);
        if (kind != '!' && kind != '?')
            return read_start_tag(source, out);
        if (!(kind == '!' ? skip_exclamation(source) : skip_instruction(source)))
            return false;
    }
}

// --- In front of the root element and behind it -----------------------------------------------------

// Comments, instructions and white space. False: something else comes, or *result is not ok.
bool skip_aside(fast_source &source, lexed &result)
{
    bool is_comment = false;
    source.run = source.at = skip_white_space(source.at);
    result = try_token(source, [&](const char *&at) {
        // Four octets tell all kinds of markup apart.
        at = source.at;
        return source.lex.view.end - at < 4 && !source.lex.view.at_end
                   ? lexed::need_more
                   : starts_with(source.lex, at, "<!--", is_comment);
    });
    if (result != lexed::ok)
        return false;
    bool is_instruction = source.at[0] == '<' && source.at[1] == '?';
    if (!is_comment && !is_instruction)
        return is_white_space(*source.at);
    result = is_comment
                 ? try_token(source, [&](const char *&at) { return lex_comment(source.lex, at); })
                 : try_token(source, [&](const char *&at) { return lex_plain_instruction(source.lex, at); });
    return result == lexed::ok;
}

// Begins anew by way of expat. False when that is not possible.
bool take_other_road(fast_source &source)
{
    window &view = source.lex.view;
    input *in = view.in;
    if (!input_rewind(*in)) {
        end_with(source, XB_E_FILE_READ, source.at, "the document cannot be read again");
        return false;
    }
    if (!create_expat_source(source.other, *in, source.chunk_size, source.reader)) {
        end_with(source, XB_E_NO_MEMORY, source.at, {});
        return false;
    }
    close_window(view);
    return true;
}

bool is_root_tag(const char *at)
{
    return at[0] == '<' && (is_start_of_name(at[1]) || is_beyond_ascii(at[1]));
}

// Up to the root's start tag; whatever is not plain in front of it is left to the other road.
bool read_prolog(fast_source &source, event &out)
{
    lexed result = lexed::ok;
    if (source.where == part::start) {
        source.where = part::prolog;
        result = try_token(source, [&](const char *&at) { return lex_document_start(source.lex, at); });
    }
    while (result == lexed::ok && skip_aside(source, result)) {
    }
    if (source.where == part::over)
        return false;
    if (result == lexed::ok && is_root_tag(source.at))
        return read_start_tag(source, out);
    take_other_road(source);
    return false;
}

// Something behind the root element is wrong; from the next octet on expat sees what.
void end_with_epilog_fault(fast_source &source)
{
    const window &view = source.lex.view;
    position place = {0, 0, offset_of(view, source.at)};
    locate(source.lex.view, place);
    epilog_fault fault = {};
    bool is_found = !open_epilog_fault(fault, place);
    while (fault.parser != nullptr && !is_found) {
        std::string_view octets(source.at, static_cast<size_t>(view.end - source.at));
        octets = view.at_end ? octets : whole_tokens(octets);
        is_found = look_for_fault(fault, octets, view.at_end);
        source.run = source.at += octets.size();
        if (view.at_end || (!is_found && !read_more(source) && source.where == part::over))
            break;
    }
    XML_Error error = fault.parser == nullptr ? XML_ERROR_NO_MEMORY : close_epilog_fault(fault, place);
    if (source.where == part::over)
        return;
    if (error == XML_ERROR_NO_MEMORY)
        end_with(source, XB_E_NO_MEMORY, source.at, {});
    else
        end_with(source, error, source.at);
    source.ending.place = place;
}

bool read_epilog(fast_source &source)
{
    lexed result = lexed::ok;
    while (skip_aside(source, result)) {
    }
    if (source.where == part::over)
        return false;
    if (result == lexed::ok && source.at == source.lex.view.end)
        end_with(source, XB_OK, source.at, {});
    else
        end_with_epilog_fault(source);
    return false;
}

// --- The source ------------------------------------------------------------------------------------

bool read_next(fast_source &source, event &out)
{
    source.run = source.at;
    source.gathered.count = 0;
    source.has_text = source.significant = false;
    switch (source.where) {
    case part::content:
        return read_content(source, out);
    case part::start:
    case part::prolog:
        return read_prolog(source, out);
    case part::epilog:
        return read_epilog(source);
    case part::over:
        break;
    }
    return false;
}

void next_event(void *state, event &out)
{
    fast_source &source = *static_cast<fast_source *>(state);
    out.has_text = out.significant = false;
    out.text = {};
    if (source.end_is_due) {
        source.end_is_due = false;
        out.kind = event_kind::end_tag;
        out.place = source.empty_place;
        close_element(source);
        return;
    }
    if (source.other.state == nullptr && read_next(source, out))
        return;
    if (source.other.state != nullptr) {
        source.other.next(source.other.state, out);
        return;
    }
    out = source.ending;
    put_text(source, source.at, out);
}

void locate_in_window(void *state, position &place)
{
    fast_source &source = *static_cast<fast_source *>(state);
    if (source.other.state == nullptr)
        locate(source.lex.view, place);
}

const char *lend_content(void *state)
{
    fast_source &source = *static_cast<fast_source *>(state);
    if (source.where != part::content || source.end_is_due || source.other.state != nullptr)
        return nullptr;
    return source.at;
}

void take_content_back(void *state, const char *at)
{
    static_cast<fast_source *>(state)->at = at;
}

position place_of_content(void *state, const char *at)
{
    return {0, 0, offset_of(static_cast<fast_source *>(state)->lex.view, at)};
}

void destroy(void *state)
{
    fast_source *source = static_cast<fast_source *>(state);
    if (source->other.state != nullptr)
        source->other.destroy(source->other.state);
    close_window(source->lex.view);
    release_array(source->gathered);
    memory::release(source);
}

}  // namespace

bool create_fast_source(event_source &source, input &in, size_t chunk_size, const event_reader &reader)
{
    void *block = memory::request(sizeof(fast_source));
    if (block == nullptr)
        return false;
    fast_source *made = new (block) fast_source{};
    if (!open_window(made->lex.view, in, chunk_size)) {
        memory::release(block);
        return false;
    }
    made->reader = reader;
    made->chunk_size = chunk_size;
    made->at = made->run = made->lex.view.octets;
    source = {next_event, destroy, locate_in_window, lend_content, take_content_back, place_of_content, made};
    return true;
}

}  // namespace inv::xml
