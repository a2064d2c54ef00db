#include "tree/eid_walks.h"

#include "inv_parser/tree_internal.h"
#include "tree/eid_fill.h"
#include "tree/entity_walk.h"

namespace inv
{

namespace
{

bool passes(const eid_chain_node *node, const entity_filter &filter)
{
    if (filter.any_type)
        return true;
    return node->record != nullptr && node->record->type == filter.type &&
           (filter.any_subtype || node->record->subtype == filter.subtype);
}

uint32_t count_into_global(eid_chain_node *list, const entity_filter &filter)
{
    global_eid_count = static_cast<uint16_t>(global_eid_count + count_entities(list, filter));
    return 0;
}

uint32_t fill_global(eid_chain_node *list, const entity_filter &filter)
{
    if (global_eid == nullptr)
        return 0;
    visit_entities(list, [&](eid_chain_node *node) {
        if (passes(node, filter))
            parser_populate_parent_eid_data(node, &global_eid[global_tmp_count++]);
    });
    return 0;
}

}  // namespace

size_t count_entities(eid_chain_node *list, const entity_filter &filter) noexcept
{
    size_t count = 0;
    visit_entities(list, [&](const eid_chain_node *node) { count += passes(node, filter) ? 1 : 0; });
    return count;
}

size_t fill_eids(eid_chain_node *list, const entity_filter &filter, sch_eid_type *array) noexcept
{
    size_t count = 0;
    visit_eids(list, [&](const eid_chain_node *node, const sch_eid_type &eid) {
        if (passes(node, filter))
            array[count++] = eid;
    });
    return count;
}

size_t fill_eids_below(eid_chain_node *node, sch_eid_type *array) noexcept
{
    size_t count = 0;
    sch_eid_type path;
    parser_populate_parent_eid_data(node, &path);
    visit_eids_below(node, path,
                     [&](const eid_chain_node *, const sch_eid_type &eid) { array[count++] = eid; });
    return count;
}

}  // namespace inv

using namespace inv;

uint32_t parser_get_child_eid_count(eid_chain_node *list)
{
    return count_into_global(list, every_entity());
}

uint32_t parser_get_child_eids(eid_chain_node *list)
{
    return fill_global(list, every_entity());
}

uint32_t parser_get_eid_count_with_type(eid_chain_node *list, uint32_t type)
{
    return count_into_global(list, entities_of_type(type));
}

uint32_t parser_get_eid_with_type(eid_chain_node *list, uint32_t type)
{
    return fill_global(list, entities_of_type(type));
}

uint32_t parser_get_eid_count_with_type_subtype(eid_chain_node *list, uint32_t type, uint32_t subtype)
{
    return count_into_global(list, entities_of_subtype(type, subtype));
}

uint32_t parser_get_eid_with_type_subtype(eid_chain_node *list, uint32_t type, uint32_t subtype)
{
    return fill_global(list, entities_of_subtype(type, subtype));
}
