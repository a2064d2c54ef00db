// A hand-made file that the builders fill, and decoded values put together by hand.
#ifndef TESTS_SUPPORT_CURRENT_FILE_FIXTURE_H
#define TESTS_SUPPORT_CURRENT_FILE_FIXTURE_H

#include "OrvelianInventorySchema.h"
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"
#include "support/counting_memory.h"
#include "support/trace_recorder.h"

#include <deque>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>

// A decoded list over values that outlive it; a null pointer is a node without a value.
class decoded_list
{
public:
    template <class Value>
    decoded_list(std::initializer_list<Value *> values)
    {
        for (Value *value : values)
            add(const_cast<void *>(static_cast<const void *>(value)));
    }
    decoded_list() = default;
    decoded_list(const decoded_list &) = delete;
    decoded_list &operator=(const decoded_list &) = delete;

    void add(void *value)
    {
        nodes.push_back({value, nullptr, list.tail});
        (list.tail == nullptr ? list.head : list.tail->next) = &nodes.back();
        list.tail = &nodes.back();
        ++list.count;
    }
    const xb_data_list *operator&() const
    {
        return &list;
    }
    operator xb_data_list() const
    {
        return list;
    }

private:
    std::deque<xb_data_node> nodes;
    xb_data_list list = {};
};

// The handle is the current file; what the builders hang and file is taken down afterwards, and every
// allocation has to be back then, less what the test says is left by contract.
class CurrentFile : public testing::Test
{
protected:
    void SetUp() override
    {
        counting_memory::reset();
        trace_recorder::start();
        live_before = counting_memory::live();
        root_eid = nullptr;
        parser_set_inv_file_instance(&handle);
    }

    void TearDown() override
    {
        counting_memory::reset();
        take_down();
        EXPECT_EQ(counting_memory::live(), live_before + left_by_contract);
    }

    void take_down()
    {
        parser_set_inv_file_instance(nullptr);
        parser_avl_delete_inst_tree(&handle.i2c_xml_inst_index, parser_xml_inst_compare);
        parser_avl_delete_inst_tree(&handle.pcie_xml_inst_index, parser_xml_inst_compare);
        parser_free_cc_slot_xml_inst(handle.i2c_cc_slot_lists);
        parser_free_cc_slot_xml_inst(handle.pcie_cc_slot_lists);
        inv_schema_free_eid_chain_list(root_eid);
        root_eid = nullptr;
    }

    static sch_xml_inst_node_type *index_node(avl_root *index, uint32_t xml_instance)
    {
        sch_xml_inst_node_type key = {};
        key.xml_instance = xml_instance;
        return static_cast<sch_xml_inst_node_type *>(avl_search(index, &key, parser_xml_inst_compare));
    }
    sch_xml_inst_node_type *i2c_node(uint32_t xml_instance)
    {
        return index_node(&handle.i2c_xml_inst_index, xml_instance);
    }
    sch_xml_inst_node_type *pcie_node(uint32_t xml_instance)
    {
        return index_node(&handle.pcie_xml_inst_index, xml_instance);
    }

    inv_xml_handle handle = {};
    uint64_t live_before = 0;
    uint64_t left_by_contract = 0;
};

// An entity that needs nothing but its own fields.
inline BaseEntityType decoded_entity(const char *name, int16_t xml_instance = 0)
{
    BaseEntityType entity = {};
    entity.name = name;
    entity.xmlInstance = xml_instance;
    entity.entityOwner = 1;
    entity.snmpEntity = 1;
    entity.isPrefixNeeded = 1;
    return entity;
}

template <class Record>
size_t length_of(const Record *list)
{
    size_t length = 0;
    for (; list != nullptr; list = list->next)
        ++length;
    return length;
}

using id_list = std::vector<uint32_t>;

#endif
