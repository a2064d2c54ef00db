// Document roots, derived types, error records and memory.
#include <gtest/gtest.h>

#include <set>

#include "decode/steps.h"
#include "support/counting_memory.h"
#include "unit/decode_support.h"

using namespace decode_test;

// The linker leads the library's calls here: every test looks at the depths that the runtime is told. It
// knows -1 for any and depths of elements, nothing else.
extern "C" {
int32_t __real_rtXmlpMatchStartTag(xb_context *, const char *, int32_t);
int32_t __real_rtXmlpMatchEndTag(xb_context *, int32_t);
int32_t __real_rtXmlpGetNextElemID(xb_context *, const xb_element_row *, int32_t, int32_t);

int32_t __wrap_rtXmlpMatchStartTag(xb_context *ctx, const char *name, int32_t depth)
{
    EXPECT_GE(depth, -1);
    return __real_rtXmlpMatchStartTag(ctx, name, depth);
}
int32_t __wrap_rtXmlpMatchEndTag(xb_context *ctx, int32_t depth)
{
    EXPECT_GE(depth, -1);
    return __real_rtXmlpMatchEndTag(ctx, depth);
}
int32_t __wrap_rtXmlpGetNextElemID(xb_context *ctx, const xb_element_row *rows, int32_t count, int32_t depth)
{
    EXPECT_GE(depth, -1);
    return __real_rtXmlpGetNextElemID(ctx, rows, count, depth);
}
}

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
    const xb_type_name_row *rows;
    size_t count;
    texts types;
};

