// Attributes of entities and of the few other types that have some.
#include <gtest/gtest.h>

#include "decode/steps.h"
#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

using led_info = element<BaseLedInfoType, Init_BaseLedInfoType, XmlDT_BaseLedInfoType>;
using threshold = element<BaseThresholdType, Init_BaseThresholdType, XmlDT_BaseThresholdType>;
using texts = std::vector<std::string>;

std::string module(const std::string &attributes)
{
    return "<module" + attributes + "/>";
}

TEST(DecodeAttributes, may_come_in_any_order)
{
    module_document d(
        module(R"( xmlInstance="7" oid="1.2" replicationScope="ORVL_REPLICATION_TYPE_RACK" name="n")"
               R"( instance="3" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" type="ORVL_ENTITY_TYPE_MODULE")"));
    ASSERT_EQ(d.status, 0);
    const BaseEntityType &entity = module_of(d).base;
    EXPECT_STREQ(entity.name, "n");
    EXPECT_STREQ(entity.oid, "1.2");
    EXPECT_EQ(entity.xmlInstance, 7);
    EXPECT_EQ(entity.replicationScope, 1u);
}

struct missing_case {
    const char *attributes;
    const char *missing;
};

constexpr missing_case missing_cases[] = {
    {R"( type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" instance="3" replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="7")",
     "name"},
    {R"( name="n" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" instance="3" replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="7")",
     "type"},
    {R"( name="n" type="ORVL_ENTITY_TYPE_MODULE" instance="3" replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="7")",
     "subtype"},
    {R"( name="n" type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="7")",
     "instance"},
    {R"( name="n" type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" instance="3" xmlInstance="7")",
     "replicationScope"},
    {R"( name="n" type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" instance="3" replicationScope="ORVL_REPLICATION_TYPE_NONE")",
     "xmlInstance"},
    // Of several only the first in table order is told of.
    {R"( xmlInstance="7" name="n")", "type"},
    {"", "name"},
};

TEST(DecodeAttributes, a_missing_required_one_is_recorded_and_the_entity_still_decodes)
{
    for (const missing_case &c : missing_cases) {
        module_document d(module(c.attributes));
        EXPECT_EQ(d.status, XB_E_ATTRIBUTE_MISSING) << c.missing;
        EXPECT_EQ(d.record.tag, 1u) << c.missing;
        EXPECT_EQ(d.errors(), 1u) << c.missing;
        EXPECT_FALSE(d.error().fatal) << c.missing;
        EXPECT_STREQ(d.error().source, decoder_source);
        EXPECT_EQ(d.parameters(), (texts{"BaseModuleType", c.missing}));
    }
}

TEST(DecodeAttributes, a_missing_one_keeps_its_initial_value)
{
    module_document d(module(R"( name="n")"));
    const BaseEntityType &entity = module_of(d).base;
    EXPECT_STREQ(entity.name, "n");
    EXPECT_EQ(entity.type, 0u);
    EXPECT_EQ(entity.instance, 0);
}

TEST(DecodeAttributes, absent_owner_snmp_entity_and_prefix_are_1_with_their_bits_clear)
{
    module_document d(module(identity));
    ASSERT_EQ(d.status, 0);
    const BaseEntityType &entity = module_of(d).base;
    EXPECT_EQ(entity.entityOwner, 1u);
    EXPECT_EQ(entity.snmpEntity, 1);
    EXPECT_EQ(entity.isPrefixNeeded, 1);
    EXPECT_EQ(bits_set(entity.has), 0);
}

TEST(DecodeAttributes, given_owner_snmp_entity_and_prefix_replace_the_initial_values)
{
    module_document d(module(
        identity + R"(entityOwner="ORVL_ENTITY_OWNER_TYPE_NONE" snmpEntity="0" isPrefixNeeded="false")"));
    ASSERT_EQ(d.status, 0);
    const BaseEntityType &entity = module_of(d).base;
    EXPECT_EQ(entity.entityOwner, 0u);
    EXPECT_EQ(entity.snmpEntity, 0);
    EXPECT_EQ(entity.isPrefixNeeded, 0);
    EXPECT_EQ(bits_set(entity.has), 3);
}

