#include "xml/start_tag.h"

#include "platform/xml_window_over.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>
#include <string>

using namespace inv::xml;
using namespace std::string_view_literals;

namespace
{

struct tag_reading {
    lexing part;
    growing_array<attribute> attributes;
    text_stack texts;
    event out = {};
    bool is_empty = false;
    lexed result;
    size_t start = 0;  // of the tag

    explicit tag_reading(std::string_view text) : part(text, false)
    {
        read();
    }
    // A tag behind others, which make their names known.
    tag_reading(const std::string &others, std::string_view text) : part(others + std::string(text), false)
    {
        while (start < others.size()) {
            read();
            attributes.count = 0;
            start = part.index_of(part.at);
        }
        read();
    }
    void read()
    {
        const event_reader lent = {&attributes, &texts, nullptr, nullptr, nullptr};
        result = lex_start_tag(part.lex, part.at, lent, out, is_empty);
    }
    ~tag_reading()
    {
        release_array(attributes);
        release_texts(texts);
    }
    // name=value,... in document order
    std::string described() const
    {
        std::string text(out.name);
        for (size_t i = 0; i < attributes.count; ++i)
            text.append(" ")
                .append(name_of(attributes.items[i]))
                .append("=")
                .append(value_of(attributes.items[i]));
        return text;
    }
};

struct good_case {
    std::string_view text;
    std::string_view described;
    bool is_empty = false;
    bool has_colons = false;
    bool has_declarations = false;
};

const good_case good_cases[] = {
    {"<a>", "a"},
    {"<a >", "a"},
    {"<a\r\n\t>", "a"},
    {"<a/>", "a", true},
    {"<a />", "a", true},
    {"<a b='1'>", "a b=1"},
    {"<a b=\"1\" c='2'/>", "a b=1 c=2", true},
    {"<a\nb\t=\r'1'\n >", "a b=1"},
    {"<a b='' c=\"\">", "a b= c="},
    {"<a b='\"' c=\"'\" d='>' e='/>' f=']]>' g='='>", "a b=\" c=' d=> e=/> f=]]> g=="},
    {"<a b=' x\ny\tz '>", "a b= x y z "},
    {"<a b='\r\n' c='\r\r\n\n' d='\n\r'>", "a b=  c=    d=  "},
    {"<a b='&lt;&#65;&#10;&#x20AC;&amp;amp;'>", "a b=<A\n\xE2\x82\xAC&amp;"},
    {"<a b='\xC3\xBC' \xC3\xA9='1' c=' \xF0\x9F\x98\x80'>", "a b=\xC3\xBC \xC3\xA9=1 c= \xF0\x9F\x98\x80"},
    {"<p:a b='1'>", "p:a b=1", false, true},
    {"<a p:b='1'>", "a p:b=1", false, true},
    {"<a xmlns='u' b='1'>", "a xmlns=u b=1", false, false, true},
    {"<a xmlns:p='u'>", "a xmlns:p=u", false, true, true},
    {"<a x='1' xm='2' xmln='3'>", "a x=1 xm=2 xmln=3"},
    {"<a b='1' B='2' bb='3'>", "a b=1 B=2 bb=3"},
    {"<\xE6\x97\xA5/>", "\xE6\x97\xA5", true},
};

TEST(XmlStartTag, is_read_with_its_attributes)
{
    for (const good_case &one : good_cases) {
        tag_reading tag(std::string(one.text) + "<");
        ASSERT_EQ(tag.result, lexed::ok) << one.text;
        EXPECT_EQ(tag.described(), one.described);
        EXPECT_EQ(tag.out.attribute_count, tag.attributes.count);
        EXPECT_EQ(tag.out.markup, one.text);
        EXPECT_EQ(tag.part.index_of(tag.part.at), one.text.size()) << one.text;
        EXPECT_EQ(tag.is_empty, one.is_empty) << one.text;
        EXPECT_EQ(tag.out.has_colons, one.has_colons) << one.text;
        EXPECT_EQ(tag.out.has_declarations, one.has_declarations) << one.text;
        for (size_t i = 0; i < tag.attributes.count; ++i) {
            const attribute &item = tag.attributes.items[i];
            EXPECT_EQ(one.text.substr(item.markup_at, item.name_length), name_of(item)) << one.text;
        }
    }
}

TEST(XmlStartTag, cut_anywhere_needs_more_and_leaves_no_attribute)
{
    for (const good_case &one : good_cases) {
        for (size_t length = 1; length < one.text.size(); ++length) {
            tag_reading tag(one.text.substr(0, length));
            EXPECT_EQ(tag.result, lexed::need_more) << one.text << " cut at " << length;
            EXPECT_EQ(tag.attributes.count, 0U) << one.text;
        }
    }
}

struct bad_case {
    std::string_view text;
    size_t fault;
    XML_Error error = XML_ERROR_INVALID_TOKEN;
};

const bad_case bad_cases[] = {
    {"< a>", 1},
    {"<1>", 1},
    {"<a<", 2},
    {"<a b>", 4},
    {"<a b c='1'>", 5},
    {"<a b=1>", 5},
    {"<a b='1'c='2'>", 8},
    {"<a b='<'>", 6},
    {"<a b='&'>", 7},
    {"<a b='&#;'>", 8},
    {"<a b='\x01'>", 6},
    {"<a b='\0'>"sv, 6},
    {"<a b\0='1'>"sv, 4},
    {"<a\0>"sv, 2},
    {"<a / >", 4},
    {"<a/b>", 3},
    {"<a 1='1'>", 3},
    {"<a b='\xFF'>", 6},
    {"<a b='\xC3\x28'>", 6},
    {"<a \xC3\x97='1'>", 3},
    {"<a b='&#0;'>", 6, XML_ERROR_BAD_CHAR_REF},
    {"<a c='&lt;' b=' &#xFFFF;'>", 16, XML_ERROR_BAD_CHAR_REF},
    {"<a b='1' c='&unknown;'>", 0, XML_ERROR_UNDEFINED_ENTITY},
    {"<a b='1' b='2'>", 9, XML_ERROR_DUPLICATE_ATTRIBUTE},
    {"<a b='1' c='2' b='3' c='4'>", 15, XML_ERROR_DUPLICATE_ATTRIBUTE},
    // In document order, once the tag as a whole is well formed.
    {"<a b='&#0;' b='2'>", 6, XML_ERROR_BAD_CHAR_REF},
    {"<a b='1' b='&#0;'>", 9, XML_ERROR_DUPLICATE_ATTRIBUTE},
    {"<a b='1' b='2' <>", 15},
};

TEST(XmlStartTag, mistakes_are_found_at_their_octet_and_leave_no_attribute)
{
    for (const bad_case &one : bad_cases) {
        tag_reading tag(one.text);
        EXPECT_EQ(tag.result, lexed::bad) << one.text;
        EXPECT_EQ(tag.part.index_of(tag.part.lex.fault.at), one.fault) << one.text;
        EXPECT_EQ(tag.part.lex.fault.error, one.error) << one.text;
        EXPECT_EQ(tag.attributes.count, 0U) << one.text;
    }
}

std::string with_attributes(int count, int repeated, const std::string &ending = "")
{
    std::string text = "<a";
    for (int i = 0; i < count; ++i)
        text += " name" + std::to_string(i == repeated ? 3 : i) + ending + "='" + std::to_string(i) + "'";
    return text + ">";
}

TEST(XmlStartTag, the_first_repeated_name_is_found_among_any_number)
{
    for (int count : {5, 63, 64, 65, 66, 1000}) {
        EXPECT_EQ(tag_reading(with_attributes(count, -1)).result, lexed::ok) << count;
        for (int repeated : {4, count / 2 + 2, count - 1}) {
            const std::string text = with_attributes(count, repeated);
            tag_reading tag(text);
            ASSERT_EQ(tag.result, lexed::bad) << count;
            EXPECT_EQ(tag.part.lex.fault.error, XML_ERROR_DUPLICATE_ATTRIBUTE);
            EXPECT_EQ(tag.part.index_of(tag.part.lex.fault.at), text.find("name3=", text.find("name3=") + 1));
        }
    }
}

TEST(XmlStartTag, the_first_repeated_name_is_found_among_names_of_one_hash)
{
    const std::string ending = "-and-sixteen-octets";  // of more the hash sees nothing
    EXPECT_EQ(tag_reading(with_attributes(100, -1, ending)).result, lexed::ok);
    for (int repeated : {4, 52, 99}) {
        const std::string text = with_attributes(100, repeated, ending);
        tag_reading tag(text);
        ASSERT_EQ(tag.result, lexed::bad);
        EXPECT_EQ(tag.part.index_of(tag.part.lex.fault.at), text.find("name3-", text.find("name3-") + 1));
    }
}

TEST(XmlStartTag, many_attributes_cost_no_more_than_sorting_them)
{
    EXPECT_EQ(tag_reading(with_attributes(200000, 199999)).result, lexed::bad);
}

const std::string teacher = R"(<a name="1" b="2" firmwareVersion="3" a-name-of-thirty-two-octets-asis="4">)";

const std::string_view tags_of_known_names[] = {
    R"(<a name="" b='2' firmwareVersion = "3" a-name-of-thirty-two-octets-asis="4"/>)",
    R"(<a b="2" name="1">)",
    R"(<a name="1" firmwareVersion="3">)",
    R"(<a name="1" other="5" b="2" firmwareVersion="3">)",
    R"(<a name="1" name="2">)",
    R"(<a name="1" b="2" name="3" b="4">)",
    R"(<a name="1" other="2" b="3" other="4">)",
    R"(<a nam="1" names="2" name-="3" b.="4" firmwareVersio="5" firmwareVersionX="6">)",
    R"(<a a-name-of-thirty-two-octets-asisX="1" a-name-of-thirty-two-octets-asi="2">)",
    R"(<a name:p="1" b="2">)",
    R"(<a name="1"b="2">)",
    R"(<a name="&lt;" b="&#10;">)",
    R"(<a name="<" b="2">)",
    R"(<a name="1" b="&unknown;">)",
    "<a name=\"1\n2\" b=\"\xC3\xBC\">",
    "<a name=\"1\" b=\"\x01\">",
    "<a\nname=\"1\"  b=\"2\"\tfirmwareVersion=\"3\" >",
    R"(<a name="1)",
    R"(<a name=")",
    R"(<a name=)",
    R"(<a name)",
    R"(<a name="1" )",
};

