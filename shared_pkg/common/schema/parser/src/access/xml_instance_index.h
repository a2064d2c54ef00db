// The xml-instance indexes of a file: lookup, and how the builders fill them.
#ifndef ACCESS_XML_INSTANCE_INDEX_H
#define ACCESS_XML_INSTANCE_INDEX_H

#include "frame/file_memory.h"
#include "frame/trace.h"
#include "inv_parser/handle.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"

namespace inv
{

// The index's node of an xml instance, or null.
inline sch_xml_inst_node_type *find_index_node(avl_root *index, uint32_t xml_instance)
{
    sch_xml_inst_node_type key = {};
    key.xml_instance = xml_instance;
    return static_cast<sch_xml_inst_node_type *>(avl_search(index, &key, parser_xml_inst_compare));
}

// The index's node of an xml instance, made if there is none yet: whichever of the entity and the
// destination that names it comes first creates it, the other completes it. Null after a traced failure.
template <class NoMemory, class InsertFailed>
sch_xml_inst_node_type *obtain_index_node(avl_root *index, uint32_t xml_instance)
{
    if (sch_xml_inst_node_type *known = find_index_node(index, xml_instance))
        return known;
    auto *node = record_new<sch_xml_inst_node_type>();
    if (node == nullptr) {
        trace<NoMemory>();
        return nullptr;
    }
    node->xml_instance = xml_instance;
    if (avl_insert(index, node, parser_xml_inst_compare, 0) == nullptr) {
        record_free(node);
        trace<InsertFailed>();
        return nullptr;
    }
    return node;
}

}  // namespace inv

#endif