struct failing_case {
    const char *attribute;
    int32_t status;
    texts parameters;
};

const failing_case failing_cases[] = {
    {R"(colour="red")", XB_E_ATTRIBUTE_UNKNOWN, {"BaseModuleType", "colour"}},
    {R"(xmlns:f="urn:f" f:name="red")", XB_E_ATTRIBUTE_UNKNOWN, {"BaseModuleType", "name"}},
    {R"(xml:lang="en")", XB_E_ATTRIBUTE_UNKNOWN, {"BaseModuleType", "lang"}},
    {R"(driverId="x")", XB_E_ATTRIBUTE_UNKNOWN, {"BaseModuleType", "driverId"}},
    {R"(f:oid="red")", XB_E_UNDECLARED_PREFIX, {"BaseModuleType", "oid"}},
    {R"(adminState="up")", XB_E_UNKNOWN_TOKEN, {"up", "BaseModuleType", "adminState"}},
    {R"(fruable="yes")", XB_E_BAD_BOOLEAN, {"yes", "BaseModuleType", "fruable"}},
};

TEST(DecodeAttributes, a_failing_one_is_recorded_and_the_walk_goes_on)
{
    for (const failing_case &c : failing_cases) {
        module_document d(module(" " + std::string(c.attribute) + identity + "isHidden=\"1\""));
        EXPECT_EQ(d.status, c.status) << c.attribute;
        EXPECT_EQ(d.errors(), 1u) << c.attribute;
        EXPECT_FALSE(d.error().fatal) << c.attribute;
        EXPECT_EQ(d.parameters(), c.parameters);
        ASSERT_EQ(d.record.tag, 1u) << c.attribute;
        EXPECT_EQ(module_of(d).base.isHidden, 1) << c.attribute;
        EXPECT_EQ(module_of(d).base.xmlInstance, 7) << c.attribute;
        EXPECT_EQ(bits_set(module_of(d).base.has), 1) << c.attribute;
    }
}

// The step says which attribute it was: they are numbered as in the schema.
TEST(DecodeAttributes, the_step_of_a_failing_one_tells_its_row)
{
    using namespace inv::decode;
    module_document unknown(module(identity + "colour=\"red\""));
    const uint32_t first = unknown.error().source_line - step_unknown_attribute;
    module_document missing(module(R"( name="n")"));
    EXPECT_EQ(missing.error().source_line, first + step_missing_attribute);
    module_document fruable(module(identity + "fruable=\"yes\""));
    EXPECT_EQ(fruable.error().source_line, first + step_first_attribute + 8);
    module_document oir(module(identity + "oir=\"yes\""));
    EXPECT_EQ(oir.error().source_line, first + step_first_attribute + 9);
}

