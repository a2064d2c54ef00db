// The xml-instance indexes of a handle.
#include "frame/file_memory.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"
#include "tree/instance_table.h"

void inv::empty_instance_index(avl_root *root, avl_compare compare) noexcept
{
    while (void *first = avl_get_first(root)) {
        // Without this a tree that cannot be emptied would keep the close going for ever.
        if (avl_delete(root, first, compare, 0) == nullptr)
            return;
        record_free(first);
    }
}

void parser_avl_delete_inst_tree(avl_root *root, avl_compare compare)
{
    if (root == nullptr)
        return;
    if (*root != nullptr)
        inv::forget_instances();
    inv::empty_instance_index(root, compare);
}

int32_t parser_xml_inst_compare(const void *a, const void *b)
{
    uint32_t left = static_cast<const sch_xml_inst_node_type *>(a)->xml_instance;
    uint32_t right = static_cast<const sch_xml_inst_node_type *>(b)->xml_instance;
    if (left == right)
        return 1;
    return left < right ? 0 : 2;
}
