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
#include "event_source.h"
#include "inv_platform/system_memory.h"
#include "inv_platform/xml_runtime.h"
#include "lexer.h"
#include "scan.h"
#include "start_tag.h"

#include <cstring>
#include <new>

namespace inv::xml
{

namespace
{

enum class part : uint8_t { start, prolog, content, epilog, over };

struct fast_source {
    lexer lex;
    event_reader reader;
    size_t chunk_size;
    event_source other;  // the slow road, once it is taken
    part where;
    const char *at;        // what is to be read next
    uint32_t depth;        // of elements that are open
    bool end_is_due;       // of the empty element whose tag was read last
    position empty_place;  // its place
    // The text in front of the next tag: what is gathered, then what stands from `run` up to `at`.
    const char *run;
    growing_array<char> gathered;
    bool has_text;
    bool significant;
    position text_place;
    event ending;
    char reason[128];
};

void end_with(fast_source &source, int32_t status, const char *at, std::string_view reason)
{
    source.where = part::over;
    source.ending = {};
    source.ending.kind = status == XB_OK ? event_kind::end_of_document : event_kind::failure;
    source.ending.status = status;
    source.ending.reason = reason;
    source.ending.place.offset = offset_of(source.lex.view, at);
    locate(source.lex.view, source.ending.place);
}

void end_with(fast_source &source, XML_Error error, const char *at)
{
    const XML_LChar *text = XML_ErrorString(error);
    end_with(source, XB_E_MALFORMED, at, text == nullptr ? "" : text);
}

// Where the last piece begins that expat would have to see the end of: a CR might be half a line end,
// one or two brackets might begin the end of a CDATA section.
const char *last_piece(const window &view, const char *from)
{
    const char *at = view.end;
    if (at > from && at[-1] == '\r')
        return at - 1;
    for (int brackets = 0; brackets < 2 && at > from && at[-1] == ']'; ++brackets)
        --at;
    return at;
}

// The document ends too early.
void end_with_end(fast_source &source, XML_Error error)
{
    const window &view = source.lex.view;
    const char *cut = cut_character(source.lex);
    const char *at = source.at;
    bool is_in_data = error == XML_ERROR_UNCLOSED_CDATA_SECTION;
    if (is_in_data && view.end - at < character_data_opening) {
        is_in_data = false;
        error = XML_ERROR_UNCLOSED_TOKEN;
        cut = nullptr;  // as expat counts octets there
    }
    if (is_in_data)
        at = cut != nullptr ? cut : last_piece(view, at + character_data_opening);
    else if (error == XML_ERROR_NO_ELEMENTS && view.end > view.octets && view.end[-1] == '\r')
        at = view.end - 1;
    end_with(source, cut != nullptr ? XML_ERROR_PARTIAL_CHAR : error, at);
}

// --- More of the document -------------------------------------------------------------------------

// Drops what has been read but the text in front of the next tag. False at the end of the document and
// after a failure, which is the source's ending then.
bool read_more(fast_source &source)
{
    window &view = source.lex.view;
    if (!source.reader.keep(source.reader.owner)) {
        end_with(source, XB_E_NO_MEMORY, source.at, {});
        return false;
    }
    auto behind_run = source.at - source.run;
    refill_result result = refill(view, source.run);
    source.at = source.run + behind_run;
    if (result == refill_result::more)
        return true;
    if (result == refill_result::no_memory)
        end_with(source, XB_E_NO_MEMORY, source.at, {});
    else if (view.read_error != 0)
        end_with(source, XB_E_FILE_READ, source.at,
                 strerror_r(view.read_error, source.reason, sizeof source.reason));
    return false;
}

// Reads one token, again from its start for as long as more of the document comes.
template <typename Lex>
lexed try_token(fast_source &source, Lex lex)
{
    for (;;) {
        const char *at = source.at;
        lexed result = lex(at);
        if (result == lexed::ok)
            source.at = at;
        if (result != lexed::need_more)
            return result;
        // That there is no more is news, too.
        bool end_was_known = source.lex.view.at_end;
        if (!read_more(source) && (end_was_known || !source.lex.view.at_end || source.where == part::over))
            return result;
    }
}

// The same where a token has to be. False: the source has its ending.
template <typename Lex>
bool read_token(fast_source &source, Lex lex, XML_Error error_at_end = XML_ERROR_UNCLOSED_TOKEN)
{
    lexed result = try_token(source, lex);
    if (result == lexed::ok)
        return true;
    if (result == lexed::bad)
        end_with(source, source.lex.fault.error, source.lex.fault.at);
    else if (result == lexed::no_memory)
        end_with(source, XB_E_NO_MEMORY, source.at, {});
    else if (source.where != part::over)
        end_with_end(source, error_at_end);
    return false;
}

// Reads a token that the text goes on behind; *after is where.
template <typename Lex>
bool read_aside(fast_source &source, Lex lex, const char *&after,
                XML_Error error_at_end = XML_ERROR_UNCLOSED_TOKEN)
{
    return read_token(
        source,
        [&](const char *&at) {
            lexed result = lex(at);
            after = at;
            at = source.at;
            return result;
        },
        error_at_end);
}

// --- Text ----------------------------------------------------------------------------------------

// There is text from `from` on that shows more than white space only if `is_significant`.
void note_text(fast_source &source, const char *from, bool is_significant)
{
    bool is_first = !source.has_text || (is_significant && !source.significant);
    if (is_first)
        source.text_place = {0, 0, offset_of(source.lex.view, from)};
    source.has_text = true;
    source.significant = source.significant || is_significant;
}

// Moves the text that still stands in the window to what is gathered, and `more` behind it.
bool gather(fast_source &source, std::string_view more)
{
    // The window will leave the place behind.
    if (source.has_text && source.text_place.line == 0)
        locate(source.lex.view, source.text_place);
    std::string_view standing(source.run, static_cast<size_t>(source.at - source.run));
    if (append_text(source.gathered, standing) && append_text(source.gathered, more))
        return true;
    end_with(source, XB_E_NO_MEMORY, source.at, {});
    return false;
}

bool gather_reference(fast_source &source)
{
    reference found = {};
    const char *after = nullptr;
    if (!read_aside(
            source, [&](const char *&at) { return lex_reference(source.lex, at, found); }, after))
        return false;
    if (found.character == no_character) {
        end_with(source, found.error, source.at);
        return false;
    }
    char octets[4];
    char *end = put_character(octets, found.character);
    std::string_view text(octets, static_cast<size_t>(end - octets));
    note_text(source, source.at, !is_white_space(octets[0]));
    if (!gather(source, text))
        return false;
    source.run = source.at = after;
    return true;
}

// Line ends are single line feeds, however the document has them.
bool gather_line_end(fast_source &source)
{
    if (source.at + 1 == source.lex.view.end && !source.lex.view.at_end && !read_more(source) &&
        source.where == part::over)
        return false;
    note_text(source, source.at, false);
    if (!gather(source, "\n"))
        return false;
    source.at += source.at[1] == '\n' ? 2 : 1;
    source.run = source.at;
    return true;
}

// Text of a CDATA section, whose line ends need the same.
bool gather_character_data(fast_source &source, std::string_view text, const char *after)
{
    if (!text.empty()) {
        const char *first = skip_white_space(text.data());
        bool is_significant = first < text.data() + text.size();
        note_text(source, is_significant ? first : text.data(), is_significant);
    }
    if (!gather(source, {}))
        return false;
    while (!text.empty()) {
        size_t plain = std::min(text.find('\r'), text.size());
        bool has_end = plain < text.size();
        size_t taken = !has_end ? plain : plain + (text.substr(plain + 1).starts_with('\n') ? 2 : 1);
        if (!append_text(source.gathered, text.substr(0, plain)) ||
            !append_text(source.gathered, has_end ? "\n" : "")) {
            end_with(source, XB_E_NO_MEMORY, source.at, {});
            return false;
        }
        text.remove_prefix(taken);
    }
    source.run = source.at = after;
    return true;
}

// The data of a section that is not well-formed are text up to the mistake.
void note_character_data_to_fault(fast_source &source)
{
    const window &view = source.lex.view;
    const char *fault = view.octets + (source.ending.place.offset - view.start.offset);
    const char *data = source.at + character_data_opening;
    if (source.ending.status != XB_E_MALFORMED || fault < data)
        return;
    data = skip_white_space(data);
    if (data < fault)
        note_text(source, data, true);
}

// What stands in front of "]]>" in its line goes with it: expat takes them for one wrong token.
void forget_text_of_line(fast_source &source)
{
    const char *start = source.at;
    while (start > source.run && start[-1] != '\n')
        --start;
    if (source.text_place.offset >= offset_of(source.lex.view, start))
        source.significant = false;
}

// "]]>" may not stand in text.
lexed lex_bracket(lexer &lex, const char *&at)
{
    if (lex.view.end - at < 3 && !lex.view.at_end)
        return lexed::need_more;
    if (at[1] == ']' && at[2] == '>')
        return fail_at(lex, at);
    ++at;
    return lexed::ok;
}

// Makes sure that `count` octets from the next on are there.
bool see_octets(fast_source &source, ptrdiff_t count, XML_Error error_at_end)
{
    const window &view = source.lex.view;
    const char *after = nullptr;
    return view.end - source.at >= count ||
           read_aside(
               source, [&](const char *&at) { return view.end - at < count ? lexed::need_more : lexed::ok; },
               after, error_at_end);
}

// One step over text that is not plain.
bool read_odd_text(fast_source &source)
{
    if (source.at == source.lex.view.end)
        return see_octets(source, 1, XML_ERROR_NO_ELEMENTS);
    const char c = *source.at;
    if (c == '&')
        return gather_reference(source);
    if (c == '\r')
        return gather_line_end(source);
    const char *after = nullptr;
    if (!read_aside(
            source,
            [&](const char *&at) {
                return c == ']' ? lex_bracket(source.lex, at) : lex_character(source.lex, at);
            },
            after)) {
        if (c == ']')
            forget_text_of_line(source);
        return false;
    }
    note_text(source, source.at, !is_white_space(*source.at));
    source.at = after;
    return true;
}

bool is_plain_text(char c)
{
    return static_cast<unsigned char>(c) >= 0x20 && !is_beyond_ascii(c) && c != '<' && c != '&' && c != ']';
}

// Up to the next '<'.
bool read_text(fast_source &source)
{
    for (;;) {
        const char *at = source.at;
        while (*at == '\n' || *at == ' ' || *at == '\t') {
            const char *from = at;
            at = skip_blanks(at);
            note_text(source, from, false);
        }
        if (is_plain_text(*at)) {
            note_text(source, at, true);
            at = skip_text(at);
        }
        source.at = at;
        if (*at == '<')
            return true;
        if (*at != '\n' && *at != '\t' && !read_odd_text(source))
            return false;
    }
}

// --- Tags ----------------------------------------------------------------------------------------

// Joins what has been gathered with what stands in the window.
void put_gathered_text(fast_source &source, const char *stop, event &out)
{
    // A failing append is the failing read of the tag behind it.
    if (!append_text(source.gathered, out.text)) {
        end_with(source, XB_E_NO_MEMORY, stop, {});
        source.gathered.count = 0;
    }
    out.text = std::string_view(source.gathered.items, source.gathered.count);
}

void put_text(fast_source &source, const char *stop, event &out)
{
    out.has_text = source.has_text;
    if (!source.has_text)
        return;
    out.significant = source.significant;
    out.text_place = source.text_place;
    out.text = std::string_view(source.run, static_cast<size_t>(stop - source.run));
    if (source.gathered.count != 0)
        put_gathered_text(source, stop, out);
}

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
    source.end_is_due = is_empty;
    source.empty_place = out.place;
    ++source.depth;
    put_text(source, tag, out);
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
        is_found = look_for_fault(fault, octets, view.at_end);
        source.run = source.at = view.end;
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
