#include "tree/growth.h"

#include "frame/file_memory.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"
#include "tree/eid_lookup.h"
#include "tree/entity_walk.h"
#include "tree/pointer_hash.h"

#include <algorithm>
#include <bit>

using namespace inv;

namespace
{

constexpr size_t least_capacity = 256;
constexpr size_t greatest_first_capacity = size_t{1} << 20;

// A record of the tree. Free while node is null. A node cannot be its own child: last_child == node marks
// a record that occurs more than once.
struct growth_slot {
    eid_chain_node *node;
    eid_chain_node *last_child;
};

// Open addressing; capacity is a power of two. root is null while no tree is shadowed.
struct growth_table {
    size_t first_capacity;  // 0: no scope
    eid_chain_node *root;
    growth_slot *slots;
    growth_slot *last_parent;  // where the last entity was hung; most have a sibling in front of them
    size_t capacity;
    size_t used;
};

growth_table growth;

void drop_table()
{
    memory::release(growth.slots);
    growth = {growth.first_capacity, nullptr, nullptr, nullptr, 0, 0};
}

bool is_ambiguous(const growth_slot *slot)
{
    return slot->last_child == slot->node;
}

size_t first_place_of(const sch_base_entity_type *record)
{
    return hash_of_pointer(record, 0) & (growth.capacity - 1);
}

// The slot of the record, or the free one where it belongs.
growth_slot *find_slot(const sch_base_entity_type *record)
{
    size_t mask = growth.capacity - 1;
    size_t at = first_place_of(record);
    while (growth.slots[at].node != nullptr && growth.slots[at].node->record != record)
        at = (at + 1) & mask;
    return &growth.slots[at];
}

growth_slot *find_parent_slot(const sch_base_entity_type *record)
{
    growth_slot *last = growth.last_parent;
    if (last == nullptr || last->node->record != record)
        last = find_slot(record);
    growth.last_parent = last->node == nullptr ? nullptr : last;
    return last;
}

bool widen(size_t capacity)
{
    auto *slots = static_cast<growth_slot *>(memory::request(capacity * sizeof(growth_slot)));
    if (slots == nullptr)
        return false;
    growth_slot *old = growth.slots;
    growth_slot *end = old + growth.capacity;
    growth.slots = slots;
    growth.last_parent = nullptr;
    growth.capacity = capacity;
    for (growth_slot *each = old; each != end; ++each)
        if (each->node != nullptr)
            *find_slot(each->node->record) = *each;
    memory::release(old);
    return true;
}

// What was expected may be more than can be had at once.
bool widen_a_little()
{
    return growth.first_capacity > least_capacity && widen(least_capacity);
}

// False when memory is out.
bool enter(eid_chain_node *node)
{
    const bool is_first = growth.capacity == 0;
    if ((growth.used + 1) * 4 > growth.capacity * 3 &&
        !widen(is_first ? growth.first_capacity : growth.capacity * 2) && !(is_first && widen_a_little()))
        return false;
    growth_slot *slot = find_slot(node->record);
    if (slot->node == nullptr) {
        *slot = {node, nullptr};
        ++growth.used;
    } else {
        slot->last_child = slot->node;
    }
    return true;
}

void shadow_new_tree(eid_chain_node *root)
{
    drop_table();
    if (growth.first_capacity == 0)
        return;
    growth.root = root;
    if (!enter(root))
        drop_table();
}

eid_chain_node *make_node(sch_base_entity_type *record, eid_chain_node *parent)
{
    auto *node = record_new<eid_chain_node>();
    if (node != nullptr) {
        node->record = record;
        node->parent = parent;
    }
    return node;
}

eid_chain_node *last_child_of(const eid_chain_node *parent)
{
    eid_chain_node *child = parent->first_child;
    while (child != nullptr && child->next_sibling != nullptr)
        child = child->next_sibling;
    return child;
}

void make_root(sch_base_entity_type *record, sch_base_entity_type *parent_record)
{
    // Kept: the parent value of a root is stored as given although it is no node.
    eid_chain_node *node = make_node(record, reinterpret_cast<eid_chain_node *>(parent_record));
    if (node == nullptr)
        return;
    root_eid = node;
    shadow_new_tree(node);
}

}  // namespace

tree_growth_scope::tree_growth_scope(size_t expected_entities) noexcept
{
    drop_table();
    // A quarter of the slots stays free.
    const size_t expected = std::clamp(expected_entities, least_capacity / 2, greatest_first_capacity / 2);
    growth.first_capacity = std::bit_ceil(expected + expected / 3);
}

tree_growth_scope::~tree_growth_scope()
{
    drop_table();
    growth.first_capacity = 0;
}

void inv::expect_growth(const sch_base_entity_type *record) noexcept
{
    if (growth.root != nullptr)
        __builtin_prefetch(&growth.slots[first_place_of(record)], 1);
}

void parser_update_eid_chain(sch_base_entity_type *record, sch_base_entity_type *parent_record)
{
    // No table knows the tree that a load makes, and those of other files stay as they are.
    const bool is_being_made = growth.first_capacity != 0 && (root_eid == nullptr || growth.root == root_eid);
    if (!is_being_made)
        note_tree_change();
    if (root_eid == nullptr) {
        make_root(record, parent_record);
        return;
    }
    bool is_shadowed = growth.root == root_eid;
    growth_slot *slot = is_shadowed ? find_parent_slot(parent_record) : nullptr;
    if (slot != nullptr && slot->node != nullptr && is_ambiguous(slot))
        slot = nullptr;
    eid_chain_node *parent = slot != nullptr ? slot->node : parser_find_parent_node(parent_record, root_eid);
    if (parent == nullptr)
        return;
    eid_chain_node *node = make_node(record, parent);
    if (node == nullptr)
        return;
    eid_chain_node *last = slot != nullptr ? slot->last_child : last_child_of(parent);
    (last != nullptr ? last->next_sibling : parent->first_child) = node;
    if (slot != nullptr)
        slot->last_child = node;
    // Whatever tree this was, it may share nodes with the shadowed one, which is then out of date.
    if (!is_shadowed || !enter(node))
        drop_table();
}

eid_chain_node *parser_find_parent_node(sch_base_entity_type *record, eid_chain_node *list)
{
    return find_first_entity(list, [record](const eid_chain_node *node) { return node->record == record; });
}

// The last node of a level goes on with its children in this loop, so that only side branches take stack.
// Nothing is relinked: the nodes of a file outlive this.
void inv::release_eid_nodes(eid_chain_node *first) noexcept
{
    while (first != nullptr) {
        eid_chain_node *children = first->first_child;
        eid_chain_node *following = first->next_sibling;
        if (following != nullptr)
            release_eid_nodes(children);
        record_free(first);
        first = following != nullptr ? following : children;
    }
}

void inv_schema_free_eid_chain_list(eid_chain_node *first)
{
    if (first != nullptr)
        note_tree_change();
    release_eid_nodes(first);
}
