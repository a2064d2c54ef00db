// What the parts of the fast road (fast_source.cpp) share: its state, and reading one token.
#ifndef PLATFORM_XML_FAST_TOKENS_H
#define PLATFORM_XML_FAST_TOKENS_H

#include "event_source.h"
#include "inv_platform/xml_runtime.h"
#include "lexer.h"

namespace inv::xml
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

// Each makes what has happened at `at` the source's ending.
void end_with(fast_source &source, int32_t status, const char *at, std::string_view reason);
void end_with(fast_source &source, XML_Error error, const char *at);

// The same for a token that the document's end cuts.
void end_with_end(fast_source &source, XML_Error error);

// Drops what has been read but the text in front of the next tag. False at the end of the document and
// after a failure, which is the source's ending then.
bool read_more(fast_source &source);

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

}  // namespace inv::xml

#endif
