#include "platform/xml_document.h"

#include <gtest/gtest.h>

namespace
{

// One required element followed by three optional ones.
const xb_element_row rows[] = {
    {"first", 5, 0, {}}, {"second", 6, 1, {}}, {"third", 5, 2, {}}, {"fourth", 6, 3, {}}};
const xb_sequence_row sequence[] = {{0, 1, -1}, {1, 3, -1}, {2, 2, -1}, {3, 1, -1}};

int32_t next_at(xml_document &document, int32_t position, bool group = false)
{
    return rtXmlpGetNextSeqElemID(&document.ctx, rows, 4, sequence, position, 0, group);
}

int32_t next_of_run(xml_document &document, const xb_element_row &row)
{
    return rtXmlpGetNextElemID(&document.ctx, &row, 1, -1);
}

TEST(XmlElementLookup, elements_in_order_yield_their_indexes_and_then_the_end)
{
    xml_document document("<r> <first/>\n<!-- c --><third/><?pi x?> </r>", {"r"});
    EXPECT_EQ(next_at(document, 0), 0);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(next_at(document, 1), 2);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(next_at(document, 3), XB_END_OF_CONTENT);
    EXPECT_EQ(next_at(document, 3), XB_END_OF_CONTENT);
    EXPECT_EQ(leave(document), XB_OK);
}

struct failing_lookup {
    const char *content;
    int32_t position;
    int32_t status;
    std::vector<std::string> parameters;
};

TEST(XmlElementLookup, wrong_content_fails_with_the_names_that_explain_it)
{
    const failing_lookup cases[] = {
        {"", 0, XB_E_ELEMENT_MISSING, {"first", "/r"}},
        {"<second/>", 0, XB_E_ELEMENT_MISSING, {"first", "second"}},
        {"<unknown/>", 0, XB_E_ELEMENT_MISSING, {"first", "unknown"}},
        {"<unknown/>", 1, XB_E_ELEMENT_UNEXPECTED, {"unknown"}},
        {"<first/>", 1, XB_E_ELEMENT_UNEXPECTED, {"first"}},
        {"<second/>", 2, XB_E_ELEMENT_UNEXPECTED, {"second"}},
        {"<Second/>", 1, XB_E_ELEMENT_UNEXPECTED, {"Second"}},
        {"<secon/>", 1, XB_E_ELEMENT_UNEXPECTED, {"secon"}},
        {"<p:second xmlns:p='u'/>", 1, XB_E_ELEMENT_UNEXPECTED, {"p:second"}},
        {"<second xmlns='u'/>", 1, XB_E_ELEMENT_UNEXPECTED, {"second"}},
        {"<p:second/>", 1, XB_E_UNDECLARED_PREFIX, {"p:second"}},
        {"text<second/>", 1, XB_E_TEXT_UNEXPECTED, {}},
        {"<![CDATA[x]]>", 1, XB_E_TEXT_UNEXPECTED, {}},
        {"text", 0, XB_E_TEXT_UNEXPECTED, {}},
        {"<second>", 2, XB_E_ELEMENT_UNEXPECTED, {"second"}},
        {"<", 1, XB_E_MALFORMED, {"not well-formed (invalid token)"}},
    };
    for (const failing_lookup &c : cases) {
        xml_document document("<r>" + std::string(c.content) + "</r>", {"r"});
        int32_t status = next_at(document, c.position);
        EXPECT_EQ(status, c.status) << c.content;
        EXPECT_EQ(parameters_of(report(document, status)), c.parameters) << c.content;
    }
}

TEST(XmlElementLookup, a_default_namespace_taken_back_is_none)
{
    xml_document document("<r xmlns='u'><first xmlns=''/></r>", {"r"});
    EXPECT_EQ(next_at(document, 0), 0);
}

TEST(XmlElementLookup, in_group_mode_a_foreign_element_ends_the_content_and_stays)
{
    xml_document document("<r><other/></r>", {"r"});
    EXPECT_EQ(next_at(document, 1, true), XB_END_OF_CONTENT);
    EXPECT_EQ(enter(document, "other"), XB_OK);
}

TEST(XmlElementLookup, in_group_mode_a_required_element_is_still_required)
{
    for (const char *content : {"<other/>", ""}) {
        xml_document document("<r>" + std::string(content) + "</r>", {"r"});
        EXPECT_EQ(next_at(document, 0, true), XB_E_ELEMENT_MISSING);
    }
}

TEST(XmlElementLookup, rows_of_one_name_are_told_apart_by_the_position)
{
    const xb_element_row table[] = {{"a", 1, 0, {}}, {"b", 1, 1, {}}, {"a", 1, 2, {}}};
    const xb_sequence_row positions[] = {{0, 3, -1}, {1, 2, -1}, {2, 1, -1}};
    xml_document document("<r><a/><a/></r>", {"r"});
    EXPECT_EQ(rtXmlpGetNextSeqElemID(&document.ctx, table, 3, positions, 0, -1, false), 0);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(rtXmlpGetNextSeqElemID(&document.ctx, table, 3, positions, 1, -1, false), 2);
}

TEST(XmlElementLookup, several_names_may_yield_one_index)
{
    const xb_element_row table[] = {{"a", 1, 0, {}}, {"b", 1, 0, {}}, {"x", 1, 1, {}}};
    const xb_sequence_row positions[] = {{0, 2, -1}, {1, 1, -1}};
    xml_document document("<r><b/></r>", {"r"});
    EXPECT_EQ(rtXmlpGetNextSeqElemID(&document.ctx, table, 3, positions, 0, 1, false), 0);
}

TEST(XmlElementLookup, a_run_goes_on_until_another_element_or_the_end)
{
    xml_document document("<r><second/> <second/><third/></r>", {"r"});
    EXPECT_EQ(next_of_run(document, rows[1]), 1);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(next_of_run(document, rows[1]), 1);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(next_of_run(document, rows[1]), XB_E_RUN_ENDED);
    rtXmlpMarkLastEventActive(&document.ctx);
    EXPECT_EQ(next_at(document, 2), 2);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(next_of_run(document, rows[1]), XB_E_RUN_ENDED);
    rtXmlpMarkLastEventActive(&document.ctx);
    EXPECT_EQ(leave(document), XB_OK);
}

TEST(XmlElementLookup, a_run_fails_on_text)
{
    xml_document document("<r><second/>text<second/></r>", {"r"});
    EXPECT_EQ(next_of_run(document, rows[1]), 1);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(next_of_run(document, rows[1]), XB_E_TEXT_UNEXPECTED);
}

TEST(XmlElementLookup, a_start_tag_pushed_back_is_read_again)
{
    xml_document document("<r p='1'><first q='2' s='3'/></r>", {"r"});
    EXPECT_EQ(next_at(document, 0), 0);
    EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 2);
    rtXmlpHideAttributes(&document.ctx);
    rtXmlpMarkLastEventActive(&document.ctx);
    rtXmlpMarkLastEventActive(&document.ctx);
    EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 1);
    EXPECT_TRUE(rtXmlpNeedDecodeAttributes(&document.ctx));
    EXPECT_EQ(next_at(document, 0), 0);
    EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 2);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(leave(document), XB_OK);
}

