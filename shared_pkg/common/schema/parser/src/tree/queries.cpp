// The EID queries. Each entry point is the lock around its work.
#include "inv_parser/queries.h"

#include "frame/lock.h"
#include "frame/trace.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"
#include "tree/eid_lookup.h"
#include "tree/eid_walks.h"
#include "tree/entity_walk.h"
#include "tree/type_index.h"

using namespace inv;

namespace
{

// ORVL_ENTITY_OWNER_TYPE_ALL: no narrowing.
constexpr uint32_t owner_all = 6;

// An array of no records is an answer, too: never null for want of size. Not zero-filled where every octet
// will be written.
sch_eid_type *request_eids(size_t count)
{
    return static_cast<sch_eid_type *>(count == 0 ? memory::request(sizeof(sch_eid_type))
                                                  : memory::resize(nullptr, count * sizeof(sch_eid_type)));
}

// An EID that holds nothing but the node's own triple.
sch_eid_type own_eid(const eid_chain_node *node, uint8_t depth)
{
    sch_eid_type eid = {};
    eid.reserved0 = INV_EID_RESERVED_WORD;
    eid.reserved1 = INV_EID_RESERVED_WORD;
    eid.depth = depth;
    eid.levels[0] = level_of(node);
    return eid;
}

void reset_scratch()
{
    global_eid_count = 0;
    global_tmp_count = 0;
    global_eid = nullptr;
}

template <class NoRoot>
bool enter_tree(inv_xml_handle *handle)
{
    parser_get_root_eid_internal(handle);
    if (root_eid == nullptr)
        trace<NoRoot>(handle);
    return root_eid != nullptr;
}

// Hands global_eid out, or what of it passes the owner.
void deliver(uint32_t owner, uint32_t found, uint32_t *count, sch_eid_type **out)
{
    if (owner == owner_all) {
        *count = found;
        *out = global_eid;
        return;
    }
    parser_filter_eid_by_owner(global_eid, found, out, count, owner);
    memory::release(global_eid);
}

// Both queries by type. A result that 16 bits cannot count is refused like one without memory.
template <class NoRoot, class NoMemory>
uint32_t collect(inv_xml_handle *handle, uint32_t owner, const entity_filter &filter, uint16_t *count,
                 sch_eid_type **out)
{
    reset_scratch();
    if (!enter_tree<NoRoot>(handle))
        return 1;
    const type_index *index = type_index_for(handle, filter);
    size_t found = index != nullptr ? count_entities(*index, filter) : count_entities(root_eid, filter);
    global_eid_count = static_cast<uint16_t>(found);
    if (found <= UINT16_MAX)
        global_eid = request_eids(found);
    if (global_eid == nullptr) {
        trace<NoMemory>();
        return 1;
    }
    size_t filled =
        index != nullptr ? fill_eids(*index, filter, global_eid) : fill_eids(root_eid, filter, global_eid);
    global_tmp_count = static_cast<uint16_t>(filled);
    uint32_t delivered = 0;
    deliver(owner, static_cast<uint32_t>(found), &delivered, out);
    *count = static_cast<uint16_t>(delivered);
    return 0;
}

template <class NoMemory>
uint32_t collect_of_subtype(inv_xml_handle *handle, uint32_t owner, const entity_filter &filter,
                            uint16_t *count, sch_eid_type **out)
{
    return collect<msg::by_subtype_no_root, NoMemory>(handle, owner, filter, count, out);
}

uint32_t find_record(inv_xml_handle *handle, sch_base_entity_type **out, sch_eid_type *eid)
{
    if (!enter_tree<msg::eid_data_no_root>(handle))
        return 1;
    const eid_chain_node *node = find_entity_of(handle, eid);
    *out = node == nullptr ? nullptr : node->record;
    return node == nullptr ? 1 : 0;
}

// Kept: the tree of a leaf is one record of depth 0, no owner is looked at, and memory running out has no
// line here.
uint32_t answer_leaf(const eid_chain_node *leaf, sch_eid_type **out, uint32_t *count)
{
    trace<msg::eid_tree_leaf>();
    sch_eid_type *record = request_eids(1);
    if (record == nullptr)
        return 1;
    *record = own_eid(leaf, 0);
    *out = record;
    *count = 1;
    return 0;
}

uint32_t answer_subtree(eid_chain_node *start, uint32_t owner, sch_eid_type **out, uint32_t *count)
{
    size_t found = count_entities(start->first_child, every_entity());
    global_eid_count = static_cast<uint16_t>(found);
    if (found < UINT32_MAX)
        global_eid = request_eids(found + 1);
    if (global_eid == nullptr) {
        trace<msg::eid_tree_no_memory>();
        return 1;
    }
    // Kept: the start stands in the answer as its own triple, unlike its descendants.
    global_eid[0] = own_eid(start, 1);
    size_t filled = 1 + fill_eids_below(start, global_eid + 1);
    global_tmp_count = static_cast<uint16_t>(filled);
    deliver(owner, static_cast<uint32_t>(filled), count, out);
    global_eid = nullptr;
    global_eid_count = 0;
    return 0;
}

uint32_t collect_tree(inv_xml_handle *handle, uint32_t owner, const sch_eid_type *eid, sch_eid_type **out,
                      uint32_t *count)
{
    reset_scratch();
    if (!enter_tree<msg::eid_tree_no_root>(handle))
        return 1;
    eid_chain_node *start = root_eid;
    if (eid != nullptr) {
        sch_eid_type wanted = *eid;
        start = find_entity_of(handle, &wanted);
    }
    if (start == nullptr) {
        *out = nullptr;
        return 1;
    }
    if (start->first_child == nullptr)
        return answer_leaf(start, out, count);
    return answer_subtree(start, owner, out, count);
}

}  // namespace

