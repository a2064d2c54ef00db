// The table beside a file's xml-instance indexes: what it knows, and when it is no longer believed.
#include "tree/instance_table.h"

#include "frame/file_memory.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"
#include "inv_platform/system_memory.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using namespace inv;

class InstanceTable : public testing::Test
{
protected:
    void SetUp() override
    {
        counting_memory::reset();
        ASSERT_TRUE(frame::add_side_record(&handle));
        begin_instance_table(&handle);
    }
    void TearDown() override
    {
        counting_memory::reset();
        release_file_memory(&handle);
        EXPECT_EQ(counting_memory::live(), live_before);
    }
    void file(bus which, sch_xml_inst_node_type *node)
    {
        ASSERT_NE(avl_insert(index_tree(&handle, which), node, parser_xml_inst_compare, 0), nullptr);
        enter_instance(instance_table_of(&handle), which, node);
    }

    uint64_t live_before = counting_memory::live();
    inv_xml_handle handle = {};
};

TEST_F(InstanceTable, finds_every_instance_in_the_index_it_was_filed_in_only)
{
    std::vector<sch_xml_inst_node_type> nodes(UINT16_MAX + 1);
    for (uint32_t i = 0; i <= UINT16_MAX; ++i) {
        nodes[i].xml_instance = i;
        enter_instance(instance_table_of(&handle), i % 3 == 0 ? bus::pcie : bus::i2c, &nodes[i]);
    }
    const instance_table *table = instance_table_of(&handle);
    for (uint32_t i = 0; i <= UINT16_MAX; ++i) {
        ASSERT_EQ(find_instance(table, bus::i2c, i), i % 3 == 0 ? nullptr : &nodes[i]);
        ASSERT_EQ(find_instance(table, bus::pcie, i), i % 3 == 0 ? &nodes[i] : nullptr);
        ASSERT_TRUE(knows_instance(table, i));
    }
}

TEST_F(InstanceTable, leaves_instances_beyond_16_bits_to_the_tree)
{
    sch_xml_inst_node_type node = {};
    node.xml_instance = UINT16_MAX + 1;
    enter_instance(instance_table_of(&handle), bus::i2c, &node);
    EXPECT_EQ(find_instance(instance_table_of(&handle), bus::i2c, UINT16_MAX + 1), nullptr);
    EXPECT_EQ(find_instance(instance_table_of(&handle), bus::i2c, 0), nullptr);
    EXPECT_FALSE(knows_instance(instance_table_of(&handle), UINT16_MAX + 1));
}

TEST_F(InstanceTable, is_not_complete_after_a_node_for_which_there_was_no_memory)
{
    sch_xml_inst_node_type node = {};
    counting_memory::fail_at(1);
    enter_instance(instance_table_of(&handle), bus::i2c, &node);
    EXPECT_EQ(find_instance(instance_table_of(&handle), bus::i2c, 0), nullptr);
    EXPECT_FALSE(knows_instance(instance_table_of(&handle), 0));
}

TEST_F(InstanceTable, serves_no_longer_once_an_index_was_emptied)
{
    auto *node = static_cast<sch_xml_inst_node_type *>(record_request(sizeof(sch_xml_inst_node_type)));
    ASSERT_NE(node, nullptr);
    file(bus::i2c, node);
    EXPECT_EQ(find_instance(instance_table_of(&handle), bus::i2c, 0), node);
    parser_avl_delete_inst_tree(&handle.pcie_xml_inst_index, parser_xml_inst_compare);
    EXPECT_NE(instance_table_of(&handle), nullptr) << "an empty index loses nothing";
    parser_avl_delete_inst_tree(&handle.i2c_xml_inst_index, parser_xml_inst_compare);
    EXPECT_EQ(instance_table_of(&handle), nullptr);
}

TEST_F(InstanceTable, serves_on_when_the_nodes_of_another_file_go)
{
    inv_xml_handle other = {};
    ASSERT_TRUE(frame::add_side_record(&other));
    begin_instance_table(&other);
    auto *node = static_cast<sch_xml_inst_node_type *>(memory::request(sizeof(sch_xml_inst_node_type)));
    ASSERT_NE(avl_insert(index_tree(&other, bus::i2c), node, parser_xml_inst_compare, 0), nullptr);
    enter_instance(instance_table_of(&other), bus::i2c, node);
    drop_instance_table(&other);
    EXPECT_EQ(instance_table_of(&other), nullptr);
    empty_instance_index(index_tree(&other, bus::i2c), parser_xml_inst_compare);
    EXPECT_EQ(other.i2c_xml_inst_index, nullptr);
    EXPECT_NE(instance_table_of(&handle), nullptr);
    release_file_memory(&other);
}

TEST_F(InstanceTable, takes_out_of_a_tree_what_it_knows_and_leaves_the_rest)
{
    sch_xml_inst_node_type nodes[200] = {};
    for (uint32_t i = 0; i < 200; ++i) {
        nodes[i].xml_instance = (i * 37) % 200;
        file(bus::pcie, &nodes[i]);
    }
    sch_xml_inst_node_type unknown = {};
    unknown.xml_instance = 300;
    ASSERT_NE(avl_insert(&handle.pcie_xml_inst_index, &unknown, parser_xml_inst_compare, 0), nullptr);
    take_instances_out(&handle, bus::i2c, parser_xml_inst_compare);
    EXPECT_NE(avl_get_first(&handle.pcie_xml_inst_index), &unknown);
    take_instances_out(&handle, bus::pcie, parser_xml_inst_compare);
    EXPECT_EQ(avl_get_first(&handle.pcie_xml_inst_index), &unknown);
    avl_delete(&handle.pcie_xml_inst_index, &unknown, parser_xml_inst_compare, 0);
}

TEST_F(InstanceTable, a_handle_that_the_registry_did_not_make_has_none)
{
    inv_xml_handle by_hand = {};
    begin_instance_table(&by_hand);
    EXPECT_EQ(instance_table_of(&by_hand), nullptr);
    take_instances_out(&by_hand, bus::i2c, parser_xml_inst_compare);
}

}  // namespace