TEST(XmlElementLookup, an_end_tag_pushed_back_is_read_again)
{
    xml_document document("<r><first a='1' xmlns:p='u'/><second/></r>", {"r"});
    EXPECT_EQ(next_at(document, 0), 0);
    EXPECT_EQ(leave(document), XB_OK);
    rtXmlpMarkLastEventActive(&document.ctx);
    EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 1);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(next_at(document, 1), 1);
}

TEST(XmlElementLookup, push_back_after_a_failed_read_does_nothing)
{
    for (const char *behind : {"<p:b c='1'/></r>", "</s>"}) {
        xml_document document("<r><first a='1'/>" + std::string(behind), {"r"});
        EXPECT_EQ(next_at(document, 0), 0);
        EXPECT_EQ(leave(document), XB_OK);
        EXPECT_TRUE(rtXmlpIsEmptyElement(&document.ctx));
        rtXmlpMarkLastEventActive(&document.ctx);
        EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 0);
        EXPECT_LT(leave(document), 0);
    }
}

TEST(XmlElementLookup, push_back_before_the_first_read_does_nothing)
{
    xml_document document("<r/>");
    rtXmlpMarkLastEventActive(&document.ctx);
    EXPECT_EQ(enter(document, "r"), XB_OK);
}

TEST(XmlElementLookup, group_mode_lasts_until_the_next_lookup)
{
    xml_document document("<r><first/><second/></r>", {"r"});
    EXPECT_FALSE(rtXmlpIsDecodeAsGroup(&document.ctx));
    rtXmlpForceDecodeAsGroup(&document.ctx);
    EXPECT_TRUE(rtXmlpIsDecodeAsGroup(&document.ctx));
    EXPECT_TRUE(rtXmlpIsDecodeAsGroup(&document.ctx));
    EXPECT_EQ(next_at(document, 0), 0);
    EXPECT_FALSE(rtXmlpIsDecodeAsGroup(&document.ctx));
    rtXmlpMarkLastEventActive(&document.ctx);
    rtXmlpForceDecodeAsGroup(&document.ctx);
    EXPECT_EQ(next_at(document, 1, true), XB_END_OF_CONTENT);
    EXPECT_FALSE(rtXmlpIsDecodeAsGroup(&document.ctx));
}

