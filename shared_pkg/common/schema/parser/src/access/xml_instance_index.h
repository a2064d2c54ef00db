// The xml-instance indexes of a file: lookup, and how the builders fill them.
#ifndef ACCESS_XML_INSTANCE_INDEX_H
#define ACCESS_XML_INSTANCE_INDEX_H

#include "frame/file_memory.h"
#include "frame/trace.h"
#include "inv_parser/handle.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"
#include "tree/instance_table.h"

namespace inv
{

// One of a file's two indexes, with the table that shortens the way into it where there is one.
struct xml_instance_index {
    avl_root *tree;
    instance_table *table;
    bus which;
};

inline xml_instance_index index_of(inv_xml_handle *file, bus which)
{
    return {index_tree(file, which), instance_table_of(file), which};
}

// The same for callers without the library lock; the file is kept open by theirs.
inline xml_instance_index index_without_lock(inv_xml_handle *file, bus which)
{
    const side_records_guard held;
    return index_of(file, which);
}

inline sch_xml_inst_node_type *search_tree(avl_root *tree, uint32_t xml_instance)
{
    sch_xml_inst_node_type key = {};
    key.xml_instance = xml_instance;
    return static_cast<sch_xml_inst_node_type *>(avl_search(tree, &key, parser_xml_inst_compare));
}

// The index's node of an xml instance, or null.
inline sch_xml_inst_node_type *find_index_node(const xml_instance_index &index, uint32_t xml_instance)
{
    sch_xml_inst_node_type *known = find_instance(index.table, index.which, xml_instance);
    return known != nullptr ? known : search_tree(index.tree, xml_instance);
}

// The index's node of an xml instance, made if there is none yet: whichever of the entity and the
// destination that names it comes first creates it, the other completes it. Null after a traced failure.
template <class NoMemory, class InsertFailed>
sch_xml_inst_node_type *obtain_index_node(const xml_instance_index &index, uint32_t xml_instance)
{
    sch_xml_inst_node_type *known = find_instance(index.table, index.which, xml_instance);
    if (known == nullptr && !knows_instance(index.table, xml_instance))
        known = search_tree(index.tree, xml_instance);
    if (known != nullptr)
        return known;
    auto *node = record_new<sch_xml_inst_node_type>();
    if (node == nullptr) {
        trace<NoMemory>();
        return nullptr;
    }
    node->xml_instance = xml_instance;
    if (avl_insert(index.tree, node, parser_xml_inst_compare, 0) == nullptr) {
        record_free(node);
        // A node that the table does not know of was not filed by the library.
        known = search_tree(index.tree, xml_instance);
        if (known == nullptr)
            trace<InsertFailed>();
        return known;
    }
    enter_instance(index.table, index.which, node);
    return node;
}

}  // namespace inv

#endif
