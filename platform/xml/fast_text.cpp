#include "fast_text.h"

#include "characters.h"
#include "scan.h"

#include <algorithm>

namespace inv::xml
{

namespace
{

// There is text from `from` on that shows more than white space only if `is_significant`.
void note_text(fast_source &source, const char *from, bool is_significant)
{
    bool is_first = !source.has_text || (is_significant && !source.significant);
    if (is_first)
        source.text_place = {0, 0, offset_of(source.lex.view, from)};
    source.has_text = true;
    source.significant = source.significant || is_significant;
}

}  // namespace

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

namespace
{

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

}  // namespace

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

namespace
{

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

}  // namespace

bool see_octets(fast_source &source, ptrdiff_t count, XML_Error error_at_end)
{
    const window &view = source.lex.view;
    const char *after = nullptr;
    return view.end - source.at >= count ||
           read_aside(
               source, [&](const char *&at) { return view.end - at < count ? lexed::need_more : lexed::ok; },
               after, error_at_end);
}

namespace
{

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

}  // namespace

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

namespace
{

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

}  // namespace

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

}  // namespace inv::xml
