// Entity trees put together by hand.
#ifndef TESTS_UNIT_TREE_SAMPLES_H
#define TESTS_UNIT_TREE_SAMPLES_H

#include "inv_parser/base_entity.h"
#include "inv_parser/eid.h"
#include "inv_parser/handle.h"

#include <cstdint>
#include <cstring>
#include <deque>
#include <initializer_list>
#include <random>
#include <vector>

namespace tree_samples
{

struct triple {
    uint8_t type = 0;
    uint16_t subtype = 0;
    uint16_t instance = 0;
};

// A tree and a handle that has it. Nodes and records live as long as the sample.
struct sample {
    std::deque<sch_base_entity_type> records;
    std::deque<eid_chain_node> nodes;
    inv_xml_handle handle = {};

    sch_base_entity_type *record(triple of, uint32_t owner = 1)
    {
        sch_base_entity_type &made = records.emplace_back();
        made.type = of.type;
        made.subtype = of.subtype;
        made.instance = of.instance;
        made.owner = owner;
        return &made;
    }

    // The last child of parent; the root (or the root's last sibling) without one.
    eid_chain_node *add(eid_chain_node *parent, triple of, uint32_t owner = 1)
    {
        eid_chain_node &made = nodes.emplace_back();
        made.record = record(of, owner);
        made.parent = parent;
        eid_chain_node **link = parent == nullptr ? &handle.root : &parent->first_child;
        while (*link != nullptr)
            link = &(*link)->next_sibling;
        *link = &made;
        return &made;
    }

    // The same for many children of one parent: behind `before`, parent's last child or null.
    eid_chain_node *add_behind(eid_chain_node *before, eid_chain_node *parent, triple of, uint32_t owner = 1)
    {
        if (before == nullptr)
            return add(parent, of, owner);
        eid_chain_node &made = nodes.emplace_back();
        made.record = record(of, owner);
        made.parent = parent;
        before->next_sibling = &made;
        return &made;
    }
};

// An EID from its levels, the top one first.
inline sch_eid_type eid_of(std::initializer_list<triple> levels)
{
    sch_eid_type eid = {};
    for (const triple &each : levels)
        eid.levels[eid.depth++] = {each.type, static_cast<uint8_t>(each.subtype), each.instance};
    eid.reserved0 = eid.reserved1 = INV_EID_RESERVED_WORD;
    return eid;
}

inline bool same_eid(const sch_eid_type &a, const sch_eid_type &b)
{
    return memcmp(&a, &b, sizeof(a)) == 0;
}

// A chain of `depth` entities below each other; entity i has triple {9, i's low 8 bits, i}.
inline void grow_chain(sample &tree, int depth)
{
    eid_chain_node *parent = nullptr;
    for (int i = 1; i <= depth; ++i)
        parent = tree.add(parent, {9, static_cast<uint8_t>(i), static_cast<uint16_t>(i)});
}

inline uint32_t draw(std::mt19937 &random, uint32_t below)
{
    return static_cast<uint32_t>(random() % below);
}

}  // namespace tree_samples

#endif
