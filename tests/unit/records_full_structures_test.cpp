// Components that own all they can own: what their release gives back, what it leaves by contract, and
// that no failing request loses anything else.
#include "frame/file_memory.h"
#include "support/current_file_fixture.h"

#include <functional>
#include <string>

namespace
{

// One of everything that an entity owns.
struct rich_parts {
    I2cNodeType command = {};
    I2cDestType i2c_end = {};
    PCIeDestType pcie_end = {};
    SpiDestType spi_end = {};
    decoded_list commands = {&command}, i2c_ends = {&i2c_end}, pcie_ends = {&pcie_end}, spi_ends = {&spi_end};
    I2cPortType i2c = {};
    BasePCIePortType pcie = {};
    SpiPortType spi = {};
    decoded_list i2c_ports = {&i2c}, pcie_ports = {&pcie}, spi_ports = {&spi};

    rich_parts()
    {
        i2c_end.nodeInfo.nodeType = SCH_NODE_TYPE_ENTITY;
        pcie_end.nodeInfo.nodeType = 6;
        i2c.dstInfo = i2c_ends;
        pcie.dstInfo = pcie_ends;
        spi.dstInfo = spi_ends;
    }

    BaseEntityType entity(const char *name, int16_t xml_instance) const
    {
        BaseEntityType made = decoded_entity(name, xml_instance);
        made.i2cPort = i2c_ports;
        made.pciePort = pcie_ports;
        made.spiPort = spi_ports;
        made.has.hwSignals = made.hwSignals.has.i2cPath = 1;
        made.hwSignals.i2cPath.cmdInfo = commands;
        return made;
    }
};

// Every component with all of its nested lists and records filled.
struct rich_values {
    rich_parts parts;
    BaseLedInfoType info = {};
    BaseStorageMemoryMap area = {};
    BaseLEDType led = {};
    BaseFPGAType fpga = {};
    BaseSensorType sensor = {};
    BaseContainerType container = {};
    xb_choice container_choice = {1, &container};
    decoded_list infos = {&info, &info}, areas = {&area}, leds = {&led}, fpgas = {&fpga},
                 containers = {&container_choice};
    BasePortType port = {};
    BaseConsoleType console = {};
    BaseCESwitchType_2_port switch_port = {};
    decoded_list switch_ports = {&switch_port};
    BaseCESwitchType ce_switch = {};
    BaseStorageType storage = {};
    BaseSpiFlash flash = {};
    FanType fan = {};
    BaseEntityType access;
    PemBayType bay = {};
    BaseContainerListType container_list = {};
    BasePCIeSwitchType pcie_switch = {};

    rich_values()
    {
        led.base = parts.entity("led", 1);
        led.ext.ledInfo = infos;
        fpga.base = parts.entity("fpga", 2);
        sensor.base = parts.entity("sensor", 3);
        fill_containers();
        fill_ports();
        storage.base = parts.entity("storage", 8);
        storage.ext.fpga = fpgas;
        flash.base = storage;
        flash.ext.memoryRow = areas;
        fan.base = parts.entity("fan", 9);
        fan.ext.sensor = sensor;
        pcie_switch.base = parts.entity("pcie switch", 10);
        pcie_switch.ext.has.sensor = 1;
        pcie_switch.ext.sensor = sensor;
        pcie_switch.ext.fpga = fpgas;
    }

    void fill_containers()
    {
        container.base = parts.entity("container", 4);
        container.ext.has.i2cIDPROM = 1;
        container.ext.i2cIDPROM.cmdInfo = parts.commands;
        access = parts.entity("access", 11);
        bay.base = container;
        bay.ext.has.i2cSensorAccess = 1;
        bay.ext.i2cSensorAccess = {1, &access};
        container_list.has.i2cAccess = container_list.has.i2cIDPROM = container_list.has.pciAccess = 1;
        container_list.i2cAccess.cmdInfo = container_list.i2cIDPROM.cmdInfo = parts.commands;
        container_list.entityContainer = containers;
    }

    void fill_ports()
    {
        port.base = parts.entity("port", 5);
        port.ext.led = leds;
        port.ext.has.container = 1;
        port.ext.container = container_choice;
        console.base = port;
        switch_port.base.base = parts.entity("ce port", 6);
        switch_port.base.ext.led = leds;
        switch_port.base.ext.has.container = 1;
        switch_port.base.ext.container = container_choice;
        ce_switch.base = parts.entity("ce switch", 7);
        ce_switch.ext.port = switch_ports;
        ce_switch.ext.fpga = fpgas;
    }
};

// Blocks that no release function gives back, by the rule that leaves them.
struct leftovers {
    std::vector<void *> spi_ports, spi_destinations, signal_commands, port_containers, fan_sensors;

