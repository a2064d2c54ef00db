#include "frame/file_memory.h"
#include "support/current_file_fixture.h"

#include <cstring>
#include <string>

namespace
{

using Modules = CurrentFile;

BaseModuleType decoded_module(const char *name)
{
    BaseModuleType module = {};
    module.base = decoded_entity(name);
    module.has.ext = 1;
    return module;
}

std::string outline(const eid_chain_node *node)
{
    std::string text;
    for (; node != nullptr; node = node->next_sibling) {
        text += node->record->name;
        if (node->first_child != nullptr)
            text += "(" + outline(node->first_child) + ")";
        if (node->next_sibling != nullptr)
            text += " ";
    }
    return text;
}

TEST_F(Modules, a_module_without_its_extension_is_a_bare_entity)
{
    BaseSensorType sensor = {};
    decoded_list sensors = {&sensor};
    BaseModuleType from = decoded_module("bare");
    from.has.ext = 0;
    from.ext.sensor = sensors;
    from.ext.has.logicalModuleNum = 1;
    sch_module_type record = {}, expected = {};
    EXPECT_EQ(parser_retrieve_base_module_entity_data(&record, &from, nullptr), 0u);
    EXPECT_STREQ(record.base.name, "bare");
    EXPECT_EQ(memcmp(&record.logical_module_num, &expected.logical_module_num,
                     sizeof record - offsetof(sch_module_type, logical_module_num)),
              0);
}

TEST_F(Modules, scalars_and_power_information_have_their_bits)
{
    PowerZoneType zone = {};
    decoded_list zones = {&zone};
    BaseModuleType from = decoded_module("m");
    from.ext.logicalModuleNum = -1;
    from.ext.powerController = -2;
    from.ext.powerInfo.powerZone = zones;
    const struct {
        uint8_t logical, power, controller, mask;
    } cases[] = {{0, 0, 0, 0}, {0, 1, 0, 1}, {0, 0, 1, 2}, {1, 0, 0, 4}, {1, 1, 1, 7}};
    for (const auto &c : cases) {
        from.ext.has.logicalModuleNum = c.logical & 1;
        from.ext.has.powerInfo = c.power & 1;
        from.ext.has.powerController = c.controller & 1;
        sch_module_type record = {};
        parser_retrieve_base_module_entity_data(&record, &from, nullptr);
        EXPECT_EQ(record.field_present, c.mask);
        EXPECT_EQ(record.logical_module_num, c.logical ? 0xFFFF : 0);
        EXPECT_EQ(record.power_controller, c.controller ? 0xFFFE : 0);
        EXPECT_EQ(length_of(record.power_info.power_zone_list), c.power);
        inv_schema_free_module_data(&record);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

// One component of each kind, each named after its list.
struct full_module {
    BaseFPGAType fpga = {};
    I2cChipType i2c = {};
    BasePCIeSwitchType pcie_switch = {};
    BaseSensorType sensor = {};
    BaseVoltageMarginType margin = {};
    BaseSpiFlash spi = {};
    BaseStorageType disk = {};
    BaseProcessorType processor = {};
    BaseMemoryType memory = {};
    BaseCESwitchType ce_switch = {};
    BaseKestoType kesto = {};
    BaseConsoleType console = {};
    BaseContainerType container = {};
    BaseIdEEPROMType eeprom = {};
    BasePortType port = {};
    BaseLEDType led = {};
    xb_choice disk_choice = {1, &disk}, container_choice = {1, &container}, port_choice = {1, &port};
    decoded_list fpgas = {&fpga}, i2cs = {&i2c}, pcie_switches = {&pcie_switch}, sensors = {&sensor},
                 margins = {&margin}, spis = {&spi}, disks = {&disk_choice}, processors = {&processor},
                 memories = {&memory}, ce_switches = {&ce_switch}, kestos = {&kesto}, consoles = {&console},
                 containers = {&container_choice}, eeproms = {&eeprom}, ports = {&port_choice}, leds = {&led};
    BaseModuleType module = decoded_module("module");

    full_module()
    {
        fpga.base = decoded_entity("fpga");
        i2c.base = decoded_entity("i2c");
        pcie_switch.base = decoded_entity("pcieSwitch");
        sensor.base = decoded_entity("sensor");
        margin.base = decoded_entity("voltMargin");
        spi.base.base = decoded_entity("storageSPI");
        disk.base = decoded_entity("storageHDD");
        processor.base = decoded_entity("processor");
        memory.base = decoded_entity("memory");
        ce_switch.base = decoded_entity("ceSwitch");
        kesto.base = decoded_entity("security");
        console.base.base = decoded_entity("console");
        container.base = decoded_entity("container");
        eeprom.base = decoded_entity("eeprom");
        port.base = decoded_entity("fixedPorts");
        led.base = decoded_entity("led");
        BaseModuleType_2 &own = module.ext;
        own.fpga = fpgas;
        own.i2c = i2cs;
        own.pcieSwitch = pcie_switches;
        own.sensor = sensors;
        own.voltMargin = margins;
        own.storageSPI = spis;
        own.storageHDD = disks;
        own.processor = processors;
        own.memory = memories;
        own.ceSwitch = ce_switches;
        own.security = kestos;
        own.console = consoles;
        own.container = containers;
        own.eeprom = eeproms;
        own.fixedPorts = ports;
        own.led = leds;
    }
};

TEST_F(Modules, the_sixteen_component_lists_are_built_in_order_under_the_module)
{
    full_module from;
    sch_module_type record = {};
    EXPECT_EQ(parser_retrieve_base_module_entity_data(&record, &from.module, nullptr), 0u);
    EXPECT_EQ(outline(root_eid),
              "module(fpga i2c pcieSwitch sensor voltMargin storageSPI storageHDD processor memory ceSwitch "
              "security console container eeprom fixedPorts led)");
    EXPECT_STREQ(record.fpga_list->base.name, "fpga");
    EXPECT_STREQ(record.i2c_chip_list->base.name, "i2c");
    EXPECT_STREQ(record.pcie_switch_list->base.name, "pcieSwitch");
    EXPECT_STREQ(record.sensor_list->base.name, "sensor");
    EXPECT_STREQ(record.volt_margin_list->base.name, "voltMargin");
    EXPECT_STREQ(record.spi_flash_list->storage.base.name, "storageSPI");
    EXPECT_STREQ(record.storage_list->base.name, "storageHDD");
    EXPECT_STREQ(record.processor_list->base.name, "processor");
    EXPECT_STREQ(record.memory_list->base.name, "memory");
    EXPECT_STREQ(record.ce_switch_list->base.name, "ceSwitch");
    EXPECT_STREQ(record.kesto_list->base.name, "security");
    EXPECT_STREQ(record.console_list->port.base.name, "console");
    EXPECT_STREQ(record.container_list->base.name, "container");
    EXPECT_STREQ(record.ideeprom_list->base.name, "eeprom");
    EXPECT_STREQ(record.port_list->base.name, "fixedPorts");
    EXPECT_STREQ(record.led_list->base.name, "led");
    inv_schema_free_module_data(&record);
}

TEST_F(Modules, every_request_of_a_full_module_may_fail)
{
    full_module child, from;
    xb_choice choice = {1, &child.module};
    decoded_list children = {&choice, &choice};
    from.module.ext.module = children;
    uint64_t n = 1;
    for (bool failed = true; failed; ++n) {
        counting_memory::fail_at(n);
        sch_module_type record = {};
        parser_retrieve_base_module_entity_data(&record, &from.module, nullptr);
        failed = counting_memory::failed();
        counting_memory::reset();
        inv_schema_free_module_data(&record);
        take_down();
        parser_set_inv_file_instance(&handle);
        ASSERT_EQ(counting_memory::live(), live_before) << n;
    }
    EXPECT_GT(n, 100u);
}

TEST_F(Modules, three_children_are_linked_through_next_and_filled_depth_first)
{
    BaseModuleType inner = decoded_module("inner");
    xb_choice inner_choice = {1, &inner};
    decoded_list inner_list = {&inner_choice};
    BaseModuleType a = decoded_module("a"), b = decoded_module("b"), c = decoded_module("c");
    a.ext.module = inner_list;
    xb_choice choices[] = {{1, &a}, {4, &b}, {7, &c}};
    decoded_list children = {&choices[0], &choices[1], &choices[2]};
    BaseModuleType from = decoded_module("top");
    from.ext.module = children;
    sch_module_type record = {};
    EXPECT_EQ(parser_retrieve_base_module_entity_data(&record, &from, nullptr), 0u);
    ASSERT_EQ(length_of(record.module_list), 3u);
    EXPECT_STREQ(record.module_list->base.name, "a");
    EXPECT_STREQ(record.module_list->module_list->base.name, "inner");
    EXPECT_STREQ(record.module_list->next->next->base.name, "c");
    EXPECT_EQ(outline(root_eid), "top(a(inner) b c)");
    inv_schema_free_module_data(&record);
}

TEST_F(Modules, children_are_appended_to_those_already_there)
{
    BaseModuleType child = decoded_module("child");
    xb_choice choice = {1, &child};
    decoded_list children = {&choice, &choice};
    BaseModuleType from = decoded_module("top");
    from.ext.module = children;
    sch_module_type record = {};
    parser_retrieve_base_module_entity_data(&record, &from, nullptr);
    parser_retrieve_base_module_entity_data(&record, &from, nullptr);
    EXPECT_EQ(length_of(record.module_list), 4u);
    inv_schema_free_module_data(&record);
}

TEST_F(Modules, a_child_node_without_a_value_ends_the_children_with_0)
{
    BaseModuleType child = decoded_module("child");
    xb_choice choice = {1, &child}, nothing = {};
    for (xb_choice *empty : {static_cast<xb_choice *>(nullptr), &nothing}) {
        decoded_list children = {&choice, empty, &choice};
        BaseModuleType from = decoded_module("top");
        from.ext.module = children;
        sch_module_type record = {};
        EXPECT_EQ(parser_retrieve_base_module_entity_data(&record, &from, nullptr), 0u);
        EXPECT_EQ(length_of(record.module_list), 1u);
        inv_schema_free_module_data(&record);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

TEST_F(Modules, memory_running_out_for_a_child_returns_1_and_keeps_the_first)
{
    BaseModuleType child = decoded_module("child");
    xb_choice choice = {1, &child};
    decoded_list children = {&choice, &choice, &choice};
    BaseModuleType from = decoded_module("top");
    from.ext.module = children;
    parser_set_inv_file_instance(nullptr);
    sch_module_type record = {};
    counting_memory::fail_at(4);  // tree node of the top, first child and its tree node, second child
    EXPECT_EQ(parser_retrieve_base_module_entity_data(&record, &from, nullptr), 1u);
    counting_memory::reset();
    EXPECT_EQ(trace_recorder::lines().back(),
              (trace_recorder::line{243, 4, 0, "", "Malloc failure while retrieveing base module data\n"}));
    EXPECT_EQ(length_of(record.module_list), 1u);
    inv_schema_free_module_data(&record);
}

TEST_F(Modules, null_arguments_are_only_traced)
{
    BaseModuleType from = decoded_module("m");
    BackPlaneType plane = {};
    OpticsType optics = {};
    sch_module_type module = {};
    sch_back_plane_type back_plane = {};
    sch_cxp_fixed_optics_type cxp = {};
    EXPECT_EQ(parser_retrieve_base_module_entity_data(nullptr, &from, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_base_module_entity_data(&module, nullptr, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_back_plane_data(nullptr, &plane, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_back_plane_data(&back_plane, nullptr, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_cxp_fixed_optics_data(nullptr, &optics), 0u);
    EXPECT_EQ(parser_retrieve_cxp_fixed_optics_data(&cxp, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_cxp_fixed_optics_entity_data(nullptr, &optics), 0u);
    EXPECT_EQ(parser_retrieve_cxp_fixed_optics_entity_data(&cxp, nullptr), 0u);
    const trace_recorder::line module_line = {242, 4, 0, "", "Invalid BaseModuleType pointer\n"},
                               plane_line = {208, 4, 0, "", "Invalid  BackPlantType pointer\n"},
                               part_line = {188, 4, 0, "", "Invalid sch_cxp_fixed_optics_type pointer\n"},
                               whole_line = {254, 4, 0, "", "Invalid sch_cxp_fixed_optics_type pointer\n"};
    EXPECT_EQ(trace_recorder::lines(),
              (std::vector<trace_recorder::line>{module_line, module_line, plane_line, plane_line, part_line,
                                                 part_line, whole_line, whole_line}));
}

TEST_F(Modules, a_back_planes_modules_form_a_chain_through_module_list)
{
    BaseModuleType inner = decoded_module("inner");
    xb_choice inner_choice = {1, &inner};
    decoded_list inner_list = {&inner_choice};
    BaseModuleType a = decoded_module("a"), b = decoded_module("b"), c = decoded_module("c");
    a.ext.module = inner_list;
    xb_choice choices[] = {{1, &a}, {1, &b}, {1, &c}};
    BaseIdEEPROMType eeprom = {};
    eeprom.base = decoded_entity("eeprom");
    BaseSensorType sensor = {};
    sensor.base = decoded_entity("sensor");
    decoded_list modules = {&choices[0], &choices[1], &choices[2]}, eeproms = {&eeprom}, sensors = {&sensor};
    BackPlaneType from = {};
    from.base = decoded_entity("plane");
    from.ext.eeprom = eeproms;
    from.ext.sensor = sensors;
    from.ext.module = modules;
    sch_back_plane_type record = {};
    EXPECT_EQ(parser_retrieve_back_plane_data(&record, &from, nullptr), 0u);
    EXPECT_EQ(outline(root_eid), "plane(eeprom sensor a(inner) b c)") << "the tree keeps the replaced child";
    sch_module_type *first = record.module_list;
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->base.name, "a");
    EXPECT_STREQ(first->module_list->base.name, "b") << "in place of the document's own child";
    EXPECT_STREQ(first->module_list->module_list->base.name, "c");
    EXPECT_EQ(first->module_list->module_list->module_list, nullptr);
    for (sch_module_type *each = first; each != nullptr; each = each->module_list)
        EXPECT_EQ(each->next, nullptr);
    // "inner" was replaced in its parent: only the tree still knows it.
    const eid_chain_node *plane_a = root_eid->first_child->next_sibling->next_sibling;
    sch_base_entity_type *inner_record = plane_a->first_child->record;
    take_down();
    inv_schema_free_back_plane_data(&record);
    EXPECT_EQ(counting_memory::live(), live_before + 1);
    inv::record_free(inner_record);
}

TEST_F(Modules, a_back_plane_node_without_a_value_leaves_its_module_empty)
{
    BaseModuleType a = decoded_module("a");
    xb_choice choice = {1, &a};
    decoded_list modules = {static_cast<xb_choice *>(nullptr), &choice};
    BackPlaneType from = {};
    from.base = decoded_entity("plane");
    from.ext.module = modules;
    sch_back_plane_type record = {};
    EXPECT_EQ(parser_retrieve_back_plane_data(&record, &from, nullptr), 0u);
    EXPECT_STREQ(record.module_list->base.name, "");
    EXPECT_STREQ(record.module_list->module_list->base.name, "a");
    inv_schema_free_back_plane_data(&record);
}

TEST_F(Modules, memory_running_out_in_a_back_plane_names_the_first_or_a_later_module)
{
    BaseModuleType a = decoded_module("a");
    xb_choice choice = {1, &a};
    decoded_list modules = {&choice, &choice};
    BackPlaneType from = {};
    from.base = decoded_entity("plane");
    from.ext.module = modules;
    const struct {
        uint64_t failing;  // after the plane's tree node; a module has its record and its tree node
        uint32_t id;
    } cases[] = {{2, 209}, {4, 210}};
    for (const auto &c : cases) {
        parser_set_inv_file_instance(nullptr);
        sch_back_plane_type record = {};
        counting_memory::fail_at(c.failing);
        EXPECT_EQ(parser_retrieve_back_plane_data(&record, &from, nullptr), 1u);
        counting_memory::reset();
        EXPECT_EQ(trace_recorder::lines().back(),
                  (trace_recorder::line{c.id, 4, 0, "", "Failure No Mem Available\n"}));
        EXPECT_EQ(record.module_list != nullptr, c.id == 210);
        inv_schema_free_back_plane_data(&record);
        take_down();
    }
}

OpticsType full_optics()
{
    OpticsType from = {};
    from.base = decoded_module("cxp");
    OpticsType_2 &own = from.ext;
    own.numberChannels = -1;
    own.sensorPerChannel = 1;
    own.xmlInstanceStart = -2;
    own.sensorLosThresholds.minorLow = 1;
    own.sensorBiasThresholds.minorLow = 2;
    own.sensorThermoThresholds.minorLow = 3;
    own.sensorVoltageThresholds.minorLow = 4;
    return from;
}

TEST_F(Modules, the_optics_builder_fills_the_optics_part_only)
{
    OpticsType from = full_optics();
    sch_cxp_fixed_optics_type record = {};
    EXPECT_EQ(parser_retrieve_cxp_fixed_optics_data(&record, &from), 0u);
    EXPECT_STREQ(record.module.base.name, "");
    EXPECT_EQ(record.number_channels, 0xFFFF);
    EXPECT_EQ(record.sensor_per_channel, 1);
    EXPECT_EQ(record.xml_instance_start, 0xFFFE);
    EXPECT_EQ(record.los_thresholds.minor_low, 1);
    EXPECT_EQ(record.bias_thresholds.minor_low, 2);
    EXPECT_EQ(record.thermo_thresholds.minor_low, 3);
    EXPECT_EQ(record.voltage_thresholds.minor_low, 4);
    EXPECT_EQ(trace_recorder::ids(), (id_list{181, 181, 181, 181}));
}

TEST_F(Modules, each_summary_flag_of_optics_goes_to_its_own_field)
{
    const struct {
        uint8_t OpticsType_2::*item;
        uint8_t sch_cxp_fixed_optics_type::*field;
    } cases[] = {
        {&OpticsType_2::summaryLosTx, &sch_cxp_fixed_optics_type::summary_los_tx},
        {&OpticsType_2::summaryFaultTx, &sch_cxp_fixed_optics_type::summary_fault_tx},
        {&OpticsType_2::summaryBiasTx, &sch_cxp_fixed_optics_type::summary_bias_tx},
        {&OpticsType_2::summaryModuleTx, &sch_cxp_fixed_optics_type::summary_module_tx},
        {&OpticsType_2::summaryLosRx, &sch_cxp_fixed_optics_type::summary_los_rx},
        {&OpticsType_2::summaryFaultRx, &sch_cxp_fixed_optics_type::summary_fault_rx},
        {&OpticsType_2::summaryBiasRx, &sch_cxp_fixed_optics_type::summary_bias_rx},
        {&OpticsType_2::summaryModuleRx, &sch_cxp_fixed_optics_type::summary_module_rx},
    };
    for (const auto &c : cases) {
        OpticsType from = {};
        from.ext.*c.item = 1;
        sch_cxp_fixed_optics_type record = {};
        parser_retrieve_cxp_fixed_optics_data(&record, &from);
        for (const auto &other : cases)
            EXPECT_EQ(record.*other.field, other.field == c.field ? 1 : 0);
    }
}

TEST_F(Modules, the_unit_builder_of_optics_fills_the_module_too)
{
    OpticsType from = full_optics();
    sch_cxp_fixed_optics_type record = {};
    EXPECT_EQ(parser_retrieve_cxp_fixed_optics_entity_data(&record, &from), 0u);
    EXPECT_STREQ(record.module.base.name, "cxp");
    EXPECT_EQ(record.number_channels, 0xFFFF);
    EXPECT_EQ(root_eid->record, &record.module.base);
}

}  // namespace
