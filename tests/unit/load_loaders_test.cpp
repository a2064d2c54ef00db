#include "load_world.h"

#include "frame/file_memory.h"
#include "frame/registry.h"
#include "inv_parser/loaders.h"
#include "inv_parser/tree_internal.h"
#include "load/document_kind.h"
#include "support/counting_memory.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"
#include "tree/current_file.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace load_world;
using inv::frame::xml_file_list_handle;
using testing::Contains;
using testing::ElementsAre;

bool is_module(const document_case &document)
{
    return &document == &module_document();
}

// The loader of a kind, called directly.
struct loader_case {
    const document_case &document;
    int32_t (*load)(inv_xml_handle *handle);
};

std::vector<loader_case> loaders()
{
    int32_t (*const all[])(inv_xml_handle *) = {
        parser_retrieve_chassis_data,     parser_retrieve_module_data,
        parser_retrieve_fantray_xml_data, parser_retrieve_powershelf_xml_data,
        parser_retrieve_pem_xml_data,     parser_retrieve_cxp_fixed_optics_xml_data,
    };
    std::vector<loader_case> cases;
    for (size_t i = 0; i < documents().size(); ++i)
        cases.push_back({documents()[i], all[i]});
    return cases;
}

// What an open file with an empty tree answers and leaves behind.
void expect_empty_tree(const fresh_library &library, inv_xml_handle *handle)
{
    EXPECT_EQ(handle->state, INV_HANDLE_PARSED);
    EXPECT_EQ(handle->file_count, 1);
    EXPECT_EQ(handle->root, nullptr);
    EXPECT_EQ(entity_count(handle), 0u);

    // The close frees nothing of the handle and the file can be registered again.
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(xml_file_list_handle, nullptr);
    EXPECT_EQ(counting_memory::mapped_octets(), 0u);
    EXPECT_EQ(library.live(), 1u);
    inv_xml_handle *again = inv_parser_get_xml_handle(0, 1, 1, "");
    EXPECT_NE(again, handle);
    EXPECT_STREQ(again->file_name, handle->file_name);
    library.release_kept(handle);
}

TEST(Load, a_document_of_five_kinds_that_cannot_be_decoded_opens_with_an_empty_tree)
{
    for (const document_case &each : documents()) {
        if (is_module(each))
            continue;
        for (const fault_case &fault : faults()) {
            SCOPED_TRACE(each.name + std::string(", ") + fault.name);
            fresh_library library;
            inv_xml_handle *handle = open_file(generations()[0], fault.file_for(each), each.pi_hw_type);
            ASSERT_NE(handle, nullptr);
            EXPECT_THAT(frame_ids(),
                        ElementsAre(15, 3, 18, each.start_id, each.decode_id, each.succeeded_id, 38));
            EXPECT_NE(each.record(), nullptr);
            EXPECT_EQ(handle->module_record, nullptr);
            expect_empty_tree(library, handle);
        }
    }
}

TEST(Load, a_module_document_that_cannot_be_decoded_fails_the_open_with_the_decoders_status)
{
    for (const fault_case &fault : faults()) {
        SCOPED_TRACE(fault.name);
        fresh_library library;
        EXPECT_EQ(open_file(generations()[0], fault.file_for(module_document()), 3), nullptr);
        EXPECT_THAT(frame_ids(), ElementsAre(15, 3, 18, 246, 249, 22));
        inv_xml_handle *handle = xml_file_list_handle;
        ASSERT_NE(handle, nullptr);
        EXPECT_EQ(handle->state, INV_HANDLE_REGISTERED);
        EXPECT_EQ(handle->file_count, 0);
        EXPECT_EQ(handle->root, nullptr);
        // What the loader built stays where it put it.
        EXPECT_NE(module_data, nullptr);
        EXPECT_EQ(handle->module_record, module_data);

        // The code is the same in both lines, and the loader's own result.
        int32_t code = parser_retrieve_module_data(handle);
        EXPECT_LT(code, 0);
        EXPECT_EQ(text_of_line(249), "Decode of XML file " + std::string(handle->file_name) +
                                         " failed: " + std::to_string(code) + " \n");
        EXPECT_EQ(text_of_line(22), "Parsing Module XML Failed. pi_hw_type 3, pd_hw_type 103, rc " +
                                        std::to_string(code) + " \n");
    }
}

