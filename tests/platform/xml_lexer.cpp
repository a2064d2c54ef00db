#include "xml/lexer.h"

#include "platform/xml_window_over.h"

#include <gtest/gtest.h>
#include <string>

using namespace inv::xml;
using namespace std::string_view_literals;

namespace
{

// The tokens, each with what it yields as a text.
lexed character(lexer &lex, const char *&at, std::string &)
{
    return lex_character(lex, at);
}

lexed name(lexer &lex, const char *&at, std::string &yields)
{
    bool has_colon = false;
    lexed result = lex_name(lex, at, has_colon);
    yields = has_colon ? "colon" : "";
    return result;
}

lexed a_reference(lexer &lex, const char *&at, std::string &yields)
{
    reference found = {};
    lexed result = lex_reference(lex, at, found);
    if (result != lexed::ok)
        return result;
    char octets[4];
    yields = found.character == no_character ? XML_ErrorString(found.error)
                                             : std::string(octets, put_character(octets, found.character));
    return result;
}

lexed comment(lexer &lex, const char *&at, std::string &)
{
    return lex_comment(lex, at);
}

lexed instruction(lexer &lex, const char *&at, std::string &yields)
{
    bool is_declaration = false;
    lexed result = lex_instruction(lex, at, is_declaration);
    yields = is_declaration ? "declaration" : "";
    return result;
}

lexed character_data(lexer &lex, const char *&at, std::string &yields)
{
    std::string_view text;
    lexed result = lex_character_data(lex, at, text);
    yields = text;
    return result;
}

lexed end_tag(lexer &lex, const char *&at, std::string &)
{
    return lex_end_tag(lex, at, "port");
}

using token = lexed (*)(lexer &lex, const char *&at, std::string &yields);

struct good_case {
    token lex;
    std::string_view text;  // the token; its last octet shows that it is complete where behind is set
    std::string_view yields;
    std::string_view behind;
};

const good_case good_cases[] = {
    {character, "\t", "", ""},
    {character, "\x7F", "", ""},
    {character, "\xC2\x80", "", ""},
    {character, "\xDF\xBF", "", ""},
    {character, "\xE0\xA0\x80", "", ""},
    {character, "\xED\x9F\xBF", "", ""},
    {character, "\xEE\x80\x80", "", ""},
    {character, "\xEF\xBF\xBD", "", ""},
    {character, "\xF0\x90\x80\x80", "", ""},
    {character, "\xF4\x8F\xBF\xBF", "", ""},
    {name, "a", "", ">"},
    {name, "_.-9Zz", "", " "},
    {name, "port-with_a.long-name0123456789", "", "="},
    {name, "a:b", "colon", "/"},
    {name, ":", "colon", ">"},
    {name, "a:", "colon", ">"},
    {name, "\xC3\xA9t\xC3\xA9", "", ">"},
    {name, "a\xC2\xB7:\xE6\x97\xA5", "colon", "\n"},
    {a_reference, "&amp;", "&", ""},
    {a_reference, "&lt;", "<", ""},
    {a_reference, "&gt;", ">", ""},
    {a_reference, "&quot;", "\"", ""},
    {a_reference, "&apos;", "'", ""},
    {a_reference, "&#65;", "A", ""},
    {a_reference, "&#x4a;", "J", ""},
    {a_reference, "&#x4A;", "J", ""},
    {a_reference, "&#00000000000000000065;", "A", ""},
    {a_reference, "&#9;", "\t", ""},
    {a_reference, "&#xFC;", "\xC3\xBC", ""},
    {a_reference, "&#x20AC;", "\xE2\x82\xAC", ""},
    {a_reference, "&#x10FFFF;", "\xF4\x8F\xBF\xBF", ""},
    {a_reference, "&#0;", "reference to invalid character number", ""},
    {a_reference, "&#8;", "reference to invalid character number", ""},
    {a_reference, "&#xD800;", "reference to invalid character number", ""},
    {a_reference, "&#xFFFE;", "reference to invalid character number", ""},
    {a_reference, "&#x110000;", "reference to invalid character number", ""},
    {a_reference, "&#4294967361;", "reference to invalid character number", ""},
    {a_reference, "&other;", "undefined entity", ""},
    {a_reference, "&AMP;", "undefined entity", ""},
    {a_reference, "&p:\xC3\xA9;", "undefined entity", ""},
    {comment, "<!---->", "", ""},
    {comment, "<!-- a - b > <c> & \r\n\xC3\xBC-->", "", ""},
    {instruction, "<?a?>", "", ""},
    {instruction, "<?a ?>", "", ""},
    {instruction, "<?p:a b ? > ?\?>", "", ""},
    {instruction, "<?xml?>", "declaration", ""},
    {instruction, "<?xml version='1.0'?>", "declaration", ""},
    {instruction, "<?xmls\n?>", "", ""},
    {instruction, "<?xm \xE2\x82\xAC?>", "", ""},
    {character_data, "<![CDATA[]]>", "", ""},
    {character_data, "<![CDATA[<a>&b;]]>", "<a>&b;", ""},
    {character_data, "<![CDATA[]]]]>", "]]", ""},
    {character_data, "<![CDATA[] ]] > \xC3\xBC\r\n]]>", "] ]] > \xC3\xBC\r\n", ""},
    {end_tag, "</port>", "", ""},
    {end_tag, "</port >", "", ""},
    {end_tag, "</port\r\n\t >", "", ""},
};

TEST(XmlLexer, tokens_are_read_to_their_end)
{
    for (const good_case &one : good_cases) {
        const std::string text = std::string(one.text) + std::string(one.behind);
        lexing whole(text, false);
        std::string yields;
        EXPECT_EQ(one.lex(whole.lex, whole.at, yields), lexed::ok) << text;
        EXPECT_EQ(whole.index_of(whole.at), one.text.size()) << text;
        EXPECT_EQ(yields, one.yields) << text;
    }
}

TEST(XmlLexer, whatever_a_token_is_cut_at_it_needs_more)
{
    for (const good_case &one : good_cases) {
        const size_t complete = one.text.size() + one.behind.size();
        for (size_t length = one.lex == character ? 1 : 2; length < complete; ++length) {
            // Comments, instructions and the like are known by how they begin.
            if ((one.lex == comment && length < 4) || length < 2)
                continue;
            const std::string text = std::string(one.text).substr(0, length);
            for (bool is_whole : {false, true}) {
                lexing part(text, is_whole);
                std::string yields;
                EXPECT_EQ(one.lex(part.lex, part.at, yields), lexed::need_more) << text << " of " << one.text;
            }
        }
    }
}

struct bad_case {
    token lex;
    std::string_view text;
    size_t fault;
    size_t decided;  // octets that show it; 0: the one at fault is the last of them
    XML_Error error = XML_ERROR_INVALID_TOKEN;
};

const bad_case bad_cases[] = {
    {character, "\x01", 0, 0},
    {character, "\x1F", 0, 0},
    {character, "\0"sv, 0, 0},
    {character, "\x80", 0, 0},
    {character, "\xBF", 0, 0},
    {character, "\xC0\x80", 0, 2},
    {character, "\xC1\xBF", 0, 2},
    {character, "\xC3\x28", 0, 2},
    {character, "\xC3\xC3", 0, 2},
    {character, "\xE0\x9F\xBF", 0, 3},
    {character, "\xED\xA0\x80", 0, 3},
    {character, "\xED\xBF\xBF", 0, 3},
    {character, "\xE2\x82\x28", 0, 3},
    {character, "\xEF\xBF\xBE", 0, 3},
    {character, "\xEF\xBF\xBF", 0, 3},
    {character, "\xF0\x8F\xBF\xBF", 0, 4},
    {character, "\xF4\x90\x80\x80", 0, 4},
    {character, "\xF5\x80\x80\x80", 0, 0},
    {character, "\xFF", 0, 0},
    {name, "1", 0, 0},
    {name, "-a", 0, 0},
    {name, " a", 0, 0},
    {name, "\xC2\xB7", 0, 2},  // not at the start
    {name, "\xC3\x97", 0, 2},
    {name, "a\xC3\x97", 1, 3},
    {name, "ab:c\xFF", 4, 0},
    {name, "a\xF0\x90\x80\x80", 1, 5},
    {a_reference, "&;", 1, 0},
    {a_reference, "& ", 1, 0},
    {a_reference, "&1;", 1, 0},
    {a_reference, "&amp ", 4, 0},
    {a_reference, "&amp\0;"sv, 4, 0},
    {a_reference, "&#;", 2, 0},
    {a_reference, "&#x;", 3, 0},
    {a_reference, "&#X41;", 2, 0},
    {a_reference, "&#4F;", 3, 0},
    {a_reference, "&#x4G;", 4, 0},
    {a_reference, "&#65 ", 4, 0},
    {comment, "<!-- a -- b -->", 9, 0},
    {comment, "<!-- a --->", 9, 0},
    {comment, "<!-- \x01", 5, 0},
    {comment, "<!--\xC3\x28", 4, 6},
    {instruction, "<? a?>", 2, 0},
    {instruction, "<?1?>", 2, 0},
    {instruction, "<?a<?>", 3, 0},
    {instruction, "<?a?b?>", 4, 0},
    {instruction, "<?a \0?>"sv, 4, 0},
    {instruction, "<?XML ?>", 5, 6},
    {instruction, "<?xMl?>", 5, 6},
    {character_data, "<!a", 2, 0},
    {character_data, "<!-a", 2, 4},
    {character_data, "<![cDATA[]]>", 3, 9},
    {character_data, "<![CDATA []]>", 8, 9},
    {character_data, "<![CDATA[a\x02]]>", 10, 0},
    {character_data, "<![CDATA[]\x02", 10, 0},
    {character_data, "<![CDATA[]]\x02", 11, 0},
    {end_tag, "</ port>", 2, 0},
    {end_tag, "</1>", 2, 0},
    {end_tag, "</port/>", 6, 0},
    {end_tag, "</port a='1'>", 7, 0},
    {end_tag, "</port\0>"sv, 6, 0},
    {end_tag, "</por>", 2, 6, XML_ERROR_TAG_MISMATCH},
    {end_tag, "</ports>", 2, 8, XML_ERROR_TAG_MISMATCH},
    {end_tag, "</Port>", 2, 7, XML_ERROR_TAG_MISMATCH},
    {end_tag, "</port2 >", 2, 9, XML_ERROR_TAG_MISMATCH},
    {end_tag, "</ports\x01>", 7, 0},
};

TEST(XmlLexer, mistakes_are_found_at_their_octet_as_soon_as_it_is_there)
{
    for (const bad_case &one : bad_cases) {
        const size_t decided = one.decided == 0 ? one.fault + 1 : one.decided;
        for (size_t length = decided; length <= one.text.size(); ++length) {
            lexing part(one.text.substr(0, length), false);
            std::string yields;
            EXPECT_EQ(one.lex(part.lex, part.at, yields), lexed::bad) << one.text << " cut at " << length;
            EXPECT_EQ(part.index_of(part.lex.fault.at), one.fault) << one.text;
            EXPECT_EQ(part.lex.fault.error, one.error) << one.text;
        }
    }
}

TEST(XmlLexer, what_a_mistake_is_not_seen_in_yet_needs_more)
{
    for (const bad_case &one : bad_cases) {
        const size_t decided = one.decided == 0 ? one.fault + 1 : one.decided;
        const size_t least = one.lex == comment ? 4 : one.lex == character || one.lex == name ? 1 : 2;
        for (size_t length = least; length < decided; ++length) {
            lexing part(one.text.substr(0, length), true);
            std::string yields;
            EXPECT_EQ(one.lex(part.lex, part.at, yields), lexed::need_more)
                << one.text << " cut at " << length;
        }
    }
}

TEST(XmlLexer, a_beginning_is_open_while_more_may_come)
{
    struct {
        std::string_view text;
        bool is_whole;
        lexed result;
        bool does;
    } const cases[] = {
        {"<!-- a", false, lexed::ok, true},
        {"<!--", false, lexed::ok, true},
        {"<!-", false, lexed::need_more, false},
        {"<!-", true, lexed::ok, false},
        {"", true, lexed::ok, false},
        {"<!D", false, lexed::ok, false},
        {"<a", false, lexed::ok, false},
    };
    for (const auto &one : cases) {
        lexing part(one.text, one.is_whole);
        bool does = !one.does;
        EXPECT_EQ(starts_with(part.lex, part.at, "<!--", does), one.result) << one.text;
        EXPECT_EQ(does, one.does) << one.text;
    }
}

TEST(XmlLexer, the_character_that_the_end_cuts_is_found)
{
    struct {
        std::string_view text;
        int index;  // -1: none
    } const cases[] = {
        {"", -1},
        {"a", -1},
        {"\xC3", 0},
        {"a\xE2\x82", 1},
        {"ab\xF0\x9F\x98", 2},
        {"\xC3\xBC", -1},
        {"\xE2\x82\xAC", -1},
        {"\xF0\x9F\x98\x80", -1},
        {"\xFF", -1},
        {"\x80\x80\x80", -1},
        {"\xC3\xBC\xC3", 2},
    };
    for (const auto &one : cases) {
        lexing part(one.text, true);
        const char *cut = cut_character(part.lex);
        EXPECT_EQ(cut == nullptr ? -1 : static_cast<int>(part.index_of(cut)), one.index) << one.text;
    }
}

}  // namespace
