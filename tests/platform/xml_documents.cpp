#include "platform/xml_document.h"
#include "xml/context.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace
{

// Reads a document to its end, whatever is in it: the root's content as text.
struct outcome {
    int32_t status;
    std::string content;
    std::string place;
    std::vector<std::string> parameters;
    bool operator==(const outcome &) const = default;
};

outcome read_whole(std::string_view text, size_t chunk_size = 0, bool slow_road = false)
{
    xml_document document(text, chunk_size, slow_road);
    char *content = nullptr;
    int32_t status = enter(document, "r");
    if (status == XB_OK)
        status = rtXmlpDecAny(&document.ctx, &content);
    if (status == XB_OK)
        status = leave(document);
    outcome result = {status, content == nullptr ? "" : content, "", {}};
    if (status != XB_OK) {
        xb_error error = report(document, status);
        result.place = place_of(error);
        result.parameters = parameters_of(error);
    }
    return result;
}

TEST(XmlDocuments, that_are_not_well_formed_fail)
{
    const char *documents[] = {
        "",
        "   ",
        "text",
        "<r>",
        "<r",
        "<r a>",
        "<r></s>",
        "<r><a></r></a>",
        "<r a='1' a='2'/>",
        "<r a=1/>",
        "<r a='<'/>",
        "<r>&undefined;</r>",
        "<r>&</r>",
        "<r>&#0;</r>",
        "<r>&#xD800;</r>",
        "<r>\x01</r>",
        "<r>\xFF</r>",
        "<r>\xC3</r>",
        "<r>\xED\xA0\x80</r>",
        "<r>]]></r>",
        "<r><!-- a -- b --></r>",
        "<r><![CDATA[</r>",
        "<r><?xml version='1.0'?></r>",
        " <?xml version='1.0'?><r/>",
        "<?xml version='1.0' encoding='EBCDIC-CP-US'?><r/>",
        "<1r/>",
        "< r/>",
    };
    for (const char *text : documents) {
        outcome result = read_whole(text);
        EXPECT_EQ(result.status, XB_E_MALFORMED) << text;
        EXPECT_EQ(result.parameters.size(), 1U) << text;
    }
}

TEST(XmlDocuments, only_white_space_comments_and_instructions_may_follow_the_root)
{
    for (const char *behind : {"", " \r\n\t", "<!-- c -->", "<?pi data?>\n<!-- -->\n"})
        EXPECT_EQ(read_whole("<r/>" + std::string(behind)).status, XB_OK) << behind;
    for (const char *behind :
         {"x", "<r/>", "</r>", "<![CDATA[]]>", "&amp;", "<!DOCTYPE r>", " \n\x01", "<!--", "\xEF\xBB\xBF"})
        EXPECT_EQ(read_whole("<r/>" + std::string(behind)).status, XB_E_MALFORMED) << behind;
}

TEST(XmlDocuments, a_failure_of_the_reader_is_final)
{
    xml_document document("<r><a></b></r>", {"r", "a"});
    element_table table({"a"});
    int32_t value = 0;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(next_of(document, table), XB_E_MALFORMED);
        EXPECT_EQ(leave(document), XB_E_MALFORMED);
        EXPECT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_E_MALFORMED);
    }
    EXPECT_EQ(parameters_of(report(document, XB_E_MALFORMED)).size(), 1U);
}

std::string nested(int depth)
{
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += "<r>";
    for (int i = 0; i < depth; ++i)
        text += "</r>";
    return text;
}

TEST(XmlDocuments, elements_nest_128_deep_and_no_deeper)
{
    EXPECT_EQ(read_whole(nested(XB_MAX_DEPTH)).status, XB_OK);
    outcome deeper = read_whole(nested(XB_MAX_DEPTH + 1));
    EXPECT_EQ(deeper.status, XB_E_DEPTH);
    EXPECT_EQ(deeper.place, "1:385");
    EXPECT_EQ(read_whole(nested(200000)).status, XB_E_DEPTH);
}

std::string utf16(std::string_view text, bool big_endian, bool mark)
{
    std::string encoded;
    auto put = [&](unsigned char high, unsigned char low) {
        encoded += static_cast<char>(big_endian ? high : low);
        encoded += static_cast<char>(big_endian ? low : high);
    };
    if (mark)
        put(0xFE, 0xFF);
    for (char c : text)
        put(0, static_cast<unsigned char>(c));
    return encoded;
}

