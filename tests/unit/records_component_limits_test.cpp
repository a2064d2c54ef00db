// Every own field of the component records at both limits of its item and of its own width.
#include "field_limits.h"

namespace
{

using namespace field_limits;

// The rows of a component, whose builder also takes a parent.
template <auto Builder, class Decoded, class Record>
auto component(std::vector<row> &rows, const char *name)
{
    auto fill = [](Record *record, const Decoded *decoded) { return Builder(record, decoded, nullptr); };
    return table<Decoded, Record, decltype(fill)>(rows, name, fill);
}

void add_led_and_container_rows(std::vector<row> &rows)
{
    auto info =
        component<parser_retrieve_base_led_info_data, BaseLedInfoType, sch_led_info_type>(rows, "led_info");
    info.always<uint8_t>("color", &BaseLedInfoType::color, &sch_led_info_type::color);
    info.always<uint8_t>("control", &BaseLedInfoType::control, &sch_led_info_type::control);

    auto led = component<parser_retrieve_base_led_data, BaseLEDType, sch_led_type>(rows, "led");
    led.optional<uint32_t>("ccc_addr_offset", &BaseLEDType_2::cccAddrOffset, &sch_led_type::ccc_addr_offset,
                           0, [](BaseLEDType &d) { d.ext.has.cccAddrOffset = 1; });
    led.optional<uint32_t>("ccc_addr_bits", &BaseLEDType_2::cccAddrBits, &sch_led_type::ccc_addr_bits, 0,
                           [](BaseLEDType &d) { d.ext.has.cccAddrBits = 1; });

    using container = BaseContainerType;
    auto slot =
        component<parser_retrieve_base_container_data, container, sch_container_type>(rows, "container");
    slot.optional<uint8_t>(
        "i2c_idprom", [](container & d) -> auto & { return d.ext.i2cIDPROM.seqType; },
        [](sch_container_type & r) -> auto & { return r.i2c_idprom.seq_type; }, 1u << 0,
        [](container &d) { d.ext.has.i2cIDPROM = 1; });
    slot.optional<int32_t>("position", &container::position, &sch_container_type::position, 1u << 1,
                           [](container &d) { d.has.position = 1; });
    slot.optional<int32_t>("hardware_position", &container::hardwarePosition,
                           &sch_container_type::hardware_position, 1u << 2,
                           [](container &d) { d.has.hardwarePosition = 1; });
}

void add_container_list_rows(std::vector<row> &rows)
{
    using from = BaseContainerListType;
    using to = sch_container_list_type;
    auto list = component<parser_retrieve_base_container_list_data, from, to>(rows, "container_list");
    list.always<uint8_t>("container_type", &from::containerType, &to::container_type);
    list.always<uint16_t>("max_containers", &from::maxContainers, &to::max_containers);
    list.optional<uint8_t>(
        "i2c_access", [](from & d) -> auto & { return d.i2cAccess.seqType; },
        [](to & r) -> auto & { return r.i2c_access.seq_type; }, 1u << 0,
        [](from &d) { d.has.i2cAccess = 1; });
    list.optional<uint8_t>(
        "i2c_idprom", [](from & d) -> auto & { return d.i2cIDPROM.seqType; },
        [](to & r) -> auto & { return r.i2c_idprom.seq_type; }, 1u << 1,
        [](from &d) { d.has.i2cIDPROM = 1; });
    list.optional<uint16_t>(
        "pci_access", [](from & d) -> auto & {
            d.pciAccess.has.dstInfo = d.pciAccess.dstInfo.has.nodePosition = 1;
            return d.pciAccess.dstInfo.nodePosition;
        },
        [](to & r) -> auto & {
            r.pci_access.field_present = r.pci_access.dst_info.field_present = 0;
            return r.pci_access.dst_info.node_position;
        },
        1u << 2, [](from &d) { d.has.pciAccess = 1; });
}

void add_port_rows(std::vector<row> &rows)
{
    using ext = BasePortType_2;
    using to = sch_port_type;
    auto port = component<parser_retrieve_base_port_data, BasePortType, to>(rows, "port");
    port.always<int64_t>("max_bandwidth", &ext::maxBandWidth, &to::max_bandwidth);
    port.always<uint32_t>("operating_bandwidth", &ext::operatingBandWidth, &to::operating_bandwidth);
    port.text("hw_board_identifier", &ext::hwBoardIdentifier, &to::hw_board_identifier, 64, 65);
    port.always<uint32_t>("port_usage", &BasePortType::portUsage, &to::port_usage);

    auto console =
        component<parser_retrieve_base_console_data, BaseConsoleType, sch_console_type>(rows, "console");
    console.always<uint8_t>("usage", &BaseConsoleType::usage, &sch_console_type::usage);
    console.always<uint32_t>(
        "port_usage", [](BaseConsoleType & d) -> auto & { return d.base.portUsage; },
        [](sch_console_type & r) -> auto & { return r.port.port_usage; });
}

void add_small_rows(std::vector<row> &rows)
{
    auto kesto = component<parser_retrieve_base_kesto_data, BaseKestoType, sch_kesto_type>(rows, "kesto");
    kesto.always<uint8_t>("is_validated", &BaseKestoType_2::isValidated, &sch_kesto_type::is_validated);

    using margin = sch_volt_margin_type;
    auto volt =
        component<parser_retrieve_base_volt_margin_data, BaseVoltageMarginType, margin>(rows, "volt_margin");
    volt.always<int32_t>("high_value", &BaseVoltageMarginType_2::highValue, &margin::high_value);
    volt.always<int32_t>("low_value", &BaseVoltageMarginType_2::lowValue, &margin::low_value);
    volt.always<uint8_t>("operation", &BaseVoltageMarginType_2::operation, &margin::operation);

    auto memory =
        component<parser_retrieve_base_memory_data, BaseMemoryType, sch_memory_type>(rows, "memory");
    memory.text("capacity", &BaseMemoryType_2::capacity, &sch_memory_type::capacity, 8, 65);
    memory.text("serial_number", &BaseMemoryType_2::serialNumber, &sch_memory_type::serial_number, 8, 65);
    memory.text("firmware_version", &BaseMemoryType_2::firmwareVersion, &sch_memory_type::firmware_version, 8,
                65);

    using limits = BaseThresholdType;
    using to = sch_threshold_type;
    auto threshold = table<limits, to, decltype(&parser_retrieve_base_threshold_data)>(
        rows, "threshold", parser_retrieve_base_threshold_data);
    threshold.always<int32_t>("critical_low", &limits::criticalLow, &to::critical_low);
    threshold.always<int32_t>("critical_high", &limits::criticalHigh, &to::critical_high);
    threshold.always<int32_t>("major_low", &limits::majorLow, &to::major_low);
    threshold.always<int32_t>("major_high", &limits::majorHigh, &to::major_high);
    threshold.always<int32_t>("minor_low", &limits::minorLow, &to::minor_low);
    threshold.always<int32_t>("minor_high", &limits::minorHigh, &to::minor_high);
}

void add_storage_rows(std::vector<row> &rows)
{
    using map = BaseStorageMemoryMap;
    using map_record = sch_storage_memory_map_type;
    auto area = component<parser_retrieve_base_storage_memory_map_data, map, map_record>(rows, "memory_map");
    area.always<uint8_t>("memory_usage", &map::memoryUsage, &map_record::memory_usage);
    area.always<uint32_t>("blocks", &map::blocks, &map_record::blocks);
    area.always<uint32_t>("start_addr", &map::startAddr, &map_record::start_addr);
    area.always<uint32_t>("end_addr", &map::endAddr, &map_record::end_addr);

    using storage = BaseStorageType_2;
    auto disk =
        component<parser_retrieve_base_storage_data, BaseStorageType, sch_storage_type>(rows, "storage");
    disk.always<uint32_t>("max_capacity", &storage::maxCapacity, &sch_storage_type::max_capacity);
    disk.optional<uint32_t>("speed", &storage::speed, &sch_storage_type::speed, 1u << 0,
                            [](BaseStorageType &d) { d.ext.has.speed = 1; });

    auto flash =
        component<parser_retrieve_base_spi_data, BaseSpiFlash, sch_spi_flash_type>(rows, "spi_flash");
    flash.always<uint32_t>("channel", &BaseSpiFlash_2::channel, &sch_spi_flash_type::channel);
    flash.always<uint32_t>("block_size_kb", &BaseSpiFlash_2::blockSizeKB, &sch_spi_flash_type::block_size_kb);
    flash.always<uint32_t>(
        "max_capacity", [](BaseSpiFlash & d) -> auto & { return d.base.ext.maxCapacity; },
        [](sch_spi_flash_type & r) -> auto & { return r.storage.max_capacity; });
}

void add_ce_switch_rows(std::vector<row> &rows)
{
    using port = BaseCESwitchType_2_port;
    auto switch_port = component<parser_retrieve_base_ce_switch_port_data, port, sch_ce_switch_port_type>(
        rows, "ce_switch_port");
    switch_port.always<uint8_t>("face_plate_port", &port::facePlatePort,
                                &sch_ce_switch_port_type::face_plate_port);
    switch_port.always<uint32_t>(
        "port_usage", [](port & d) -> auto & { return d.base.portUsage; },
        [](sch_ce_switch_port_type & r) -> auto & { return r.ce_port.port_usage; });

    using ext = BaseCESwitchType_2;
    auto ce_switch = component<parser_retrieve_base_ce_switch_data, BaseCESwitchType, sch_ce_switch_type>(
        rows, "ce_switch");
    ce_switch.optional<uint32_t>("max_ports", &ext::maxPorts, &sch_ce_switch_type::max_ports, 1u << 0,
                                 [](BaseCESwitchType &d) { d.ext.has.maxPorts = 1; });
    ce_switch.always<uint16_t>("cores", &ext::cores, &sch_ce_switch_type::cores);
}

void add_sensor_rows(std::vector<row> &rows)
{
    using from = BaseSensorType;
    using ext = BaseSensorType_2;
    using to = sch_sensor_type;
    auto sensor = component<parser_retrieve_base_sensor_data, from, to>(rows, "sensor");
    sensor.optional<int32_t>(
        "threshold", [](from & d) -> auto & { return d.ext.threshold.minorHigh; },
        [](to & r) -> auto & { return r.threshold.minor_high; }, 1u << 0,
        [](from &d) { d.ext.has.threshold = 1; });
    sensor.optional<uint32_t>("user_defined_unit", &ext::userDefinedUnit, &to::user_defined_unit, 1u << 1,
                              [](from &d) { d.ext.has.userDefinedUnit = 1; });
    sensor.optional<uint32_t>("pd_data1", &ext::pd_data1, &to::pd_data1, 1u << 6,
                              [](from &d) { d.ext.has.pd_data1 = 1; });
    sensor.optional<uint32_t>("pd_data2", &ext::pd_data2, &to::pd_data2, 1u << 7,
                              [](from &d) { d.ext.has.pd_data2 = 1; });
    sensor.optional<uint32_t>("powerdomain", &ext::powerdomain, &to::powerdomain, 1u << 8,
                              [](from &d) { d.ext.has.powerdomain = 1; });
    sensor.optional<uint32_t>("hw_poll_register_offset", &ext::hwPollRegisterOffset,
                              &to::hw_poll_register_offset, 1u << 9,
                              [](from &d) { d.ext.has.hwPollRegisterOffset = 1; });
    sensor.optional<uint32_t>("is_core_autopolled", &ext::isCoreAutopolled, &to::is_core_autopolled, 0,
                              [](from &d) { d.ext.has.isCoreAutopolled = 1; });
    sensor.optional<int32_t>("sensor_data_length", &ext::sensorDataLength, &to::sensor_data_length, 0,
                             [](from &d) { d.ext.has.sensorDataLength = 1; });
    sensor.always<uint8_t>("unit", &ext::unit, &to::unit);
    sensor.always<uint8_t>("scale", &ext::scale, &to::scale);
    sensor.optional<uint8_t>("precision", &ext::precision, &to::precision, 1u << 5,
                             [](from &d) { d.ext.has.precision = 1; });
    sensor.optional<uint8_t>("is_marginable", &from::isMarginable, &to::is_marginable, 1u << 2,
                             [](from &d) { d.has.isMarginable = 1; });
    sensor.optional<uint8_t>("is_rov", &from::isRov, &to::is_rov, 1u << 3, [](from &d) { d.has.isRov = 1; });
    sensor.optional<uint32_t>("margin_register", &from::marginRegister, &to::margin_register, 1u << 4,
                              [](from &d) { d.has.marginRegister = 1; });
}

void add_processor_rows(std::vector<row> &rows)
{
    using ext = BaseProcessorType_2;
    using to = sch_processor_type;
    auto cpu = component<parser_retrieve_base_processor_data, BaseProcessorType, to>(rows, "processor");
    cpu.always<uint32_t>("cores", &ext::cores, &to::cores);
    cpu.optional<uint32_t>("bus_speed", &ext::busSpeed, &to::bus_speed, 1u << 0,
                           [](BaseProcessorType &d) { d.ext.has.busSpeed = 1; });
    cpu.optional<uint32_t>("cpu_speed", &ext::cpuSpeed, &to::cpu_speed, 1u << 1,
                           [](BaseProcessorType &d) { d.ext.has.cpuSpeed = 1; });
    cpu.optional<uint32_t>("oscillation_speed", &ext::oscillationSpeed, &to::oscillation_speed, 1u << 2,
                           [](BaseProcessorType &d) { d.ext.has.oscillationSpeed = 1; });
    cpu.text("clock_speed", &ext::clockSpeed, &to::clock_speed, 64, 65);
    cpu.text("cache_size_l1", &ext::cacheSizeL1, &to::cache_size_l1, 64, 65);
    cpu.text("cache_size_l2", &ext::cacheSizeL2, &to::cache_size_l2, 64, 65);
    cpu.text("cache_size_l3", &ext::cacheSizeL3, &to::cache_size_l3, 64, 65);
}

void add_embedding_rows(std::vector<row> &rows)
{
    using pcie = BasePCIeSwitchType;
    auto pcie_switch =
        component<parser_retrieve_base_pcie_switch_data, pcie, sch_pcie_switch_type>(rows, "pcie_switch");
    pcie_switch.optional<uint8_t>(
        "sensor", [](pcie & d) -> auto & { return d.ext.sensor.ext.unit; },
        [](sch_pcie_switch_type & r) -> auto & {
            r.sensor.base = {};
            return r.sensor.unit;
        },
        1u << 0, [](pcie &d) { d.ext.has.sensor = 1; });
    auto bay = component<parser_retrieve_pem_bay_data, PemBayType, sch_pem_bay_type>(rows, "pem_bay");
    bay.always<int32_t>(
        "position", [](PemBayType & d) -> auto & {
            d.base.has.position = 1;
            return d.base.position;
        },
        [](sch_pem_bay_type & r) -> auto & {
            r.container.field_present = 0;
            return r.container.position;
        });
    auto fan = component<parser_retrieve_fan_data, FanType, sch_fan_type>(rows, "fan");
    fan.always<uint8_t>(
        "sensor", [](FanType & d) -> auto & { return d.ext.sensor.ext.unit; },
        [](sch_fan_type & r) -> auto & { return r.sensor.unit; });
}

std::vector<row> all_rows()
{
    std::vector<row> rows;
    add_led_and_container_rows(rows);
    add_container_list_rows(rows);
    add_port_rows(rows);
    add_small_rows(rows);
    add_storage_rows(rows);
    add_ce_switch_rows(rows);
    add_sensor_rows(rows);
    add_processor_rows(rows);
    add_embedding_rows(rows);
    return rows;
}

using ComponentLimits = FieldLimits;

INSTANTIATE_TEST_SUITE_P(All, ComponentLimits, testing::ValuesIn(all_rows()),
                         [](const auto &about) { return about.param.name; });

TEST_P(ComponentLimits, a_field_takes_its_item_alone_cut_to_its_width_and_with_its_bit)
{
    GetParam().check();
}

}  // namespace