void expect_likeness(const tag_reading &taught, const tag_reading &fresh, std::string_view text)
{
    ASSERT_EQ(taught.result, fresh.result) << text;
    ASSERT_EQ(taught.attributes.count, fresh.attributes.count) << text;
    EXPECT_EQ(taught.described(), fresh.described()) << text;
    if (fresh.result == lexed::bad) {
        EXPECT_EQ(taught.part.index_of(taught.part.lex.fault.at) - taught.start,
                  fresh.part.index_of(fresh.part.lex.fault.at))
            << text;
        EXPECT_EQ(taught.part.lex.fault.error, fresh.part.lex.fault.error) << text;
    }
    for (size_t i = 0; i < fresh.attributes.count; ++i) {
        EXPECT_EQ(taught.attributes.items[i].markup_at, fresh.attributes.items[i].markup_at) << text;
        EXPECT_EQ(taught.attributes.items[i].name_hash, fresh.attributes.items[i].name_hash) << text;
    }
}

TEST(XmlStartTag, is_read_alike_whether_its_names_are_known_or_not)
{
    for (const std::string &others :
         {teacher, teacher + "<a b=\"1\" name=\"2\">" + teacher, teacher + "<a other='1'>"}) {
        for (std::string_view text : tags_of_known_names)
            expect_likeness(tag_reading(others, text), tag_reading(text), text);
    }
}