TEST(XmlDocuments, other_encodings_are_read_as_utf_8)
{
    EXPECT_EQ(read_whole("<?xml version='1.0' encoding='ISO-8859-1'?><r>\xFC</r>").content, "\xC3\xBC");
    EXPECT_EQ(read_whole("<?xml version='1.0' encoding='utf-8'?><r>\xC3\xBC</r>").content, "\xC3\xBC");
    for (bool big_endian : {false, true}) {
        outcome result = read_whole(utf16("<r a='1'>\n<v b='\xFC'>\xFC</v></r>", big_endian, true));
        EXPECT_EQ(result.status, XB_OK);
        EXPECT_EQ(result.content, "\n<v b=\"\xC3\xBC\">\xC3\xBC</v>");
        EXPECT_EQ(read_whole(utf16("<r>\n <v></w></r>", big_endian, true)).place, "2:7");
    }
}

TEST(XmlDocuments, attributes_of_other_encodings_are_placed_at_their_tag)
{
    for (std::string text :
         {std::string("<?xml version='1.0' encoding='ISO-8859-1'?>\n <r \xFC='1' a='x'/>"),
          utf16("\n <r b='1' a='x'/>", false, true), utf16("\n <r b='1' a='x'/>", true, true)}) {
        xml_document document(text, {"r"});
        rtXmlpSelectAttribute(&document.ctx, 1);
        EXPECT_EQ(place_of(report(document, XB_E_BAD_INTEGER)), "2:2");
    }
}

TEST(XmlDocuments, a_document_type_is_accepted_and_its_internal_entities_are_replaced)
{
    EXPECT_EQ(read_whole("<!DOCTYPE r [<!ENTITY e 'x<a/>y'>]><r>1&e;2</r>").content, "1x<a></a>y2");
    EXPECT_EQ(read_whole("<!DOCTYPE r SYSTEM 'not-there.dtd'><r>1</r>").content, "1");
}

TEST(XmlDocuments, external_entities_are_never_loaded)
{
    const char *documents[] = {
        "<!DOCTYPE r [<!ENTITY e SYSTEM '/etc/passwd'>]><r>&e;</r>",
        "<!DOCTYPE r [<!ENTITY e PUBLIC 'p' 'file:///etc/passwd'>]><r>&e;</r>",
        "<!DOCTYPE r [<!ENTITY e SYSTEM '/etc/passwd'>]><r a='&e;'/>",
        "<!DOCTYPE r SYSTEM 'not-there.dtd'><r>&unknown;</r>",
    };
    for (const char *text : documents)
        EXPECT_EQ(read_whole(text).status, XB_E_MALFORMED) << text;
    EXPECT_EQ(read_whole("<!DOCTYPE r [<!ENTITY % p SYSTEM '/etc/passwd'> %p;]><r>1</r>").content, "1");
}

const std::string reference_cases[] = {
    "<!DOCTYPE r SYSTEM 'not-there.dtd'><r a='1&unknown;2'/>",
    "<!DOCTYPE r PUBLIC 'p' 'not-there.dtd'><r><b a='&unknown;'/></r>",
    "<!DOCTYPE r SYSTEM 'not-there.dtd' [<!ENTITY e '1&unknown;2'>]><r a='&e;'/>",
    "<!DOCTYPE r SYSTEM 'not-there.dtd' [<!ENTITY e '<b a=\"1&unknown;2\"/>'>]><r>&e;</r>",
    "<!DOCTYPE r SYSTEM 'not-there.dtd' [<!ATTLIST r a CDATA '1&unknown;2'>]><r/>",
    "<!DOCTYPE r [<!ENTITY % p SYSTEM 'not-there.dtd'> %p;]><r a='1&unknown;2'/>",
    "<!DOCTYPE r [<!ENTITY % p ''> %p; <!ENTITY skipped 'x'>]><r a='1&skipped;2'/>",
};

TEST(XmlDocuments, a_reference_in_an_attribute_that_unread_declarations_may_explain_leaves_no_hole)
{
    for (const std::string &text : reference_cases) {
        EXPECT_EQ(read_whole(text).status, XB_E_MALFORMED) << text;
        EXPECT_EQ(read_whole(utf16(text, false, true)).status, XB_E_MALFORMED) << text;
    }
    EXPECT_EQ(read_whole("<?xml version='1.0' standalone='yes'?><!DOCTYPE r SYSTEM 'not-there.dtd'>"
                         "<r a='&unknown;'/>")
                  .status,
              XB_E_MALFORMED);
}

