// Whole units built by direct calls and released again, drawn at random from the schema: what the contract
// leaves behind is counted block by block under the name of the rule that leaves it, and nothing else is.
#include "frame/file_memory.h"
#include "inv_parser/unit_records.h"
#include "support/current_file_fixture.h"
#include "support/document_generator.h"
#include "unit/decode_support.h"

#include <set>

namespace
{

using inv_testing::document_kind;

constexpr const char *spi_port_tag = "SPI ports", *signal_tag = "commands of hw_signals",
                     *fan_sensor_tag = "ports of a fan's sensor", *ecu_slot_tag = "ECU slot",
                     *port_container_tag = "container of a port",
                     *replaced_children_tag = "children of a back plane's modules";

template <class Record>
void leave_list(const char *tag, const Record *list)
{
    for (; list != nullptr; list = list->next)
        counting_memory::expect_left(tag, list);
}

// The I2C and PCIe ports of an entity that no release reaches.
void leave_ports(const char *tag, const sch_base_entity_type &entity)
{
    leave_list(tag, entity.i2c_port_list);
    for (const auto *port = entity.i2c_port_list; port != nullptr; port = port->next)
        leave_list(tag, port->dest_list);
    leave_list(tag, entity.pcie_port_list);
    for (const auto *port = entity.pcie_port_list; port != nullptr; port = port->next)
        leave_list(tag, port->dest_list);
}

void leave_container(const char *tag, const sch_container_type &container)
{
    leave_ports(tag, container.base);
    leave_list(tag, container.i2c_idprom.command_list);
}

// What every entity leaves: the tree knows all of them.
void leave_of_entities(const eid_chain_node *node)
{
    for (; node != nullptr; node = node->next_sibling) {
        const sch_base_entity_type &entity = *node->record;
        leave_list(spi_port_tag, entity.spi_port_list);
        for (const auto *port = entity.spi_port_list; port != nullptr; port = port->next)
            leave_list(spi_port_tag, port->dest_list);
        leave_list(signal_tag, entity.hw_signals.i2c_path.command_list);
        leave_of_entities(node->first_child);
    }
}

void leave_of_modules(const sch_module_type *module)
{
    for (; module != nullptr; module = module->next) {
        for (const auto *port = module->port_list; port != nullptr; port = port->next)
            leave_container(port_container_tag, port->container);
        for (const auto *console = module->console_list; console != nullptr; console = console->next)
            leave_container(port_container_tag, console->port.container);
        leave_of_modules(module->module_list);
    }
}

void leave_of_fans(const sch_fan_type *fan)
{
    for (; fan != nullptr; fan = fan->next)
        leave_ports(fan_sensor_tag, fan->sensor.base);
}

// The records that hang in a module's own component lists.
std::set<const void *> components_of(const sch_module_type &module)
{
    std::set<const void *> found;
    auto add = [&](const auto *list) {
        for (; list != nullptr; list = list->next)
            found.insert(list);
    };
    add(module.fpga_list), add(module.i2c_chip_list), add(module.pcie_switch_list), add(module.sensor_list);
    add(module.volt_margin_list), add(module.spi_flash_list), add(module.storage_list);
    add(module.processor_list), add(module.memory_list), add(module.ce_switch_list), add(module.kesto_list);
    add(module.console_list), add(module.container_list), add(module.ideeprom_list), add(module.port_list);
    add(module.led_list);
    return found;
}

// The child modules that a back plane's chain has replaced: only the entity tree still knows them. Each
// result heads a list.
std::vector<sch_module_type *> replaced_children(const sch_back_plane_type &plane)
{
    std::vector<sch_module_type *> lists;
    const eid_chain_node *plane_node =
        parser_find_parent_node(const_cast<sch_base_entity_type *>(&plane.base), root_eid);
    for (const sch_module_type *each = plane.module_list; each != nullptr; each = each->module_list) {
        eid_chain_node *node =
            parser_find_parent_node(const_cast<sch_base_entity_type *>(&each->base), root_eid);
        if (node == nullptr || node->parent != plane_node)
            break;
        std::set<const void *> components = components_of(*each);
        for (const eid_chain_node *child = node->first_child; child != nullptr; child = child->next_sibling) {
            if (components.contains(child->record))
                continue;
            auto *first = reinterpret_cast<sch_module_type *>(child->record);
            if (first != each->module_list)
                lists.push_back(first);
            break;
        }
    }
    return lists;
}

// Releases a unit that is in the fixture's tree and compares what stays with what the test has named.
class released_unit
{
public:
    released_unit(void *record, uint64_t live_before) : live_before(live_before)
    {
        leave_of_entities(root_eid);
        result = inv::record_new<inv_xml_handle>();
        result->root = root_eid;
        EXPECT_EQ(static_cast<void *>(root_eid->record), record);
    }

    template <class Release, class TakeDown>
    void release(Release release_result, TakeDown take_down, const std::vector<sch_module_type *> &replaced)
    {
        left = counting_memory::left_by_tag();
        root_eid = nullptr;
        release_result(result);
        take_down();
        for (sch_module_type *list : replaced)
            inv_schema_free_module_data_list(list);
        EXPECT_EQ(counting_memory::left_by_tag(), left) << "something of it was released";
        uint64_t expected = 0;
        for (const auto &[tag, count] : left)
            expected += count;
        EXPECT_EQ(counting_memory::live() - live_before, expected);
        counting_memory::release_left();
    }

