#include "frame/file_memory.h"
#include "inv_parser/unit_records.h"
#include "support/current_file_fixture.h"

#include <cstdlib>
#include <cstring>
#include <pthread.h>
#include <string>

namespace
{

using Units = CurrentFile;

BaseModuleType decoded_module(const char *name)
{
    BaseModuleType module = {};
    module.base = decoded_entity(name);
    module.has.ext = 1;
    return module;
}

struct decoded_slot {
    I2cNodeType command = {};
    decoded_list commands = {&command};
    BaseContainerType slot = {};
    xb_choice choice = {1, &slot};

    explicit decoded_slot(const char *name)
    {
        slot.base = decoded_entity(name);
        slot.ext.has.i2cIDPROM = 1;
        slot.ext.i2cIDPROM.cmdInfo = commands;
    }
};

struct decoded_chassis {
    PowerZoneType zone = {};
    BaseLEDType led = {};
    BaseContainerListType list = {};
    decoded_slot slot{"slot"}, ecu{"ecu"}, craft{"craft"};
    decoded_list zones = {&zone}, leds = {&led}, slots = {&slot.choice}, lists = {&list};
    ChassisEntityType chassis = {};

    decoded_chassis()
    {
        chassis.base = decoded_entity("chassis");
        led.base = decoded_entity("led");
        list.entityContainer = slots;
        ChassisEntityType_2 &own = chassis.ext;
        own.fruBits = 0xFFFFFFFF;
        own.instanceBits = 2;
        own.rackNumber = 3;
        own.availablePower = 4;
        own.powerInfo.powerZone = zones;
        own.backPlane.base = decoded_entity("plane");
        own.ecuSlot = ecu.choice;
        own.craftInterfaceSlot = craft.choice;
        own.entityContainerList = lists;
        own.led = leds;
    }
};

std::vector<std::string> names_below(const eid_chain_node *node)
{
    std::vector<std::string> names;
    for (const eid_chain_node *child = node->first_child; child != nullptr; child = child->next_sibling)
        names.push_back(child->record->name);
    return names;
}

// A result as the loads make them, from the heap and in no registry.
inv_xml_handle *new_result(eid_chain_node *root)
{
    auto *result = inv::record_new<inv_xml_handle>();
    result->root = root;
    return result;
}

// Builds a unit's record from the heap and hands its tree to a new result.
template <class Record, class Fill>
inv_xml_handle *built_result(Fill fill)
{
    auto *record = inv::record_new<Record>();
    fill(record);
    inv_xml_handle *result = new_result(root_eid);
    root_eid = nullptr;
    return result;
}

void fill_chassis(sch_chassis_type *record, const ChassisEntityType &from)
{
    parser_retrieve_base_entity_data(&record->base, &from.base, nullptr);
    EXPECT_EQ(parser_retrieve_chassis_entity_data(record, &from.ext), 0u);
}

TEST_F(Units, a_chassis_has_everything_below_itself_in_order)
{
    decoded_chassis from;
    from.chassis.ext.has = {1, 1, 1};
    sch_chassis_type *seen = nullptr;
    inv_xml_handle *result = built_result<sch_chassis_type>([&](sch_chassis_type *record) {
        fill_chassis(record, from.chassis);
        seen = record;
    });
    EXPECT_EQ(seen->available_power, 4u);
    EXPECT_EQ(seen->rack_number, 3u);
    EXPECT_EQ(seen->fru_bits, 0xFFFFFFFFu);
    EXPECT_EQ(seen->instance_bits, 2u);
    EXPECT_EQ(length_of(seen->power_info.power_zone_list), 1u);
    EXPECT_EQ(seen->field_present, 7);
    EXPECT_EQ(length_of(seen->container_list_list), 1u);
    EXPECT_EQ(names_below(result->root), (std::vector<std::string>{"plane", "ecu", "craft", "slot", "led"}));
    // Released: all but the one command of the ECU slot.
    sch_i2c_node_type *ecu_command = seen->ecu_slot.i2c_idprom.command_list;
    ASSERT_NE(ecu_command, nullptr);
    inv_schema_free_chassis_data(result);
    parser_set_inv_file_instance(nullptr);
    take_down();
    EXPECT_EQ(counting_memory::live(), live_before + 1);
    inv_schema_free_i2c_node_data_list(ecu_command);
}

TEST_F(Units, each_optional_part_of_a_chassis_has_its_own_bit)
{
    const struct {
        uint8_t plane, ecu, craft, mask;
    } cases[] = {{1, 0, 0, 1}, {0, 1, 0, 2}, {0, 0, 1, 4}};
    for (const auto &c : cases) {
        decoded_chassis from;
        from.chassis.ext.has.backPlane = c.plane & 1;
        from.chassis.ext.has.ecuSlot = c.ecu & 1;
        from.chassis.ext.has.craftInterfaceSlot = c.craft & 1;
        from.ecu.slot.ext.has.i2cIDPROM = 0;
        uint8_t mask = 0;
        inv_xml_handle *result = built_result<sch_chassis_type>([&](sch_chassis_type *record) {
            fill_chassis(record, from.chassis);
            mask = record->field_present;
        });
        EXPECT_EQ(mask, c.mask);
        inv_schema_free_chassis_data(result);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

TEST_F(Units, a_chassis_without_optional_parts_has_empty_ones_and_is_released_safely)
{
    decoded_chassis from;
    inv_xml_handle *result = built_result<sch_chassis_type>([&](sch_chassis_type *record) {
        fill_chassis(record, from.chassis);
        EXPECT_EQ(record->field_present, 0);
        sch_back_plane_type no_plane = {};
        sch_container_type no_slot = {};
        EXPECT_EQ(memcmp(&record->back_plane, &no_plane, sizeof no_plane), 0);
        EXPECT_EQ(memcmp(&record->ecu_slot, &no_slot, sizeof no_slot), 0);
        EXPECT_EQ(memcmp(&record->craft_interface_slot, &no_slot, sizeof no_slot), 0);
    });
    inv_schema_free_chassis_data(result);
}

struct decoded_fan {
    I2cPortType port = {};
    decoded_list ports = {&port};
    FanType fan = {};

    explicit decoded_fan(bool sensor_has_port = false)
    {
        fan.base = decoded_entity("fan");
        fan.ext.sensor.base = decoded_entity("tacho");
        if (sensor_has_port)
            fan.ext.sensor.base.i2cPort = ports;
    }
};

TEST_F(Units, pem_and_fan_tray_are_a_module_with_fans)
{
    decoded_fan fan;
    decoded_list fans = {&fan.fan, &fan.fan};
    PEMType pem = {};
    pem.base = decoded_module("pem");
    pem.ext.fan = fans;
    inv_xml_handle *result = built_result<sch_pem_type>([&](sch_pem_type *record) {
        EXPECT_EQ(parser_retrieve_pem_entity_data(record, &pem), 0u);
        EXPECT_STREQ(record->module.base.name, "pem");
        ASSERT_EQ(length_of(record->fan_list), 2u);
        EXPECT_STREQ(record->fan_list->sensor.base.name, "tacho");
    });
    EXPECT_EQ(names_below(result->root), (std::vector<std::string>{"fan", "fan"}));
    EXPECT_EQ(names_below(result->root->first_child), std::vector<std::string>{"tacho"});
    inv_schema_free_pem_data(result);
    take_down();
    parser_set_inv_file_instance(&handle);

    FanTrayType tray = {};
    tray.base = decoded_module("tray");
    tray.ext.fan = fans;
    result = built_result<sch_fan_tray_type>([&](sch_fan_tray_type *record) {
        EXPECT_EQ(parser_retrieve_fantray_entity_data(record, &tray), 0u);
        EXPECT_STREQ(record->module.base.name, "tray");
        EXPECT_EQ(length_of(record->fan_list), 2u);
    });
    inv_schema_free_fan_tray_data(result);
}

TEST_F(Units, the_ports_of_a_fans_sensor_are_not_released)
{
    decoded_fan from(true);
    sch_fan_type *fan = inv::record_new<sch_fan_type>();
    parser_retrieve_fan_data(fan, &from.fan, nullptr);
    sch_i2c_port_type *left = fan->sensor.base.i2c_port_list;
    ASSERT_NE(left, nullptr);
    sch_module_type untouched = {};
    EXPECT_EQ(memcmp(&fan->module, &untouched, sizeof untouched), 0) << "the builder fills no module";
    fan->module.next = inv::record_new<sch_module_type>();
    take_down();
    inv_schema_free_fan_data_list(fan);
    EXPECT_EQ(counting_memory::live(), live_before + 1) << "the modules at the embedded module's next are";
    inv_schema_free_i2c_port_data_list(left);
}

TEST_F(Units, a_power_shelf_keeps_the_first_module_only)
{
    PowerZoneType zone = {};
    I2cChipType chip = {};
    chip.base = decoded_entity("chip");
    BaseIdEEPROMType eeprom = {};
    eeprom.base = decoded_entity("eeprom");
    BaseSensorType sensor = {};
    sensor.base = decoded_entity("sensor");
    PemBayType bay = {};
    bay.base.base = decoded_entity("bay");
    BaseModuleType first = decoded_module("first"), second = decoded_module("second");
    xb_choice choices[] = {{1, &first}, {1, &second}, {1, &second}};
    decoded_list zones = {&zone}, chips = {&chip}, eeproms = {&eeprom}, sensors = {&sensor},
                 bays = {&bay, &bay}, modules = {&choices[0], &choices[1], &choices[2]};
    PowerShelfType from = {};
    from.base = decoded_entity("shelf");
    PowerShelfType_2 &own = from.ext;
    own.powerInfo.powerZone = zones;
    own.i2c = chips;
    own.eeprom = eeproms;
    own.sensor = sensors;
    own.maxPemContainers = -1;
    own.pemBay = bays;
    own.module = modules;
    inv_xml_handle *result = built_result<sch_power_shelf_type>([&](sch_power_shelf_type *record) {
        parser_retrieve_base_entity_data(&record->base, &from.base, nullptr);
        EXPECT_EQ(parser_retrieve_power_shelf_entity_data(record, &own), 0u);
        EXPECT_EQ(length_of(record->power_info.power_zone_list), 1u);
        EXPECT_EQ(record->max_pem_containers, -1);
        EXPECT_STREQ(record->module.base.name, "first");
        EXPECT_EQ(record->module.next, nullptr);
    });
    EXPECT_EQ(names_below(result->root),
              (std::vector<std::string>{"chip", "eeprom", "sensor", "bay", "bay", "first"}));
    inv_schema_free_power_shelf_data(result);
}

TEST_F(Units, a_power_shelf_whose_first_module_node_is_empty_has_none)
{
    BaseModuleType second = decoded_module("second");
    xb_choice nothing = {}, choice = {1, &second};
    for (xb_choice *empty : {static_cast<xb_choice *>(nullptr), &nothing}) {
        decoded_list modules = {empty, &choice};
        PowerShelfType_2 from = {};
        from.module = modules;
        sch_power_shelf_type record = {};
        EXPECT_EQ(parser_retrieve_power_shelf_entity_data(&record, &from), 0u);
        EXPECT_STREQ(record.module.base.name, "");
    }
}

TEST_F(Units, null_arguments_build_nothing)
{
    EXPECT_EQ(parser_retrieve_chassis_entity_data(nullptr, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_pem_entity_data(nullptr, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_power_shelf_entity_data(nullptr, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_fantray_entity_data(nullptr, nullptr), 0u);
    EXPECT_TRUE(trace_recorder::lines().empty());
}

constexpr void (*unit_releases[])(inv_xml_handle *) = {
    inv_schema_free_chassis_data, inv_schema_free_pem_data, inv_schema_free_power_shelf_data,
    inv_schema_free_fan_tray_data, inv_schema_free_port_module_data};

TEST_F(Units, a_result_without_a_root_or_a_root_record_is_not_released_at_all)
{
    auto *node = inv::record_new<eid_chain_node>();
    inv_xml_handle *without_root = new_result(nullptr), *without_record = new_result(node);
    uint64_t live = counting_memory::live();
    for (auto *release : unit_releases) {
        release(nullptr);
        release(without_root);
        release(without_record);
        EXPECT_EQ(counting_memory::live(), live);
    }
    inv::record_free(node);
    inv::record_free(without_root);
    inv::record_free(without_record);
}

TEST_F(Units, a_port_module_result_is_released_with_the_modules_behind_its_root_module)
{
    BaseModuleType from = decoded_module("root");
    inv_xml_handle *result = built_result<sch_module_type>([&](sch_module_type *record) {
        parser_retrieve_base_module_entity_data(record, &from, nullptr);
        record->next = inv::record_new<sch_module_type>();
        record->next->next = inv::record_new<sch_module_type>();
    });
    inv_schema_free_port_module_data(result);
}

TEST_F(Units, a_base_module_result_is_released_with_or_without_tree_and_modules)
{
    inv_schema_free_base_module_data(nullptr);
    inv_schema_free_base_module_data(new_result(nullptr));
    inv_schema_free_base_module_data(new_result(inv::record_new<eid_chain_node>()));
    inv_xml_handle *result = new_result(nullptr);
    result->module_record = inv::record_new<sch_module_type>();
    inv_schema_free_base_module_data(result);
    BaseModuleType from = decoded_module("root");
    sch_module_type *module = nullptr;
    result = built_result<sch_module_type>([&](sch_module_type *record) {
        parser_retrieve_base_module_entity_data(record, &from, nullptr);
        module = record;
    });
    result->module_record = module;
    inv_schema_free_base_module_data(result);
}

sch_module_type *module_tree(int depth, int width)
{
    sch_module_type *first = nullptr;
    for (int i = 0; i < width; ++i) {
        auto *module = inv::record_new<sch_module_type>();
        module->led_list = inv::record_new<sch_led_type>();
        module->sensor_list = inv::record_new<sch_sensor_type>();
        module->module_list = depth > 1 ? module_tree(depth - 1, width) : nullptr;
        module->next = first;
        first = module;
    }
    return first;
}

TEST_F(Units, a_module_tree_four_levels_deep_is_released_once_and_whole)
{
    sch_module_type *tree = module_tree(4, 3);
    EXPECT_EQ(counting_memory::live(), live_before + 3u * (3 + 9 + 27 + 81));
    inv_schema_free_module_data_list(tree);
    EXPECT_EQ(counting_memory::live(), live_before);
}

TEST_F(Units, a_back_plane_of_100000_modules_is_released_without_recursion)
{
    sch_back_plane_type plane = {};
    sch_module_type **slot = &plane.module_list;
    for (int i = 0; i < 100000; ++i) {
        *slot = inv::record_new<sch_module_type>();
        slot = &(*slot)->module_list;
    }
    // A stack that a frame for each module would not fit into.
    constexpr size_t stack_size = size_t{1} << 18;
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, stack_size), 0);
    pthread_t thread;
    auto release = [](void *chain) -> void * {
        inv_schema_free_back_plane_data(static_cast<sch_back_plane_type *>(chain));
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, release, &plane), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    inv_schema_free_back_plane_data(nullptr);
    EXPECT_EQ(counting_memory::live(), live_before);
}

TEST_F(Units, what_the_container_of_a_port_and_the_sequence_of_a_container_list_own_stays)
{
    decoded_slot cage("cage");
    BasePortType from = {};
    from.base = decoded_entity("port");
    from.ext.has.container = 1;
    from.ext.container = cage.choice;
    sch_port_type port = {};
    parser_retrieve_base_port_data(&port, &from, nullptr);
    take_down();
    inv_schema_free_port_data(&port);
    EXPECT_EQ(counting_memory::live(), live_before + 1);
    inv_schema_free_container_data(&port.container);
}

TEST_F(Units, elements_that_a_client_made_may_hang_in_released_lists)
{
    sch_led_type *mine = static_cast<sch_led_type *>(calloc(1, sizeof(sch_led_type)));
    mine->next = inv::record_new<sch_led_type>();
    uint64_t live = counting_memory::live();
    inv_schema_free_led_data_list(mine);
    EXPECT_EQ(counting_memory::live(), live - 2) << "the counter saw one request and two releases";
    left_by_contract = static_cast<uint64_t>(-1);
}

}  // namespace
