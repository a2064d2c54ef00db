#include "lexer.h"

#include "characters.h"
#include "name_characters.h"
#include "scan.h"

#include <algorithm>
#include <cstring>

namespace inv::xml
{

namespace
{

// At least this many octets from `at` on; not so: at the end of the data, where more may come.
bool has_octets(const lexer &lex, const char *at, size_t count)
{
    return static_cast<size_t>(lex.view.end - at) >= count;
}

struct utf8_form {
    unsigned char lead_mask;  // of the bits that are the character's
    unsigned char length;
    uint32_t least;  // shorter forms exist for what is below
};

utf8_form form_of(unsigned char lead)
{
    if (lead < 0xC0)
        return {0, 0, 0};
    if (lead < 0xE0)
        return {0x1F, 2, 0x80};
    if (lead < 0xF0)
        return {0x0F, 3, 0x800};
    return lead < 0xF5 ? utf8_form{0x07, 4, 0x10000} : utf8_form{0, 0, 0};
}

bool is_xml_character(uint32_t character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF) && character != 0xFFFE &&
           character != 0xFFFF;
}

// A character beyond ASCII; `at` stays in front of it.
lexed decode_utf8(lexer &lex, const char *at, uint32_t &character, size_t &length)
{
    auto lead = static_cast<unsigned char>(*at);
    utf8_form form = form_of(lead);
    if (form.length == 0)
        return fail_at(lex, at);
    if (!has_octets(lex, at, form.length))
        return lexed::need_more;
    length = form.length;
    character = lead & form.lead_mask;
    for (size_t i = 1; i < length; ++i) {
        auto octet = static_cast<unsigned char>(at[i]);
        if ((octet & 0xC0) != 0x80)
            return fail_at(lex, at);
        character = character << 6 | (octet & 0x3F);
    }
    return character >= form.least && is_xml_character(character) ? lexed::ok : fail_at(lex, at);
}

// The same where only some characters may stand.
lexed lex_name_character(lexer &lex, const char *&at, bool (*allowed)(uint32_t))
{
    uint32_t character = 0;
    size_t length = 0;
    lexed result = decode_utf8(lex, at, character, length);
    if (result != lexed::ok)
        return result;
    if (!allowed(character))
        return fail_at(lex, at);
    at += length;
    return lexed::ok;
}

// To `mark`, over characters that are valid in any place.
lexed lex_up_to(lexer &lex, const char *&at, char mark)
{
    for (;;) {
        at = skip_to_mark(at, mark);
        if (*at == mark)
            return lexed::ok;
        lexed result = lex_character(lex, at);
        if (result != lexed::ok)
            return result;
    }
}

}  // namespace

lexed fail_at(lexer &lex, const char *at, XML_Error error)
{
    lex.fault = {at, error};
    return lexed::bad;
}

const char *cut_character(const lexer &lex)
{
    const window &view = lex.view;
    for (const char *at = view.end - std::min(view.end - view.octets, ptrdiff_t{3}); at < view.end; ++at) {
        if (form_of(static_cast<unsigned char>(*at)).length > view.end - at)
            return at;
    }
    return nullptr;
}

lexed lex_character(lexer &lex, const char *&at)
{
    if (!is_beyond_ascii(*at)) {
        bool valid = static_cast<unsigned char>(*at) >= 0x20 || is_white_space(*at);
        if (!valid)
            return unexpected(lex, at);
        ++at;
        return lexed::ok;
    }
    uint32_t character = 0;
    size_t length = 0;
    lexed result = decode_utf8(lex, at, character, length);
    if (result == lexed::ok)
        at += length;
    return result;
}

namespace
{

lexed lex_name_start(lexer &lex, const char *&at, bool &has_colon)
{
    if (is_beyond_ascii(*at))
        return lex_name_character(lex, at, is_name_start);
    if (!is_start_of_name(*at))
        return unexpected(lex, at);
    has_colon = has_colon || *at == ':';
    ++at;
    return lexed::ok;
}

}  // namespace

lexed lex_odd_name(lexer &lex, const char *&at, bool at_start, bool &has_colon)
{
    lexed result = at_start ? lex_name_start(lex, at, has_colon) : lexed::ok;
    while (result == lexed::ok) {
        at = skip_name(at);
        if (*at == ':') {
            has_colon = true;
            ++at;
        } else if (is_beyond_ascii(*at)) {
            result = lex_name_character(lex, at, is_name_character);
        } else {
            return at == lex.view.end ? lexed::need_more : lexed::ok;
        }
    }
    return result;
}

namespace
{

int digit_of(char c, uint32_t base)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    auto folded = static_cast<char>(c | 0x20);
    return base == 16 && folded >= 'a' && folded <= 'f' ? folded - 'a' + 10 : -1;
}

// From behind the "&#" on.
lexed lex_character_reference(lexer &lex, const char *&at, reference &found)
{
    uint32_t base = 10;
    if (*at == 'x') {
        base = 16;
        ++at;
    }
    if (digit_of(*at, base) < 0)
        return unexpected(lex, at);
    uint32_t number = 0;
    for (; digit_of(*at, base) >= 0; ++at) {
        // Stays beyond every character once it is.
        if (number <= 0x10FFFF)
            number = number * base + static_cast<uint32_t>(digit_of(*at, base));
    }
    if (*at != ';')
        return unexpected(lex, at);
    ++at;
    bool valid = number != 0 && is_xml_character(number);
    found = {valid ? number : no_character, XML_ERROR_BAD_CHAR_REF};
    return lexed::ok;
}

