#include "platform/xml_document.h"

#include <gtest/gtest.h>

namespace
{

const xb_attribute_row table[] = {{"name", 4, {}}, {"type", 4, {}}};
constexpr const char *xsi = "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";

int32_t look_up(xml_document &document, int32_t index, int32_t *namespace_index)
{
    EXPECT_EQ(rtXmlpSelectAttribute(&document.ctx, index), XB_OK);
    return rtXmlpGetAttributeID(&document.ctx, table, 2, namespace_index);
}

TEST(XmlAttributes, each_attribute_maps_to_its_row_or_says_why_not)
{
    struct {
        std::string attribute;
        int32_t id;
        int32_t namespace_index;
        std::string local_name;
    } cases[] = {{"name='x'", 0, -1, "name"},
                 {"type='x'", 1, -1, "type"},
                 {"Name='x'", XB_E_ATTRIBUTE_UNKNOWN, -1, "Name"},
                 {"names='x'", XB_E_ATTRIBUTE_UNKNOWN, -1, "names"},
                 {"nam='x'", XB_E_ATTRIBUTE_UNKNOWN, -1, "nam"},
                 {"xsi:type='x'", XB_E_ATTRIBUTE_UNKNOWN, -2, "type"},
                 {"xsi:whatever='x'", XB_E_ATTRIBUTE_UNKNOWN, -2, "whatever"},
                 {"q:name='x'", XB_E_ATTRIBUTE_UNKNOWN, 0, "name"},
                 {"xml:lang='en'", XB_E_ATTRIBUTE_UNKNOWN, 0, "lang"},
                 {"nobody:name='x'", XB_E_UNDECLARED_PREFIX, -1, "name"}};
    for (const auto &c : cases) {
        // The declarations stand behind the attribute that needs them.
        xml_document document("<r " + c.attribute + " xmlns:q='u' xmlns='d' " + xsi + "/>", {"r"});
        EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 1);
        int32_t namespace_index = 99;
        EXPECT_EQ(look_up(document, 0, &namespace_index), c.id) << c.attribute;
        EXPECT_EQ(namespace_index, c.namespace_index) << c.attribute;
        size_t length = 0;
        const char *name = rtXmlpGetAttributeName(&document.ctx, &length);
        EXPECT_EQ(std::string(name, length), c.local_name);
    }
}

TEST(XmlAttributes, an_undeclared_prefix_does_not_end_the_reading)
{
    xml_document document("<r p:a='1'><first/></r>", {"r"});
    int32_t namespace_index = 0;
    EXPECT_EQ(look_up(document, 0, &namespace_index), XB_E_UNDECLARED_PREFIX);
    EXPECT_EQ(enter(document, "first"), XB_OK);
}

TEST(XmlAttributes, are_selected_in_document_order_without_declarations)
{
    xml_document document("<r xmlns:a='u' b='1' xmlns='v' c='2'/>", {"r"});
    EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 2);
    int32_t value = 0;
    for (int32_t index : {1, 0, 1}) {
        ASSERT_EQ(rtXmlpSelectAttribute(&document.ctx, index), XB_OK);
        EXPECT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_OK);
        EXPECT_EQ(value, index + 1);
    }
    for (int32_t index : {-1, 2, INT32_MAX, INT32_MIN})
        EXPECT_EQ(rtXmlpSelectAttribute(&document.ctx, index), XB_E_BAD_STATE);
}

TEST(XmlAttributes, need_decoding_until_hidden)
{
    for (const char *markup : {"<r a='1'/>", "<r/>"}) {
        xml_document document(markup, {"r"});
        EXPECT_TRUE(rtXmlpNeedDecodeAttributes(&document.ctx));
        rtXmlpHideAttributes(&document.ctx);
        EXPECT_FALSE(rtXmlpNeedDecodeAttributes(&document.ctx));
        EXPECT_FALSE(rtXmlpHasAttributes(&document.ctx));
    }
}

TEST(XmlAttributes, declarations_and_xsi_attributes_are_consumed_by_their_own_calls)
{
    struct {
        std::string attributes;
        bool has, has_after_declarations, has_after_xsi;
    } cases[] = {{"", false, false, false},
                 {"a='1'", true, true, true},
                 {xsi, true, false, false},
                 {std::string(xsi) + " xsi:nil='false'", true, true, false},
                 {std::string(xsi) + " xsi:nil='false' a='1'", true, true, true}};
    for (const auto &c : cases) {
        xml_document document("<r " + c.attributes + "/>", {"r"});
        EXPECT_EQ(rtXmlpHasAttributes(&document.ctx), c.has) << c.attributes;
        xb_data_list list = {};
        EXPECT_EQ(rtXmlpGetXmlnsAttrs(&document.ctx, &list), XB_OK);
        EXPECT_EQ(rtXmlpHasAttributes(&document.ctx), c.has_after_declarations) << c.attributes;
        EXPECT_EQ(rtXmlpDecXSIAttrs(&document.ctx), XB_OK);
        EXPECT_EQ(rtXmlpHasAttributes(&document.ctx), c.has_after_xsi) << c.attributes;
    }
}

