#include "platform/xml_document.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{

constexpr int32_t range = XB_E_OUT_OF_RANGE;
constexpr int32_t bad = XB_E_BAD_INTEGER;

std::string as_element(std::string_view text)
{
    return "<v>" + std::string(text) + "</v>";
}

// Decodes a text both as an element's and as an attribute's and expects the same of them.
template <typename Value, typename Decoder>
int32_t decode_both_ways(std::string_view text, Decoder decoder, Value &value)
{
    xml_document element(as_element(text), {"v"});
    Value from_element = value;
    int32_t status = decoder(&element.ctx, &from_element);
    xml_document attribute("<v a='" + std::string(text) + "'/>", {"v"});
    EXPECT_EQ(rtXmlpSelectAttribute(&attribute.ctx, 0), XB_OK);
    EXPECT_EQ(decoder(&attribute.ctx, &value), status) << text;
    EXPECT_EQ(value, from_element) << text;
    return status;
}

template <typename Integer>
struct integer_case {
    const char *text;
    int32_t status;
    Integer value;  // left as it was on failure: 77
};

template <typename Integer>
void check_integers(int32_t (*decoder)(xb_context *, Integer *),
                    std::initializer_list<integer_case<Integer>> cases)
{
    for (const auto &c : cases) {
        Integer value = 77;
        EXPECT_EQ(decode_both_ways(c.text, decoder, value), c.status) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
}

TEST(XmlValues, each_integer_kind_at_its_limits_and_one_beyond)
{
    check_integers<int8_t>(rtXmlpDecInt8,
                           {{"127", 0, 127}, {"128", range, 77}, {"-128", 0, -128}, {"-129", range, 77}});
    check_integers<uint8_t>(rtXmlpDecUInt8,
                            {{"255", 0, 255}, {"256", range, 77}, {"0", 0, 0}, {"-1", range, 77}});
    check_integers<int16_t>(
        rtXmlpDecInt16,
        {{"32767", 0, 32767}, {"32768", range, 77}, {"-32768", 0, -32768}, {"-32769", range, 77}});
    check_integers<uint16_t>(rtXmlpDecUInt16,
                             {{"65535", 0, 65535}, {"65536", range, 77}, {"0", 0, 0}, {"-1", range, 77}});
    check_integers<int32_t>(rtXmlpDecInt, {{"2147483647", 0, INT32_MAX},
                                           {"2147483648", range, 77},
                                           {"-2147483648", 0, INT32_MIN},
                                           {"-2147483649", range, 77}});
    check_integers<uint32_t>(
        rtXmlpDecUInt,
        {{"4294967295", 0, UINT32_MAX}, {"4294967296", range, 77}, {"0", 0, 0}, {"-1", range, 77}});
    check_integers<int64_t>(rtXmlpDecInt64, {{"9223372036854775807", 0, INT64_MAX},
                                             {"9223372036854775808", range, 77},
                                             {"-9223372036854775808", 0, INT64_MIN},
                                             {"-9223372036854775809", range, 77},
                                             {"99999999999999999999999", range, 77}});
}

TEST(XmlValues, integers_follow_the_schema_lexical_rules)
{
    check_integers<int32_t>(rtXmlpDecInt, {{"+5", 0, 5},
                                           {"-0", 0, 0},
                                           {"0005", 0, 5},
                                           {"0000000000000000000000000000012", 0, 12},
                                           {" \t\r\n 42 \n", 0, 42},
                                           {"", bad, 77},
                                           {"  ", bad, 77},
                                           {"-", bad, 77},
                                           {"+", bad, 77},
                                           {"+-5", bad, 77},
                                           {"--5", bad, 77},
                                           {"- 5", bad, 77},
                                           {"5 6", bad, 77},
                                           {"5x", bad, 77},
                                           {"x5", bad, 77},
                                           {"0x10", bad, 77},
                                           {"1.0", bad, 77},
                                           {"1e3", bad, 77},
                                           {"&#xA0;5", bad, 77}});
    check_integers<uint32_t>(rtXmlpDecUInt,
                             {{"+5", 0, 5}, {"-0", 0, 0}, {"-00", 0, 0}, {"-5", range, 77}, {"-", bad, 77}});
}

TEST(XmlValues, booleans)
{
    struct {
        const char *text;
        int32_t status;
        uint8_t value;
    } cases[] = {{"true", 0, 1},
                 {"false", 0, 0},
                 {"1", 0, 1},
                 {"0", 0, 0},
                 {" \n true\t", 0, 1},
                 {"True", XB_E_BAD_BOOLEAN, 9},
                 {"TRUE", XB_E_BAD_BOOLEAN, 9},
                 {"", XB_E_BAD_BOOLEAN, 9},
                 {"01", XB_E_BAD_BOOLEAN, 9},
                 {"2", XB_E_BAD_BOOLEAN, 9},
                 {"truefalse", XB_E_BAD_BOOLEAN, 9},
                 {"yes", XB_E_BAD_BOOLEAN, 9}};
    for (const auto &c : cases) {
        uint8_t value = 9;
        EXPECT_EQ(decode_both_ways(c.text, rtXmlpDecBool, value), c.status) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
}

TEST(XmlValues, decimals)
{
    struct {
        std::string text;
        int32_t status;
        double value;
    } cases[] = {{"0", 0, 0},
                 {"12.5", 0, 12.5},
                 {"+12.5", 0, 12.5},
                 {"-12.5", 0, -12.5},
                 {"5.", 0, 5},
                 {".5", 0, 0.5},
                 {"-.25", 0, -0.25},
                 {" 3.25\n", 0, 3.25},
                 {"0.1", 0, 0.1},
                 {std::string(308, '9'), 0, 1e308},
                 {std::string(400, '9'), XB_E_OUT_OF_RANGE, 7},
                 {"-" + std::string(400, '9'), XB_E_OUT_OF_RANGE, 7},
                 {"000." + std::string(400, '0') + "1", 0, 0},
                 {std::string(500, '0') + "2", 0, 2},
                 {".", XB_E_BAD_DECIMAL, 7},
                 {"", XB_E_BAD_DECIMAL, 7},
                 {"-", XB_E_BAD_DECIMAL, 7},
                 {"-.", XB_E_BAD_DECIMAL, 7},
                 {"1e3", XB_E_BAD_DECIMAL, 7},
                 {"INF", XB_E_BAD_DECIMAL, 7},
                 {"NaN", XB_E_BAD_DECIMAL, 7},
                 {"inf", XB_E_BAD_DECIMAL, 7},
                 {"1.2.3", XB_E_BAD_DECIMAL, 7},
                 {"1,5", XB_E_BAD_DECIMAL, 7},
                 {"1 2", XB_E_BAD_DECIMAL, 7},
                 {"+-1", XB_E_BAD_DECIMAL, 7}};
    for (const auto &c : cases) {
        double value = 7;
        EXPECT_EQ(decode_both_ways(c.text, rtXmlpDecDecimal, value), c.status) << c.text;
        EXPECT_DOUBLE_EQ(value, c.value) << c.text;
    }
}

TEST(XmlValues, hexadecimal_into_a_buffer)
{
    struct {
        const char *text;
        int32_t status;
        uint32_t count;
        std::vector<uint8_t> octets;
    } cases[] = {{"", 0, 0, {0xEE, 0xEE}},
                 {" ", 0, 0, {0xEE, 0xEE}},
                 {"0f", 0, 1, {0x0F, 0xEE}},
                 {"aBCd", 0, 2, {0xAB, 0xCD}},
                 {" \n0F\t", 0, 1, {0x0F, 0xEE}},
                 {"ABC", XB_E_BAD_HEX, 99, {0xEE, 0xEE}},
                 {"F", XB_E_BAD_HEX, 99, {0xEE, 0xEE}},
                 {"0x12", XB_E_BAD_HEX, 99, {0xEE, 0xEE}},
                 {"0F 0F", XB_E_BAD_HEX, 99, {0xEE, 0xEE}},
                 {"0G", XB_E_BAD_HEX, 99, {0xEE, 0xEE}},
                 {"-1", XB_E_BAD_HEX, 99, {0xEE, 0xEE}},
                 {"010203", XB_E_CONSTRAINT, 3, {0xEE, 0xEE}},
                 {"0102030405060708", XB_E_CONSTRAINT, 8, {0xEE, 0xEE}}};
    for (const auto &c : cases) {
        xml_document document(as_element(c.text), {"v"});
        std::vector<uint8_t> octets(2, 0xEE);
        uint32_t count = 99;
        EXPECT_EQ(rtXmlpDecHexStr(&document.ctx, octets.data(), 2, &count), c.status) << c.text;
        EXPECT_EQ(count, c.count) << c.text;
        EXPECT_EQ(octets, c.octets) << c.text;
    }
}

TEST(XmlValues, of_hexadecimal_that_does_not_fit_only_the_count_is_told)
{
    xml_document document(as_element("010203"), {"v"});
    uint8_t octets[2] = {};
    uint32_t count = 0;
    int32_t status = rtXmlpDecHexStr(&document.ctx, octets, 2, &count);
    EXPECT_EQ(parameters_of(report(document, status)), std::vector<std::string>{});
    xml_document odd(as_element("010"), {"v"});
    status = rtXmlpDecHexStr(&odd.ctx, octets, 2, &count);
    EXPECT_EQ(parameters_of(report(odd, status)), std::vector<std::string>{"010"});
}

TEST(XmlValues, hexadecimal_of_any_length)
{
    xml_document document(as_element("00ff7F"), {"v"});
    xb_octets octets = {};
    ASSERT_EQ(rtXmlpDecDynHexStr(&document.ctx, &octets), XB_OK);
    ASSERT_EQ(octets.count, 3U);
    EXPECT_EQ(std::vector<uint8_t>(octets.octets, octets.octets + 3),
              (std::vector<uint8_t>{0x00, 0xFF, 0x7F}));

    xml_document empty("<v/>", {"v"});
    octets = {5, nullptr};
    ASSERT_EQ(rtXmlpDecDynHexStr(&empty.ctx, &octets), XB_OK);
    EXPECT_EQ(octets.count, 0U);
    EXPECT_EQ(octets.octets, nullptr);

    xml_document odd(as_element("123"), {"v"});
    octets = {5, nullptr};
    EXPECT_EQ(rtXmlpDecDynHexStr(&odd.ctx, &octets), XB_E_BAD_HEX);
    EXPECT_EQ(octets.count, 5U);
}

TEST(XmlValues, strings_keep_their_white_space_and_are_one_text_whatever_splits_them)
{
    struct {
        const char *markup;
        const char *text;
    } cases[] = {{"", ""},
                 {"  a  b\t", "  a  b\t"},
                 {"a&lt;b&amp;c&#65;&#x42;&quot;&apos;&gt;", "a<b&cAB\"'>"},
                 {"a<![CDATA[<b>&amp;]]>c", "a<b>&amp;c"},
                 {"one<!-- not this -->two<?nor this?>three", "onetwothree"},
                 {"<!-- -->", ""},
                 {"line\r\nnext\rlast\n", "line\nnext\nlast\n"},
                 {"a&#13;b", "a\rb"},
                 {"gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80",
                  "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80"},
                 {"]] >", "]] >"}};
    for (const auto &c : cases) {
        xml_document document(as_element(c.markup), {"v"});
        const char *text = nullptr;
        ASSERT_EQ(rtXmlpDecXmlStr(&document.ctx, &text), XB_OK) << c.markup;
        EXPECT_STREQ(text, c.text);
        EXPECT_EQ(leave(document), XB_OK);
    }
}

TEST(XmlValues, attribute_values_have_their_white_space_turned_into_blanks)
{
    xml_document document("<v a=' x\ty\r\nz&#10;&lt; '/>", {"v"});
    ASSERT_EQ(rtXmlpSelectAttribute(&document.ctx, 0), XB_OK);
    char *text = nullptr;
    ASSERT_EQ(rtXmlpDecDynUTF8Str(&document.ctx, &text), XB_OK);
    EXPECT_STREQ(text, " x y z\n< ");
}

TEST(XmlValues, strings_outlive_the_input)
{
    xml_document document(as_element("kept"), {"v"});
    const char *text = nullptr;
    ASSERT_EQ(rtXmlpDecXmlStr(&document.ctx, &text), XB_OK);
    rtxStreamClose(&document.ctx);
    EXPECT_STREQ(text, "kept");
}

TEST(XmlValues, an_element_inside_a_value_fails)
{
    for (const char *markup : {"<b/>", "1<b/>", "1<b/>2", " <b/>1"}) {
        xml_document document(as_element(markup), {"v"});
        int32_t number = 7;
        EXPECT_EQ(rtXmlpDecInt(&document.ctx, &number), XB_E_TEXT_UNEXPECTED) << markup;
        EXPECT_EQ(number, 7);
        char *text = nullptr;
        EXPECT_EQ(rtXmlpDecDynUTF8Str(&document.ctx, &text), XB_E_TEXT_UNEXPECTED) << markup;
        EXPECT_EQ(text, nullptr);
    }
}

TEST(XmlValues, a_bad_value_is_the_first_parameter_of_the_error)
{
    xml_document document(as_element(" 12x "), {"v"});
    int16_t number = 0;
    int32_t status = rtXmlpDecInt16(&document.ctx, &number);
    EXPECT_EQ(parameters_of(report(document, status)), std::vector<std::string>{" 12x "});
}

TEST(XmlValues, without_an_open_element_there_is_no_value)
{
    xml_document document("<v>1</v>");
    int32_t number = 0;
    EXPECT_EQ(rtXmlpDecInt(&document.ctx, &number), XB_E_BAD_STATE);
    char *text = nullptr;
    EXPECT_EQ(rtXmlpDecAny(&document.ctx, &text), XB_E_BAD_STATE);
}

TEST(XmlValues, open_content_is_kept_with_its_markup)
{
    struct {
        const char *markup;
        const char *text;
    } cases[] = {{"", ""},
                 {" plain &amp; text ", " plain &amp; text "},
                 {"<a/>", "<a></a>"},
                 {"x<a b='1' c=\"&quot;&lt;&#10;\"><!-- gone -->y<d/></a>z",
                  "x<a b=\"1\" c=\"&quot;&lt;&#10;\">y<d></d></a>z"},
                 {"<p:a xmlns:p='u' xmlns='w' p:b='1'/>", "<p:a xmlns:p=\"u\" xmlns=\"w\" p:b=\"1\"></p:a>"},
                 {"<![CDATA[<&>]]>", "&lt;&amp;&gt;"}};
    for (const auto &c : cases) {
        xml_document document(as_element(c.markup), {"v"});
        char *text = nullptr;
        ASSERT_EQ(rtXmlpDecAny(&document.ctx, &text), XB_OK) << c.markup;
        EXPECT_STREQ(text, c.text);
        EXPECT_EQ(leave(document), XB_OK) << c.markup;
    }
    xml_document broken(as_element("<a>&nothing;</a>"), {"v"});
    char *text = nullptr;
    EXPECT_EQ(rtXmlpDecAny(&broken.ctx, &text), XB_E_MALFORMED);
    EXPECT_EQ(text, nullptr);
}

TEST(XmlValues, any_content_of_a_selected_attribute_is_its_text)
{
    xml_document document("<r a='x &lt; y'>content</r>");
    ASSERT_EQ(rtXmlpMatchStartTag(&document.ctx, "r", -1), XB_OK);
    ASSERT_GE(rtXmlpSelectAttribute(&document.ctx, 0), 0);
    char *text = nullptr;
    EXPECT_EQ(rtXmlpDecAny(&document.ctx, &text), XB_OK);
    EXPECT_STREQ(text, "x < y");
}

}  // namespace
