#include "tree/path_table.h"

#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"
#include "tree/entity_walk.h"
#include "tree/pointer_hash.h"

namespace inv
{

namespace
{

bool is_zero(sch_eid_level_type level)
{
    return same_level(level, {});
}

// Counts the nodes of a level and below; false when a path does not tell one of them exactly.
bool count_exact(const eid_chain_node *list, const eid_chain_node *parent, int depth, size_t *count)
{
    if (list != nullptr && depth > INV_EID_MAX_DEPTH)
        return false;
    for (; list != nullptr; list = list->next_sibling) {
        const eid_chain_node *climbs_to = list == root_eid ? nullptr : list->parent;
        if (climbs_to != parent || full_subtype(list) > UINT8_MAX)
            return false;
        ++*count;
        if (!count_exact(list->first_child, list, depth + 1, count))
            return false;
    }
    return true;
}

size_t capacity_for(size_t count)
{
    size_t capacity = 16;
    while (capacity < count + count / 2)
        capacity *= 2;
    return capacity;
}

}  // namespace

path_table::~path_table()
{
    memory::release(entries);
}

bool path_table::build() noexcept
{
    size_t count = 0;
    if (!count_exact(root_eid, nullptr, 1, &count))
        return false;
    size_t capacity = capacity_for(count);
    entries = static_cast<entry *>(memory::request(capacity * sizeof(entry)));
    if (entries == nullptr)
        return false;
    mask = capacity - 1;
    enter(root_eid, nullptr);
    return true;
}

// The entry of the path, or the free one where it belongs.
path_table::entry *path_table::locate(const eid_chain_node *parent, sch_eid_level_type level) const noexcept
{
    uint32_t number =
        level.type | static_cast<uint32_t>(level.subtype) << 8 | static_cast<uint32_t>(level.instance) << 16;
    size_t at = hash_of_pointer(parent, number) & mask;
    while (entries[at].node != nullptr &&
           (entries[at].parent != parent || !same_level(level_of(entries[at].node), level)))
        at = (at + 1) & mask;
    return &entries[at];
}

// Of several nodes with one path the first in pre-order gets the entry and stands for the others: what
// hangs below them is entered below it.
void path_table::enter(eid_chain_node *list, const eid_chain_node *parent) noexcept
{
    for (; list != nullptr; list = list->next_sibling) {
        entry *found = locate(parent, level_of(list));
        if (found->node == nullptr)
            *found = {parent, list};
        enter(list->first_child, found->node);
    }
}

eid_chain_node *path_table::find(const sch_eid_type &eid) const noexcept
{
    int depth = eid.depth;
    if (depth == 0 || depth > INV_EID_MAX_DEPTH)
        return nullptr;
    // Levels beyond a node's own are zero in its EID. So an EID that ends in several zero levels is
    // already answered by the node of the first of them, which comes before those below it.
    while (depth > 1 && is_zero(eid.levels[depth - 1]) && is_zero(eid.levels[depth - 2]))
        --depth;
    eid_chain_node *node = nullptr;
    for (int i = 0; i < depth; ++i) {
        node = locate(node, eid.levels[i])->node;
        if (node == nullptr)
            return nullptr;
    }
    return node;
}

}  // namespace inv