TEST(XmlDocuments, known_references_are_replaced_beside_unread_declarations)
{
    EXPECT_EQ(read_whole("<!DOCTYPE r SYSTEM 'not-there.dtd'><r><b a='&lt;&gt;&amp;&quot;&apos;&#65;'/></r>")
                  .content,
              "<b a=\"&lt;&gt;&amp;&quot;'A\"></b>");
    EXPECT_EQ(read_whole("<!DOCTYPE r [<!ENTITY e 'x'>]><r><b a='&e;'/></r>").content, "<b a=\"x\"></b>");
}

TEST(XmlDocuments, default_values_do_not_expand_without_bound)
{
    auto with_default = [](size_t length, int uses) {
        std::string text = "<!DOCTYPE r [<!ATTLIST e x CDATA '" + std::string(length, 'x') + "'>]><r>";
        for (int i = 0; i < uses; ++i)
            text += "<e/>";
        return text + "</r>";
    };
    EXPECT_EQ(read_whole(with_default(1000, 1000)).status, XB_OK);
    EXPECT_EQ(read_whole(with_default(1U << 17, 10000)).status, XB_E_MALFORMED);
}

// Each entity's text is a reference to the one before.
std::string chained_entities(int count)
{
    std::string text = "<!DOCTYPE r [<!ENTITY e1 'x'>";
    for (int i = 2; i <= count; ++i)
        text += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
    const std::string use = "&e" + std::to_string(count) + ";";
    return text + "]><r a='" + use + "'>" + use + "</r>";
}

std::string declared_attributes(int count)
{
    std::string text = "<!DOCTYPE r [";
    for (int i = 0; i < count; ++i)
        text += "<!ATTLIST r a" + std::to_string(i) + " CDATA #IMPLIED>";
    return text + "]><r/>";
}

TEST(XmlDocuments, a_document_type_makes_1000_declarations_at_most)
{
    EXPECT_EQ(read_whole(chained_entities(1000)).content, "x");
    EXPECT_EQ(read_whole(chained_entities(1001)).status, XB_E_MALFORMED);
    EXPECT_EQ(read_whole(chained_entities(100000)).status, XB_E_MALFORMED);
    EXPECT_EQ(read_whole(declared_attributes(1000)).status, XB_OK);
    EXPECT_EQ(read_whole(declared_attributes(1001)).status, XB_E_MALFORMED);
}

TEST(XmlDocuments, zero_octets_are_not_well_formed)
{
    using namespace std::string_view_literals;
    for (std::string_view text :
         {"\0"sv, "<r>a\0b</r>"sv, "<r a='\0'/>"sv, "<r\0/>"sv, "<r/>\0"sv, "<r><!-- \0 --></r>"sv})
        EXPECT_EQ(read_whole(text).status, XB_E_MALFORMED) << text;
}

TEST(XmlDocuments, a_byte_order_mark_alone_is_no_document)
{
    for (const char *mark : {"\xEF\xBB\xBF", "\xFE\xFF", "\xFF\xFE"})
        EXPECT_EQ(read_whole(mark).status, XB_E_MALFORMED);
    EXPECT_EQ(read_whole("\xEF\xBB\xBF<r>x</r>").content, "x");
}

std::string repeated(std::string_view piece, size_t times)
{
    std::string text;
    for (size_t i = 0; i < times; ++i)
        text += piece;
    return text;
}

// Of one entity that expands to so many octets.
std::string with_references(size_t octets, const std::string &content)
{
    return "<!DOCTYPE r [<!ENTITY e '" + std::string(octets, 'x') + "'>]><r>" + content + "</r>";
}

TEST(XmlDocuments, an_entity_may_expand_to_a_megabyte_wherever_it_is_referred_to)
{
    constexpr size_t least_refused = size_t{1} << 20;
    for (const char *content : {"&e;&e;&e;", "&e; &e; &e;", "&e;&amp;&e;&#65;&e;"})
        EXPECT_GE(read_whole(with_references(400000, content)).content.size(), 1200000U) << content;
    EXPECT_EQ(read_whole(with_references(1000000, "&e;&e;")).content.size(), 2000000U);
    EXPECT_EQ(read_whole(with_references(least_refused, "&e;")).status, XB_E_MALFORMED);
    EXPECT_EQ(read_whole(with_references(1, "&e;") + "<!-- -->").content, "x");
}

TEST(XmlDocuments, references_with_nothing_between_expand_to_four_megabytes_at_most)
{
    EXPECT_EQ(read_whole(with_references(400000, repeated("&e;", 10))).content.size(), 4000000U);
    EXPECT_EQ(read_whole(with_references(400000, repeated("&e;", 11))).status, XB_E_MALFORMED);
    EXPECT_EQ(read_whole(with_references(400000, repeated("&e; ", 22))).content.size(), 8800022U);
}

