// The own fields of components, from decoded values put together by hand.
#include "support/current_file_fixture.h"

#include <cstring>
#include <string>

namespace
{

using ComponentFields = CurrentFile;

constexpr Hex32BitHexAddressType hex32(uint8_t a, uint8_t b, uint8_t c, uint8_t d)
{
    return {4, {a, b, c, d}};
}

template <class Decoded>
Decoded decoded_component(const char *name)
{
    Decoded decoded = {};
    decoded.base = decoded_entity(name);
    return decoded;
}

// Names of the entities below a node, in order.
std::vector<std::string> names_below(const eid_chain_node *node)
{
    std::vector<std::string> names;
    for (const eid_chain_node *child = node->first_child; child != nullptr; child = child->next_sibling)
        names.push_back(child->record->name);
    return names;
}

TEST_F(ComponentFields, an_led_joins_its_octets_and_keeps_no_bits)
{
    BaseLedInfoType red = {}, green = {};
    red.color = 0x101;
    red.control = 2;
    green.color = 3;
    decoded_list infos = {&red, &green};
    BaseLEDType from = decoded_component<BaseLEDType>("led");
    from.ext.ledInfo = infos;
    from.ext.cccAddrOffset = hex32(0x12, 0x34, 0x56, 0x78);
    from.ext.cccAddrBits = hex32(0xFF, 0, 0, 1);
    sch_led_type absent = {}, present = {};
    parser_retrieve_base_led_data(&absent, &from, nullptr);
    EXPECT_EQ(absent.ccc_addr_offset + absent.ccc_addr_bits, 0u);
    from.ext.has = {1, 1};
    parser_retrieve_base_led_data(&present, &from, nullptr);
    EXPECT_EQ(present.ccc_addr_offset, 0x12345678u);
    EXPECT_EQ(present.ccc_addr_bits, 0xFF000001u);
    ASSERT_EQ(length_of(present.led_info_list), 2u);
    EXPECT_EQ(present.led_info_list->color, 1);
    EXPECT_EQ(present.led_info_list->control, 2);
    EXPECT_EQ(present.led_info_list->next->color, 3);
    inv_schema_free_led_data(&absent);
    inv_schema_free_led_data(&present);
}

TEST_F(ComponentFields, a_container_has_a_bit_for_each_part_and_is_traced)
{
    BaseContainerType from = decoded_component<BaseContainerType>("slot");
    from.position = -2147483647 - 1;
    from.hardwarePosition = 2147483647;
    from.ext.i2cIDPROM.seqType = 3;
    sch_container_type absent = {}, present = {};
    parser_retrieve_base_container_data(&absent, &from, nullptr);
    EXPECT_EQ(absent.position, 0);
    EXPECT_EQ(absent.i2c_idprom.seq_type, 0);
    EXPECT_EQ(absent.field_present, 0);
    from.has = {1, 1, 1};
    from.ext.has.i2cIDPROM = 1;
    trace_recorder::clear();
    parser_retrieve_base_container_data(&present, &from, nullptr);
    EXPECT_EQ(present.position, -2147483647 - 1);
    EXPECT_EQ(present.hardware_position, 2147483647);
    EXPECT_EQ(present.i2c_idprom.seq_type, 3);
    EXPECT_EQ(present.field_present, 7);
    EXPECT_EQ(
        trace_recorder::lines().back(),
        (trace_recorder::line{174, 7, 0, "ddd",
                              "Position: -2147483648   hardwarePosition: 2147483647 idpromPresent: 1\n"}));
}

TEST_F(ComponentFields, a_ports_leds_are_registered_before_its_container_and_both_hang_under_it)
{
    BaseLEDType led = decoded_component<BaseLEDType>("led");
    BaseContainerType cage = decoded_component<BaseContainerType>("cage");
    decoded_list leds = {&led};
    std::string label(70, 'b');
    BasePortType from = decoded_component<BasePortType>("port");
    from.portUsage = 0xFFFFFFFF;
    from.ext.maxBandWidth = INT64_MIN;
    from.ext.operatingBandWidth = 0xFFFFFFFF;
    from.ext.hwBoardIdentifier = label.c_str();
    from.ext.led = leds;
    from.ext.has.container = 1;
    from.ext.container = {1, &cage};
    sch_port_type record = {};
    parser_retrieve_base_port_data(&record, &from, nullptr);
    EXPECT_EQ(record.max_bandwidth, INT64_MIN);
    EXPECT_EQ(record.operating_bandwidth, 0xFFFFFFFFu);
    EXPECT_EQ(std::string(record.hw_board_identifier), std::string(64, 'b'));
    EXPECT_EQ(record.port_usage, 0xFFFFFFFFu);
    EXPECT_STREQ(record.container.base.name, "cage");
    EXPECT_EQ(record.field_present, 1);
    EXPECT_EQ(names_below(root_eid), (std::vector<std::string>{"led", "cage"}));
    inv_schema_free_port_data(&record);
}

TEST_F(ComponentFields, a_port_without_a_container_has_an_empty_one_and_no_bit)
{
    BasePortType from = decoded_component<BasePortType>("port");
    sch_port_type record = {};
    sch_container_type empty = {};
    parser_retrieve_base_port_data(&record, &from, nullptr);
    EXPECT_EQ(memcmp(&record.container, &empty, sizeof empty), 0);
    EXPECT_EQ(record.field_present, 0);
}

TEST_F(ComponentFields, a_console_is_a_port_with_a_usage)
{
    BaseConsoleType from = {};
    from.base = decoded_component<BasePortType>("con");
    from.base.portUsage = 4;
    from.usage = 0x102;
    sch_console_type record = {};
    parser_retrieve_base_console_data(&record, &from, nullptr);
    EXPECT_STREQ(record.port.base.name, "con");
    EXPECT_EQ(record.port.port_usage, 4u);
    EXPECT_EQ(record.usage, 2);
}

TEST_F(ComponentFields, thresholds_are_copied_and_traced)
{
    BaseThresholdType from = {};
    from.criticalLow = INT32_MIN;
    from.majorLow = -2;
    from.minorLow = -1;
    from.minorHigh = 1;
    from.majorHigh = 2;
    from.criticalHigh = INT32_MAX;
    sch_threshold_type record = {};
    EXPECT_EQ(parser_retrieve_base_threshold_data(&record, &from), 0u);
    EXPECT_EQ(record.critical_low, INT32_MIN);
    EXPECT_EQ(record.critical_high, INT32_MAX);
    EXPECT_EQ(record.major_low, -2);
    EXPECT_EQ(record.major_high, 2);
    EXPECT_EQ(record.minor_low, -1);
    EXPECT_EQ(record.minor_high, 1);
    EXPECT_EQ(parser_retrieve_base_threshold_data(nullptr, &from), 0u);
    EXPECT_EQ(trace_recorder::lines(),
              (std::vector<trace_recorder::line>{{181, 11, 0, "dddddd",
                                                  "minorLow: -1  minorHigh: 1 majorLow: -2 majorHigh: 2 "
                                                  "criLow: -2147483648 criHigh: 2147483647\n"},
                                                 {180, 4, 0, "", "Invalid BaseThresholdType pointer\n"}}));
}

TEST_F(ComponentFields, small_components_carry_their_values)
{
    BaseKestoType kesto = decoded_component<BaseKestoType>("kesto");
    kesto.ext.isValidated = 0x101;
    sch_kesto_type kesto_record = {};
    parser_retrieve_base_kesto_data(&kesto_record, &kesto, nullptr);
    EXPECT_EQ(kesto_record.is_validated, 1);

    BaseVoltageMarginType margin = decoded_component<BaseVoltageMarginType>("margin");
    margin.ext.highValue = INT32_MAX;
    margin.ext.lowValue = INT32_MIN;
    margin.ext.operation = 0x1FF;
    sch_volt_margin_type margin_record = {};
    parser_retrieve_base_volt_margin_data(&margin_record, &margin, nullptr);
    EXPECT_EQ(margin_record.high_value, INT32_MAX);
    EXPECT_EQ(margin_record.low_value, INT32_MIN);
    EXPECT_EQ(margin_record.operation, 0xFF);
    EXPECT_EQ(trace_recorder::lines().back(),
              (trace_recorder::line{239, 7, 0, "ddd",
                                    "highValue: 2147483647  lowValue: -2147483648  operation:255\n"}));

    I2cChipType chip = {};
    chip.base = decoded_entity("chip");
    sch_i2c_chip_type chip_record = {};
    parser_retrieve_i2c_chip_data(&chip_record, &chip, nullptr);
    EXPECT_STREQ(chip_record.base.name, "chip");
}

TEST_F(ComponentFields, memory_texts_keep_their_first_8_octets)
{
    BaseMemoryType from = decoded_component<BaseMemoryType>("dimm");
    from.ext.capacity = "123456789";
    from.ext.serialNumber = "short";
    from.ext.firmwareVersion = "abcdefghijkl";
    sch_memory_type record = {};
    parser_retrieve_base_memory_data(&record, &from, nullptr);
    EXPECT_STREQ(record.capacity, "12345678");
    EXPECT_STREQ(record.serial_number, "short");
    EXPECT_STREQ(record.firmware_version, "abcdefgh");
}

TEST_F(ComponentFields, a_memory_map_keeps_the_first_octet_of_its_addresses)
{
    uint8_t start[] = {0x12, 0x34, 0x56, 0x78}, end[] = {0xFF, 0};
    BaseStorageMemoryMap from = {};
    from.memoryUsage = 0x103;
    from.blocks = 0xFFFFFFFF;
    from.startAddr = {4, start};
    from.endAddr = {2, end};
    sch_storage_memory_map_type record = {};
    parser_retrieve_base_storage_memory_map_data(&record, &from, nullptr);
    EXPECT_EQ(record.memory_usage, 3);
    EXPECT_EQ(record.blocks, 0xFFFFFFFFu);
    EXPECT_EQ(record.start_addr, 0x12u);
    EXPECT_EQ(record.end_addr, 0xFFu);
    from.startAddr = {};
    parser_retrieve_base_storage_memory_map_data(&record, &from, nullptr);
    EXPECT_EQ(record.start_addr, 0u);
}

TEST_F(ComponentFields, an_spi_flash_is_a_storage_with_a_memory_map)
{
    uint8_t octets[] = {0x80, 1};
    BaseStorageMemoryMap row = {};
    BaseFPGAType fpga = decoded_component<BaseFPGAType>("fpga");
    decoded_list rows = {&row, &row}, fpgas = {&fpga};
    BaseSpiFlash from = {};
    from.base = decoded_component<BaseStorageType>("flash");
    from.base.ext.maxCapacity = {2, octets};
    from.base.ext.has.speed = 1;
    from.base.ext.speed = 0xFFFFFFFF;
    from.base.ext.fpga = fpgas;
    from.ext.channel = 0xFFFFFFFE;
    from.ext.blockSizeKB = {1, octets};
    from.ext.memoryRow = rows;
    sch_spi_flash_type record = {};
    parser_retrieve_base_spi_data(&record, &from, nullptr);
    EXPECT_EQ(record.storage.max_capacity, 0x80u);
    EXPECT_EQ(record.storage.speed, 0xFFFFFFFFu);
    EXPECT_EQ(record.storage.field_present, 1);
    EXPECT_EQ(record.storage.next, nullptr);
    EXPECT_EQ(length_of(record.storage.fpga_list), 1u);
    EXPECT_EQ(record.channel, 0xFFFFFFFEu);
    EXPECT_EQ(record.block_size_kb, 0x80u);
    EXPECT_EQ(length_of(record.memory_map_list), 2u);
    EXPECT_EQ(names_below(root_eid), std::vector<std::string>{"fpga"});
    inv_schema_free_spi_flash_data(&record);
}

BaseSensorType full_sensor()
{
    BaseSensorType from = decoded_component<BaseSensorType>("sensor");
    from.isMarginable = from.isRov = 1;
    from.marginRegister = hex32(1, 2, 3, 4);
    from.ext.threshold.criticalHigh = 9;
    from.ext.value = from.ext.lastValue = 77;
    from.ext.pd_data1 = hex32(0xAA, 0, 0, 1);
    from.ext.pd_data2 = hex32(0xBB, 0, 0, 2);
    from.ext.powerdomain = hex32(0xCC, 0, 0, 3);
    from.ext.hwPollRegisterOffset = hex32(0xDD, 0, 0, 4);
    from.ext.isCoreAutopolled = 1;
    from.ext.sensorDataLength = -1;
    from.ext.unit = 0x105;
    from.ext.userDefinedUnit = 6;
    from.ext.scale = 0x107;
    from.ext.precision = 0x1FF;
    return from;
}

TEST_F(ComponentFields, a_sensor_with_everything_has_all_its_fields_and_bits)
{
    BaseSensorType from = full_sensor();
    from.has = {1, 1, 1, 1};
    auto &has = from.ext.has;
    has.threshold = has.pd_data1 = has.pd_data2 = has.powerdomain = has.hwPollRegisterOffset = 1;
    has.isCoreAutopolled = has.sensorDataLength = has.userDefinedUnit = has.precision = 1;
    sch_sensor_type record = {};
    parser_retrieve_base_sensor_data(&record, &from, nullptr);
    EXPECT_EQ(record.threshold.critical_high, 9);
    EXPECT_EQ(record.user_defined_unit, 6u);
    EXPECT_EQ(record.pd_data1, 0xAA000001u);
    EXPECT_EQ(record.pd_data2, 0xBB000002u);
    EXPECT_EQ(record.powerdomain, 0xCC000003u);
    EXPECT_EQ(record.hw_poll_register_offset, 0xDD000004u);
    EXPECT_EQ(record.is_core_autopolled, 1u);
    EXPECT_EQ(record.sensor_data_length, -1);
    EXPECT_EQ(record.unit, 5);
    EXPECT_EQ(record.scale, 7);
    EXPECT_EQ(record.precision, 0xFF);
    EXPECT_EQ(record.is_marginable, 1);
    EXPECT_EQ(record.is_rov, 1);
    EXPECT_EQ(record.margin_register, 0x01020304u);
    EXPECT_EQ(record.field_present, 0x3FF);
}

TEST_F(ComponentFields, a_bare_sensor_has_unit_and_scale_only)
{
    BaseSensorType from = full_sensor();
    sch_sensor_type record = {}, expected = {};
    parser_retrieve_base_sensor_data(&record, &from, nullptr);
    EXPECT_EQ(record.unit, 5);
    EXPECT_EQ(record.scale, 7);
    record.unit = record.scale = 0;
    constexpr size_t own = sizeof(sch_base_entity_type);
    EXPECT_EQ(memcmp(reinterpret_cast<char *>(&record) + own, reinterpret_cast<char *>(&expected) + own,
                     sizeof record - own),
              0);
}

TEST_F(ComponentFields, each_optional_field_of_a_sensor_has_its_own_bit)
{
    const struct {
        unsigned mask;
        void (*give)(BaseSensorType &);
    } cases[] = {
        {1u << 0, [](BaseSensorType &s) { s.ext.has.threshold = 1; }},
        {1u << 1, [](BaseSensorType &s) { s.ext.has.userDefinedUnit = 1; }},
        {1u << 2, [](BaseSensorType &s) { s.has.isMarginable = 1; }},
        {1u << 3, [](BaseSensorType &s) { s.has.isRov = 1; }},
        {1u << 4, [](BaseSensorType &s) { s.has.marginRegister = 1; }},
        {1u << 5, [](BaseSensorType &s) { s.ext.has.precision = 1; }},
        {1u << 6, [](BaseSensorType &s) { s.ext.has.pd_data1 = 1; }},
        {1u << 7, [](BaseSensorType &s) { s.ext.has.pd_data2 = 1; }},
        {1u << 8, [](BaseSensorType &s) { s.ext.has.powerdomain = 1; }},
        {1u << 9, [](BaseSensorType &s) { s.ext.has.hwPollRegisterOffset = 1; }},
        {0, [](BaseSensorType &s) { s.ext.has.isCoreAutopolled = 1; }},
        {0, [](BaseSensorType &s) { s.ext.has.sensorDataLength = 1; }},
    };
    for (const auto &c : cases) {
        BaseSensorType from = full_sensor();
        c.give(from);
        sch_sensor_type record = {};
        parser_retrieve_base_sensor_data(&record, &from, nullptr);
        EXPECT_EQ(record.field_present, c.mask);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

TEST_F(ComponentFields, a_pcie_switch_holds_a_sensor_of_its_own_before_its_fpgas)
{
    BaseFPGAType fpga = decoded_component<BaseFPGAType>("fpga");
    decoded_list fpgas = {&fpga};
    BasePCIeSwitchType from = decoded_component<BasePCIeSwitchType>("switch");
    from.ext.sensor = full_sensor();
    from.ext.fpga = fpgas;
    sch_pcie_switch_type absent = {}, present = {};
    parser_retrieve_base_pcie_switch_data(&present, &from, nullptr);
    EXPECT_EQ(present.field_present, 0);
    inv_schema_free_pcie_switch_data(&present);
    take_down();
    parser_set_inv_file_instance(&handle);
    present = absent;
    from.ext.has.sensor = 1;
    parser_retrieve_base_pcie_switch_data(&present, &from, nullptr);
    EXPECT_EQ(present.field_present, 1);
    EXPECT_EQ(present.sensor.unit, 5);
    EXPECT_EQ(names_below(root_eid), (std::vector<std::string>{"sensor", "fpga"}));
    inv_schema_free_pcie_switch_data(&present);
}

TEST_F(ComponentFields, a_pem_bay_is_a_container_with_a_second_entity_below_it)
{
    BaseEntityType access = decoded_entity("access");
    PemBayType from = {};
    from.base = decoded_component<BaseContainerType>("bay");
    from.ext.has.i2cIDPROM = 1;
    from.ext.i2cIDPROM.seqType = 5;
    sch_pem_bay_type absent = {}, present = {};
    parser_retrieve_pem_bay_data(&absent, &from, nullptr);
    EXPECT_EQ(absent.field_present, 0);
    take_down();
    parser_set_inv_file_instance(&handle);
    from.ext.has.i2cSensorAccess = 1;
    from.ext.i2cSensorAccess = {1, &access};
    parser_retrieve_pem_bay_data(&present, &from, nullptr);
    EXPECT_EQ(present.field_present, 1);
    EXPECT_STREQ(present.sensor_access.name, "access");
    EXPECT_STREQ(present.container.base.name, "bay");
    EXPECT_EQ(present.container.field_present, 0) << "the bay's own sequence is not carried";
    EXPECT_EQ(names_below(root_eid), std::vector<std::string>{"access"});
}

TEST_F(ComponentFields, the_containers_of_a_container_list_hang_under_the_parent_passed_on)
{
    BaseEntityType chassis = decoded_entity("chassis");
    sch_base_entity_type parent = {};
    parser_retrieve_base_entity_data(&parent, &chassis, nullptr);
    BaseContainerType slot = decoded_component<BaseContainerType>("slot");
    xb_choice choice = {1, &slot};
    decoded_list slots = {&choice, &choice};
    BaseContainerListType from = {};
    from.containerType = 0x109;
    from.maxContainers = -1;
    from.has.i2cAccess = from.has.i2cIDPROM = from.has.pciAccess = 1;
    from.i2cAccess.seqType = 1;
    from.i2cIDPROM.seqType = 2;
    from.pciAccess.description = "pci";
    from.entityContainer = slots;
    sch_container_list_type record = {};
    parser_retrieve_base_container_list_data(&record, &from, &parent);
    EXPECT_EQ(record.container_type, 9);
    EXPECT_EQ(record.max_containers, 0xFFFF);
    EXPECT_EQ(record.i2c_access.seq_type, 1);
    EXPECT_EQ(record.i2c_idprom.seq_type, 2);
    EXPECT_STREQ(record.pci_access.description, "pci");
    EXPECT_EQ(record.field_present, 7);
    EXPECT_EQ(length_of(record.container_list), 2u);
    EXPECT_EQ(names_below(root_eid), (std::vector<std::string>{"slot", "slot"}));
    EXPECT_EQ(
        trace_recorder::lines().back(),
        (trace_recorder::line{222, 7, 0, "ddd", "idpromPresent:1 pcieAccessPresent:1 i2cAccessPresent:1\n"}));
    inv_schema_free_container_list_data(&record);
}

TEST_F(ComponentFields, each_access_of_a_container_list_has_its_own_bit)
{
    const struct {
        uint8_t i2c, idprom, pci, mask;
        const char *text;
    } cases[] = {{1, 0, 0, 1, "idpromPresent:0 pcieAccessPresent:0 i2cAccessPresent:1\n"},
                 {0, 1, 0, 2, "idpromPresent:1 pcieAccessPresent:0 i2cAccessPresent:0\n"},
                 {0, 0, 1, 4, "idpromPresent:0 pcieAccessPresent:1 i2cAccessPresent:0\n"}};
    for (const auto &c : cases) {
        BaseContainerListType from = {};
        from.has.i2cAccess = c.i2c & 1;
        from.has.i2cIDPROM = c.idprom & 1;
        from.has.pciAccess = c.pci & 1;
        sch_container_list_type record = {};
        parser_retrieve_base_container_list_data(&record, &from, nullptr);
        EXPECT_EQ(record.field_present, c.mask);
        EXPECT_EQ(trace_recorder::lines().back().text, c.text);
    }
}

}  // namespace
