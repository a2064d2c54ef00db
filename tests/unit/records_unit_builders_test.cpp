// The builders of whole units, modules and back planes called directly: null arguments, lists with empty
// nodes, a second call on one record, and every request failing in turn.
#include "frame/file_memory.h"
#include "inv_parser/unit_records.h"
#include "support/current_file_fixture.h"

#include <functional>
#include <string>

namespace
{

// What all units are made of, each value with everything that it may own and that is released.
struct parts {
    PowerZoneType zone = {};
    I2cNodeType command = {};
    decoded_list zones = {&zone}, commands = {&command};
    BaseLedInfoType led_info = {};
    decoded_list led_infos = {&led_info};
    BaseLEDType led = {};
    I2cChipType chip = {};
    BaseIdEEPROMType eeprom = {};
    BaseSensorType sensor = {};
    PemBayType bay = {};
    FanType fan = {};
    BaseContainerType slot = {};
    xb_choice slot_choice = {1, &slot}, nothing = {};
    decoded_list slots = {&slot_choice, &slot_choice};
    BaseContainerListType slot_list = {};
    BaseModuleType inner = {}, module = {};
    xb_choice inner_choice = {1, &inner}, module_choice = {1, &module};
    decoded_list leds = {&led, &led}, chips = {&chip}, eeproms = {&eeprom}, sensors = {&sensor, &sensor},
                 bays = {&bay}, fans = {&fan, &fan}, slot_lists = {&slot_list}, inners = {&inner_choice},
                 modules = {&module_choice, &module_choice, &module_choice};

    parts()
    {
        led.base = decoded_entity("led", 11);
        led.ext.ledInfo = led_infos;
        chip.base = decoded_entity("chip", 12);
        eeprom.base = decoded_entity("eeprom", 13);
        sensor.base = decoded_entity("sensor", 14);
        bay.base.base = decoded_entity("bay", 15);
        fan.base = decoded_entity("fan", 16);
        fan.ext.sensor.base = decoded_entity("tacho", 17);
        slot.base = decoded_entity("slot", 18);
        slot.ext.has.i2cIDPROM = 1;
        slot.ext.i2cIDPROM.cmdInfo = commands;
        slot_list.entityContainer = slots;
        inner.base = decoded_entity("inner", 19);
        fill(module, "module", 20);
        module.ext.module = inners;
    }

    void fill(BaseModuleType &made, const char *name, int16_t xml_instance) const
    {
        made.base = decoded_entity(name, xml_instance);
        made.has.ext = made.ext.has.powerInfo = 1;
        made.ext.powerInfo.powerZone = zones;
        made.ext.sensor = sensors;
        made.ext.led = leds;
    }
};

struct decoded_units : parts {
    BackPlaneType plane = {};
    ChassisEntityType_2 chassis = {};
    PEMType pem = {};
    FanTrayType tray = {};
    PowerShelfType_2 shelf = {};
    OpticsType optics = {};
    BaseModuleType card = {};