    inv_xml_handle *result = nullptr;
    std::map<std::string, uint64_t> left;

private:
    uint64_t live_before;
};

class RandomUnits : public CurrentFile
{
protected:
    // Builds from drawn documents, names what the kind leaves, releases. Goes on until every rule in `tags`
    // has left something at least once; no other may.
    template <class Document, class Record, class Build, class Leave, class Release>
    void run(document_kind kind, Build build, Leave leave, Release release, const std::set<std::string> &tags)
    {
        std::set<std::string> met;
        for (uint64_t seed = 1; seed <= rounds || (met != tags && seed <= most_rounds); ++seed) {
            SCOPED_TRACE(seed);
            Document document(inv_testing::random_document(seed, kind));
            ASSERT_EQ(document.status, 0);
            uint64_t live = counting_memory::live();
            parser_set_inv_file_instance(&handle);
            auto *record = inv::record_new<Record>();
            build(record, document.record);
            ASSERT_NE(root_eid, nullptr);
            released_unit unit(record, live);
            std::vector<sch_module_type *> replaced = leave(record);
            if constexpr (std::is_same_v<Record, sch_module_type>)
                unit.result->module_record = record;
            unit.release(
                release, [this] { take_down(); }, replaced);
            for (const auto &[tag, count] : unit.left)
                met.insert(tag);
            if (!replaced.empty())
                met.insert(replaced_children_tag);
            trace_recorder::clear();
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_EQ(met, tags);
    }

    static constexpr uint64_t rounds = 300, most_rounds = 20000;
};

TEST_F(RandomUnits, a_chassis_leaves_what_the_contract_names)
{
    run<decode_test::chassis_document, sch_chassis_type>(
        document_kind::chassis,
        [](sch_chassis_type *record, const ChassisEntityType &from) {
            parser_retrieve_base_entity_data(&record->base, &from.base, nullptr);
            parser_retrieve_chassis_entity_data(record, &from.ext);
        },
        [](sch_chassis_type *record) {
            leave_container(ecu_slot_tag, record->ecu_slot);
            leave_of_modules(record->back_plane.module_list);
            std::vector<sch_module_type *> replaced = replaced_children(record->back_plane);
            for (const sch_module_type *list : replaced)
                leave_of_modules(list);
            return replaced;
        },
        inv_schema_free_chassis_data,
        {spi_port_tag, signal_tag, ecu_slot_tag, port_container_tag, replaced_children_tag});
}

TEST_F(RandomUnits, a_module_leaves_what_the_contract_names)
{
    run<decode_test::module_document, sch_module_type>(
        document_kind::module,
        [](sch_module_type *record, const xb_choice &from) {
            parser_retrieve_base_module_entity_data(record, static_cast<const BaseModuleType *>(from.value),
                                                    nullptr);
        },
        [](sch_module_type *record) {
            leave_of_modules(record);
            return std::vector<sch_module_type *>();
        },
        inv_schema_free_base_module_data, {spi_port_tag, signal_tag, port_container_tag});
}

template <class Record>
std::vector<sch_module_type *> leave_of_module_with_fans(Record *record)
{
    leave_of_modules(&record->module);
    leave_of_fans(record->fan_list);
    return {};
}

TEST_F(RandomUnits, a_pem_leaves_what_the_contract_names)
{
    run<decode_test::pem_document, sch_pem_type>(
        document_kind::pem,
        [](sch_pem_type *record, const PEMType &from) { parser_retrieve_pem_entity_data(record, &from); },
        leave_of_module_with_fans<sch_pem_type>, inv_schema_free_pem_data,
        {spi_port_tag, signal_tag, port_container_tag, fan_sensor_tag});
}

TEST_F(RandomUnits, a_fan_tray_leaves_what_the_contract_names)
{
    run<decode_test::fan_tray_document, sch_fan_tray_type>(
        document_kind::fan_tray,
        [](sch_fan_tray_type *record, const FanTrayType &from) {
            parser_retrieve_fantray_entity_data(record, &from);
        },
        leave_of_module_with_fans<sch_fan_tray_type>, inv_schema_free_fan_tray_data,
        {spi_port_tag, signal_tag, port_container_tag, fan_sensor_tag});
}

TEST_F(RandomUnits, a_power_shelf_leaves_what_the_contract_names)
{
    run<decode_test::shelf_document, sch_power_shelf_type>(
        document_kind::power_shelf,
        [](sch_power_shelf_type *record, const PowerShelfType &from) {
            parser_retrieve_base_entity_data(&record->base, &from.base, nullptr);
            parser_retrieve_power_shelf_entity_data(record, &from.ext);
        },
        [](sch_power_shelf_type *record) {
            leave_of_modules(&record->module);
            return std::vector<sch_module_type *>();
        },
        inv_schema_free_power_shelf_data, {spi_port_tag, signal_tag, port_container_tag});
}

TEST_F(RandomUnits, optics_leave_what_the_contract_names)
{
    run<decode_test::optics_document, sch_cxp_fixed_optics_type>(
        document_kind::optics,
        [](sch_cxp_fixed_optics_type *record, const OpticsType &from) {
            parser_retrieve_cxp_fixed_optics_entity_data(record, &from);
        },
        [](sch_cxp_fixed_optics_type *record) {
            leave_of_modules(&record->module);
            return std::vector<sch_module_type *>();
        },
        inv_schema_free_port_module_data, {spi_port_tag, signal_tag, port_container_tag});
}

}  // namespace
