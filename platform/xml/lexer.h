// Tokens of a document in UTF-8 within a window.
//
// Every function starts at `at` and moves it behind what it has read. need_more: the data end first;
// nothing is decided then and the token is read again from its start once there is more. bad: the
// document is not well-formed; `fault` says where and why.
#ifndef PLATFORM_XML_LEXER_H
#define PLATFORM_XML_LEXER_H

#include "characters.h"
#include "event_source.h"
#include "known_names.h"
#include "scan.h"
#include "window.h"

#include <expat.h>

namespace inv::xml
{

enum class lexed : uint8_t { ok, need_more, bad, no_memory };

struct lexer_fault {
    const char *at = nullptr;
    XML_Error error = XML_ERROR_NONE;
};

struct lexer {
    window view;
    lexer_fault fault;
    known_names names = {};
};

lexed fail_at(lexer &lex, const char *at, XML_Error error = XML_ERROR_INVALID_TOKEN);

// For an octet that may not stand there: at the data's end none does.
inline lexed unexpected(lexer &lex, const char *at)
{
    return at == lex.view.end ? lexed::need_more : fail_at(lex, at);
}

// One character that is markup nowhere: an XML character other than ASCII, or white space.
lexed lex_character(lexer &lex, const char *&at);

struct reference {
    uint32_t character;  // that it stands for; no_character: the reference is well-formed and wrong
    XML_Error error;     // why
};

constexpr uint32_t no_character = 0;

// A reference from its '&' on.
lexed lex_reference(lexer &lex, const char *&at, reference &found);

// <!-- ... -->, from the '<' on.
lexed lex_comment(lexer &lex, const char *&at);

// <?target ... ?>; *is_declaration: the target is the one of XML declarations.
lexed lex_instruction(lexer &lex, const char *&at, bool &is_declaration);

// Where the character begins that the end of the data cuts, or null.
const char *cut_character(const lexer &lex);

constexpr ptrdiff_t character_data_opening = 9;  // octets of "<![CDATA["

// <![CDATA[ ... ]]>; the content as it stands goes to *text.
lexed lex_character_data(lexer &lex, const char *&at, std::string_view &text);

// </name>, which has to be that of the open element.
lexed lex_end_tag(lexer &lex, const char *&at, std::string_view open_name);

// Whether the document's first octets begin like what follows; need_more while that is open.
lexed starts_with(const lexer &lex, const char *at, std::string_view wanted, bool &does);

// Writes a character as UTF-8 and returns where it ends; four octets of room suffice.
char *put_character(char *to, uint32_t character);

inline bool is_beyond_ascii(char c)
{
    return static_cast<unsigned char>(c) >= 0x80;
}

// The rest of a name from where it is no longer plain; `at` may still stand at its start.
lexed lex_odd_name(lexer &lex, const char *&at, bool at_start, bool &has_colon);

// A name. has_colon is set when one stands in it.
inline lexed lex_name(lexer &lex, const char *&at, bool &has_colon)
{
    if (!is_start_of_name(*at) || *at == ':')
        return lex_odd_name(lex, at, true, has_colon);
    at = skip_name(at + 1);
    bool ends = *at != ':' && !is_beyond_ascii(*at) && *at != '\0';
    return ends ? lexed::ok : lex_odd_name(lex, at, false, has_colon);
}

}  // namespace inv::xml

#endif