TEST(DecodeDocuments, tags_follow_the_order_of_the_type_names)
{
    const family families[] = {
        {BaseEntityType_type_names,
         std::size(BaseEntityType_type_names),
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
        {BaseModuleType_type_names,
         std::size(BaseModuleType_type_names),
         {"BaseModuleType", "OpticsType", "PEMType", "FanTrayType"}},
        {BaseContainerType_type_names,
         std::size(BaseContainerType_type_names),
         {"BaseContainerType", "PemBayType"}},
        {BasePortType_type_names, std::size(BasePortType_type_names), {"BasePortType", "BaseConsoleType"}},
        {BaseStorageType_type_names,
         std::size(BaseStorageType_type_names),
         {"BaseStorageType", "BaseSpiFlash"}},
        {BaseCEPortType_type_names,
         std::size(BaseCEPortType_type_names),
         {"BaseCEPortType", "BaseCESwitchType_2_port"}},
    };
    for (const family &f : families) {
        texts names;
        for (size_t i = 0; i < f.count; ++i) {
            names.emplace_back(f.rows[i].name, f.rows[i].name_length);
            EXPECT_EQ(std::strlen(f.rows[i].name), f.rows[i].name_length);
        }
        EXPECT_EQ(names, f.types) << f.types.front();
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

uint32_t step_of(const std::string &document)
{
    module_document d(document);
    EXPECT_GT(d.errors(), 0u) << document;
    return d.error(d.errors() - 1).source_line;
}

TEST(DecodeDocuments, steps_of_a_root_count_the_reader_the_start_the_content_and_the_end)
{
    xb_context ctx = {};
    ASSERT_EQ(rtXmlInitContext(&ctx), 0);
    xb_choice choice = {};
    EXPECT_EQ(XmlD_module(&ctx, &choice), XB_E_BAD_STATE);
    xb_error without_input = {};
    ASSERT_TRUE(rtxErrGet(&ctx, 0, &without_input));
    rtxFreeContext(&ctx);
    EXPECT_EQ(step_of("<chassis/>"), without_input.source_line + 1);
    EXPECT_EQ(step_of("<module" + identity + "/><module/>"), without_input.source_line + 3);
}

TEST(DecodeDocuments, steps_of_a_type_tell_the_row_and_what_failed_there)
{
    using namespace inv::decode;
    auto in_module = [](const std::string &content) {
        return "<module" + identity + ">" + content + "</module>";
    };
    const uint32_t first_row = step_of(in_module("<pdNotes><b/></pdNotes>"));
    EXPECT_EQ(step_of(in_module("<openQuestion><b/></openQuestion>")), first_row + steps_per_item);
    EXPECT_EQ(step_of(in_module("<pdNotes>a</pdNotes>x")), first_row + step_next);
    EXPECT_EQ(step_of(in_module("<hardwareVersion>a<b/></hardwareVersion>")), first_row + 5 * steps_per_item);
    const uint32_t token = step_of(in_module("<pdHardwareModel><b/></pdHardwareModel>"));
    EXPECT_EQ(step_of(in_module("<pdHardwareModel>x</pdHardwareModel>")), token + 1) << "text, but no token";
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

// Entity records begin with the base entity's.
template <typename Record, void (*Init)(Record *)>
BaseEntityType initial_base()
{
    Record record;
    std::memset(static_cast<void *>(&record), 0xFF, sizeof record);
    Init(&record);
    BaseEntityType base;
    std::memcpy(static_cast<void *>(&base), static_cast<const void *>(&record), sizeof base);
    return base;
}

TEST(DecodeDocuments, every_entity_type_begins_with_the_initial_values_of_the_base)
{
    const BaseEntityType bases[] = {
        initial_base<BaseEntityType, Init_BaseEntityType>(),
        initial_base<BaseLEDType, Init_BaseLEDType>(),
        initial_base<BaseContainerType, Init_BaseContainerType>(),
        initial_base<PemBayType, Init_PemBayType>(),
        initial_base<BaseCEPortType, Init_BaseCEPortType>(),
        initial_base<BaseCESwitchType_2_port, Init_BaseCESwitchType_2_port>(),
        initial_base<BaseFPGAType, Init_BaseFPGAType>(),
        initial_base<BaseIdEEPROMType, Init_BaseIdEEPROMType>(),
        initial_base<BaseStorageType, Init_BaseStorageType>(),
        initial_base<BaseSpiFlash, Init_BaseSpiFlash>(),
        initial_base<BaseSensorType, Init_BaseSensorType>(),
        initial_base<I2cChipType, Init_I2cChipType>(),
        initial_base<BasePCIeSwitchType, Init_BasePCIeSwitchType>(),
        initial_base<BaseVoltageMarginType, Init_BaseVoltageMarginType>(),
        initial_base<BaseProcessorType, Init_BaseProcessorType>(),
        initial_base<BaseMemoryType, Init_BaseMemoryType>(),
        initial_base<BaseCESwitchType, Init_BaseCESwitchType>(),
        initial_base<BaseKestoType, Init_BaseKestoType>(),
        initial_base<BasePortType, Init_BasePortType>(),
        initial_base<BaseConsoleType, Init_BaseConsoleType>(),
        initial_base<BaseModuleType, Init_BaseModuleType>(),
        initial_base<OpticsType, Init_OpticsType>(),
        initial_base<PEMType, Init_PEMType>(),
        initial_base<FanTrayType, Init_FanTrayType>(),
        initial_base<BackPlaneType, Init_BackPlaneType>(),
        initial_base<FanType, Init_FanType>(),
        initial_base<BaseModuleTestType, Init_BaseModuleTestType>(),
        initial_base<BaseCraftInterfaceType, Init_BaseCraftInterfaceType>(),
        initial_base<ChassisEntityType, Init_ChassisEntityType>(),
        initial_base<PowerShelfType, Init_PowerShelfType>(),
    };
    ASSERT_EQ(std::size(bases), std::size(BaseEntityType_type_names));
    for (const BaseEntityType &base : bases) {
        const char *type = BaseEntityType_type_names[&base - bases].name;
        EXPECT_EQ(base.entityOwner, 1u) << type;
        EXPECT_EQ(base.snmpEntity, 1) << type;
        EXPECT_EQ(base.isPrefixNeeded, 1) << type;
        EXPECT_EQ(base.isPrimary, 0) << type;
        EXPECT_EQ(base.name, nullptr) << type;
        EXPECT_EQ(bits_set(base.has), 0) << type;
    }
}

struct tag_case {
    const char *type;
    uint32_t tag;
};

TEST(DecodeDocuments, an_element_of_the_entity_base_may_be_of_any_entity_type)
{
    using choice = element<xb_choice, Init_BaseEntityType_derivations, XmlDT_BaseEntityType_derivations>;
    const tag_case cases[] = {{"BaseEntityType", 1}, {"BaseContainerType", 3},   {"PemBayType", 4},
                              {"I2cChipType", 12},   {"BasePCIeSwitchType", 13}, {"BaseModuleType", 21},
                              {"FanTrayType", 24},   {"BackPlaneType", 25}};
    for (const tag_case &c : cases) {
        choice d("<e" + identity + xsi + "xsi:type=\"" + c.type + "\"/>");
        EXPECT_EQ(d.status, 0) << c.type;
        EXPECT_EQ(d.record.tag, c.tag) << c.type;
    }
}

TEST(DecodeDocuments, other_encodings_and_a_byte_order_mark_decode_alike)
{
    const std::string text = "<module" + identity + "><kbrsReference>k</kbrsReference></module>";
    EXPECT_EQ(module_document("\xEF\xBB\xBF" + text).status, 0);
    std::string wide = "\xFF\xFE";
    for (char c : text)
        wide += {c, '\0'};
    module_document d(wide);
    ASSERT_EQ(d.status, 0);
    EXPECT_STREQ(module_of(d).base.kbrsReference, "k");
}

TEST(DecodeDocuments, attributes_that_the_document_type_gives_are_decoded_like_others)
{
    module_document given("<!DOCTYPE module [<!ATTLIST module oid CDATA '1.2'>]><module" + identity + "/>");
    ASSERT_EQ(given.status, 0);
    EXPECT_STREQ(module_of(given).base.oid, "1.2");
    module_document unknown("<!DOCTYPE module [<!ATTLIST module colour CDATA 'red'>]>\n<module" + identity +
                            "/>");
    EXPECT_EQ(unknown.status, XB_E_ATTRIBUTE_UNKNOWN);
    EXPECT_EQ(unknown.error().line, 2u);
    EXPECT_EQ(module_document("<!DOCTYPE module SYSTEM 'not-there.dtd'><module" + identity +
                              "description=\"a&unknown;b\"/>")
                  .status,
              XB_E_MALFORMED);
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