TEST(XmlAttributes, consuming_xsi_attributes_keeps_the_selection)
{
    xml_document document("<r a='5' " + std::string(xsi) + " xsi:nil='true'/>", {"r"});
    ASSERT_EQ(rtXmlpSelectAttribute(&document.ctx, 0), XB_OK);
    EXPECT_EQ(rtXmlpDecXSIAttrs(&document.ctx), XB_OK);
    int32_t value = 0;
    EXPECT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_OK);
    EXPECT_EQ(value, 5);
}

TEST(XmlAttributes, declarations_are_listed_in_document_order)
{
    xml_document document("<r xmlns:a='one' b='1' xmlns='' xmlns:c='three'/>", {"r"});
    xb_data_list list = {};
    ASSERT_EQ(rtXmlpGetXmlnsAttrs(&document.ctx, &list), XB_OK);
    std::vector<std::string> found;
    for (xb_data_node *node = list.head; node != nullptr; node = node->next) {
        const auto *item = static_cast<const xb_xmlns *>(node->data);
        found.push_back(std::string(item->prefix) + "=" + item->uri);
    }
    EXPECT_EQ(found, (std::vector<std::string>{"a=one", "=", "c=three"}));
}

TEST(XmlAttributes, a_declaration_without_a_prefix_behind_its_colon_is_none)
{
    for (bool slow_road : {false, true}) {
        xml_document document("<r xmlns:='u'><a>1</a></r>", 0, slow_road);
        ASSERT_EQ(enter(document, "r"), XB_OK);
        EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 1);
        int32_t namespace_index = 0;
        EXPECT_EQ(look_up(document, 0, &namespace_index), XB_E_ATTRIBUTE_UNKNOWN);
        EXPECT_EQ(namespace_index, -1);
        EXPECT_EQ(next_of(document, element_table({"a"})), 0);
    }
}

TEST(XmlAttributes, of_the_parent_are_there_again_when_the_child_is_closed)
{
    xml_document document("<r a='1' " + std::string(xsi) + "><b c='2' d='3' xmlns:xsi='u'/></r>", {"r", "b"});
    EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), 2);
    rtXmlpHideAttributes(&document.ctx);
    ASSERT_EQ(leave(document), XB_OK);
    EXPECT_TRUE(rtXmlpNeedDecodeAttributes(&document.ctx));
    ASSERT_EQ(rtXmlpSelectAttribute(&document.ctx, 0), XB_OK);
    int32_t value = 0;
    EXPECT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_OK);
    EXPECT_EQ(value, 1);
}

TEST(XmlAttributes, hiding_ends_the_selection)
{
    xml_document document("<r a='1'>2</r>", {"r"});
    ASSERT_EQ(rtXmlpSelectAttribute(&document.ctx, 0), XB_OK);
    rtXmlpHideAttributes(&document.ctx);
    int32_t value = 0;
    EXPECT_EQ(rtXmlpDecInt(&document.ctx, &value), XB_OK);
    EXPECT_EQ(value, 2);
    int32_t namespace_index = 0;
    EXPECT_EQ(rtXmlpGetAttributeID(&document.ctx, table, 2, &namespace_index), XB_E_BAD_STATE);
}

TEST(XmlAttributes, without_an_open_element_every_call_fails)
{
    xml_document document("<r a='1'/>");
    xb_data_list list = {};
    EXPECT_FALSE(rtXmlpHasAttributes(&document.ctx));
    EXPECT_FALSE(rtXmlpNeedDecodeAttributes(&document.ctx));
    EXPECT_EQ(rtXmlpGetXmlnsAttrs(&document.ctx, &list), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpDecXSIAttrs(&document.ctx), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpGetAttributeCount(&document.ctx), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpSelectAttribute(&document.ctx, 0), XB_E_BAD_STATE);
    EXPECT_EQ(rtXmlpGetXSITypeIndex(&document.ctx, nullptr, 0), XB_E_BAD_STATE);
    rtXmlpHideAttributes(&document.ctx);
}

const xb_type_name_row types[] = {{"Base", 4}, {"Optics", 6}};

