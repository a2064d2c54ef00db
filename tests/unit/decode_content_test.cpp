// Order, occurrence and grouping of elements.
#include <gtest/gtest.h>

#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

using texts = std::vector<std::string>;
using led = element<BaseLEDType, Init_BaseLEDType, XmlDT_BaseLEDType>;
using eeprom = element<BaseIdEEPROMType, Init_BaseIdEEPROMType, XmlDT_BaseIdEEPROMType>;
using pem_bay = element<PemBayType, Init_PemBayType, XmlDT_PemBayType>;
using power_info = element<PowerInfoType, Init_PowerInfoType, XmlDT_PowerInfoType>;
using switch_port_map = element<SwitchPortMapType, Init_SwitchPortMapType, XmlDT_SwitchPortMapType>;
using node_info = element<NodeInfoType, Init_NodeInfoType, XmlDT_NodeInfoType>;
using threshold = element<BaseThresholdType, Init_BaseThresholdType, XmlDT_BaseThresholdType>;
using memory = element<BaseMemoryType, Init_BaseMemoryType, XmlDT_BaseMemoryType>;

const std::string led_info =
    "<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_ON</control></ledInfo>";

std::string entity(const std::string &content, const std::string &more = "")
{
    return "<e" + identity + more + ">" + content + "</e>";
}

std::string module(const std::string &content)
{
    return "<module" + identity + ">" + content + "</module>";
}

TEST(DecodeContent, a_document_without_optional_elements_has_every_presence_bit_clear)
{
    module_document d(module(""));
    ASSERT_EQ(d.status, 0);
    EXPECT_EQ(bits_set(module_of(d).has), 0);
    EXPECT_EQ(bits_set(module_of(d).base.has), 0);
    EXPECT_EQ(bits_set(module_of(d).ext.has), 0);
}

TEST(DecodeContent, a_module_with_inherited_content_only_has_no_extension_items)
{
    module_document d(module("<pdNotes>a</pdNotes><driverId>5</driverId>"));
    ASSERT_EQ(d.status, 0);
    const BaseModuleType &m = module_of(d);
    EXPECT_EQ(m.has.ext, 0);
    EXPECT_EQ(m.base.driverId, 5);
    for (const xb_data_list *list :
         {&m.ext.fpga, &m.ext.i2c, &m.ext.pcieSwitch, &m.ext.sensor, &m.ext.voltMargin, &m.ext.storageSPI,
          &m.ext.storageHDD, &m.ext.processor, &m.ext.memory, &m.ext.ceSwitch, &m.ext.security,
          &m.ext.console, &m.ext.module, &m.ext.container, &m.ext.eeprom, &m.ext.fixedPorts, &m.ext.led})
        EXPECT_EQ(list->count, 0u);
}

struct refused_case {
    const char *what;
    std::string content;
    int32_t status;
};

const refused_case refused_cases[] = {
    {"inherited elements in another order", "<driverId>5</driverId><pdNotes>a</pdNotes>",
     XB_E_ELEMENT_UNEXPECTED},
    {"extension elements in another order",
     "<powerController>1</powerController><logicalModuleNum>1</logicalModuleNum>", XB_E_ELEMENT_UNEXPECTED},
    {"an extension element before an inherited one",
     "<logicalModuleNum>1</logicalModuleNum><driverId>5</driverId>", XB_E_ELEMENT_UNEXPECTED},
    {"an optional element twice", "<driverId>5</driverId><driverId>5</driverId>", XB_E_ELEMENT_UNEXPECTED},
    {"a list taken up again", "<pdNotes>a</pdNotes><openQuestion>b</openQuestion><pdNotes>c</pdNotes>",
     XB_E_ELEMENT_UNEXPECTED},
    {"an unknown element", "<colour>red</colour>", XB_E_ELEMENT_UNEXPECTED},
    {"an unknown element behind the last row", "<led" + identity + ">" + led_info + "</led><colour/>",
     XB_E_ELEMENT_UNEXPECTED},
    {"text between elements", "<pdNotes>a</pdNotes>text", XB_E_TEXT_UNEXPECTED},
    {"text within a run", "<pdNotes>a</pdNotes>text<pdNotes>b</pdNotes>", XB_E_TEXT_UNEXPECTED},
    {"a CDATA section between elements", "<pdNotes>a</pdNotes><![CDATA[x]]>", XB_E_TEXT_UNEXPECTED},
    {"an element with a namespace", "<pdNotes xmlns='urn:a'>a</pdNotes>", XB_E_ELEMENT_UNEXPECTED},
    {"an element with an undeclared prefix", "<p:pdNotes>a</p:pdNotes>", XB_E_UNDECLARED_PREFIX},
    {"an unknown element where a required one is due", "<hwSignals><colour/></hwSignals>",
     XB_E_ELEMENT_MISSING},
    {"a required element left out", "<i2cNode><xmlInstance>1</xmlInstance></i2cNode>", XB_E_ELEMENT_MISSING},
    {"the end where a required element is due", "<powerConsumer></powerConsumer>", XB_E_ELEMENT_MISSING},
};

