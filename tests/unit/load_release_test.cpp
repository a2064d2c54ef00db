// The release functions on what belongs to an open file: they walk it and change not one octet of it.
#include "load_world.h"

#include "OrvelianInventorySchema.h"
#include "frame/side_records.h"
#include "inv_parser/loaders.h"
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/memory_guard.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>

namespace
{

using namespace load_world;

// Everything that a load has put into the file's memory.
std::string octets_of_file(const inv_xml_handle *handle)
{
    const inv::frame::side_record *side = inv::frame::find_side_record(handle);
    std::string octets;
    for (const inv::frame::chunk *list : {side->memory.first, side->memory.single}) {
        for (const inv::frame::chunk *each = list; each != nullptr; each = each->next) {
            inv::memory::permit(each, each->size);
            octets.append(reinterpret_cast<const char *>(each), each->size);
        }
    }
    return octets;
}

void release_unit(const document_case &document)
{
    switch (document.pi_hw_type) {
    case 1:
        inv_schema_free_back_plane_data(&chassis_data->back_plane);
        inv_schema_free_container_data(&chassis_data->ecu_slot);
        inv_schema_free_container_list_data_list(chassis_data->container_list_list);
        inv_schema_free_led_data_list(chassis_data->led_list);
        inv_schema_free_power_info_data(&chassis_data->power_info);
        break;
    case 3:
        inv_schema_free_module_data_list(module_data);
        break;
    case 7:
        inv_schema_free_fan_data_list(fantray_data->fan_list);
        inv_schema_free_module_data(&fantray_data->module);
        break;
    case 8:
        inv_schema_free_pem_bay_data_list(power_shelf_data->pem_bay_list);
        inv_schema_free_sensor_data_list(power_shelf_data->sensor_list);
        inv_schema_free_module_data(&power_shelf_data->module);
        break;
    case 9:
        inv_schema_free_fan_data_list(pem_data->fan_list);
        inv_schema_free_module_data(&pem_data->module);
        break;
    default:
        inv_schema_free_module_data(&cxp_data->module);
    }
}

TEST(Release, of_an_open_files_entity_tree_leaves_the_tree_as_it_was)
{
    for (const document_case &each : documents()) {
        SCOPED_TRACE(each.name);
        fresh_library library;
        inv_xml_handle *handle = open_document(each);
        ASSERT_NE(handle, nullptr);
        std::string before = octets_of_file(handle);
        inv_schema_free_eid_chain_list(handle->root);
        EXPECT_TRUE(octets_of_file(handle) == before) << "nodes were relinked or cleared";
        EXPECT_EQ(entity_count(handle), each.entities);
        inv_parser_close_xml_file(handle);
        EXPECT_EQ(library.live(), 0u);
    }
}

TEST(Release, of_an_open_files_records_gives_nothing_back_and_changes_nothing)
{
    for (const document_case &each : documents()) {
        SCOPED_TRACE(each.name);
        fresh_library library;
        inv_xml_handle *handle = open_document(each);
        ASSERT_NE(handle, nullptr);
        uint64_t live = library.live();
        std::string before = octets_of_file(handle);
        release_unit(each);
        inv_schema_free_base_entity_data(handle->root->record);
        EXPECT_TRUE(octets_of_file(handle) == before);
        EXPECT_EQ(library.live(), live);
        inv_parser_close_xml_file(handle);
        EXPECT_EQ(library.live(), 0u);
    }
}

// The kind that a release function names does not make a record one of that kind: what was loaded as
// another goes with its file and is not looked into.
TEST(Release, of_a_result_that_was_loaded_as_another_kind_does_not_take_its_record_for_one_of_its_own)
{
    constexpr void (*releases[])(inv_xml_handle *) = {
        inv_schema_free_chassis_data, inv_schema_free_fan_tray_data,    inv_schema_free_power_shelf_data,
        inv_schema_free_pem_data,     inv_schema_free_port_module_data, inv_schema_free_base_module_data,
    };
    for (const document_case &each : documents()) {
        for (auto *release : releases) {
            SCOPED_TRACE(each.name);
            fresh_library library;
            inv_xml_handle *handle = open_document(each);
            ASSERT_NE(handle, nullptr);
            inv_schema_update_the_xml_handle_list(handle);
            parser_avl_delete_inst_tree(&handle->i2c_xml_inst_index, parser_xml_inst_compare);
            parser_avl_delete_inst_tree(&handle->pcie_xml_inst_index, parser_xml_inst_compare);
            release(handle);
            root_eid = nullptr;
            EXPECT_EQ(library.live(), 0u);
        }
    }
}

// What a client has hung into an open file's tree by a direct call comes from the heap and goes with the
// close, whose walk meets it among the file's own nodes.
TEST(Release, at_the_close_reaches_a_node_that_a_client_hung_into_the_files_tree)
{
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    ASSERT_NE(handle, nullptr);
    uint64_t live = library.live();
    sch_base_entity_type mine = {};
    parser_update_eid_chain(&mine, root_eid->first_child->record);
    EXPECT_EQ(library.live(), live + 1);
    EXPECT_EQ(entity_count(handle), module_document().entities + 1);
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(library.live(), 0u);
}

// The close walks no records when none can be the heap's; what is looked at here is that it notices.
TEST(Release, at_the_close_reaches_a_record_that_a_client_built_into_a_files_list)
{
    fresh_library library;
    inv_xml_handle *first = open_document(module_document());
    ASSERT_NE(first, nullptr);
    uint64_t live = library.live();
    const std::string text = "mine";
    BaseLEDType decoded;
    Init_BaseLEDType(&decoded);
    decoded.base.name = text.c_str();
    xb_data_node element = {};
    element.data = &decoded;
    xb_data_list list = {};
    list.count = 1;
    list.head = list.tail = &element;
    root_eid = first->root;
    parser_retrieve_base_led_data_list(&module_data->led_list, &list, &module_data->base);
    // The record and its node in the tree.
    EXPECT_EQ(library.live(), live + 2);
    EXPECT_EQ(entity_count(first), module_document().entities + 1);
    inv_parser_close_xml_file(first);
    EXPECT_EQ(library.live(), 0u);
}

// Two files, one of them with a client's node: each goes as a whole, whichever is closed first.
TEST(Release, of_one_file_does_not_depend_on_what_hangs_in_another)
{
    for (bool is_hung_in_first : {false, true}) {
        fresh_library library;
        inv_xml_handle *first = open_document(module_document());
        inv_xml_handle *second = open_document(chassis_document());
        ASSERT_NE(first, nullptr);
        ASSERT_NE(second, nullptr);
        sch_base_entity_type mine = {};
        root_eid = is_hung_in_first ? first->root : second->root;
        parser_update_eid_chain(&mine, root_eid->record);
        inv_parser_close_xml_file(first);
        EXPECT_EQ(entity_count(second), chassis_document().entities + (is_hung_in_first ? 0 : 1));
        inv_parser_close_xml_file(second);
        EXPECT_EQ(library.live(), 0u);
    }
}

}  // namespace