TEST(Load, a_missing_chassis_file_opens_and_a_missing_module_file_does_not)
{
    fresh_library library;
    inv_xml_handle *handle = open_file(generations()[1], scratch_folder() + "/none.xml", 1);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(text_of_line(48), "Parsing Chassis XML Success. pi_hw_type 1, pd_hw_type 101, rc 0 \n");
    expect_empty_tree(library, handle);

    trace_recorder::clear();
    EXPECT_EQ(open_file(generations()[1], scratch_folder() + "/none.xml", 3), nullptr);
    EXPECT_THAT(frame_ids(), Contains(47));
}

TEST(Load, a_file_that_cannot_be_read_is_as_a_missing_one)
{
    for (const document_case &each : documents()) {
        SCOPED_TRACE(each.name);
        fresh_library library;
        // A folder has a name and no text.
        inv_xml_handle *handle = open_file(generations()[0], scratch_folder(), each.pi_hw_type);
        EXPECT_THAT(frame_ids(), Contains(each.decode_id));
        if (is_module(each))
            EXPECT_EQ(handle, nullptr);
        else
            expect_empty_tree(library, handle);
    }
}

TEST(Load, a_second_chassis_replaces_the_record_global_and_the_first_stays_with_its_handle)
{
    fresh_library library;
    inv_xml_handle *first = open_document(chassis_document());
    ASSERT_NE(first, nullptr);
    sch_chassis_type *record = chassis_data;
    std::string copy = scratch_file("second_chassis.xml", text_of(path_of(chassis_document())));
    inv_xml_handle *second = open_file(generations()[0], copy, 2);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_NE(chassis_data, record);
    EXPECT_EQ(first->root->record, &record->base);
    EXPECT_EQ(second->root->record, &chassis_data->base);
    EXPECT_STREQ(record->base.name, "Test chassis");

    inv_parser_close_xml_file(first);
    EXPECT_EQ(entity_count(second), chassis_document().entities);
    inv_parser_close_xml_file(second);
    EXPECT_EQ(library.live(), 0u);
}

TEST(Load, the_record_of_an_open_file_is_readable_until_the_close)
{
    fresh_library library;
    std::vector<inv_xml_handle *> open;
    for (const document_case &each : documents())
        open.push_back(open_document(each));
    for (size_t i = 0; i < open.size(); ++i) {
        SCOPED_TRACE(documents()[i].name);
        ASSERT_NE(open[i], nullptr);
        sch_eid_type *eid = nullptr;
        ASSERT_EQ(inv_parser_get_root_eid(open[i], &eid), 0u);
        sch_base_entity_type *entity = nullptr;
        ASSERT_EQ(inv_parser_get_eid_data(open[i], &entity, *eid), 0u);
        inv_parser_free_eid_tree(eid);
        EXPECT_EQ(static_cast<const void *>(entity), documents()[i].record());
        EXPECT_EQ(entity_count(open[i]), documents()[i].entities);
    }
    // First opened, first closed: the others are not touched.
    for (size_t i = 0; i < open.size(); ++i) {
        inv_parser_close_xml_file(open[i]);
        for (size_t k = i + 1; k < open.size(); ++k)
            EXPECT_EQ(entity_count(open[k]), documents()[k].entities);
    }
    EXPECT_EQ(library.live(), 0u);
}

TEST(Load, of_all_entities_each_is_answered_under_its_type_once)
{
    for (const document_case &each : documents()) {
        SCOPED_TRACE(each.name);
        fresh_library library;
        inv_xml_handle *handle = open_document(each);
        ASSERT_NE(handle, nullptr);
        uint32_t all = 0;
        for (uint8_t type = 0; type <= 12; ++type) {
            sch_eid_type *eids = nullptr;
            uint16_t count = 0;
            ASSERT_EQ(inv_parser_get_eid_by_type(handle, ORVL_ENTITY_OWNER_TYPE_ALL, type, &count, &eids),
                      0u);
            for (uint16_t i = 0; i < count; ++i) {
                sch_base_entity_type *entity = nullptr;
                ASSERT_EQ(inv_parser_get_eid_data(handle, &entity, eids[i]), 0u);
                EXPECT_EQ(entity->type, type);
            }
            inv_parser_free_eid_tree(eids);
            all += count;
        }
        EXPECT_EQ(all, each.entities);
    }
}

TEST(Load, a_module_documents_indexes_and_slot_lists_belong_to_its_handle)
{
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    ASSERT_NE(handle, nullptr);
    EXPECT_NE(handle->i2c_xml_inst_index, nullptr);
    EXPECT_NE(handle->pcie_xml_inst_index, nullptr);
    const uint32_t line_card = 6;
    ASSERT_NE(handle->i2c_cc_slot_lists[line_card], nullptr);
    EXPECT_EQ(handle->i2c_cc_slot_lists[line_card]->key, 3);
    EXPECT_EQ(handle->i2c_cc_slot_lists[line_card]->slot0_parent_instance, 10u);
    EXPECT_EQ(handle->i2c_cc_slot_lists[line_card]->slot0_channel, 1u);
}

