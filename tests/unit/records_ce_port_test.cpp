#include "support/current_file_fixture.h"

#include <cstring>
#include <string>

namespace
{

using CePorts = CurrentFile;

BaseCEPortType bare_port()
{
    BaseCEPortType from = {};
    from.base = decoded_entity("ce port");
    return from;
}

struct optional_word {
    uint32_t mask;  // 0: has no bit
    void (*give)(BaseCEPortType_2 &);
    uint32_t sch_ce_port_type::*field;
    uint32_t value;
};

TEST_F(CePorts, each_optional_number_is_copied_when_present_and_sets_its_own_bit)
{
    using ext = BaseCEPortType_2;
    using port = sch_ce_port_type;
    const optional_word cases[] = {
        {0,
         [](ext &e) {
             e.has.operatingBandWidth = 1;
             e.operatingBandWidth = 50;
         },
         &port::operating_bandwidth, 50},
        {1u << 0,
         [](ext &e) {
             e.has.pd_specific_client = 1;
             e.pd_specific_client = 51;
         },
         &port::pd_specific_client, 51},
        {1u << 1,
         [](ext &e) {
             e.has.CC0nativeVlan = 1;
             e.CC0nativeVlan = 52;
         },
         &port::cc0_native_vlan, 52},
        {1u << 2,
         [](ext &e) {
             e.has.CC1nativeVlan = 1;
             e.CC1nativeVlan = 53;
         },
         &port::cc1_native_vlan, 53},
        {1u << 3,
         [](ext &e) {
             e.has.nativeVlan = 1;
             e.nativeVlan = 54;
         },
         &port::native_vlan, 54},
        {1u << 4,
         [](ext &e) {
             e.has.CC0portSpeed = 1;
             e.CC0portSpeed = 55;
         },
         &port::cc0_port_speed, 55},
        {1u << 5,
         [](ext &e) {
             e.has.CC1portSpeed = 1;
             e.CC1portSpeed = 56;
         },
         &port::cc1_port_speed, 56},
        {1u << 6,
         [](ext &e) {
             e.has.portSpeed = 1;
             e.portSpeed = 57;
         },
         &port::port_speed, 57},
        {1u << 7,
         [](ext &e) {
             e.has.CC0portMode = 1;
             e.CC0portMode = 58;
         },
         &port::cc0_port_mode, 58},
        {1u << 8,
         [](ext &e) {
             e.has.CC1portMode = 1;
             e.CC1portMode = 59;
         },
         &port::cc1_port_mode, 59},
        {1u << 9,
         [](ext &e) {
             e.has.portMode = 1;
             e.portMode = 60;
         },
         &port::port_mode, 60},
        {1u << 10,
         [](ext &e) {
             e.has.CC0mlapFlags = 1;
             e.CC0mlapFlags = {4, {1, 2, 3, 4}};
         },
         &port::cc0_mlap_flags, 0x01020304},
        {1u << 11,
         [](ext &e) {
             e.has.CC1mlapFlags = 1;
             e.CC1mlapFlags = {4, {5, 6, 7, 8}};
         },
         &port::cc1_mlap_flags, 0x05060708},
        {1u << 12,
         [](ext &e) {
             e.has.mlapFlags = 1;
             e.mlapFlags = {4, {0xFF, 0, 0, 9}};
         },
         &port::mlap_flags, 0xFF000009},
        {1u << 13,
         [](ext &e) {
             e.has.CC0portDest = 1;
             e.CC0portDest = 61;
         },
         &port::cc0_port_dest, 61},
        {1u << 14,
         [](ext &e) {
             e.has.CC1portDest = 1;
             e.CC1portDest = 62;
         },
         &port::cc1_port_dest, 62},
        {1u << 15,
         [](ext &e) {
             e.has.portDest = 1;
             e.portDest = 63;
         },
         &port::port_dest, 63},
        {1u << 19,
         [](ext &e) {
             e.has.sfpController = 1;
             e.sfpController = 64;
         },
         &port::sfp_controller, 64},
        {1u << 20,
         [](ext &e) {
             e.has.phyType = 1;
             e.phyType = 65;
         },
         &port::phy_type, 65},
        {0,
         [](ext &e) {
             e.has.mdioClkSpeed = 1;
             e.mdioClkSpeed = 66;
         },
         &port::mdio_clk_speed, 66},
        {0,
         [](ext &e) {
             e.has.LocalSwitching = 1;
             e.LocalSwitching = 67;
         },
         &port::local_switching, 67},
        {0,
         [](ext &e) {
             e.has.portAdminState = 1;
             e.portAdminState = 68;
         },
         &port::port_admin_state, 68},
    };
    uint32_t all = 0;
    for (const optional_word &c : cases) {
        BaseCEPortType from = bare_port();
        c.give(from.ext);
        sch_ce_port_type present = {}, absent = {};
        parser_retrieve_base_ce_port_data(&present, &from, nullptr);
        EXPECT_EQ(present.*c.field, c.value);
        EXPECT_EQ(present.field_present, c.mask) << c.value;
        from.ext.has = {};
        parser_retrieve_base_ce_port_data(&absent, &from, nullptr);
        EXPECT_EQ(absent.*c.field, 0u) << "not given, whatever the decoded field holds";
        EXPECT_EQ(absent.field_present, 0u);
        all |= c.mask;
        take_down();
        parser_set_inv_file_instance(&handle);
    }
    EXPECT_EQ(all, 0x0018FFFFu);
}

TEST_F(CePorts, required_numbers_are_copied_always)
{
    BaseCEPortType from = bare_port();
    from.portUsage = 1;
    from.ext.portNumber = 0xFFFFFFFF;
    from.ext.client = 3;
    from.ext.serdes = 4;
    from.ext.policingPortMap = 5;
    from.ext.mdioChannel = 6;
    sch_ce_port_type record = {};
    parser_retrieve_base_ce_port_data(&record, &from, nullptr);
    EXPECT_EQ(record.port_usage, 1u);
    EXPECT_EQ(record.port_number, 0xFFFFFFFFu);
    EXPECT_EQ(record.client, 3u);
    EXPECT_EQ(record.serdes, 4u);
    EXPECT_EQ(record.policing_port_map, 5u);
    EXPECT_EQ(record.mdio_channel, 6u);
    EXPECT_EQ(record.field_present, 0u);
}

TEST_F(CePorts, an_operating_bandwidth_of_a_reused_record_is_cleared_when_absent)
{
    BaseCEPortType from = bare_port();
    sch_ce_port_type record = {};
    record.operating_bandwidth = 9;
    parser_retrieve_base_ce_port_data(&record, &from, nullptr);
    EXPECT_EQ(record.operating_bandwidth, 0u);
}

TEST_F(CePorts, destination_names_keep_32_octets_and_set_bits_16_to_18)
{
    std::string text(40, 'n');
    BaseCEPortType from = bare_port();
    from.ext.CC0PortDestName = text.c_str();
    from.ext.CC1PortDestName = "short";
    from.ext.PortDestName = text.c_str();
    from.ext.has.CC0PortDestName = 1;
    sch_ce_port_type first = {}, all = {};
    parser_retrieve_base_ce_port_data(&first, &from, nullptr);
    EXPECT_EQ(std::string(first.cc0_port_dest_name), std::string(32, 'n'));
    EXPECT_STREQ(first.cc1_port_dest_name, "");
    EXPECT_EQ(first.field_present, 1u << 16);
    from.ext.has.CC1PortDestName = from.ext.has.PortDestName = 1;
    parser_retrieve_base_ce_port_data(&all, &from, nullptr);
    EXPECT_STREQ(all.cc1_port_dest_name, "short");
    EXPECT_EQ(std::string(all.port_dest_name), std::string(32, 'n'));
    EXPECT_EQ(all.field_present, 7u << 16);
}

TEST_F(CePorts, leds_come_before_the_container_and_both_are_released)
{
    BaseLEDType led = {};
    led.base = decoded_entity("led");
    I2cNodeType command = {};
    decoded_list leds = {&led}, commands = {&command};
    BaseContainerType cage = {};
    cage.base = decoded_entity("cage");
    cage.ext.has.i2cIDPROM = 1;
    cage.ext.i2cIDPROM.cmdInfo = commands;
    BaseCEPortType from = bare_port();
    from.ext.led = leds;
    from.ext.has.container = 1;
    from.ext.container = {1, &cage};
    sch_ce_port_type record = {};
    parser_retrieve_base_ce_port_data(&record, &from, nullptr);
    EXPECT_EQ(record.field_present, 0u) << "the container has no bit";
    ASSERT_NE(root_eid->first_child, nullptr);
    EXPECT_STREQ(root_eid->first_child->record->name, "led");
    EXPECT_STREQ(root_eid->first_child->next_sibling->record->name, "cage");
    inv_schema_free_ce_port_data(&record);
    inv_schema_free_ce_port_data(nullptr);
}

TEST_F(CePorts, a_null_record_or_value_is_only_traced)
{
    BaseCEPortType from = bare_port();
    sch_ce_port_type record = {};
    EXPECT_EQ(parser_retrieve_base_ce_port_data(nullptr, &from, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_base_ce_port_data(&record, nullptr, nullptr), 0u);
    trace_recorder::line expected = {189, 4, 0, "", "Invalid BaseCEPortType pointer\n"};
    EXPECT_EQ(trace_recorder::lines(), (std::vector<trace_recorder::line>{expected, expected}));
}

TEST_F(CePorts, a_ce_switch_has_narrow_cores_ports_and_fpgas)
{
    BaseCESwitchType_2_port port = {};
    port.base = bare_port();
    port.facePlatePort = 1;
    BaseFPGAType fpga = {};
    fpga.base = decoded_entity("fpga");
    decoded_list ports = {&port, &port}, fpgas = {&fpga};
    BaseCESwitchType from = {};
    from.base = decoded_entity("switch");
    from.ext.cores = 0x10003;
    from.ext.maxPorts = 0xFFFFFFFF;
    from.ext.port = ports;
    from.ext.fpga = fpgas;
    sch_ce_switch_type record = {};
    parser_retrieve_base_ce_switch_data(&record, &from, nullptr);
    EXPECT_EQ(record.cores, 3);
    EXPECT_EQ(record.max_ports, 0u);
    EXPECT_EQ(record.field_present, 0);
    ASSERT_EQ(length_of(record.port_list), 2u);
    EXPECT_EQ(record.port_list->face_plate_port, 1);
    EXPECT_STREQ(record.port_list->ce_port.base.name, "ce port");
    EXPECT_EQ(length_of(record.fpga_list), 1u);
    inv_schema_free_ce_switch_data(&record);
    take_down();
    from.ext.has.maxPorts = 1;
    from.ext.port = from.ext.fpga = xb_data_list{};
    sch_ce_switch_type with_ports = {};
    parser_retrieve_base_ce_switch_data(&with_ports, &from, nullptr);
    EXPECT_EQ(with_ports.max_ports, 0xFFFFFFFFu);
    EXPECT_EQ(with_ports.field_present, 1);
}

}  // namespace
