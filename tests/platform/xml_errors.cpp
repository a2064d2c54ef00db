#include "platform/xml_document.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>
#include <set>

namespace
{

xb_error record(const xml_document &document, uint32_t index)
{
    xb_error error = {};
    EXPECT_TRUE(rtxErrGet(&document.ctx, index, &error));
    return error;
}

TEST(XmlErrors, a_fresh_context_has_none)
{
    xml_document document("<r/>");
    xb_error error = {};
    EXPECT_EQ(rtxErrGetStatus(&document.ctx), XB_OK);
    EXPECT_EQ(rtxErrGetCount(&document.ctx), 0U);
    EXPECT_FALSE(rtxErrGet(&document.ctx, 0, &error));
}

TEST(XmlErrors, a_record_carries_status_source_step_and_parameters)
{
    xml_document document("<r/>", {"r"});
    rtxErrAddStrParm(&document.ctx, "text");
    rtxErrAddStrnParm(&document.ctx, "cut off", 3);
    rtxErrAddIntParm(&document.ctx, INT32_MIN);
    rtxErrAddUIntParm(&document.ctx, UINT32_MAX);
    rtxErrAddStrParm(&document.ctx, nullptr);
    rtxErrAddStrnParm(&document.ctx, nullptr, 5);
    EXPECT_EQ(rtxErrSetData(&document.ctx, XB_E_CONSTRAINT, "source", 42), XB_E_CONSTRAINT);
    xb_error error = record(document, 0);
    EXPECT_EQ(error.status, XB_E_CONSTRAINT);
    EXPECT_TRUE(error.fatal);
    EXPECT_STREQ(error.source, "source");
    EXPECT_EQ(error.source_line, 42U);
    EXPECT_EQ(parameters_of(error),
              (std::vector<std::string>{"text", "cut", "-2147483648", "4294967295", "", ""}));
}

TEST(XmlErrors, parameters_belong_to_the_next_record_only)
{
    xml_document document("<r/>");
    rtxErrAddStrParm(&document.ctx, "first");
    rtxErrSetNewData(&document.ctx, XB_E_ATTRIBUTE_UNKNOWN, "s", 1);
    rtxErrSetNewData(&document.ctx, XB_E_ATTRIBUTE_MISSING, "s", 2);
    EXPECT_EQ(record(document, 0).parameter_count, 1U);
    EXPECT_EQ(record(document, 1).parameter_count, 0U);
}

TEST(XmlErrors, the_ninth_parameter_is_dropped)
{
    xml_document document("<r/>");
    for (int32_t i = 1; i <= 9; ++i)
        rtxErrAddIntParm(&document.ctx, i);
    rtxErrSetData(&document.ctx, XB_E_CONSTRAINT, "s", 1);
    EXPECT_EQ(parameters_of(record(document, 0)).back(), "8");
}

TEST(XmlErrors, a_failure_on_its_way_up_keeps_its_first_record)
{
    xml_document document("<r>x</r>", {"r"});
    int32_t value = 0;
    int32_t status = rtXmlpDecInt(&document.ctx, &value);
    rtxErrSetData(&document.ctx, status, "inner", 1);
    rtxErrAddStrParm(&document.ctx, "late");
    EXPECT_EQ(rtxErrSetData(&document.ctx, status, "outer", 2), status);
    EXPECT_EQ(rtxErrGetCount(&document.ctx), 1U);
    EXPECT_STREQ(record(document, 0).source, "inner");
    EXPECT_EQ(parameters_of(record(document, 0)), std::vector<std::string>{"x"});
    rtxErrSetData(&document.ctx, XB_E_CONSTRAINT, "other", 3);
    EXPECT_EQ(parameters_of(record(document, 1)), std::vector<std::string>{});
}

TEST(XmlErrors, an_attribute_failure_adopts_the_record_of_its_value)
{
    xml_document document("<r a='x' b='y'/>", {"r"});
    for (int32_t index : {0, 1}) {
        rtXmlpSelectAttribute(&document.ctx, index);
        rtxErrAddStrParm(&document.ctx, "token");
        rtxErrSetData(&document.ctx, XB_E_UNKNOWN_TOKEN, "value", 1);
        rtxErrAddStrParm(&document.ctx, "type");
        rtxErrAddStrParm(&document.ctx, "attribute");
        rtxErrSetNewData(&document.ctx, XB_E_UNKNOWN_TOKEN, "walk", 2);
    }
    ASSERT_EQ(rtxErrGetCount(&document.ctx), 2U);
    for (uint32_t index : {0U, 1U}) {
        EXPECT_FALSE(record(document, index).fatal);
        EXPECT_STREQ(record(document, index).source, "value");
        EXPECT_EQ(parameters_of(record(document, index)),
                  (std::vector<std::string>{"token", "type", "attribute"}));
    }
    EXPECT_EQ(place_of(record(document, 0)), "1:4");
    EXPECT_EQ(place_of(record(document, 1)), "1:10");
}

TEST(XmlErrors, a_fatal_failure_is_not_taken_for_an_earlier_one_of_the_same_status)
{
    xml_document document("<r p:a='1'><p:b/></r>", {"r"});
    rtXmlpSelectAttribute(&document.ctx, 0);
    rtxErrSetNewData(&document.ctx, XB_E_UNDECLARED_PREFIX, "walk", 1);
    element_table table({"b"});
    EXPECT_EQ(next_of(document, table), XB_E_UNDECLARED_PREFIX);
    rtxErrSetData(&document.ctx, XB_E_UNDECLARED_PREFIX, "lookup", 2);
    ASSERT_EQ(rtxErrGetCount(&document.ctx), 2U);
    EXPECT_TRUE(record(document, 1).fatal);
    EXPECT_EQ(place_of(record(document, 1)), "1:12");
}

TEST(XmlErrors, the_status_is_that_of_the_first_record)
{
    xml_document document("<r/>");
    rtxErrSetNewData(&document.ctx, XB_E_ATTRIBUTE_MISSING, "s", 1);
    rtxErrSetData(&document.ctx, XB_E_MALFORMED, "s", 2);
    EXPECT_EQ(rtxErrGetStatus(&document.ctx), XB_E_ATTRIBUTE_MISSING);
}

TEST(XmlErrors, the_first_record_needs_no_memory)
{
    xml_document document("<r/>");
    counting_memory::fail_at(1, true);
    rtxErrAddStrParm(&document.ctx, "text");
    EXPECT_EQ(rtxErrSetData(&document.ctx, XB_E_NO_MEMORY, "s", 1), XB_E_NO_MEMORY);
    EXPECT_EQ(rtxErrSetData(&document.ctx, XB_E_CONSTRAINT, "s", 2), XB_E_CONSTRAINT);
    counting_memory::reset();
    EXPECT_EQ(rtxErrGetCount(&document.ctx), 1U);
    EXPECT_EQ(rtxErrGetStatus(&document.ctx), XB_E_NO_MEMORY);
}

TEST(XmlErrors, parameters_handed_out_stay_valid_while_records_are_added)
{
    xml_document document("<r/>");
    rtxErrAddStrParm(&document.ctx, "kept");
    rtxErrSetNewData(&document.ctx, XB_E_ATTRIBUTE_UNKNOWN, "s", 1);
    xb_error first = record(document, 0);
    for (uint32_t i = 0; i < 1000; ++i) {
        rtxErrAddUIntParm(&document.ctx, i);
        rtxErrSetNewData(&document.ctx, XB_E_ATTRIBUTE_UNKNOWN, "s", i);
    }
    EXPECT_EQ(parameters_of(first), std::vector<std::string>{"kept"});
    EXPECT_EQ(parameters_of(record(document, 1000)), std::vector<std::string>{"999"});
}

TEST(XmlErrors, every_status_has_a_text_of_its_own)
{
    std::set<std::string> texts;
    const int32_t statuses[] = {0, -10, -16, -24, -33, -36, -41, -51, -203};
    for (int32_t status : statuses)
        texts.insert(rtxErrText(status));
    for (int32_t status = XB_E_FILE_OPEN; status >= XB_E_BAD_STATE; --status)
        texts.insert(rtxErrText(status));
    EXPECT_EQ(texts.size(), 25U);
    EXPECT_EQ(texts.count("unknown status"), 0U);
    EXPECT_STREQ(rtxErrText(12345), "unknown status");
}

struct place_case {
    const char *markup;
    const char *place;
    uint64_t offset;
};

// Walks <r><v>number</v></r> up to the first failure, attributes included, and records it.
xb_error first_failure(xml_document &document)
{
    element_table table({"v"});
    int32_t status = enter(document, "r");
    int32_t value = 0;
    int32_t count = status == XB_OK ? rtXmlpGetAttributeCount(&document.ctx) : 0;
    for (int32_t i = 0; status == XB_OK && i < count; ++i) {
        rtXmlpSelectAttribute(&document.ctx, i);
        status = rtXmlpDecInt(&document.ctx, &value);
    }
    while (status == XB_OK) {
        status = next_of(document, table);
        if (status == XB_END_OF_CONTENT)
            status = leave(document);
        else if (status >= 0)
            status = rtXmlpDecInt(&document.ctx, &value);
        if (status == XB_OK)
            status = leave(document);
    }
    return report(document, status);
}

TEST(XmlErrors, places_are_counted_in_lines_and_characters)
{
    const place_case cases[] = {
        // values: their first character other than white space, or the tag of an empty element
        {"<r><v>x</v></r>", "1:7", 6},
        {"<r>\n  <v>\n   x</v></r>", "3:4", 13},
        {"<r>\r\n<v>\r\n\tx</v></r>", "3:2", 11},
        {"<r>\r<v>\r x</v></r>", "3:2", 9},
        {"<r><v></v></r>", "1:4", 3},
        {"<r>\n<v/></r>", "2:1", 4},
        {"<r><v>  </v></r>", "1:7", 6},
        {"<r><v><![CDATA[ x]]></v></r>", "1:17", 16},
        {"<r><v><!-- \n --> x</v></r>", "2:6", 17},
        {"<r><!-- \xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80 --><v>x</v></r>", "1:19", 24},
        {"\xEF\xBB\xBF<r><v>x</v></r>", "1:7", 9},
        {"\xEF\xBB\xBF\n<r><v>x</v></r>", "2:7", 10},
        {"<r><v>&#120;</v></r>", "1:7", 6},
        // attributes: their name
        {"<r a='x'/>", "1:4", 3},
        {"<r a='1' b='x'/>", "1:10", 9},
        {"<r  a = '1'\r\n\t b='\n' />", "2:3", 15},
        {"<r a='\n\n' b='x'/>", "1:4", 3},
        {"<r a='1\n2\n' b='x'/>", "1:4", 3},
        {"<r a='1\n\n' b='x'/>", "3:3", 11},
        {"<r a=\"'1'\"/>", "1:4", 3},
        {"<r xmlns:p='&gt;' a='1' xmlns='u' b='x'/>", "1:35", 34},
        {"<r \xC3\xBC='1' b='x'/>", "1:10", 10},
        {"<r p='>' b='x'/>", "1:4", 3},
        // tags: their '<'
        {"<r>\n <w/></r>", "2:2", 5},
        {"\n <s/>", "2:2", 2},
        {"<r><v>1<w/></v></r>", "1:8", 7},
        // text where none may stand: its first character
        {"<r>\n  text</r>", "2:3", 6},
        {"<r><v>1</v>\n \xC3\xBC</r>", "2:2", 13},
        {"<r><v>1</v>&amp;</r>", "1:12", 11},
        // malformed: where the reader gave up
        {"<r>\n<v></w></r>", "2:6", 9},
        {"<r></r>\n<r/>", "2:1", 8},
        {"<r></r>\n x", "2:2", 9},
        {"<r>", "1:4", 3},
        {"", "1:1", 0},
    };
    for (const place_case &c : cases) {
        xml_document document(c.markup);
        xb_error error = first_failure(document);
        EXPECT_EQ(place_of(error), c.place) << c.markup << "\n" << rtxErrText(error.status);
        EXPECT_EQ(error.offset, c.offset) << c.markup;
    }
}

TEST(XmlErrors, places_within_an_entity_are_the_references)
{
    const place_case cases[] = {
        {"<!DOCTYPE r [<!ENTITY e ' x'>]>\n<r><v>&e;</v></r>", "2:7", 38},
        {"<!DOCTYPE r [<!ENTITY e '\n<v>\n x</v>'>]>\n<r> &e;</r>", "4:5", 45},
        {"<!DOCTYPE r [<!ENTITY e '<v/>'>]>\n<r> &e;</r>", "2:5", 38},
    };
    for (const place_case &c : cases) {
        xml_document document(c.markup);
        xb_error error = first_failure(document);
        EXPECT_EQ(error.status, XB_E_BAD_INTEGER);
        EXPECT_EQ(place_of(error), c.place) << c.markup;
        EXPECT_EQ(error.offset, c.offset) << c.markup;
    }
}

TEST(XmlErrors, an_attribute_that_the_document_type_gives_is_placed_at_its_tag)
{
    xml_document document("<!DOCTYPE r [<!ATTLIST r b CDATA 'x'>]>\n  <r a='1'/>");
    xb_error error = first_failure(document);
    EXPECT_EQ(error.status, XB_E_BAD_INTEGER);
    EXPECT_EQ(place_of(error), "2:3");
}

TEST(XmlErrors, a_missing_element_is_placed_at_the_tag_that_stands_there_instead)
{
    const xb_element_row row = {"a", 1, 0, {}};
    const xb_sequence_row sequence = {0, 1, -1};
    const place_case cases[] = {{"<r>\n</r>", "2:1", 4}, {"<r>\n <b/></r>", "2:2", 5}, {"\n<r/>", "2:1", 1}};
    for (const place_case &c : cases) {
        xml_document document(c.markup, {"r"});
        ASSERT_EQ(rtXmlpGetNextSeqElemID(&document.ctx, &row, 1, &sequence, 0, 0, false),
                  XB_E_ELEMENT_MISSING);
        EXPECT_EQ(place_of(report(document, XB_E_ELEMENT_MISSING)), c.place) << c.markup;
    }
}

TEST(XmlErrors, a_missing_attribute_is_placed_at_the_tag_whatever_is_selected)
{
    xml_document document("\n <r a='1'/>", {"r"});
    rtXmlpSelectAttribute(&document.ctx, 0);
    EXPECT_EQ(place_of(report(document, XB_E_ATTRIBUTE_MISSING)), "2:2");
}

TEST(XmlErrors, without_a_document_there_is_no_place)
{
    xb_context ctx = {};
    ASSERT_EQ(rtXmlInitContext(&ctx), XB_OK);
    EXPECT_EQ(rtXmlpCreateReader(&ctx), XB_E_BAD_STATE);
    rtxErrSetData(&ctx, XB_E_BAD_STATE, "s", 1);
    xb_error error = {};
    ASSERT_TRUE(rtxErrGet(&ctx, 0, &error));
    EXPECT_EQ(place_of(error), "0:0");
    rtxFreeContext(&ctx);
}

}  // namespace