TEST(XmlElementLookup, empty_means_neither_elements_nor_text)
{
    struct {
        const char *markup;
        bool empty;
    } cases[] = {{"<r/>", true},
                 {"<r></r>", true},
                 {"<r> \n\t </r>", true},
                 {"<r><!-- c --></r>", true},
                 {"<r>x</r>", false},
                 {"<r><a/></r>", false},
                 {"<r> <a/></r>", false},
                 {"<r>&#65;</r>", false},
                 {"<r>&#32;</r>", true},
                 {"<r><![CDATA[]]></r>", true},
                 {"<r><?pi?> y</r>", false}};
    for (const auto &c : cases) {
        xml_document document(c.markup, {"r"});
        EXPECT_EQ(rtXmlpIsEmptyElement(&document.ctx), c.empty) << c.markup;
        EXPECT_EQ(rtXmlpIsEmptyElement(&document.ctx), c.empty) << c.markup;
    }
}

TEST(XmlElementLookup, a_value_can_be_decoded_after_asking_for_emptiness)
{
    xml_document document("<r>\n12<!-- -->3</r>", {"r"});
    EXPECT_FALSE(rtXmlpIsEmptyElement(&document.ctx));
    int32_t value = 0;
    EXPECT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_OK);
    EXPECT_EQ(value, 123);
    EXPECT_EQ(leave(document), XB_OK);
}

TEST(XmlElementLookup, a_failure_seen_while_asking_for_emptiness_is_reported_by_the_next_read)
{
    xml_document document("<r>x</s>", {"r"});
    EXPECT_TRUE(rtXmlpIsEmptyElement(&document.ctx));
    int32_t value = 0;
    EXPECT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_E_MALFORMED);
    EXPECT_EQ(parameters_of(report(document, XB_E_MALFORMED)), std::vector<std::string>{"mismatched tag"});
}

TEST(XmlElementLookup, the_root_is_matched_by_local_name_whatever_its_namespace)
{
    for (const char *markup : {"<module/>", "<p:module xmlns:p='u'/>", "<module xmlns='u'/>"}) {
        xml_document document(markup);
        EXPECT_EQ(enter(document, "chassis"), XB_E_ROOT_MISMATCH);
        EXPECT_EQ(enter(document, "module"), XB_OK) << markup;
    }
}

TEST(XmlElementLookup, a_root_mismatch_tells_the_name_found)
{
    xml_document document("<!-- c --><fan/>");
    EXPECT_EQ(enter(document, "module"), XB_E_ROOT_MISMATCH);
    EXPECT_EQ(parameters_of(report(document, XB_E_ROOT_MISMATCH)), std::vector<std::string>{"fan"});
}

TEST(XmlElementLookup, an_end_tag_is_refused_while_content_is_left)
{
    xml_document text("<r>text</r>", {"r"});
    EXPECT_EQ(leave(text), XB_E_TEXT_UNEXPECTED);
    xml_document element("<r><a/></r>", {"r"});
    EXPECT_EQ(leave(element), XB_E_ELEMENT_UNEXPECTED);
    EXPECT_EQ(parameters_of(report(element, XB_E_ELEMENT_UNEXPECTED)), std::vector<std::string>{"a"});
}

TEST(XmlElementLookup, calls_out_of_order_fail)
{
    xml_document document("<r/>");
    EXPECT_EQ(leave(document), XB_E_BAD_STATE);
    EXPECT_EQ(next_at(document, 0), XB_E_BAD_STATE);
    EXPECT_EQ(next_of_run(document, rows[0]), XB_E_BAD_STATE);
    EXPECT_EQ(enter(document, "r"), XB_OK);
    EXPECT_EQ(leave(document), XB_OK);
    EXPECT_EQ(leave(document), XB_E_BAD_STATE);
    EXPECT_EQ(enter(document, "r"), XB_E_ROOT_MISMATCH);
}

TEST(XmlElementLookup, a_depth_that_is_given_must_be_the_elements)
{
    xml_document document("<r><first/></r>");
    EXPECT_EQ(rtXmlpMatchStartTag(&document.ctx, "r", 2), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpMatchStartTag(&document.ctx, "r", 1), XB_OK);
    EXPECT_EQ(rtXmlpGetNextElemID(&document.ctx, rows, 4, 1), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpGetNextElemID(&document.ctx, rows, 4, 2), 0);
    EXPECT_EQ(rtXmlpMatchEndTag(&document.ctx, 1), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpMatchEndTag(&document.ctx, 2), XB_OK);
}

}  // namespace
