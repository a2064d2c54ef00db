// Document roots, derived types, error records and memory.
#include <gtest/gtest.h>

#include <set>

#include "support/counting_memory.h"
#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

using texts = std::vector<std::string>;

const std::string led_info =
    "<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_ON</control></ledInfo>";
const std::string threshold =
    R"( criticalLow="1" majorLow="1" minorLow="1" minorHigh="1" majorHigh="1" criticalHigh="1"/>)";
const std::string optics_content =
    "<numberChannels>12</numberChannels><sensorPerChannel>1</sensorPerChannel><xmlInstanceStart>100</"
    "xmlInstanceStart>"
    "<sensorLosThresholds" +
    threshold + "<sensorBiasThresholds" + threshold + "<sensorThermoThresholds" + threshold +
    "<sensorVoltageThresholds" + threshold +
    "<summaryLosTx>1</summaryLosTx><summaryFaultTx>0</summaryFaultTx><summaryBiasTx>1</summaryBiasTx>"
    "<summaryModuleTx>0</summaryModuleTx><summaryLosRx>1</summaryLosRx><summaryFaultRx>0</summaryFaultRx>"
    "<summaryBiasRx>1</summaryBiasRx><summaryModuleRx>0</summaryModuleRx>";
const std::string pem_content = "<hoursUsage>9</hoursUsage><faultStatus>ORVL_FAULT_STATUS_NONE</faultStatus>"
                                "<psmState>ORVL_PSM_STATE_FAILED</psmState>";
const std::string power_info =
    "<powerInfo><powerZone><zone>ORVL_POWER_ZONE_CHASSIS</zone><powerOnOffCapability>1</powerOnOffCapability>"
    "<powerApplied>1</powerApplied><totalPowerRequired>10</totalPowerRequired><mainZone>1</mainZone>"
    "<pdZoneNumber>0</pdZoneNumber></powerZone></powerInfo>";

std::string module(const std::string &type, const std::string &content)
{
    return "<module" + identity + xsi + "xsi:type=\"" + type + "\">" + content + "</module>";
}

TEST(DecodeDocuments, a_module_without_xsi_type_is_the_base_type)
{
    module_document d("<module" + identity + "/>");
    EXPECT_EQ(d.status, 0);
    EXPECT_EQ(d.record.tag, 1u);
    EXPECT_EQ(module_of(d).base.instance, 3);
}

TEST(DecodeDocuments, xsi_type_chooses_the_kind_of_module)
{
    EXPECT_EQ(module_document(module("BaseModuleType", "")).record.tag, 1u);
    module_document optics(module("OpticsType", optics_content));
    EXPECT_EQ(optics.status, 0);
    EXPECT_EQ(optics.record.tag, 2u);
    EXPECT_EQ(static_cast<const OpticsType *>(optics.record.value)->ext.xmlInstanceStart, 100);
    module_document pem(module("PEMType", pem_content));
    EXPECT_EQ(pem.status, 0);
    EXPECT_EQ(pem.record.tag, 3u);
    EXPECT_EQ(static_cast<const PEMType *>(pem.record.value)->ext.psmState, 2u);
    module_document fan_tray(module("FanTrayType", ""));
    EXPECT_EQ(fan_tray.status, 0);
    EXPECT_EQ(fan_tray.record.tag, 4u);
}

TEST(DecodeDocuments, the_base_part_of_a_chosen_record_stands_first)
{
    module_document d(module("PEMType", pem_content));
    ASSERT_EQ(d.status, 0);
    EXPECT_STREQ(module_of(d).base.name, "n");
    EXPECT_EQ(module_of(d).base.xmlInstance, 7);
}

struct family {
    const char *base;
    const xb_type_name_row *rows;
    size_t count;
    texts types;
};

#define ROWS(base) #base, base##_type_names, std::size(base##_type_names)

TEST(DecodeDocuments, tags_follow_the_order_of_the_type_names)
{
    const family families[] = {
        {ROWS(BaseEntityType),
         {"BaseEntityType",
          "BaseLEDType",
          "BaseContainerType",
          "PemBayType",
          "BaseCEPortType",
          "BaseCESwitchType_2_port",
          "BaseFPGAType",
          "BaseIdEEPROMType",
          "BaseStorageType",
          "BaseSpiFlash",
          "BaseSensorType",
          "I2cChipType",
          "BasePCIeSwitchType",
          "BaseVoltageMarginType",
          "BaseProcessorType",
          "BaseMemoryType",
          "BaseCESwitchType",
          "BaseKestoType",
          "BasePortType",
          "BaseConsoleType",
          "BaseModuleType",
          "OpticsType",
          "PEMType",
          "FanTrayType",
          "BackPlaneType",
          "FanType",
          "BaseModuleTestType",
          "BaseCraftInterfaceType",
          "ChassisEntityType",
          "PowerShelfType"}},
        {ROWS(BaseModuleType), {"BaseModuleType", "OpticsType", "PEMType", "FanTrayType"}},
        {ROWS(BaseContainerType), {"BaseContainerType", "PemBayType"}},
        {ROWS(BasePortType), {"BasePortType", "BaseConsoleType"}},
        {ROWS(BaseStorageType), {"BaseStorageType", "BaseSpiFlash"}},
        {ROWS(BaseCEPortType), {"BaseCEPortType", "BaseCESwitchType_2_port"}},
    };
    for (const family &f : families) {
        texts names;
        for (size_t i = 0; i < f.count; ++i) {
            names.emplace_back(f.rows[i].name, f.rows[i].name_length);
            EXPECT_EQ(std::strlen(f.rows[i].name), f.rows[i].name_length);
        }
        EXPECT_EQ(names, f.types) << f.base;
    }
}