    size_t count() const
    {
        return spi_ports.size() + spi_destinations.size() + signal_commands.size() + port_containers.size() +
               fan_sensors.size();
    }
    void give_back()
    {
        for (auto *tag : {&spi_ports, &spi_destinations, &signal_commands, &port_containers, &fan_sensors}) {
            for (void *block : *tag)
                inv::record_free(block);
            tag->clear();
        }
    }
};

template <class Record>
void take_list(std::vector<void *> &tag, Record *first)
{
    for (; first != nullptr; first = first->next)
        tag.push_back(first);
}

void collect(leftovers &left, const sch_base_entity_type &base)
{
    for (const sch_spi_port_type *port = base.spi_port_list; port != nullptr; port = port->next)
        take_list(left.spi_destinations, port->dest_list);
    take_list(left.spi_ports, base.spi_port_list);
    take_list(left.signal_commands, base.hw_signals.i2c_path.command_list);
}

// All ports of an entity that nothing releases.
void take_ports(std::vector<void *> &tag, const sch_base_entity_type &base)
{
    for (const sch_i2c_port_type *port = base.i2c_port_list; port != nullptr; port = port->next)
        take_list(tag, port->dest_list);
    for (const sch_base_pcie_port_type *port = base.pcie_port_list; port != nullptr; port = port->next)
        take_list(tag, port->dest_list);
    take_list(tag, base.i2c_port_list);
    take_list(tag, base.pcie_port_list);
}

void collect(leftovers &, const sch_led_info_type &) {}
void collect(leftovers &, const sch_storage_memory_map_type &) {}

template <class Record>
requires requires(const Record &r)
{
    r.base;
}
void collect(leftovers &left, const Record &record)
{
    collect(left, record.base);
}

template <class Record>
void collect_list(leftovers &left, const Record *first);

void collect(leftovers &left, const sch_port_type &port)
{
    collect(left, port.base);
    collect_list(left, port.led_list);
    collect(left, port.container.base);
    take_ports(left.port_containers, port.container.base);
    take_list(left.port_containers, port.container.i2c_idprom.command_list);
}

void collect(leftovers &left, const sch_console_type &console)
{
    collect(left, console.port);
}

void collect(leftovers &left, const sch_ce_switch_port_type &port)
{
    collect(left, port.ce_port.base);
    collect_list(left, port.ce_port.led_list);
    collect(left, port.ce_port.container.base);
}

void collect(leftovers &left, const sch_ce_switch_type &ce_switch)
{
    collect(left, ce_switch.base);
    collect_list(left, ce_switch.port_list);
    collect_list(left, ce_switch.fpga_list);
}

void collect(leftovers &left, const sch_storage_type &storage)
{
    collect(left, storage.base);
    collect_list(left, storage.fpga_list);
}

void collect(leftovers &left, const sch_spi_flash_type &flash)
{
    collect(left, flash.storage);
}

void collect(leftovers &left, const sch_fan_type &fan)
{
    collect(left, fan.base);
    collect(left, fan.sensor.base);
    take_ports(left.fan_sensors, fan.sensor.base);
}

void collect(leftovers &left, const sch_pem_bay_type &bay)
{
    collect(left, bay.container.base);
    collect(left, bay.sensor_access);
}

void collect(leftovers &left, const sch_container_list_type &list)
{
    collect_list(left, list.container_list);
}

void collect(leftovers &left, const sch_pcie_switch_type &pcie_switch)
{
    collect(left, pcie_switch.base);
    collect(left, pcie_switch.sensor.base);
    collect_list(left, pcie_switch.fpga_list);
}

template <class Record>
void collect_list(leftovers &left, const Record *first)
{
    for (; first != nullptr; first = first->next)
        collect(left, *first);
}

struct member {
    std::string name;
    size_t entities;  // in one element, nested ones included
    bool leaves_port_container, leaves_fan_sensor;
    std::function<uint32_t(void **, rich_values &)> build_two;
    std::function<size_t(void *)> length;
    std::function<void(leftovers &, void *)> collect_all;
    std::function<void(void *)> release;
};

template <class Record, class Decoded>
member describe(const char *name, size_t entities, Decoded rich_values::*value,
                uint32_t (*build)(Record **, const xb_data_list *, sch_base_entity_type *),
                void (*release)(Record *), bool in_choice = false)
{
    return {name,
            entities,
            false,
            false,
            [=](void **head, rich_values &values) {
                xb_choice choice = {1, &(values.*value)};
                void *node = in_choice ? static_cast<void *>(&choice) : &(values.*value);
                decoded_list two;
                two.add(node);
                two.add(node);
                return build(reinterpret_cast<Record **>(head), &two, nullptr);
            },
            [](void *first) { return length_of(static_cast<Record *>(first)); },
            [](leftovers &left, void *first) { collect_list(left, static_cast<Record *>(first)); },
            [release](void *first) { release(static_cast<Record *>(first)); }};
}

std::vector<member> all_members()
{
    using values = rich_values;
    std::vector<member> all = {
        describe("led_info", 0, &values::info, parser_retrieve_base_led_info_data_list,
                 inv_schema_free_led_info_data_list),
        describe("storage_memory_map", 0, &values::area, parser_retrieve_base_storage_memory_map_data_list,
                 inv_schema_free_storage_mem_map_data_list),
        describe("led", 1, &values::led, parser_retrieve_base_led_data_list, inv_schema_free_led_data_list),
        describe("fpga", 1, &values::fpga, parser_retrieve_base_fpga_data_list,
                 inv_schema_free_fpga_data_list),
        describe("sensor", 1, &values::sensor, parser_retrieve_base_sensor_data_list,
                 inv_schema_free_sensor_data_list),
        describe("container", 1, &values::container, parser_retrieve_base_container_data_list,
                 inv_schema_free_container_data_list, true),
        describe("ce_switch_port", 3, &values::switch_port, parser_retrieve_base_ce_switch_port_data_list,
                 inv_schema_free_ce_switch_port_data_list),
        describe("ce_switch", 5, &values::ce_switch, parser_retrieve_base_ce_switch_data_list,
                 inv_schema_free_ce_switch_data_list),
        describe("storage", 2, &values::storage, parser_retrieve_base_storage_data_list,
                 inv_schema_free_storage_data_list, true),
        describe("spi_flash", 2, &values::flash, parser_retrieve_base_spi_data_list,
                 inv_schema_free_spi_flash_data_list),
        describe("pem_bay", 2, &values::bay, parser_retrieve_pem_bay_data_list,
                 inv_schema_free_pem_bay_data_list),
        describe("container_list", 1, &values::container_list, parser_retrieve_base_container_list_data_list,
                 inv_schema_free_container_list_data_list),
        describe("pcie_switch", 3, &values::pcie_switch, parser_retrieve_base_pcie_switch_data_list,
                 inv_schema_free_pcie_switch_data_list),
    };
    for (auto port : {describe("port", 3, &values::port, parser_retrieve_base_port_data_list,
                               inv_schema_free_port_data_list, true),
                      describe("console", 3, &values::console, parser_retrieve_base_console_data_list,
                               inv_schema_free_console_data_list)}) {
        port.leaves_port_container = true;
        all.push_back(port);
    }
    all.push_back(
        describe("fan", 2, &values::fan, parser_retrieve_fan_data_list, inv_schema_free_fan_data_list));
    all.back().leaves_fan_sensor = true;
    return all;
}

class FullStructures : public CurrentFile, public testing::WithParamInterface<member>
{
protected:
    const member &about = GetParam();
    rich_values values;
};

INSTANTIATE_TEST_SUITE_P(All, FullStructures, testing::ValuesIn(all_members()),
                         [](const auto &info) { return info.param.name; });

TEST_P(FullStructures, release_leaves_what_the_contract_names_and_nothing_else)
{
    constexpr size_t elements = 2, ports_of_an_entity = 4, commands_of_a_container = 1;
    void *head = nullptr;
    EXPECT_EQ(about.build_two(&head, values), 0u);
    ASSERT_EQ(about.length(head), elements);
    leftovers left;
    about.collect_all(left, head);
    EXPECT_EQ(left.spi_ports.size(), elements * about.entities);
    EXPECT_EQ(left.spi_destinations.size(), elements * about.entities);
    EXPECT_EQ(left.signal_commands.size(), elements * about.entities);
    EXPECT_EQ(left.port_containers.size(),
              about.leaves_port_container ? elements * (ports_of_an_entity + commands_of_a_container) : 0);
    EXPECT_EQ(left.fan_sensors.size(), about.leaves_fan_sensor ? elements * ports_of_an_entity : 0);
    take_down();
    about.release(head);
    EXPECT_EQ(counting_memory::live(), live_before + left.count());
    left.give_back();
}

TEST_P(FullStructures, every_request_may_fail)
{
    for (uint64_t n = 1;; ++n) {
        SCOPED_TRACE(n);
        void *head = nullptr;
        counting_memory::fail_at(n);
        uint32_t result = about.build_two(&head, values);
        bool failed = counting_memory::failed();
        counting_memory::reset();
        EXPECT_EQ(result == 1, about.length(head) < 2);
        leftovers left;
        about.collect_all(left, head);
        take_down();
        parser_set_inv_file_instance(&handle);
        about.release(head);
        left.give_back();
        ASSERT_EQ(counting_memory::live(), live_before);
        if (!failed)
            break;
        ASSERT_LT(n, 1000u);
    }
}

using Releases = CurrentFile;

TEST_F(Releases, what_a_client_hung_behind_an_spi_flashs_storage_is_released_with_it)
{
    auto *flash = inv::record_new<sch_spi_flash_type>();
    flash->storage.next = inv::record_new<sch_storage_type>();
    flash->storage.next->next = inv::record_new<sch_storage_type>();
    flash->storage.next->fpga_list = inv::record_new<sch_fpga_type>();
    inv_schema_free_spi_flash_data_list(flash);
}

TEST_F(Releases, the_links_of_a_pcie_port_are_released_though_no_builder_fills_them)
{
    auto *port = inv::record_new<sch_base_pcie_port_type>();
    port->link_list = inv::record_new<sch_pci_sequence_type>();
    port->link_list->next = inv::record_new<sch_pci_sequence_type>();
    port->dest_list = inv::record_new<sch_pcie_dest_type>();
    inv_schema_free_pcie_port_data_list(port);
}

TEST_F(Releases, a_single_release_leaves_the_record_itself)
{
    rich_values values;
    auto *container = inv::record_new<sch_container_type>();
    parser_retrieve_base_container_data(container, &values.container, nullptr);
    leftovers left;
    collect(left, *container);
    take_down();
    inv_schema_free_container_data(container);
    EXPECT_EQ(counting_memory::live(), live_before + left.count() + 1);
    left.give_back();
    inv::record_free(container);
}

template <auto... Release>
void call_with_null()
{
    (Release(nullptr), ...);
}

TEST_F(Releases, every_component_release_ignores_null)
{
    call_with_null<
        inv_schema_free_base_entity_data, inv_schema_free_led_data, inv_schema_free_container_data,
        inv_schema_free_port_data, inv_schema_free_console_data, inv_schema_free_kesto_data,
        inv_schema_free_ce_port_data, inv_schema_free_ce_switch_port_data, inv_schema_free_ce_switch_data,
        inv_schema_free_ideeprom_data, inv_schema_free_storage_data, inv_schema_free_spi_flash_data,
        inv_schema_free_fpga_data, inv_schema_free_fan_data, inv_schema_free_pem_bay_data,
        inv_schema_free_sensor_data, inv_schema_free_memory_data, inv_schema_free_container_list_data,
        inv_schema_free_i2c_chip_data, inv_schema_free_processor_data, inv_schema_free_pcie_switch_data,
        inv_schema_free_volt_margin_data, inv_schema_free_led_info_data_list,
        inv_schema_free_storage_mem_map_data_list, inv_schema_free_led_data_list,
        inv_schema_free_container_data_list, inv_schema_free_port_data_list,
        inv_schema_free_console_data_list, inv_schema_free_kesto_data_list,
        inv_schema_free_ce_switch_port_data_list, inv_schema_free_ce_switch_data_list,
        inv_schema_free_ideeprom_data_list, inv_schema_free_storage_data_list,
        inv_schema_free_spi_flash_data_list, inv_schema_free_fpga_data_list, inv_schema_free_fan_data_list,
        inv_schema_free_pem_bay_data_list, inv_schema_free_sensor_data_list, inv_schema_free_memory_data_list,
        inv_schema_free_container_list_data_list, inv_schema_free_i2c_chip_data_list,
        inv_schema_free_processor_data_list, inv_schema_free_pcie_switch_data_list,
        inv_schema_free_volt_margin_data_list>();
    EXPECT_EQ(counting_memory::live(), live_before);
}

}  // namespace