    decoded_units()
    {
        // Modules without children: what the chain replaces nobody releases.
        module.ext.module = {};
        plane.base = decoded_entity("plane", 2);
        plane.ext.eeprom = eeproms;
        plane.ext.sensor = sensors;
        plane.ext.module = modules;
        chassis.has = {1, 1, 1};
        chassis.powerInfo.powerZone = zones;
        chassis.backPlane = plane;
        chassis.ecuSlot = chassis.craftInterfaceSlot = slot_choice;
        chassis.entityContainerList = slot_lists;
        chassis.led = leds;
        fill(pem.base, "pem", 1);
        pem.ext.fan = fans;
        fill(tray.base, "tray", 1);
        tray.ext.fan = fans;
        shelf.powerInfo.powerZone = zones;
        shelf.i2c = chips;
        shelf.eeprom = eeproms;
        shelf.sensor = sensors;
        shelf.pemBay = bays;
        shelf.module = modules;
        fill(optics.base, "optics", 1);
        fill(card, "card", 1);
        card.ext.module = modules;
    }
};

// A unit's builder with its types taken away. Records start zeroed, on the test's own storage.
struct unit_case {
    const char *name;
    uint32_t null_id;  // message of a null argument; 0: none
    std::function<std::shared_ptr<void>()> new_record;
    uint32_t (*build)(void *record, const decoded_units *from);
    void (*release)(void *record);
    size_t (*lists)(const void *record);  // elements in all lists that a build fills
    // Names of the child modules in order, a blank behind each, and what they are of a list whose second
    // node is empty.
    std::string (*modules)(const void *record);
    const char *modules_around_an_empty_node;
    sch_module_type **(*chain)(void *record);  // a back plane's; null: the unit has none
};

void PrintTo(const unit_case &unit, std::ostream *out)
{
    *out << unit.name;
}

std::string names_along_next(const sch_module_type *module)
{
    std::string names;
    for (; module != nullptr; module = module->next)
        names += module->base.name + std::string(" ");
    return names;
}

std::string names_along_chain(const sch_module_type *module)
{
    std::string names;
    for (; module != nullptr; module = module->module_list)
        names += module->base.name + std::string(" ");
    return names;
}

template <class Record>
std::shared_ptr<void> zeroed()
{
    return std::make_shared<Record>();
}

template <class Record>
size_t module_elements(const Record &record)
{
    return length_of(record.sensor_list) + length_of(record.led_list) + length_of(record.module_list) +
           length_of(record.power_info.power_zone_list);
}

const unit_case units[] = {
    {"chassis", 0, zeroed<sch_chassis_type>,
     [](void *record, const decoded_units *from) {
         return parser_retrieve_chassis_entity_data(static_cast<sch_chassis_type *>(record),
                                                    from == nullptr ? nullptr : &from->chassis);
     },
     [](void *record) {
         auto *chassis = static_cast<sch_chassis_type *>(record);
         inv_schema_free_power_info_data(&chassis->power_info);
         inv_schema_free_back_plane_data(&chassis->back_plane);
         inv_schema_free_container_data(&chassis->craft_interface_slot);
         inv_schema_free_container_list_data_list(chassis->container_list_list);
         inv_schema_free_led_data_list(chassis->led_list);
         inv_schema_free_container_data(&chassis->ecu_slot);
     },
     [](const void *record) {
         const auto &chassis = *static_cast<const sch_chassis_type *>(record);
         return length_of(chassis.container_list_list) + length_of(chassis.led_list) +
                length_of(chassis.power_info.power_zone_list) + length_of(chassis.back_plane.ideeprom_list) +
                length_of(chassis.back_plane.sensor_list);
     },
     [](const void *record) {
         return names_along_chain(static_cast<const sch_chassis_type *>(record)->back_plane.module_list);
     },
     "module  module ",
     [](void *record) { return &static_cast<sch_chassis_type *>(record)->back_plane.module_list; }},
    {"pem", 0, zeroed<sch_pem_type>,
     [](void *record, const decoded_units *from) {
         return parser_retrieve_pem_entity_data(static_cast<sch_pem_type *>(record),
                                                from == nullptr ? nullptr : &from->pem);
     },
     [](void *record) {
         inv_schema_free_module_data(&static_cast<sch_pem_type *>(record)->module);
         inv_schema_free_fan_data_list(static_cast<sch_pem_type *>(record)->fan_list);
     },
     [](const void *record) {
         const auto &pem = *static_cast<const sch_pem_type *>(record);
         return module_elements(pem.module) + length_of(pem.fan_list);
     },
     [](const void *record) {
         return names_along_next(static_cast<const sch_pem_type *>(record)->module.module_list);
     },
     "module ", nullptr},
    {"fan_tray", 0, zeroed<sch_fan_tray_type>,
     [](void *record, const decoded_units *from) {
         return parser_retrieve_fantray_entity_data(static_cast<sch_fan_tray_type *>(record),
                                                    from == nullptr ? nullptr : &from->tray);
     },
     [](void *record) {
         inv_schema_free_module_data(&static_cast<sch_fan_tray_type *>(record)->module);
         inv_schema_free_fan_data_list(static_cast<sch_fan_tray_type *>(record)->fan_list);
     },
     [](const void *record) {
         const auto &tray = *static_cast<const sch_fan_tray_type *>(record);
         return module_elements(tray.module) + length_of(tray.fan_list);
     },
     [](const void *record) {
         return names_along_next(static_cast<const sch_fan_tray_type *>(record)->module.module_list);
     },
     "module ", nullptr},
    {"power_shelf", 0, zeroed<sch_power_shelf_type>,
     [](void *record, const decoded_units *from) {
         return parser_retrieve_power_shelf_entity_data(static_cast<sch_power_shelf_type *>(record),
                                                        from == nullptr ? nullptr : &from->shelf);
     },
     [](void *record) {
         auto *shelf = static_cast<sch_power_shelf_type *>(record);
         inv_schema_free_power_info_data(&shelf->power_info);
         inv_schema_free_i2c_chip_data_list(shelf->i2c_chip_list);
         inv_schema_free_ideeprom_data_list(shelf->ideeprom_list);
         inv_schema_free_sensor_data_list(shelf->sensor_list);
         inv_schema_free_pem_bay_data_list(shelf->pem_bay_list);
         inv_schema_free_module_data(&shelf->module);
     },
     [](const void *record) {
         const auto &shelf = *static_cast<const sch_power_shelf_type *>(record);
         return module_elements(shelf.module) + length_of(shelf.i2c_chip_list) +
                length_of(shelf.ideeprom_list) + length_of(shelf.sensor_list) +
                length_of(shelf.pem_bay_list) + length_of(shelf.power_info.power_zone_list);
     },
     [](const void *record) {
         return names_along_next(&static_cast<const sch_power_shelf_type *>(record)->module);
     },
     "module ", nullptr},
    {"cxp_optics", 254, zeroed<sch_cxp_fixed_optics_type>,
     [](void *record, const decoded_units *from) {
         return parser_retrieve_cxp_fixed_optics_entity_data(static_cast<sch_cxp_fixed_optics_type *>(record),
                                                             from == nullptr ? nullptr : &from->optics);
     },
     [](void *record) {
         inv_schema_free_module_data(&static_cast<sch_cxp_fixed_optics_type *>(record)->module);
     },
     [](const void *record) {
         return module_elements(static_cast<const sch_cxp_fixed_optics_type *>(record)->module);
     },
     [](const void *record) {
         return names_along_next(static_cast<const sch_cxp_fixed_optics_type *>(record)->module.module_list);
     },
     "module ", nullptr},
    {"module", 242, zeroed<sch_module_type>,
     [](void *record, const decoded_units *from) {
         return parser_retrieve_base_module_entity_data(static_cast<sch_module_type *>(record),
                                                        from == nullptr ? nullptr : &from->card, nullptr);
     },
     [](void *record) { inv_schema_free_module_data(static_cast<sch_module_type *>(record)); },
     [](const void *record) { return module_elements(*static_cast<const sch_module_type *>(record)); },
     [](const void *record) {
         return names_along_next(static_cast<const sch_module_type *>(record)->module_list);
     },
     "module ", nullptr},
    {"back_plane", 208, zeroed<sch_back_plane_type>,
     [](void *record, const decoded_units *from) {
         return parser_retrieve_back_plane_data(static_cast<sch_back_plane_type *>(record),
                                                from == nullptr ? nullptr : &from->plane, nullptr);
     },
     [](void *record) { inv_schema_free_back_plane_data(static_cast<sch_back_plane_type *>(record)); },
     [](const void *record) {
         const auto &plane = *static_cast<const sch_back_plane_type *>(record);
         return length_of(plane.ideeprom_list) + length_of(plane.sensor_list);
     },
     [](const void *record) {
         return names_along_chain(static_cast<const sch_back_plane_type *>(record)->module_list);
     },
     "module  module ",
     [](void *record) { return &static_cast<sch_back_plane_type *>(record)->module_list; }},
};

class UnitBuilders : public CurrentFile, public testing::WithParamInterface<unit_case>
{
protected:
    void next_round()
    {
        take_down();
        parser_set_inv_file_instance(&handle);
        trace_recorder::clear();
    }