TEST(DecodeDocuments, a_type_of_another_base_is_refused)
{
    for (const char *type : {"PEMType", "BaseModuleType", "NoSuchType", "BaseEntityType", ""}) {
        module_document d("<module" + identity + xsi + "><container" + identity + "xsi:type=\"" + type +
                          "\"/></module>");
        EXPECT_EQ(d.status, XB_E_UNKNOWN_TYPE) << type;
        EXPECT_STREQ(d.error().source, chooser_source) << type;
        EXPECT_EQ(d.parameters(), texts{type}) << type;
    }
}

TEST(DecodeDocuments, an_undeclared_prefix_in_xsi_type_ends_the_decode)
{
    EXPECT_EQ(module_document(module("p:PEMType", pem_content)).status, XB_E_UNDECLARED_PREFIX);
}

TEST(DecodeDocuments, xsi_type_on_an_element_without_derived_types_is_passed_over)
{
    module_document d("<module" + identity + xsi + "><i2c" + identity + "xsi:type=\"PEMType\"/></module>");
    EXPECT_EQ(d.status, 0);
}

TEST(DecodeDocuments, lists_of_choices_keep_each_ones_type)
{
    module_document d("<module" + identity + xsi + "><container" + identity + "/><container" + identity +
                      "xsi:type=\"PemBayType\"/></module>");
    ASSERT_EQ(d.status, 0);
    const xb_data_list &list = module_of(d).ext.container;
    ASSERT_EQ(list.count, 2u);
    EXPECT_EQ(node<xb_choice>(list, 0).tag, 1u);
    EXPECT_EQ(node<xb_choice>(list, 1).tag, 2u);
}

TEST(DecodeDocuments, each_root_decodes_into_its_record)
{
    chassis_document chassis("<chassis" + identity +
                             "><fruBits>1</fruBits><instanceBits>2</instanceBits><rackNumber>3"
                             "</rackNumber><availablePower>4</availablePower>" +
                             power_info + "</chassis>");
    EXPECT_EQ(chassis.status, 0);
    EXPECT_EQ(chassis.record.ext.availablePower, 4u);
    EXPECT_EQ(chassis.record.ext.backPlane.base.entityOwner, 1u);
    shelf_document shelf("<powerShelf" + identity + ">" + power_info +
                         "<maxPemContainers>6</maxPemContainers></powerShelf>");
    EXPECT_EQ(shelf.status, 0);
    EXPECT_EQ(shelf.record.ext.maxPemContainers, 6);
    pem_document pem("<pem" + identity + ">" + pem_content + "</pem>");
    EXPECT_EQ(pem.status, 0);
    EXPECT_EQ(pem.record.ext.hoursUsage, 9u);
    fan_tray_document fan_tray("<fanTray" + identity + "/>");
    EXPECT_EQ(fan_tray.status, 0);
    EXPECT_EQ(fan_tray.record.has.ext, 0);
    optics_document optics("<optics" + identity + ">" + optics_content + "</optics>");
    EXPECT_EQ(optics.status, 0);
    EXPECT_EQ(optics.record.ext.numberChannels, 12);
}

TEST(DecodeDocuments, another_root_element_decodes_nothing)
{
    module_document d("<chassis" + identity + "/>");
    EXPECT_EQ(d.status, XB_E_ROOT_MISMATCH);
    EXPECT_EQ(d.record.tag, 0u);
    EXPECT_EQ(d.record.value, nullptr);
    EXPECT_EQ(d.parameters(), texts{"chassis"});
}

TEST(DecodeDocuments, input_that_was_never_opened_is_reported)
{
    xb_context ctx = {};
    ASSERT_EQ(rtXmlInitContext(&ctx), 0);
    xb_choice choice = {};
    EXPECT_EQ(XmlD_module(&ctx, &choice), XB_E_BAD_STATE);
    rtxFreeContext(&ctx);
}