TEST(XmlStartTag, names_beyond_those_that_can_be_known_are_read_alike)
{
    for (int repeated : {-1, 4, 50, 70, 99}) {
        const std::string text = with_attributes(100, repeated);
        expect_likeness(tag_reading(with_attributes(60, -1), text), tag_reading(text), text);
    }
}

TEST(XmlStartTag, that_memory_does_not_suffice_for_leaves_no_attribute)
{
    const std::string text = "<a b=' &lt; ' " + with_attributes(100, -1).substr(3);
    uint64_t failures = 0;
    for (;; ++failures) {
        lexing part(text, false);
        growing_array<attribute> attributes;
        text_stack texts;
        event out = {};
        bool is_empty = false;
        counting_memory::fail_at(failures + 1);
        lexed result =
            lex_start_tag(part.lex, part.at, {&attributes, &texts, nullptr, nullptr, nullptr}, out, is_empty);
        bool failed = counting_memory::failed();
        counting_memory::fail_at(0);
        EXPECT_EQ(result, failed ? lexed::no_memory : lexed::ok);
        EXPECT_EQ(attributes.count, failed ? 0U : 101U);
        release_array(attributes);
        release_texts(texts);
        if (!failed)
            break;
    }
    EXPECT_GT(failures, 2U);
}

}  // namespace