TEST(XmlDocuments, references_to_characters_are_no_entities_however_many_there_are)
{
    constexpr size_t as_one_piece = size_t{32} << 20;
    for (const char *reference : {"&amp;", "&quot;", "&#x41;"}) {
        const std::string text = "<!DOCTYPE r><r>" + repeated(reference, 1200000) + "</r>";
        const outcome expected = read_whole(text, 4096);
        EXPECT_EQ(expected.status, XB_OK);
        EXPECT_TRUE(read_whole(text, as_one_piece) == expected) << reference;
        EXPECT_TRUE(read_whole(utf16(text, false, true), as_one_piece) == expected) << reference;
        EXPECT_TRUE(read_whole(utf16(text, true, true), as_one_piece) == expected) << reference;
    }
}

// In UTF-16, as letters whose low octets spell the name of a predefined entity.
TEST(XmlDocuments, an_entity_is_not_taken_for_a_predefined_one)
{
    const std::string name = "\xE1\xED\xF0";
    const std::string text = "<!DOCTYPE r [<!ENTITY f '<b/>'><!ENTITY " + name + " '" +
                             repeated("<a>&f;x</a>", 500) + "'>]><r>&" + name + ";</r>";
    for (bool big_endian : {false, true}) {
        std::string encoded = utf16(text, big_endian, true);
        for (size_t i = 2; i < encoded.size(); i += 2) {
            char &high = encoded[big_endian ? i : i + 1];
            char &low = encoded[big_endian ? i + 1 : i];
            if (name.find(low) != std::string::npos) {
                high = '\x01';
                low = static_cast<char>(low & 0x7F);
            }
        }
        EXPECT_EQ(read_whole(encoded).content, repeated("<a><b></b>x</a>", 500));
    }
}

// Of UTF-16, as characters that have an octet of the number of '&'.
TEST(XmlDocuments, text_is_not_taken_for_references)
{
    for (std::string_view unit : {"\x26\x01", "\x26\x61", "\x01\x26", "\x21\x26"}) {
        for (bool big_endian : {false, true}) {
            const std::string text =
                utf16("<r>", big_endian, true) + repeated(unit, 3200000) + utf16("</r>", big_endian, false);
            EXPECT_EQ(read_whole(text, size_t{32} << 20).status, XB_OK) << unit << " " << big_endian;
        }
    }
}

// A long token in front lets a whole section come as one event.
TEST(XmlDocuments, an_ampersand_in_a_cdata_section_is_not_taken_for_a_reference)
{
    const std::string text = "<!DOCTYPE r><!--" + std::string(6000000, ' ') + "--><r><![CDATA[&" +
                             std::string(2000000, 'x') + "]]></r>";
    EXPECT_EQ(read_whole(text, size_t{32} << 20).status, XB_OK);
    const std::string expanding = "<!DOCTYPE r [<!ENTITY e '" + std::string(2000000, 'x') + "'>]><r>&e;</r>";
    EXPECT_EQ(read_whole(expanding, size_t{32} << 20).status, XB_E_MALFORMED);
    const std::string in_an_entity =
        "<!DOCTYPE r [<!ENTITY e '<![CDATA[" + std::string(2000000, 'x') + "]]>'>]><r>&e;</r>";
    EXPECT_EQ(read_whole(in_an_entity, size_t{32} << 20).status, XB_E_MALFORMED);
}

// The end of such a tag has no octets of its own: what stands behind it says nothing of where it comes from.
TEST(XmlDocuments, an_empty_tag_in_front_of_a_reference_is_no_part_of_the_entity)
{
    const std::string small = with_references(1, repeated("<a/>&e;", 2000));
    EXPECT_EQ(read_whole(small).content, repeated("<a></a>x", 2000));
    EXPECT_EQ(read_whole(utf16(small, true, true)).content, repeated("<a></a>x", 2000));
    const std::string value(5000000, 'v');
    EXPECT_EQ(read_whole(with_references(1, "<a b='" + value + "'/>&e;")).content,
              "<a b=\"" + value + "\"></a>x");
}

std::string bomb(const std::string &seed, const std::string &use)
{
    std::string text = "<!DOCTYPE r [<!ENTITY e0 '" + seed + "'>";
    for (int i = 1; i <= 10; ++i) {
        text += "<!ENTITY e" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j)
            text += "&e" + std::to_string(i - 1) + ";";
        text += "'>";
    }
    return text + "]>" + use;
}