TEST(DecodeDocuments, only_blanks_and_comments_may_follow_the_root)
{
    EXPECT_EQ(module_document("<module" + identity + "/> <!-- x -->\n").status, 0);
    EXPECT_LT(module_document("<module" + identity + "/><module/>").status, 0);
    EXPECT_LT(module_document("<module" + identity + ">").status, 0);
    EXPECT_LT(module_document("").status, 0);
}

TEST(DecodeDocuments, a_missing_required_attribute_shows_in_the_result_of_a_whole_document)
{
    EXPECT_EQ(fan_tray_document("<fanTray name=\"n\"/>").status, XB_E_ATTRIBUTE_MISSING);
}

TEST(DecodeDocuments, a_failure_keeps_the_innermost_step_and_its_place)
{
    module_document d("<module" + identity +
                      ">\n<i2cNode><deviceType>ORVL_X</deviceType></i2cNode></module>");
    EXPECT_EQ(d.status, XB_E_UNKNOWN_TOKEN);
    ASSERT_EQ(d.errors(), 1u);
    EXPECT_EQ(d.error().line, 2u);
    EXPECT_STREQ(d.error().source, decoder_source);
    EXPECT_EQ(d.parameters(), texts{"ORVL_X"});
}

TEST(DecodeDocuments, different_steps_have_different_numbers)
{
    const char *faults[] = {
        "<driverId>x</driverId>",
        "<obflData>x</obflData>",
        "<pdNotes><b/></pdNotes>",
        "<openQuestion><b/></openQuestion>",
        "<powerConsumer/>",
        "<powerProducer><x/></powerProducer>",
        "<powerInfo/>",
        "<led/>",
        "<logicalModuleNum>x</logicalModuleNum>",
        "<fpga/>",
        "<processor/>",
        "<pdHardwareModel>x</pdHardwareModel>",
        "<i2cNode><deviceType>x</deviceType></i2cNode>",
        "<i2cPort><portType>x</portType></i2cPort>",
        "<colour/>",
    };
    std::set<uint32_t> steps;
    for (const char *fault : faults) {
        module_document d("<module" + identity + ">" + fault + "</module>");
        ASSERT_GT(d.errors(), 0u) << fault;
        steps.insert(d.error(d.errors() - 1).source_line);
    }
    EXPECT_EQ(steps.size(), std::size(faults));
}

TEST(DecodeDocuments, initialisers_bring_any_memory_into_the_initial_state)
{
    ChassisEntityType dirty, clean;
    std::memset(static_cast<void *>(&dirty), 0xFF, sizeof dirty);
    Init_ChassisEntityType(&dirty);
    std::memset(static_cast<void *>(&clean), 0, sizeof clean);
    EXPECT_EQ(dirty.base.name, nullptr);
    EXPECT_EQ(bits_set(dirty.base.has) + bits_set(dirty.has) + bits_set(dirty.ext.has), 0);
    EXPECT_EQ(
        std::memcmp(&dirty.ext.entityContainerList, &clean.ext.entityContainerList, sizeof(xb_data_list)), 0);
    EXPECT_EQ(dirty.ext.backPlane.base.snmpEntity, 1);
    EXPECT_EQ(dirty.ext.backPlane.base.isHidden, 0);
    xb_choice choice = {7, &dirty};
    Init_BaseModuleType_derivations(&choice);
    EXPECT_EQ(choice.tag, 0u);
    EXPECT_EQ(choice.value, nullptr);
}

const std::string small_module = "<module" + identity + xsi +
                                 "xmlns:a=\"urn:a\" oid=\"1.3\"><pdNotes>note</pdNotes><i2cPort><portType>"
                                 "ORVL_PORT_TYPE_MUX</portType><channelNumber>01</channelNumber></i2cPort>" +
                                 power_info + "<module" + identity + "/><container" + identity +
                                 "xsi:type=\"PemBayType\"/><led" + identity + ">" + led_info +
                                 "</led></module>";

TEST(DecodeDocuments, running_out_of_memory_at_any_request_fails_cleanly)
{
    counting_memory::reset();
    const uint64_t live = counting_memory::live();
    bool completed = false;
    for (uint64_t n = 1; !completed && n < 10000; ++n) {
        for (bool all_after : {false, true}) {
            xb_context ctx = {};
            xb_choice choice = {};
            counting_memory::fail_at(n, all_after);
            int32_t status = rtXmlInitContext(&ctx);
            if (status == 0)
                status = rtxStreamMemoryCreateReader(&ctx, small_module.data(), small_module.size());
            if (status == 0)
                status = XmlD_module(&ctx, &choice);
            completed = !counting_memory::failed();
            counting_memory::fail_at(0);
            EXPECT_EQ(status, completed ? 0 : XB_E_NO_MEMORY) << n;
            rtxFreeContext(&ctx);
            EXPECT_EQ(counting_memory::live(), live) << n;
        }
    }
    EXPECT_TRUE(completed);
}

}  // namespace
