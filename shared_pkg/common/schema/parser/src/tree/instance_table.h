// A direct way to the nodes of a file's xml-instance indexes.
//
// The AVL trees of the handle hold every node and remain what answers; the table, kept with the handle,
// spares the search in them. It is begun by the load that fills the trees and knows all that the library
// files there. At most 1 MiB for a file that has all 65,536 instances, 16 octets for each otherwise.
#ifndef TREE_INSTANCE_TABLE_H
#define TREE_INSTANCE_TABLE_H

#include "inv_parser/handle.h"

#include <stddef.h>
#include <stdint.h>

namespace inv
{

enum class bus : uint8_t { i2c, pcie };

inline avl_root *index_tree(inv_xml_handle *file, bus which)
{
    return which == bus::i2c ? &file->i2c_xml_inst_index : &file->pcie_xml_inst_index;
}

inline constexpr uint32_t instances_per_leaf = 64;

// Neighbouring instances; an entity is filed in both indexes at once.
struct instance_leaf {
    sch_xml_inst_node_type *nodes[instances_per_leaf][2];
};

struct instance_table {
    instance_leaf *leaves[(UINT16_MAX + 1) / instances_per_leaf];
    uint64_t made_at;
    bool is_complete;  // both trees were empty when it was made, and no node is missing since
};

// The handle's table; null when it has none or one that may hold nodes that are gone.
instance_table *instance_table_of(const inv_xml_handle *file) noexcept;

// To be called before a load files anything. Without memory for it there is no table.
void begin_instance_table(inv_xml_handle *file) noexcept;

// To be called with each node that was put into a tree.
void enter_instance(instance_table *table, bus which, sch_xml_inst_node_type *node) noexcept;

// To be called when nodes of some tree may go while its file stays open: no table serves any longer.
void forget_instances() noexcept;

// Takes all nodes that the file owns out of the tree, before the file goes: least first, as the table has
// them, which tells in advance what will be touched. Nodes that the table does not know stay.
void take_instances_out(inv_xml_handle *file, bus which, avl_compare compare) noexcept;

// To be called when the file's own nodes go: its table serves no longer, those of other files do.
void drop_instance_table(const inv_xml_handle *file) noexcept;

// Takes every node out of the tree and gives it back. Stops when the tree does not let go of one. Whatever
// knows the nodes must have been told before.
void empty_instance_index(avl_root *root, avl_compare compare) noexcept;

// The node, or null when the tree has to be searched.
inline sch_xml_inst_node_type *find_instance(const instance_table *table, bus which, uint32_t instance)
{
    if (table == nullptr || instance > UINT16_MAX)
        return nullptr;
    const instance_leaf *leaf = table->leaves[instance / instances_per_leaf];
    return leaf == nullptr ? nullptr : leaf->nodes[instance % instances_per_leaf][static_cast<size_t>(which)];
}

// True when find_instance() knows every node of this instance that the library has filed.
inline bool knows_instance(const instance_table *table, uint32_t instance)
{
    return table != nullptr && table->is_complete && instance <= UINT16_MAX;
}

}  // namespace inv

#endif