TEST(DecodeAttributes, a_required_one_with_a_bad_value_is_not_missing_as_well)
{
    module_document d(module(
        R"( name="n" type="BOARD" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" instance="3" replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="7")"));
    EXPECT_EQ(d.status, XB_E_UNKNOWN_TOKEN);
    EXPECT_EQ(d.errors(), 1u);
}

TEST(DecodeAttributes, the_document_has_the_status_of_the_first_failure)
{
    module_document d("<module" + identity + "><led" + identity +
                      R"(colour="red"><ledInfo><color>ORVL_LED_COLOR_RED</color>)"
                      R"(<control>ORVL_LED_CONTROL_ON</control></ledInfo></led><led/></module>)");
    EXPECT_EQ(d.status, XB_E_ATTRIBUTE_UNKNOWN);
    ASSERT_EQ(d.errors(), 3u);  // the unknown one, the missing name, and the second light's count
    EXPECT_EQ(d.error(1).status, XB_E_ATTRIBUTE_MISSING);
    EXPECT_EQ(d.error(2).status, XB_E_CONSTRAINT);
    EXPECT_TRUE(d.error(2).fatal);
}

TEST(DecodeAttributes, xsi_attributes_are_no_failures)
{
    module_document d(module(identity + xsi + R"(xsi:noNamespaceSchemaLocation="OrvelianInventory.xsd")"));
    EXPECT_EQ(d.status, 0);
}

TEST(DecodeAttributes, namespace_declarations_are_kept_with_the_record)
{
    module_document d(module(identity + R"(xmlns:a="urn:a" xmlns:b="urn:b")"));
    ASSERT_EQ(d.status, 0);
    const xb_data_list &list = module_of(d).base.xmlns;
    ASSERT_EQ(list.count, 2u);
    EXPECT_STREQ(node<xb_xmlns>(list, 0).prefix, "a");
    EXPECT_STREQ(node<xb_xmlns>(list, 1).uri, "urn:b");
}

TEST(DecodeAttributes, types_without_attributes_pass_over_whatever_stands_there)
{
    led_info d(R"(<e colour="red" xmlns:f="urn:f"><color f:x="1">ORVL_LED_COLOR_RED</color>)"
               R"(<control y="2">ORVL_LED_CONTROL_OFF</control></e>)");
    ASSERT_EQ(d.status, 0);
    EXPECT_EQ(d.record.color, 3u);
    EXPECT_EQ(d.record.control, 1u);
    EXPECT_EQ(d.record.xmlns.count, 1u);
}

TEST(DecodeAttributes, whatever_was_passed_over_is_consumed)
{
    context d(
        R"(<e colour="red"><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_ON</control></e>)");
    ASSERT_EQ(rtXmlpCreateReader(&d.ctx), 0);
    ASSERT_EQ(rtXmlpMatchStartTag(&d.ctx, "e", -1), 0);
    EXPECT_TRUE(rtXmlpNeedDecodeAttributes(&d.ctx));
    BaseLedInfoType record;
    Init_BaseLedInfoType(&record);
    ASSERT_EQ(XmlDT_BaseLedInfoType(&d.ctx, &record), 0);
    EXPECT_FALSE(rtXmlpNeedDecodeAttributes(&d.ctx));
}

TEST(DecodeAttributes, a_derived_type_names_itself_and_takes_inherited_ones_first)
{
    using port = element<BaseConsoleType, Init_BaseConsoleType, XmlDT_BaseConsoleType>;
    port d(
        R"(<e usage="ORVL_CONSOLE_PORT_CPU"><maxBandWidth>1</maxBandWidth><operatingBandWidth>2</operatingBandWidth>)"
        R"(<hwBoardIdentifier>x</hwBoardIdentifier></e>)");
    EXPECT_EQ(d.status, XB_E_ATTRIBUTE_MISSING);
    EXPECT_EQ(d.parameters(), (texts{"BaseConsoleType", "name"}));
    EXPECT_EQ(d.record.usage, 2u);
}

TEST(DecodeAttributes, a_derived_type_misses_its_own_after_the_inherited_ones)
{
    using port = element<BasePortType, Init_BasePortType, XmlDT_BasePortType>;
    port d("<e" + identity +
           R"(><maxBandWidth>1</maxBandWidth><operatingBandWidth>2</operatingBandWidth>)"
           R"(<hwBoardIdentifier>x</hwBoardIdentifier></e>)");
    EXPECT_EQ(d.status, XB_E_ATTRIBUTE_MISSING);
    EXPECT_EQ(d.parameters(), (texts{"BasePortType", "portUsage"}));
}

TEST(DecodeAttributes, the_group_of_the_base_leaves_the_tag_alone)
{
    // A second walk over the same tag by the base's decoder would record a second error.
    module_document d("<module><kbrsReference>k</kbrsReference></module>");
    EXPECT_EQ(d.errors(), 1u);
    EXPECT_STREQ(module_of(d).base.kbrsReference, "k");
}

TEST(DecodeAttributes, thresholds_need_all_six)
{
    threshold d(R"(<e criticalLow="-3" majorLow="-2" minorLow="-1" minorHigh="1" majorHigh="2"/>)");
    EXPECT_EQ(d.status, XB_E_ATTRIBUTE_MISSING);
    EXPECT_EQ(d.parameters(), (texts{"BaseThresholdType", "criticalHigh"}));
    EXPECT_EQ(d.record.criticalLow, -3);
    EXPECT_EQ(d.record.criticalHigh, 0);
}

}  // namespace
