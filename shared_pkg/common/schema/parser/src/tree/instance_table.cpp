#include "tree/instance_table.h"

#include "frame/side_records.h"
#include "inv_platform/avl.h"
#include "inv_platform/system_memory.h"

#include <atomic>

namespace inv
{

namespace
{

// Sequences read it without the lock.
std::atomic<uint64_t> times_forgotten;

void release_table(void *kept)
{
    auto *table = static_cast<instance_table *>(kept);
    for (instance_leaf *leaf : table->leaves)
        memory::release(leaf);
    memory::release(table);
}

}  // namespace

instance_table *instance_table_of(const inv_xml_handle *file) noexcept
{
    auto *table = static_cast<instance_table *>(get_side_table(file, side_table::instances));
    bool is_current = table != nullptr && table->made_at == times_forgotten.load(std::memory_order_relaxed);
    return is_current ? table : nullptr;
}

void begin_instance_table(inv_xml_handle *file) noexcept
{
    if (!has_side_record(file) || instance_table_of(file) != nullptr)
        return;
    auto *table = static_cast<instance_table *>(memory::request(sizeof(instance_table)));
    if (table == nullptr)
        return;
    table->made_at = times_forgotten.load(std::memory_order_relaxed);
    table->is_complete = file->i2c_xml_inst_index == nullptr && file->pcie_xml_inst_index == nullptr;
    set_side_table(file, side_table::instances, table, release_table);
}

void enter_instance(instance_table *table, bus which, sch_xml_inst_node_type *node) noexcept
{
    if (table == nullptr || node->xml_instance > UINT16_MAX)
        return;
    instance_leaf *&leaf = table->leaves[node->xml_instance / instances_per_leaf];
    if (leaf == nullptr)
        leaf = static_cast<instance_leaf *>(memory::request(sizeof(instance_leaf)));
    if (leaf == nullptr)
        table->is_complete = false;
    else
        leaf->nodes[node->xml_instance % instances_per_leaf][static_cast<size_t>(which)] = node;
}

void take_instances_out(inv_xml_handle *file, bus which, avl_compare compare) noexcept
{
    constexpr uint32_t ahead = 8;
    const instance_table *table = instance_table_of(file);
    if (table == nullptr)
        return;
    auto column = static_cast<size_t>(which);
    for (const instance_leaf *leaf : table->leaves) {
        for (uint32_t i = 0; leaf != nullptr && i < instances_per_leaf; ++i) {
            if (i + ahead < instances_per_leaf)
                __builtin_prefetch(leaf->nodes[i + ahead][column], 1);
            if (leaf->nodes[i][column] != nullptr)
                avl_delete(index_tree(file, which), leaf->nodes[i][column], compare, 0);
        }
    }
}

void drop_instance_table(const inv_xml_handle *file) noexcept
{
    set_side_table(file, side_table::instances, nullptr, release_table);
}

void forget_instances() noexcept
{
    times_forgotten.fetch_add(1, std::memory_order_relaxed);
}

}  // namespace inv
