// An index that holds entities already and refuses one more.
#include "support/current_file_fixture.h"

#include <string>

namespace
{

avl_root *refusing_index;

}  // namespace

// The linker leads the builders' calls here (--wrap).
extern "C" void *__real_avl_insert(avl_root *root, void *node, avl_compare compare, uint32_t flag);

extern "C" void *__wrap_avl_insert(avl_root *root, void *node, avl_compare compare, uint32_t flag)
{
    return root == refusing_index ? nullptr : __real_avl_insert(root, node, compare, flag);
}

namespace
{

class IndexRefusal : public CurrentFile
{
protected:
    void TearDown() override
    {
        refusing_index = nullptr;
        CurrentFile::TearDown();
    }

    // Both indexes with the number of the message that reports a refusal.
    struct index_case {
        avl_root *index;
        uint32_t id;
        bool in_i2c_index;
    };
    const index_case cases[2] = {{&handle.i2c_xml_inst_index, 163, false},
                                 {&handle.pcie_xml_inst_index, 165, true}};
};

TEST_F(IndexRefusal, keeps_the_entity_out_of_the_tree_and_leaves_what_is_there_alone)
{
    for (const index_case &each : cases) {
        BaseEntityType top = decoded_entity("top", 1), refused = decoded_entity("refused", 2);
        sch_base_entity_type top_record = {}, record = {};
        ASSERT_EQ(parser_retrieve_base_entity_data(&top_record, &top, nullptr), 0u);
        uint64_t live = counting_memory::live();
        trace_recorder::clear();
        refusing_index = each.index;
        EXPECT_EQ(parser_retrieve_base_entity_data(&record, &refused, &top_record), 1u);
        refusing_index = nullptr;
        EXPECT_EQ(trace_recorder::lines(),
                  (std::vector<trace_recorder::line>{{each.id, 4, 0, "", "Failure avl insert\n"}}));
        EXPECT_EQ(counting_memory::live(), live + (each.in_i2c_index ? 1 : 0)) << "the refused node went";
        EXPECT_EQ(i2c_node(1)->entity, &top_record);
        EXPECT_EQ(pcie_node(1)->entity, &top_record);
        EXPECT_EQ(i2c_node(2) != nullptr, each.in_i2c_index);
        EXPECT_EQ(pcie_node(2), nullptr);
        EXPECT_EQ(root_eid->first_child, nullptr);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

TEST_F(IndexRefusal, does_not_concern_an_xml_instance_that_is_indexed_already)
{
    for (const index_case &each : cases) {
        BaseEntityType from = decoded_entity("again", 1);
        sch_base_entity_type first = {}, second = {};
        ASSERT_EQ(parser_retrieve_base_entity_data(&first, &from, nullptr), 0u);
        refusing_index = each.index;
        EXPECT_EQ(parser_retrieve_base_entity_data(&second, &from, &first), 0u);
        refusing_index = nullptr;
        EXPECT_EQ(i2c_node(1)->entity, &second);
        EXPECT_EQ(pcie_node(1)->entity, &second);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

// Kept: a module whose own registration failed is built on, and so are its components; they have no place
// in the tree.
TEST_F(IndexRefusal, of_a_module_leaves_its_components_out_of_the_tree_too)
{
    BaseEntityType top = decoded_entity("top", 1);
    sch_base_entity_type top_record = {};
    ASSERT_EQ(parser_retrieve_base_entity_data(&top_record, &top, nullptr), 0u);
    BaseLEDType led = {};
    led.base = decoded_entity("led", 1);
    decoded_list leds = {&led};
    BaseModuleType card = {};
    card.base = decoded_entity("card", 2);
    card.has.ext = 1;
    card.ext.led = leds;
    sch_module_type record = {};
    refusing_index = &handle.i2c_xml_inst_index;
    EXPECT_EQ(parser_retrieve_base_module_entity_data(&record, &card, &top_record), 0u);
    refusing_index = nullptr;
    EXPECT_EQ(length_of(record.led_list), 1u);
    EXPECT_EQ(root_eid->first_child, nullptr);
    inv_schema_free_module_data(&record);
}

}  // namespace
