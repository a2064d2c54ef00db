#include "xml/document_start.h"

#include "platform/xml_window_over.h"

#include <gtest/gtest.h>
#include <string>

using namespace inv::xml;
using namespace std::string_view_literals;

namespace
{

// Each followed by the root element.
constexpr std::string_view plain_starts[] = {
    "",
    "\xEF\xBB\xBF",
    "<?xml version='1.0'?>",
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
    "<?xml version='1.0' encoding='utf-8' standalone='yes'?>",
    "<?xml version='1.0' standalone=\"no\" ?>",
    "<?xml\r\n\tversion = '1.0'\nencoding\t=\t'Utf-8'\n?>",
    "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>",
};

TEST(XmlDocumentStart, a_plain_one_is_passed_over)
{
    for (std::string_view start : plain_starts) {
        for (std::string_view behind : {"<a/>", "\r\n<a/>", " ", "<!DOCTYPE a>"}) {
            lexing part(std::string(start) + std::string(behind), true);
            EXPECT_EQ(lex_document_start(part.lex, part.at), lexed::ok) << start << behind;
            EXPECT_EQ(part.index_of(part.at), start.size()) << start << behind;
        }
    }
}

TEST(XmlDocumentStart, a_byte_order_mark_is_no_column)
{
    for (std::string_view start : {"\xEF\xBB\xBF<a/>", "<a/>"}) {
        lexing part(start, true);
        ASSERT_EQ(lex_document_start(part.lex, part.at), lexed::ok);
        position place = {0, 0, offset_of(part.lex.view, part.at)};
        locate(part.lex.view, place);
        EXPECT_EQ(place.line, 1U);
        EXPECT_EQ(place.column, 1U);
    }
}

TEST(XmlDocumentStart, any_other_one_is_left_to_the_other_road)
{
    const std::string_view starts[] = {
        "",
        "\xEF\xBB\xBF",
        "a",
        "\0\0\0<"sv,
        "<\0a\0"sv,
        "\xFE\xFF\0<"sv,
        "\xFF\xFE<\0"sv,
        "<a\0b"sv,
        "<?xml?><a/>x",
        "<?xml ?><a/>",
        "<?xml version='1.1'?><a/>",
        "<?xml version=1.0?><a/>",
        "<?xml version='1.0\"?><a/>",
        "<?xml encoding='UTF-8'?><a/>",
        "<?xml version='1.0' encoding='ISO-8859-1'?><a/>",
        "<?xml version='1.0' encoding='US-ASCII'?><a/>",
        "<?xml version='1.0' encoding=''?><a/>",
        "<?xml version='1.0' standalone='maybe'?><a/>",
        "<?xml version='1.0' standalone='yes' encoding='UTF-8'?><a/>",
        "<?xml version='1.0'encoding='UTF-8'?><a/>",
        "<?xml version='1.0' other='1'?><a/>",
        "<?xml version='1.0'>",
        "<?xml version='1.0'",
        "<?xml version",
    };
    for (std::string_view start : starts) {
        lexing part(start, true);
        const lexed result = lex_document_start(part.lex, part.at);
        // An instruction without anything in it is one that content may not have, which shows later.
        EXPECT_EQ(result, start.starts_with("<?xml?>") ? lexed::ok : lexed::bad) << start;
        EXPECT_EQ(part.index_of(part.at), 0U) << start;
    }
}

TEST(XmlDocumentStart, nothing_is_decided_before_a_declaration_has_its_room)
{
    const std::string text = "<?xml version='1.0'?>" + std::string(600, ' ') + "<a/>";
    for (size_t length : {1U, 4U, 30U, 511U}) {
        lexing part(std::string_view(text).substr(0, length), false);
        EXPECT_EQ(lex_document_start(part.lex, part.at), lexed::need_more) << length;
    }
    lexing enough(std::string_view(text).substr(0, 512), false);
    EXPECT_EQ(lex_document_start(enough.lex, enough.at), lexed::ok);
}

TEST(XmlDocumentStart, a_declaration_beyond_its_room_is_left_to_the_other_road)
{
    const std::string text = "<?xml version='1.0'" + std::string(600, ' ') + "?><a/>";
    lexing part(text, false);
    EXPECT_EQ(lex_document_start(part.lex, part.at), lexed::bad);
}

}  // namespace