TEST(Load, files_are_filed_under_no_handle_once_a_load_has_ended)
{
    for (const loader_case &each : loaders()) {
        SCOPED_TRACE(each.document.name);
        fresh_library library;
        open_document(each.document);
        EXPECT_EQ(inv::current_file(), nullptr);
        open_file(generations()[0], scratch_folder() + "/none.xml", each.document.pi_hw_type);
        EXPECT_EQ(inv::current_file(), nullptr);
    }
}

TEST(Load, a_null_handle_loads_nothing)
{
    fresh_library library;
    for (const loader_case &each : loaders())
        EXPECT_EQ(each.load(nullptr), 1) << each.document.name;
    EXPECT_TRUE(trace_recorder::lines().empty());
}

// Loads by the kind's own function, into a handle as the registry makes it.
inv_xml_handle *load_directly(const loader_case &each, const std::string &path)
{
    fake_platform::set_only_file_name(path.c_str());
    inv_xml_handle *handle = inv_parser_get_xml_handle(0, each.document.pi_hw_type, 0, "");
    EXPECT_EQ(each.load(handle), 0);
    handle->root = root_eid;
    handle->file_count = 1;
    return handle;
}

TEST(Load, what_a_kinds_own_function_has_loaded_is_known)
{
    for (const loader_case &each : loaders()) {
        SCOPED_TRACE(each.document.name);
        fresh_library library;
        root_eid = nullptr;
        inv_xml_handle *handle = load_directly(each, path_of(each.document));
        ASSERT_NE(handle->root, nullptr);
        EXPECT_EQ(inv::loaded_kind(handle),
                  static_cast<uint8_t>(inv::load::kind_of(each.document.pi_hw_type)));
        inv_parser_close_xml_file(handle);
        EXPECT_EQ(library.live(), 0u);
    }
}

constexpr auto loaded_module = static_cast<uint8_t>(inv::load::document_kind::module);
constexpr auto without_unit = static_cast<uint8_t>(inv::load::document_kind::without_unit);

TEST(Load, a_document_whose_entities_do_not_begin_the_tree_is_known_to_be_without_unit)
{
    fresh_library library;
    sch_base_entity_type record = {};
    eid_chain_node other = {};
    other.record = &record;
    root_eid = &other;
    const loader_case pem = loaders()[4];
    inv_xml_handle *handle = load_directly(pem, path_of(pem.document));
    EXPECT_EQ(inv::loaded_kind(handle), without_unit);
    root_eid = handle->root = nullptr;
    inv_parser_close_xml_file(handle);
    library.release_kept(handle);
}

// The record that a release would take for the new unit's is that of the old.
TEST(Load, a_direct_load_of_another_kind_into_an_open_file_lets_no_record_go_as_another_type)
{
    for (const loader_case &each : loaders()) {
        SCOPED_TRACE(each.document.name);
        fresh_library library;
        inv_xml_handle *handle = open_document(chassis_document());
        // As if it were the file's new contents.
        strncpy(handle->file_name, path_of(each.document).c_str(), sizeof handle->file_name - 1);
        root_eid = nullptr;
        EXPECT_EQ(each.load(handle), 0);
        EXPECT_EQ(inv::loaded_kind(handle), is_module(each.document) ? loaded_module : without_unit);
        // From here on releases look at each record.
        auto *by_hand = inv::record_new<sch_i2c_chip_type>();
        inv_parser_close_xml_file(handle);
        inv::record_free(by_hand);
        EXPECT_EQ(library.live(), 0u);
    }
}

TEST(Load, a_chassis_loaded_by_its_own_function_knows_the_way_to_the_idproms_of_its_slots)
{
    fresh_library library;
    const std::string path = INV_SOURCE_DIR "/inventories/chassis.xml";
    constexpr uint32_t line_card = 6;
    inv_xml_handle *handle = load_directly(loaders()[0], path);
    sch_i2c_access_seq_type *way = nullptr;
    EXPECT_EQ(inv_parser_get_container_list_i2c_idprom_access_info(handle, line_card, &way), 0u);
    ASSERT_NE(way, nullptr);
    EXPECT_GT(way->hop_count, 0);
    inv_parser_free_i2c_access_sequence(way);
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(library.live(), 0u);
}