struct named_reference {
    std::string_view name;
    char character;
};

constexpr named_reference named_references[] = {
    {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''},
};

}  // namespace

lexed lex_reference(lexer &lex, const char *&at, reference &found)
{
    ++at;
    if (*at == '#') {
        ++at;
        return lex_character_reference(lex, at, found);
    }
    const char *name = at;
    bool has_colon = false;
    lexed result = lex_name(lex, at, has_colon);
    if (result != lexed::ok)
        return result;
    if (*at != ';')
        return unexpected(lex, at);
    std::string_view given(name, static_cast<size_t>(at - name));
    ++at;
    found = {no_character, XML_ERROR_UNDEFINED_ENTITY};
    for (const named_reference &known : named_references) {
        if (known.name == given)
            found.character = static_cast<unsigned char>(known.character);
    }
    return lexed::ok;
}

lexed lex_comment(lexer &lex, const char *&at)
{
    at += 4;
    for (;;) {
        lexed result = lex_up_to(lex, at, '-');
        if (result != lexed::ok)
            return result;
        ++at;
        if (*at != '-')
            continue;
        ++at;
        if (*at != '>')
            return unexpected(lex, at);
        ++at;
        return lexed::ok;
    }
}

lexed lex_instruction(lexer &lex, const char *&at, bool &is_declaration)
{
    at += 2;
    const char *target = at;
    bool has_colon = false;
    lexed result = lex_name(lex, at, has_colon);
    if (result != lexed::ok)
        return result;
    std::string_view name(target, static_cast<size_t>(at - target));
    bool is_reserved =
        name.size() == 3 && (name[0] | 0x20) == 'x' && (name[1] | 0x20) == 'm' && (name[2] | 0x20) == 'l';
    is_declaration = name == "xml";
    if (is_reserved && !is_declaration)
        return fail_at(lex, at);
    bool ends = *at == '?';
    if (!ends && !is_white_space(*at))
        return unexpected(lex, at);
    for (bool is_first = true;; is_first = false) {
        result = lex_up_to(lex, at, '?');
        if (result != lexed::ok)
            return result;
        ++at;
        if (*at == '>')
            break;
        if (ends && is_first)
            return unexpected(lex, at);
    }
    ++at;
    return lexed::ok;
}

lexed lex_character_data(lexer &lex, const char *&at, std::string_view &text)
{
    constexpr std::string_view opening = "<![CDATA[";
    static_assert(opening.size() == character_data_opening);
    // What is too short for an opening is not wrong yet.
    if ((at[2] == '[' && !has_octets(lex, at, opening.size())) || (at[2] == '-' && !has_octets(lex, at, 4)))
        return lexed::need_more;
    for (size_t i = 2; i < opening.size(); ++i) {
        if (at[i] != opening[i])
            return unexpected(lex, at + i);
    }
    at += opening.size();
    const char *content = at;
    for (;;) {
        lexed result = lex_up_to(lex, at, ']');
        if (result != lexed::ok)
            return result;
        if (at[1] == ']' && at[2] == '>')
            break;
        ++at;
    }
    text = std::string_view(content, static_cast<size_t>(at - content));
    at += 3;
    return lexed::ok;
}

lexed lex_end_tag(lexer &lex, const char *&at, std::string_view open_name)
{
    const char *name = at + 2;
    const char *stop = name;
    bool fits =
        has_octets(lex, name, open_name.size() + 1) && memcmp(name, open_name.data(), open_name.size()) == 0;
    if (fits && name[open_name.size()] == '>') {
        at = name + open_name.size() + 1;
        return lexed::ok;
    }
    bool has_colon = false;
    lexed result = lex_name(lex, stop, has_colon);
    if (result != lexed::ok)
        return result;
    const char *after = skip_white_space(stop);
    if (*after != '>')
        return unexpected(lex, after);
    if (std::string_view(name, static_cast<size_t>(stop - name)) != open_name)
        return fail_at(lex, name, XML_ERROR_TAG_MISMATCH);
    at = after + 1;
    return lexed::ok;
}

lexed starts_with(const lexer &lex, const char *at, std::string_view wanted, bool &does)
{
    auto available = static_cast<size_t>(lex.view.end - at);
    std::string_view seen(at, std::min(available, wanted.size()));
    does = seen == wanted;
    bool open = !does && wanted.starts_with(seen) && !lex.view.at_end;
    return open ? lexed::need_more : lexed::ok;
}

char *put_character(char *to, uint32_t character)
{
    auto octet = [&](uint32_t value) { *to++ = static_cast<char>(value); };
    if (character < 0x80) {
        octet(character);
    } else if (character < 0x800) {
        octet(0xC0 | character >> 6);
        octet(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        octet(0xE0 | character >> 12);
        octet(0x80 | (character >> 6 & 0x3F));
        octet(0x80 | (character & 0x3F));
    } else {
        octet(0xF0 | character >> 18);
        octet(0x80 | (character >> 12 & 0x3F));
        octet(0x80 | (character >> 6 & 0x3F));
        octet(0x80 | (character & 0x3F));
    }
    return to;
}

}  // namespace inv::xml