    const unit_case &unit = GetParam();
    decoded_units from;
};

INSTANTIATE_TEST_SUITE_P(All, UnitBuilders, testing::ValuesIn(units),
                         [](const auto &info) { return info.param.name; });

TEST_P(UnitBuilders, a_null_record_or_a_null_value_builds_nothing)
{
    std::shared_ptr<void> record = unit.new_record();
    EXPECT_EQ(unit.build(nullptr, &from), 0u);
    EXPECT_EQ(unit.build(record.get(), nullptr), 0u);
    EXPECT_EQ(unit.lists(record.get()), 0u);
    EXPECT_EQ(root_eid, nullptr);
    EXPECT_EQ(trace_recorder::ids(), unit.null_id == 0 ? id_list{} : id_list(2, unit.null_id));
    EXPECT_EQ(counting_memory::live(), live_before);
}

TEST_P(UnitBuilders, empty_lists_leave_all_heads_null)
{
    std::shared_ptr<void> record = unit.new_record();
    decoded_units empty;
    empty.plane.ext = {};
    empty.chassis = {};
    empty.shelf = {};
    for (BaseModuleType *module : {&empty.pem.base, &empty.tray.base, &empty.optics.base, &empty.card})
        module->ext = {};
    empty.pem.ext.fan = empty.tray.ext.fan = {};
    EXPECT_EQ(unit.build(record.get(), &empty), 0u);
    EXPECT_EQ(unit.lists(record.get()), 0u);
    unit.release(record.get());
}

TEST_P(UnitBuilders, a_second_call_on_the_same_record_appends_to_its_lists)
{
    std::shared_ptr<void> record = unit.new_record();
    EXPECT_EQ(unit.build(record.get(), &from), 0u);
    size_t once = unit.lists(record.get());
    EXPECT_GT(once, 0u);
    sch_module_type *replaced = unit.chain == nullptr ? nullptr : *unit.chain(record.get());
    if (unit.name == std::string("chassis")) {
        // Kept: so are the commands of a slot's sequence.
        auto *chassis = static_cast<sch_chassis_type *>(record.get());
        for (const sch_container_type *slot : {&chassis->ecu_slot, &chassis->craft_interface_slot})
            counting_memory::expect_left("replaced commands", slot->i2c_idprom.command_list);
    }
    EXPECT_EQ(unit.build(record.get(), &from), 0u);
    EXPECT_EQ(unit.lists(record.get()), 2 * once);
    // Kept: a back plane's chain is begun anew and the one before is nobody's.
    if (unit.chain != nullptr) {
        EXPECT_NE(*unit.chain(record.get()), replaced);
        inv_schema_free_module_data_list(replaced);
    }
    next_round();
    unit.release(record.get());
    counting_memory::release_left();
}

// A node that holds nothing, and one whose wrapper holds nothing, between two that do.
TEST_P(UnitBuilders, a_list_of_modules_with_an_empty_node_is_built_by_the_rule_of_its_unit)
{
    for (xb_choice *empty : {static_cast<xb_choice *>(nullptr), &from.nothing}) {
        decoded_list modules = {&from.module_choice, empty, &from.module_choice};
        from.plane.ext.module = from.chassis.backPlane.ext.module = from.shelf.module = from.card.ext.module =
            from.pem.base.ext.module = from.tray.base.ext.module = from.optics.base.ext.module = modules;
        std::shared_ptr<void> record = unit.new_record();
        EXPECT_EQ(unit.build(record.get(), &from), 0u);
        EXPECT_EQ(unit.modules(record.get()), unit.modules_around_an_empty_node);
        next_round();
        unit.release(record.get());
    }
}

TEST_P(UnitBuilders, every_request_may_fail)
{
    uint64_t n = 1;
    for (bool failed = true; failed; ++n) {
        SCOPED_TRACE(n);
        std::shared_ptr<void> record = unit.new_record();
        counting_memory::fail_at(n);
        uint32_t result = unit.build(record.get(), &from);
        failed = counting_memory::failed();
        counting_memory::reset();
        EXPECT_LE(result, failed ? 1u : 0u);
        next_round();
        unit.release(record.get());
        ASSERT_EQ(counting_memory::live(), live_before);
    }
    EXPECT_GT(n, 20u);
}

TEST_P(UnitBuilders, all_requests_from_any_one_on_may_fail)
{
    uint64_t n = 1;
    for (bool failed = true; failed; ++n) {
        SCOPED_TRACE(n);
        std::shared_ptr<void> record = unit.new_record();
        counting_memory::fail_at(n, true);
        unit.build(record.get(), &from);
        failed = counting_memory::failed();
        counting_memory::reset();
        next_round();
        unit.release(record.get());
        ASSERT_EQ(counting_memory::live(), live_before);
    }
}

using UnitReleases = CurrentFile;

TEST_F(UnitReleases, all_ignore_null)
{
    inv_schema_free_module_data(nullptr);
    inv_schema_free_module_data_list(nullptr);
    inv_schema_free_back_plane_data(nullptr);
    inv_schema_free_eid_chain_list(nullptr);
    inv_schema_free_base_entity_data(nullptr);
    for (auto *release :
         {inv_schema_free_chassis_data, inv_schema_free_pem_data, inv_schema_free_power_shelf_data,
          inv_schema_free_fan_tray_data, inv_schema_free_port_module_data, inv_schema_free_base_module_data})
        release(nullptr);
    EXPECT_EQ(counting_memory::live(), live_before);
    EXPECT_TRUE(trace_recorder::lines().empty());
}

}  // namespace