TEST(XmlDocuments, an_entity_bomb_in_a_value_ends_in_bounded_memory)
{
    xml_document document(bomb("lol", "<r>&e10;</r>"), {"r"});
    char *text = nullptr;
    EXPECT_EQ(rtXmlpDecDynUTF8Str(&document.ctx, &text), XB_E_MALFORMED);
    EXPECT_LT(document.ctx.state->reader.text.size(), 32U << 20);
}

TEST(XmlDocuments, an_entity_bomb_of_elements_ends_in_bounded_memory)
{
    xml_document document(bomb("<a>x</a>", "<r>&e10;</r>"), {"r"});
    element_table table({"a"});
    int32_t status = XB_OK;
    // It may end in front of an element, in its text or in front of its end tag.
    while (status == XB_OK) {
        char *text = nullptr;
        status = next_of(document, table);
        if (status == XB_OK)
            status = rtXmlpDecDynUTF8Str(&document.ctx, &text);
        rtxMemHeapFreePtr(&document.ctx, text);
        if (status == XB_OK)
            status = leave(document);
    }
    EXPECT_EQ(status, XB_E_MALFORMED);
    EXPECT_LT(document.ctx.state->reader.text.size(), 4096U);
}

// Octets that malloc() has handed out; 0 where a sanitizer has taken its place.
size_t octets_in_use()
{
    struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

TEST(XmlDocuments, what_one_chunk_expands_to_is_not_queued_all_at_once)
{
    xml_document document(bomb("<a>x</a>", "<r>&e10;</r>"));
    size_t before = octets_in_use();
    ASSERT_EQ(enter(document, "r"), XB_OK);
    ASSERT_EQ(next_of(document, element_table({"a"})), 0);
    EXPECT_LT(octets_in_use(), before + (4U << 20));
}

TEST(XmlDocuments, an_entity_bomb_in_an_attribute_ends)
{
    EXPECT_EQ(read_whole(bomb("lol", "<r a='&e10;'/>")).status, XB_E_MALFORMED);
}

TEST(XmlDocuments, read_the_same_in_chunks_of_any_size)
{
    std::string big(100000, 'x');
    const std::string documents[] = {
        "<?xml version='1.0'?>\r\n<r a='1' b='\xC3\xBC'>\r\n text <a/><![CDATA[ \xE2\x82\xAC]]>&amp;\r<b c=' "
        "d '>e</b>\n</r>\n ",
        "<!DOCTYPE r [<!ENTITY e 'x<a/>y'>]><r>1&e;&e;<b>&e;</b></r><!-- end -->",
        "<r>\n <v>x</v>\n \xF0\x9F\x98\x80<w></v></r>",
        "<r>" + big + "<a b='" + big + "'/>" + big + "</r>",
        "<r><!--" + big + "--></r>",
        "<r/>trailing",
        "<r>\xC3",
        utf16("<r a='1'>\r\n<b/>t</r>", false, true),
        utf16("<r a='1'>\r\n<b>", true, true),
    };
    for (const std::string &text : documents) {
        outcome expected = read_whole(text);
        for (bool slow_road : {false, true}) {
            for (size_t chunk_size : {1U, 2U, 3U, 7U, 64U, 1000U, 65536U}) {
                // Expat looks at a long token again with every piece.
                if (slow_road && text.size() / chunk_size > 1000)
                    continue;
                EXPECT_EQ(read_whole(text, chunk_size, slow_road), expected)
                    << text.substr(0, 60) << " by " << chunk_size;
            }
        }
    }
}

TEST(XmlDocuments, more_elements_than_the_queue_holds_arrive_in_order)
{
    std::string text = "<r>";
    for (int i = 0; i < 20000; ++i)
        text += "<v>" + std::to_string(i) + "</v>";
    for (size_t chunk_size : {size_t{100}, size_t{1} << 20}) {
        xml_document document(text + "</r>", chunk_size, true);
        enter(document, "r");
        element_table table({"v"});
        for (int32_t i = 0; i < 20000; ++i) {
            int32_t value = -1;
            ASSERT_EQ(next_of(document, table), 0);
            ASSERT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_OK);
            ASSERT_EQ(value, i);
            ASSERT_EQ(leave(document), XB_OK);
        }
        EXPECT_EQ(leave(document), XB_OK);
    }
}

TEST(XmlDocuments, one_long_token_costs_no_more_than_linear_time)
{
    std::string text = "<r a='" + std::string(20U << 20, 'x') + "'/>";
    EXPECT_EQ(read_whole(text, 64).status, XB_OK);
}

}  // namespace