TEST(DecodeContent, out_of_order_unknown_and_missing_elements_end_the_decode)
{
    for (const refused_case &c : refused_cases) {
        module_document d(module(c.content));
        EXPECT_EQ(d.status, c.status) << c.what;
        EXPECT_EQ(d.errors(), 1u) << c.what;
        EXPECT_TRUE(d.error().fatal) << c.what;
        EXPECT_STREQ(d.error().source, decoder_source) << c.what;
    }
}

TEST(DecodeContent, elements_of_a_derived_type_before_inherited_ones_are_out_of_order)
{
    led d(entity(led_info + "<driverId>5</driverId>"));
    EXPECT_EQ(d.status, XB_E_ELEMENT_UNEXPECTED);
}

TEST(DecodeContent, lists_keep_document_order_and_are_linked_both_ways)
{
    module_document d(module("<pdNotes>one</pdNotes> <!-- x --> "
                             "<pdNotes>two</pdNotes>\n<pdNotes/><openQuestion>q</openQuestion>"));
    ASSERT_EQ(d.status, 0);
    const xb_data_list &notes = module_of(d).base.pdNotes;
    ASSERT_EQ(notes.count, 3u);
    EXPECT_EQ(text_node(notes, 0), "one");
    EXPECT_EQ(text_node(notes, 1), "two");
    EXPECT_EQ(text_node(notes, 2), "");
    EXPECT_EQ(notes.tail->prev->prev, notes.head);
    EXPECT_EQ(module_of(d).base.openQuestion.count, 1u);
    EXPECT_EQ(module_of(d).base.spiPort.count, 0u);
}

TEST(DecodeContent, a_list_of_codes_has_a_code_behind_each_node)
{
    using pcie_switch = element<BasePCIeSwitchType, Init_BasePCIeSwitchType, XmlDT_BasePCIeSwitchType>;
    pcie_switch d(entity("<configGen>ORVL_PCI_GEN_GEN4</configGen><configGen>ORVL_PCI_GEN_DMI2</configGen>"));
    ASSERT_EQ(d.status, 0);
    ASSERT_EQ(d.record.ext.configGen.count, 2u);
    EXPECT_EQ(node<uint32_t>(d.record.ext.configGen, 0), 6u);
    EXPECT_EQ(node<uint32_t>(d.record.ext.configGen, 1), 1u);
}

TEST(DecodeContent, many_occurrences_are_all_kept)
{
    std::string content;
    for (int i = 0; i < 5000; ++i)
        content += tag("openQuestion", std::to_string(i));
    module_document d(module(content));
    ASSERT_EQ(d.status, 0);
    const xb_data_list &list = module_of(d).base.openQuestion;
    ASSERT_EQ(list.count, 5000u);
    int expected = 0;
    for (const xb_data_node *at = list.head; at != nullptr; at = at->next)
        EXPECT_EQ(static_cast<const char *>(at->data), std::to_string(expected++));
}

