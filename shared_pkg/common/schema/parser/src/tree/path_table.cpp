#include "tree/path_table.h"

#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"
#include "tree/entity_walk.h"
#include "tree/pointer_hash.h"

#include <string.h>

namespace inv
{

namespace
{

// Calls visit(eid, depth) for every EID that the node can be found by: those beginnings of its own EID
// whose last level is its own triple. Mostly that is the whole one; ancestors with the same triple add
// theirs, and so do the zeros behind the levels in use when the triple is all zero.
template <class Visit>
void visit_paths(eid_chain_node *node, const Visit &visit)
{
    sch_eid_level_type own = level_of(node);
    if (full_subtype(node) != own.subtype)
        return;
    sch_eid_type eid;
    parser_populate_parent_eid_data(node, &eid);
    uint8_t longest = same_level(own, {}) ? INV_EID_MAX_DEPTH : eid.depth;
    for (uint8_t depth = 1; depth <= longest; ++depth)
        if (same_level(eid.levels[depth - 1], own))
            visit(eid, depth);
}

// True when the path is the node's full EID with its own triple as the last level, which is how nearly all
// nodes are found. Climbs without building the EID; false says nothing of deeper or shortened paths.
bool is_whole_path(const eid_chain_node *node, const sch_eid_type &path)
{
    if (full_subtype(node) != path.levels[path.depth - 1].subtype)
        return false;
    const eid_chain_node *each = node;
    for (int i = path.depth; i-- > 0;) {
        if (each == nullptr || !same_level(level_of(each), path.levels[i]))
            return false;
        each = each == root_eid ? nullptr : each->parent;
    }
    return each == nullptr;
}

// The start of the hash is an address, so that no document can be made for paths that collide.
size_t hash_of_path(const void *start, const sch_eid_type &path, uint8_t depth)
{
    size_t hash = hash_of_pointer(start, depth);
    for (int i = 0; i < depth; ++i) {
        sch_eid_level_type level = path.levels[i];
        uint32_t number = level.type | static_cast<uint32_t>(level.subtype) << 8 |
                          static_cast<uint32_t>(level.instance) << 16;
        hash = hash_of_number(hash, number);
    }
    return hash;
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
    visit_entities(root_eid, [&](eid_chain_node *node) {
        visit_paths(node, [&](const sch_eid_type &, uint8_t) { ++count; });
    });
    size_t capacity = capacity_for(count);
    entries = static_cast<entry *>(memory::request(capacity * sizeof(entry)));
    if (entries == nullptr)
        return false;
    mask = capacity - 1;
    visit_entities(root_eid, [this](eid_chain_node *node) { enter(node); });
    return true;
}

// The entry of the path's first levels, or the free one where it belongs.
path_table::entry *path_table::locate(const sch_eid_type &path, uint8_t depth, size_t hash) const noexcept
{
    auto tag = static_cast<uint32_t>(hash >> 32);
    size_t at = hash & mask;
    for (; entries[at].node != nullptr; at = (at + 1) & mask) {
        if (entries[at].hash != tag || entries[at].depth != depth)
            continue;
        sch_eid_type own;
        parser_populate_parent_eid_data(entries[at].node, &own);
        if (memcmp(own.levels, path.levels, depth * sizeof(path.levels[0])) == 0)
            break;
    }
    return &entries[at];
}

void path_table::enter(eid_chain_node *node) noexcept
{
    visit_paths(node, [&](const sch_eid_type &eid, uint8_t depth) {
        size_t hash = hash_of_path(entries, eid, depth);
        entry *found = locate(eid, depth, hash);
        if (found->node == nullptr)
            *found = {node, static_cast<uint32_t>(hash >> 32), depth};
    });
}

eid_chain_node *path_table::find(const sch_eid_type &eid) const noexcept
{
    if (eid.depth == 0 || eid.depth > INV_EID_MAX_DEPTH)
        return nullptr;
    return locate(eid, eid.depth, hash_of_path(entries, eid, eid.depth))->node;
}

eid_chain_node *path_table::find_whole(const sch_eid_type &eid) const noexcept
{
    if (eid.depth == 0 || eid.depth > INV_EID_MAX_DEPTH)
        return nullptr;
    size_t hash = hash_of_path(entries, eid, eid.depth);
    auto tag = static_cast<uint32_t>(hash >> 32);
    for (size_t at = hash & mask; entries[at].node != nullptr; at = (at + 1) & mask)
        if (entries[at].hash == tag && entries[at].depth == eid.depth)
            return is_whole_path(entries[at].node, eid) ? entries[at].node : nullptr;
    return nullptr;
}

}  // namespace inv
