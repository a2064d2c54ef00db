#include "inv_parser/tree_internal.h"

#include "frame/file_memory.h"
#include "inv_platform/avl.h"
#include "support/counting_memory.h"
#include "tree/current_file.h"
#include "unit/tree_samples.h"

#include <gtest/gtest.h>

#include <array>

using namespace tree_samples;

namespace
{

// root {3,0,0} ─ {9,1,1} ─ {8,2,1}
//              └ {9,257,2}          (the low octet of its subtype is 1)
//              └ {8,2,2}
class Walks : public testing::Test
{
protected:
    void SetUp() override
    {
        root = tree.add(nullptr, {3, 0, 0});
        eid_chain_node *card = tree.add(root, {9, 1, 1});
        tree.add(card, {8, 2, 1});
        tree.add(root, {9, 257, 2});
        tree.add(root, {8, 2, 2});
        root_eid = root;
        global_eid_count = 0;
        global_tmp_count = 0;
        global_eid = results.data();
    }

    void TearDown() override
    {
        root_eid = nullptr;
        global_eid = nullptr;
        global_eid_count = global_tmp_count = 0;
    }

    // Instances of the entities that the fill walk wrote.
    std::vector<int> filled()
    {
        std::vector<int> found;
        for (int i = 0; i < global_tmp_count; ++i)
            found.push_back(
                results[static_cast<size_t>(i)].levels[results[static_cast<size_t>(i)].depth - 1].instance);
        return found;
    }