TEST(DecodeContent, a_light_without_states_fails_with_its_count)
{
    for (const char *content : {"", "<pdNotes>a</pdNotes>", "<cccAddrBits>00000001</cccAddrBits>"}) {
        led d(entity(content));
        EXPECT_EQ(d.status, XB_E_CONSTRAINT) << content;
        EXPECT_EQ(d.parameters(), (texts{"BaseLEDType_2.ledInfo.count", "0"})) << content;
        EXPECT_TRUE(d.error().fatal);
        EXPECT_EQ(d.errors(), 1u) << "nothing is decoded further";
    }
}

TEST(DecodeContent, power_information_without_zones_fails_with_its_count)
{
    for (const char *content : {"", "<openQuestion>q</openQuestion>", "<kbrsReference>k</kbrsReference>"}) {
        power_info d(tag("e", content));
        EXPECT_EQ(d.status, XB_E_CONSTRAINT) << content;
        EXPECT_EQ(d.parameters(), (texts{"PowerInfoType.powerZone.count", "0"})) << content;
    }
}

TEST(DecodeContent, an_unknown_element_in_place_of_a_counted_one_is_unexpected)
{
    EXPECT_EQ(led(entity("<colour/>")).status, XB_E_ELEMENT_UNEXPECTED);
    EXPECT_EQ(power_info(tag("e", "<colour/>")).status, XB_E_ELEMENT_UNEXPECTED);
}

TEST(DecodeContent, an_empty_type_must_be_empty)
{
    EXPECT_EQ(switch_port_map("<e/>").status, 0);
    EXPECT_EQ(switch_port_map("<e a='1'> <!-- x --> </e>").status, 0);
    EXPECT_EQ(switch_port_map("<e>x</e>").status, XB_E_NOT_EMPTY);
    EXPECT_EQ(switch_port_map("<e><f/></e>").status, XB_E_NOT_EMPTY);
}

TEST(DecodeContent, a_type_with_attributes_only_takes_no_content)
{
    const std::string open =
        R"(<e criticalLow="1" majorLow="1" minorLow="1" minorHigh="1" majorHigh="1" criticalHigh="1">)";
    EXPECT_EQ(threshold(open + " </e>").status, 0);
    EXPECT_EQ(threshold(open + "x</e>").status, XB_E_TEXT_UNEXPECTED);
    EXPECT_EQ(threshold(open + "<f/></e>").status, XB_E_ELEMENT_UNEXPECTED);
}

TEST(DecodeContent, an_empty_16_bit_element_keeps_its_initial_value_and_counts_as_present)
{
    node_info d("<e><nodeType>ORVL_NODE_TYPE_FAN</nodeType><nodePosition/></e>");
    ASSERT_EQ(d.status, 0);
    EXPECT_EQ(d.record.has.nodePosition, 1);
    EXPECT_EQ(d.record.nodePosition, 0);
    node_info blank(
        "<e><nodeType>ORVL_NODE_TYPE_FAN</nodeType><nodePosition> \n<!-- x --></nodePosition></e>");
    EXPECT_EQ(blank.status, 0);
    eeprom unsigned_number(entity("<size></size>", "eepromType=\"ORVL_EEPROM_TYPE_ID\""));
    EXPECT_EQ(unsigned_number.status, 0);
    EXPECT_EQ(unsigned_number.record.ext.has.size, 1);
}

TEST(DecodeContent, other_empty_numbers_fail)
{
    EXPECT_EQ(module_document(module("<obflData/>")).status, XB_E_BAD_INTEGER);
    EXPECT_EQ(module_document(module("<driverRequired/>")).status, XB_E_BAD_BOOLEAN);
}

TEST(DecodeContent, an_attribute_of_16_bits_must_not_be_empty)
{
    module_document d(
        R"(<module name="n" type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_RP" )"
        R"(instance="" replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="7"/>)");
    EXPECT_EQ(d.status, XB_E_BAD_INTEGER);
}

const std::string optics_tail =
    "<sensorPerChannel>1</sensorPerChannel><xmlInstanceStart>1</xmlInstanceStart>";