void parser_get_root_eid_internal(inv_xml_handle *handle)
{
    if (handle == nullptr)
        trace<msg::root_null_handle>();
    root_eid = handle == nullptr ? nullptr : handle->root;
}

uint32_t inv_parser_get_root_eid(inv_xml_handle *handle, sch_eid_type **out)
{
    if (out == nullptr)
        return 1;
    if (handle == nullptr || handle->root == nullptr) {
        handle == nullptr ? trace<msg::root_eid_null_handle>() : trace<msg::root_eid_no_tree>();
        *out = nullptr;
        return 1;
    }
    sch_eid_type *record = request_eids(1);
    if (record == nullptr) {
        trace<msg::root_eid_no_memory>();
        return 1;
    }
    *record = own_eid(handle->root, 1);
    *out = record;
    return 0;
}

uint32_t inv_parser_get_eid_by_type(inv_xml_handle *handle, uint32_t owner, uint8_t type, uint16_t *count,
                                    sch_eid_type **out)
{
    if (count == nullptr || out == nullptr || !lock_or_trace<msg::by_type_lock_failed>())
        return 1;
    uint32_t result = collect<msg::by_type_no_root, msg::by_type_no_memory>(
        handle, owner, entities_of_type(type), count, out);
    unlock_or_trace<msg::by_type_unlock_failed>();
    return result;
}

uint32_t inv_parser_get_eid_by_type_subtype(inv_xml_handle *handle, uint32_t owner, uint8_t type,
                                            uint8_t subtype, uint16_t *count, sch_eid_type **out)
{
    if (count == nullptr || out == nullptr || !lock_or_trace<msg::by_subtype_lock_failed>())
        return 1;
    uint32_t result = subtype == INV_ANY_SUBTYPE
                          ? collect_of_subtype<msg::by_any_subtype_no_memory>(
                                handle, owner, entities_of_type(type), count, out)
                          : collect_of_subtype<msg::by_subtype_no_memory>(
                                handle, owner, entities_of_subtype(type, subtype), count, out);
    unlock_or_trace<msg::by_subtype_unlock_failed>();
    return result;
}

uint32_t inv_parser_get_eid_data(inv_xml_handle *handle, sch_base_entity_type **out, sch_eid_type eid)
{
    if (out == nullptr || !lock_or_trace<msg::eid_data_lock_failed>())
        return 1;
    uint32_t result = find_record(handle, out, &eid);
    unlock_or_trace<msg::eid_data_unlock_failed>();
    return result;
}

uint32_t inv_parser_get_eid_tree(inv_xml_handle *handle, uint32_t owner, const sch_eid_type *eid,
                                 sch_eid_type **out, uint32_t *count)
{
    if (out == nullptr || count == nullptr || !lock_or_trace<msg::eid_tree_lock_failed>())
        return 1;
    uint32_t result = collect_tree(handle, owner, eid, out, count);
    unlock_or_trace<msg::eid_tree_unlock_failed>();
    return result;
}