TEST(XmlAttributes, xsi_type_maps_to_the_row_of_its_name)
{
    struct {
        std::string attributes;
        int32_t result;
    } cases[] = {{"", XB_E_NO_XSI_TYPE},
                 {"type='Base'", XB_E_NO_XSI_TYPE},
                 {"xsi:nil='true'", XB_E_NO_XSI_TYPE},
                 {"q:type='Base' xmlns:q='u'", XB_E_NO_XSI_TYPE},
                 {"xsi:type='Base'", 0},
                 {"xsi:type=' \n Optics\t'", 1},
                 {"xsi:type='optics'", XB_E_UNKNOWN_TYPE},
                 {"xsi:type=''", XB_E_UNKNOWN_TYPE},
                 {"xsi:type='Base Optics'", XB_E_UNKNOWN_TYPE},
                 {"xsi:type='Opt'", XB_E_UNKNOWN_TYPE},
                 {"xsi:type='q:Base' xmlns:q='u'", XB_E_UNKNOWN_TYPE},
                 {"xsi:type='xml:Base'", XB_E_UNKNOWN_TYPE},
                 {"xsi:type='q:Base'", XB_E_UNDECLARED_PREFIX},
                 {"xsi:type='Base' xmlns='u'", XB_E_UNKNOWN_TYPE},
                 {"xsi:type='Base' xmlns=''", 0},
                 {"i:type='Base' xmlns:i='http://www.w3.org/2001/XMLSchema-instance'", 0},
                 {"xsi:type='Base' xmlns:xsi='other'", XB_E_NO_XSI_TYPE}};
    for (const auto &c : cases) {
        std::string outer = "<o " + std::string(xsi) + "><r " + c.attributes + "/></o>";
        xml_document document(outer, {"o", "r"});
        EXPECT_EQ(rtXmlpGetXSITypeIndex(&document.ctx, types, 2), c.result) << c.attributes;
    }
}

TEST(XmlAttributes, an_unknown_type_is_the_parameter_of_the_error)
{
    xml_document document("<r " + std::string(xsi) + "\n  xsi:type=' PEMType '/>", {"r"});
    EXPECT_EQ(rtXmlpGetXSITypeIndex(&document.ctx, types, 2), XB_E_UNKNOWN_TYPE);
    xb_error error = report(document, XB_E_UNKNOWN_TYPE);
    EXPECT_EQ(parameters_of(error), std::vector<std::string>{"PEMType"});
    EXPECT_EQ(place_of(error), "2:3");
}

TEST(XmlAttributes, a_tag_read_ahead_does_not_change_the_scope)
{
    xml_document document("<r " + std::string(xsi) + " xsi:type='Base'><b xmlns='u' xmlns:xsi='v'/></r>",
                          {"r"});
    EXPECT_FALSE(rtXmlpIsEmptyElement(&document.ctx));
    EXPECT_EQ(rtXmlpGetXSITypeIndex(&document.ctx, types, 2), 0);
}

TEST(XmlAttributes, shadowed_and_left_declarations_are_in_force_again)
{
    std::string inner =
        "<a xmlns:p='' xmlns:q='w'><b xmlns:p='v' p:x='1' q:x='2'/><c p:x='1' q:x='2'/></a><d p:x='1' "
        "q:x='2'/>";
    xml_document document("<r xmlns:p='u'>" + inner + "</r>", {"r", "a", "b"});
    int32_t namespace_index = 0;
    auto statuses = [&] {
        return std::vector<int32_t>{look_up(document, 0, &namespace_index),
                                    look_up(document, 1, &namespace_index)};
    };
    const std::vector<int32_t> both = {XB_E_ATTRIBUTE_UNKNOWN, XB_E_ATTRIBUTE_UNKNOWN};
    EXPECT_EQ(statuses(), both);
    leave(document);
    enter(document, "c");
    EXPECT_EQ(statuses(), (std::vector<int32_t>{XB_E_UNDECLARED_PREFIX, XB_E_ATTRIBUTE_UNKNOWN}));
    leave(document);
    leave(document);
    enter(document, "d");
    EXPECT_EQ(statuses(), (std::vector<int32_t>{XB_E_ATTRIBUTE_UNKNOWN, XB_E_UNDECLARED_PREFIX}));
}

TEST(XmlAttributes, many_declarations_and_attributes_cost_no_more_than_linear_time)
{
    std::string markup = "<r";
    for (int i = 0; i < 100000; ++i)
        markup += " xmlns:n" + std::to_string(i) + "='u'";
    for (int i = 0; i < 100000; ++i)
        markup += " a" + std::to_string(i) + "='1'";
    markup += ">";
    for (int i = 0; i < 100000; ++i)
        markup += "<e n" + std::to_string(i) + ":x='1'/>";
    xml_document document(markup + "</r>", {"r"});
    for (int32_t i = 0; i < 100000; ++i) {
        ASSERT_EQ(rtXmlpSelectAttribute(&document.ctx, i), XB_OK);
        rtxErrSetNewData(&document.ctx, XB_E_ATTRIBUTE_UNKNOWN, "test", 1);
    }
    element_table elements({"e"});
    int32_t namespace_index = 0;
    while (next_of(document, elements) == 0) {
        ASSERT_EQ(look_up(document, 0, &namespace_index), XB_E_ATTRIBUTE_UNKNOWN);
        ASSERT_EQ(leave(document), XB_OK);
    }
    EXPECT_EQ(leave(document), XB_OK);
    xb_error last = {};
    ASSERT_TRUE(rtxErrGet(&document.ctx, 99999, &last));
    EXPECT_EQ(last.column, markup.find(" a99999=") + 2);
}

}  // namespace