TEST(DecodeContent, an_optics_extension_that_does_not_begin_with_its_channels_misses_an_element)
{
    for (const std::string &before :
         {std::string(), std::string("<led" + identity + ">" + led_info + "</led>")}) {
        optics_document d("<optics" + identity + ">" + before + optics_tail + "</optics>");
        EXPECT_EQ(d.status, XB_E_ELEMENT_MISSING) << before;
    }
    EXPECT_EQ(optics_document("<optics" + identity + "/>").status, XB_E_ELEMENT_MISSING);
}

TEST(DecodeContent, hardware_version_goes_to_the_base_while_its_row_lies_ahead)
{
    const std::string kind = "eepromType=\"ORVL_EEPROM_TYPE_ID\"";
    eeprom base_only(entity("<hardwareVersion>A1</hardwareVersion><size>4</size>", kind));
    ASSERT_EQ(base_only.status, 0);
    EXPECT_STREQ(base_only.record.base.hardwareVersion, "A1");
    EXPECT_EQ(base_only.record.ext.has.hardwareVersion, 0);
    eeprom both(entity("<hardwareVersion>A1</hardwareVersion><hardwareVersion>9</hardwareVersion>", kind));
    ASSERT_EQ(both.status, 0);
    EXPECT_STREQ(both.record.base.hardwareVersion, "A1");
    EXPECT_EQ(both.record.ext.has.hardwareVersion, 1);
    EXPECT_EQ(both.record.ext.hardwareVersion, 9);
    eeprom behind(entity("<softwareVersion>s</softwareVersion><hardwareVersion>9</hardwareVersion>", kind));
    ASSERT_EQ(behind.status, 0);
    EXPECT_EQ(behind.record.base.has.hardwareVersion, 0);
    EXPECT_EQ(behind.record.ext.hardwareVersion, 9);
}

TEST(DecodeContent, the_identity_path_of_a_bay_goes_to_the_container_first)
{
    const std::string first =
        "<i2cIDPROM><seqType>ORVL_SEQ_FULL</seqType><description>1</description></i2cIDPROM>";
    const std::string second =
        "<i2cIDPROM><seqType>ORVL_SEQ_FULL</seqType><description>2</description></i2cIDPROM>";
    pem_bay one(entity(first));
    ASSERT_EQ(one.status, 0);
    EXPECT_STREQ(one.record.base.ext.i2cIDPROM.description, "1");
    EXPECT_EQ(one.record.has.ext, 0);
    pem_bay two(entity(first + second));
    ASSERT_EQ(two.status, 0);
    EXPECT_STREQ(two.record.base.ext.i2cIDPROM.description, "1");
    EXPECT_STREQ(two.record.ext.i2cIDPROM.description, "2");
    pem_bay behind(entity("<i2cSensorAccess" + identity + "/>" + second));
    ASSERT_EQ(behind.status, 0);
    EXPECT_EQ(behind.record.base.has.ext, 0);
    EXPECT_STREQ(behind.record.ext.i2cIDPROM.description, "2");
}

TEST(DecodeContent, the_firmware_version_of_a_memory_is_its_own_behind_the_serial_number)
{
    memory d(
        entity("<firmwareVersion>base</firmwareVersion><capacity>8</capacity><serialNumber>s</serialNumber>"
               "<firmwareVersion>own</firmwareVersion>"));
    ASSERT_EQ(d.status, 0);
    EXPECT_STREQ(d.record.base.firmwareVersion, "base");
    EXPECT_STREQ(d.record.ext.firmwareVersion, "own");
}

TEST(DecodeContent, modules_nest_up_to_the_depth_of_the_runtime)
{
    auto nested = [](int depth) {
        std::string open, close;
        for (int i = 0; i < depth; ++i) {
            open += "<module" + identity + ">";
            close += "</module>";
        }
        return open + close;
    };
    EXPECT_EQ(module_document(nested(XB_MAX_DEPTH)).status, 0);
    EXPECT_EQ(module_document(nested(XB_MAX_DEPTH + 1)).status, XB_E_DEPTH);
}

}  // namespace