    sample tree;
    eid_chain_node *root = nullptr;
    std::array<sch_eid_type, 16> results = {};
};

using instances = std::vector<int>;

TEST_F(Walks, over_all_count_and_fill_in_preorder)
{
    EXPECT_EQ(0u, parser_get_child_eid_count(root));
    EXPECT_EQ(5, global_eid_count);
    EXPECT_EQ(0u, parser_get_child_eids(root));
    EXPECT_EQ((instances{0, 1, 1, 2, 2}), filled());
    EXPECT_TRUE(same_eid(eid_of({{3, 0, 0}, {9, 1, 1}, {8, 2, 1}}), results[2]));
}

TEST_F(Walks, by_type_take_the_whole_argument)
{
    EXPECT_EQ(0u, parser_get_eid_count_with_type(root, 9));
    EXPECT_EQ(0u, parser_get_eid_with_type(root, 9));
    EXPECT_EQ(2, global_eid_count);
    EXPECT_EQ((instances{1, 2}), filled());
    parser_get_eid_count_with_type(root, 256 + 9);
    EXPECT_EQ(2, global_eid_count);
}

TEST_F(Walks, by_subtype_compare_the_low_octet_of_the_argument_with_all_of_the_records)
{
    for (uint32_t argument : {1u, 257u, 0xFFFF01u}) {
        global_eid_count = global_tmp_count = 0;
        EXPECT_EQ(0u, parser_get_eid_count_with_type_subtype(root, 9, argument));
        EXPECT_EQ(0u, parser_get_eid_with_type_subtype(root, 9, argument));
        EXPECT_EQ(1, global_eid_count);
        EXPECT_EQ((instances{1}), filled());
    }
}

TEST_F(Walks, start_from_what_the_globals_hold)
{
    global_eid_count = 65534;
    parser_get_child_eid_count(root);
    EXPECT_EQ(3, global_eid_count);
    global_tmp_count = 2;
    parser_get_eid_with_type(root, 3);
    EXPECT_EQ(3, global_tmp_count);
    EXPECT_EQ(0, results[0].depth);
    EXPECT_EQ(1, results[2].depth);
}

TEST_F(Walks, that_fill_do_nothing_without_an_array)
{
    global_eid = nullptr;
    EXPECT_EQ(0u, parser_get_child_eids(root));
    EXPECT_EQ(0u, parser_get_eid_with_type(root, 9));
    EXPECT_EQ(0u, parser_get_eid_with_type_subtype(root, 9, 1));
    EXPECT_EQ(0, global_tmp_count);
}

TEST_F(Walks, over_nothing_find_nothing)
{
    EXPECT_EQ(0u, parser_get_child_eid_count(nullptr));
    EXPECT_EQ(0u, parser_get_child_eids(nullptr));
    EXPECT_EQ(0, global_eid_count);
    EXPECT_EQ(0, global_tmp_count);
}

TEST_F(Walks, skip_nodes_without_record_when_they_ask_for_a_type)
{
    root->record = nullptr;
    parser_get_eid_count_with_type(root, 0);
    EXPECT_EQ(0, global_eid_count);
    parser_get_child_eid_count(root);
    EXPECT_EQ(5, global_eid_count);
}

TEST_F(Walks, that_print_nothing_touch_no_memory)
{
    auto *nowhere = reinterpret_cast<eid_chain_node *>(uintptr_t{0x10});
    EXPECT_EQ(0u, parser_display_parent_child(nowhere));
    EXPECT_EQ(0u, parser_display_parent_child(nullptr));
    global_eid = reinterpret_cast<sch_eid_type *>(uintptr_t{0x10});
    global_eid_count = 4711;
    EXPECT_EQ(4711, parser_display_global_eid_info());
}

TEST_F(Walks, of_the_chain_prints_the_root_without_its_parent_and_siblings_with_theirs)
{
    root->parent = reinterpret_cast<eid_chain_node *>(uintptr_t{0x10});
    eid_chain_node *sibling = tree.add(nullptr, {5, 260, 65535});
    sibling->parent = root->first_child;
    tree.add(nullptr, {6, 7, 8});
    testing::internal::CaptureStdout();
    parser_display_eid_chain();
    fflush(stdout);
    EXPECT_EQ("eid.type 3\neid.subtype 0\neid.instance 0\n&*&*&*&*&*&*&\n"
              "parent_eid.type 9\nparent_eid.subtype 1\nparent_eid.instance 1\n"
              "eid.type 5\neid.subtype 260\neid.instance 65535\n&*&*&*&*&*&*&\n"
              "eid.type 6\neid.subtype 7\neid.instance 8\n&*&*&*&*&*&*&\n",
              testing::internal::GetCapturedStdout());
}

TEST_F(Walks, of_the_chain_leave_out_nodes_without_record)
{
    eid_chain_node *sibling = tree.add(nullptr, {5, 260, 65535});
    sibling->parent = root;
    root->record = nullptr;
    testing::internal::CaptureStdout();
    parser_display_eid_chain();
    fflush(stdout);
    EXPECT_EQ("&*&*&*&*&*&*&\neid.type 5\neid.subtype 260\neid.instance 65535\n&*&*&*&*&*&*&\n",
              testing::internal::GetCapturedStdout());
}

TEST_F(Walks, of_an_empty_chain_prints_nothing)
{
    root_eid = nullptr;
    testing::internal::CaptureStdout();
    parser_display_eid_chain();
    fflush(stdout);
    EXPECT_EQ("", testing::internal::GetCapturedStdout());
}

TEST(TreeData, unit_roots_are_null)
{
    for (eid_chain_node *each :
         {chassis_root, lc_root, rp_root, fc_root, fantray_root, pem_root, powershelf_root})
        EXPECT_EQ(nullptr, each);
}

TEST(CurrentFile, is_what_was_set_last)
{
    inv_xml_handle handle = {};
    parser_set_inv_file_instance(&handle);
    EXPECT_EQ(&handle, inv::current_file());
    parser_set_inv_file_instance(nullptr);
    EXPECT_EQ(nullptr, inv::current_file());
}

TEST(CurrentFile, the_chain_list_is_what_was_set_last_and_is_handed_back)
{
    inv::xml_instance_chain_entry entry = {};
    EXPECT_EQ(&entry, parser_set_xml_instance_chain_list(&entry));
    EXPECT_EQ(&entry, inv::xml_instance_chain_list());
    EXPECT_EQ(nullptr, parser_set_xml_instance_chain_list(nullptr));
    EXPECT_EQ(nullptr, inv::xml_instance_chain_list());
}

TEST(SlotLists, are_appended_to_and_searched_by_the_low_16_bits_of_the_key)
{
    std::array<sch_cc_slot_xml_inst_type *, INV_CC_SLOT_LIST_COUNT> heads = {};
    std::array<sch_cc_slot_xml_inst_type, 3> records = {};
    const uint16_t keys[] = {5, 6, 5};
    for (size_t i = 0; i < records.size(); ++i) {
        records[i].key = keys[i];
        EXPECT_EQ(1u, parser_insert_cc_slot_xml_inst(heads.data(), 20, &records[i]));
    }
    EXPECT_EQ(&records[0], heads[20]);
    EXPECT_EQ(&records[1], records[0].next);
    EXPECT_EQ(&records[2], records[1].next);
    EXPECT_EQ(&records[0], parser_verify_is_slot_xml_inst_available(heads[20], 5, 0));
    EXPECT_EQ(&records[1], parser_verify_is_slot_xml_inst_available(heads[20], 0x70006, 99));
    EXPECT_EQ(nullptr, parser_verify_is_slot_xml_inst_available(heads[20], 7, 0));
    EXPECT_EQ(nullptr, parser_verify_is_slot_xml_inst_available(nullptr, 5, 0));
}

TEST(SlotLists, take_no_index_above_20)
{
    std::array<sch_cc_slot_xml_inst_type *, INV_CC_SLOT_LIST_COUNT + 1> heads = {};
    sch_cc_slot_xml_inst_type record = {};
    for (uint32_t index : {21u, 22u, UINT32_MAX})
        EXPECT_EQ(1u, parser_insert_cc_slot_xml_inst(heads.data(), index, &record));
    EXPECT_EQ(1u, parser_insert_cc_slot_xml_inst(nullptr, 0, &record));
    for (sch_cc_slot_xml_inst_type *each : heads)
        EXPECT_EQ(nullptr, each);
}

TEST(SlotLists, are_freed_all_21)
{
    uint64_t live = counting_memory::live();
    std::array<sch_cc_slot_xml_inst_type *, INV_CC_SLOT_LIST_COUNT> heads = {};
    for (uint32_t i = 0; i < 60; ++i)
        parser_insert_cc_slot_xml_inst(heads.data(), i % INV_CC_SLOT_LIST_COUNT,
                                       inv::record_new<sch_cc_slot_xml_inst_type>());
    EXPECT_EQ(live + 60, counting_memory::live());
    parser_free_cc_slot_xml_inst(heads.data());
    EXPECT_EQ(live, counting_memory::live());
    for (sch_cc_slot_xml_inst_type *each : heads)
        EXPECT_EQ(nullptr, each);
    parser_free_cc_slot_xml_inst(nullptr);
}

TEST(XmlInstanceIndex, orders_keys_as_unsigned_32_bit_numbers)
{
    struct {
        uint32_t a, b;
        int32_t expected;
    } cases[] = {{1, 2, 0}, {2, 2, 1}, {3, 2, 2}, {0, UINT32_MAX, 0}, {0x80000000u, 1, 2}};
    for (const auto &each : cases) {
        sch_xml_inst_node_type a = {};
        sch_xml_inst_node_type b = {};
        a.xml_instance = each.a;
        b.xml_instance = each.b;
        EXPECT_EQ(each.expected, parser_xml_inst_compare(&a, &b)) << each.a << ' ' << each.b;
    }
}

TEST(XmlInstanceIndex, is_emptied_and_its_nodes_freed)
{
    uint64_t live = counting_memory::live();
    avl_root index = nullptr;
    for (uint32_t i = 0; i < 100; ++i) {
        auto *node = inv::record_new<sch_xml_inst_node_type>();
        node->xml_instance = i * 37 % 101;
        ASSERT_EQ(node, avl_insert(&index, node, parser_xml_inst_compare, 0));
    }
    parser_avl_delete_inst_tree(&index, parser_xml_inst_compare);
    EXPECT_EQ(nullptr, index);
    EXPECT_EQ(live, counting_memory::live());
    parser_avl_delete_inst_tree(&index, parser_xml_inst_compare);
    parser_avl_delete_inst_tree(nullptr, parser_xml_inst_compare);
}

int32_t never_equal(const void *, const void *)
{
    return 2;
}

TEST(XmlInstanceIndex, deleting_stops_when_a_node_cannot_be_taken_out)
{
    avl_root index = nullptr;
    sch_xml_inst_node_type node = {};
    ASSERT_EQ(&node, avl_insert(&index, &node, parser_xml_inst_compare, 0));
    parser_avl_delete_inst_tree(&index, never_equal);
    EXPECT_EQ(&node, avl_get_first(&index));
    EXPECT_EQ(&node, avl_delete(&index, &node, parser_xml_inst_compare, 0));
}

}  // namespace
