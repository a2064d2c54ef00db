#include "tree/eid_lookup.h"

#include "frame/file_memory.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"
#include "tree/entity_walk.h"
#include "tree/path_table.h"

#include <atomic>
#include <new>
#include <stdint.h>

namespace inv
{

namespace
{

// Nodes may be released without the lock.
std::atomic<uint64_t> change_count;

// Kept with a handle from its first lookup on; has paths from the second.
struct eid_lookup {
    path_table paths;
    const eid_chain_node *root = nullptr;
    uint64_t made_at = 0;
    bool has_paths = false;
};

void release_lookup(void *table)
{
    auto *lookup = static_cast<eid_lookup *>(table);
    lookup->~eid_lookup();
    memory::release(lookup);
}

// The handle's lookup for the tree as it is now; null when it was never asked before, without memory, and
// for a handle that nothing can be kept with.
eid_lookup *current_lookup(const inv_xml_handle *handle)
{
    if (!has_side_record(handle))
        return nullptr;
    auto *lookup = static_cast<eid_lookup *>(get_side_table(handle, side_table::eid_lookup));
    if (lookup != nullptr && lookup->root == root_eid && lookup->made_at == tree_change_count())
        return lookup;
    void *storage = may_keep_tables_of(handle, root_eid) ? memory::request(sizeof(eid_lookup)) : nullptr;
    if (storage == nullptr)
        return nullptr;
    lookup = new (storage) eid_lookup;
    lookup->root = root_eid;
    lookup->made_at = tree_change_count();
    set_side_table(handle, side_table::eid_lookup, lookup, release_lookup);
    return nullptr;
}

// True when the node is still found by the EID: own triple and path agree.
bool still_answers(eid_chain_node *node, sch_eid_type *eid)
{
    sch_eid_level_type own = level_of(node);
    return full_subtype(node) == own.subtype && same_level(own, eid->levels[eid->depth - 1]) &&
           parser_verify_eid_match(node, eid) != nullptr;
}

}  // namespace

eid_chain_node *find_entity_of(const inv_xml_handle *handle, sch_eid_type *eid) noexcept
{
    eid_lookup *lookup = handle->root == root_eid ? current_lookup(handle) : nullptr;
    if (lookup != nullptr && !lookup->has_paths)
        lookup->has_paths = lookup->paths.build();
    if (lookup != nullptr && lookup->has_paths) {
        eid_chain_node *node = lookup->paths.find_whole(*eid);
        if (node != nullptr)
            return node;
        node = lookup->paths.find(*eid);
        if (node != nullptr && still_answers(node, eid))
            return node;
    }
    return parser_find_entity(root_eid, eid);
}

void note_tree_change() noexcept
{
    change_count.fetch_add(1, std::memory_order_relaxed);
}

uint64_t tree_change_count() noexcept
{
    return change_count.load(std::memory_order_relaxed);
}

}  // namespace inv