TEST(Load, a_second_load_into_a_handle_keeps_what_the_first_has_built)
{
    fresh_library library;
    const loader_case module = loaders()[1];
    root_eid = nullptr;
    inv_xml_handle *handle = load_directly(module, path_of(module.document));
    const sch_module_type *first = module_data;
    const std::string name = first->base.name;
    EXPECT_FALSE(name.empty());
    root_eid = nullptr;
    EXPECT_EQ(module.load(handle), 0);
    EXPECT_NE(module_data, first);
    EXPECT_EQ(first->base.name, name);
    handle->root = root_eid;
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(library.live(), 0u);
}

TEST(Load, only_the_chassis_loader_clears_the_tree_being_built)
{
    eid_chain_node other = {};
    for (const loader_case &each : loaders()) {
        SCOPED_TRACE(each.document.name);
        fresh_library library;
        fake_platform::set_only_file_name((scratch_folder() + "/none.xml").c_str());
        inv_xml_handle *handle = inv_parser_get_xml_handle(0, each.document.pi_hw_type, 0, "");
        root_eid = &other;
        each.load(handle);
        EXPECT_EQ(root_eid == nullptr, &each.document == &chassis_document());
        root_eid = nullptr;
    }
}

TEST(Load, without_memory_for_the_record_the_open_fails_with_1)
{
    for (const loader_case &each : loaders()) {
        SCOPED_TRACE(each.document.name);
        fresh_library library;
        fake_platform::set_only_file_name(path_of(each.document).c_str());
        inv_xml_handle *handle = inv_parser_get_xml_handle(0, each.document.pi_hw_type, 0, "");
        trace_recorder::clear();
        counting_memory::fail_at(1);
        EXPECT_EQ(each.load(handle), 1);
        EXPECT_EQ(counting_memory::requests(), 1u);  // no context was made
        EXPECT_EQ(each.document.record(), nullptr);
        if (is_module(each.document))
            EXPECT_THAT(frame_ids(), ElementsAre(246, 247));
        else
            EXPECT_THAT(frame_ids(), ElementsAre(each.document.start_id));

        trace_recorder::clear();
        counting_memory::fail_at(1);
        EXPECT_EQ(generations()[0].open(each.document.pi_hw_type), nullptr);
        EXPECT_THAT(frame_ids(), Contains(each.document.failed_id));
        EXPECT_EQ(handle->state, INV_HANDLE_REGISTERED);
    }
}

TEST(Load, without_a_parser_context_the_load_fails_with_its_code)
{
    for (const loader_case &each : loaders()) {
        SCOPED_TRACE(each.document.name);
        fresh_library library;
        fake_platform::set_only_file_name(path_of(each.document).c_str());
        inv_xml_handle *handle = inv_parser_get_xml_handle(0, each.document.pi_hw_type, 0, "");
        // The request behind those of the record, which fail with 1.
        int32_t code = 1;
        for (uint64_t n = 1; code == 1 && n < 10; ++n) {
            trace_recorder::clear();
            counting_memory::fail_at(n);
            code = each.load(handle);
        }
        EXPECT_EQ(code, -10);
        EXPECT_NE(each.document.record(), nullptr);
        if (is_module(each.document))
            EXPECT_THAT(frame_ids(), ElementsAre(246, 248));
        else
            EXPECT_THAT(frame_ids(), ElementsAre(each.document.start_id));
        EXPECT_EQ(handle->root, nullptr);
    }
}

TEST(Load, the_memory_of_a_failed_load_serves_the_next_try)
{
    fresh_library library;
    std::string path = scratch_file("failing.xml", "<module/>");
    EXPECT_EQ(open_file(generations()[0], path, 3), nullptr);
    uint64_t live = library.live();
    uint64_t mapped = counting_memory::mapped_octets();
    EXPECT_GT(mapped, 0u);
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(generations()[0].open(3), nullptr);
    EXPECT_EQ(library.live(), live);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped);

    scratch_file("failing.xml", text_of(path_of(module_document())));
    inv_xml_handle *handle = generations()[0].open(3);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped);
    EXPECT_EQ(entity_count(handle), module_document().entities);
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(library.live(), 0u);
}

TEST(Load, a_failed_module_load_leaves_nothing_to_a_later_load_as_another_kind)
{
    fresh_library library;
    ASSERT_EQ(open_file(generations()[0], path_of(chassis_document()), 3), nullptr);
    ASSERT_NE(xml_file_list_handle->module_record, nullptr);
    inv_xml_handle *handle = generations()[0].open(1);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(handle->module_record, nullptr);
    EXPECT_EQ(entity_count(handle), chassis_document().entities);
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(library.live(), 0u);
}

}  // namespace
