#include "entity_match.h"

#include <functional>
#include <string>
#include <vector>

#include "entity_words.h"

namespace
{

using invctl::entity_match;
using invctl::entity_records;
using nodes = std::vector<const eid_chain_node *>;

// What one entity is known by, in one of the three ways. The parts cannot run into each other: a record's
// text has no NUL.
using key_function = std::string (*)(const eid_chain_node *, const entity_records &);

std::string level_key(const eid_chain_node *node, const entity_records &known)
{
    const sch_base_entity_type &entity = *node->record;
    return std::string(known.table(&entity).name) + '\0' + std::to_string(entity.type) + '.' +
           std::to_string(entity.global_subtype) + '.' + std::to_string(entity.subtype) + '.' +
           std::to_string(entity.instance);
}

std::string level_and_name_key(const eid_chain_node *node, const entity_records &known)
{
    return level_key(node, known) + '\0' + node->record->name;
}

std::string name_key(const eid_chain_node *node, const entity_records &known)
{
    const sch_base_entity_type &entity = *node->record;
    return std::string(known.table(&entity).name) + '\0' + std::to_string(entity.type) + '.' +
           std::to_string(entity.global_subtype) + '\0' + entity.name;
}

struct matching {
    const entity_records &first;
    const entity_records &second;
    entity_match match;
    nodes pairs;  // of the first document, in the order found: the work list
};

void add_pair(const eid_chain_node *before, const eid_chain_node *after, matching *state)
{
    state->match.after.emplace(before, after);
    state->match.before.emplace(after, before);
    state->pairs.push_back(before);
}

nodes unmatched_children(const eid_chain_node *parent, const invctl::node_map &matched)
{
    nodes children;
    for (const eid_chain_node *child = parent->first_child; child != nullptr; child = child->next_sibling)
        if (!matched.contains(child))
            children.push_back(child);
    return children;
}

// Pairs the unmatched children of a pair that have the same key; several of one key in their order.
void match_children(const eid_chain_node *parent, key_function key, matching *state)
{
    nodes before = unmatched_children(parent, state->match.after);
    nodes after = unmatched_children(state->match.after.at(parent), state->match.before);
    if (before.empty() || after.empty())
        return;
    struct waiting {
        nodes in_order;
        size_t next = 0;
    };
    std::unordered_map<std::string, waiting> by_key;
    for (const eid_chain_node *node : after)
        by_key[key(node, state->second)].in_order.push_back(node);
    for (const eid_chain_node *node : before) {
        auto found = by_key.find(key(node, state->first));
        if (found != by_key.end() && found->second.next < found->second.in_order.size())
            add_pair(node, found->second.in_order[found->second.next++], state);
    }
}

// Goes down from the pairs found since `*done`.
void match_below(key_function key, size_t *done, matching *state)
{
    for (; *done < state->pairs.size(); ++*done)
        match_children(state->pairs[*done], key, state);
}

// Of the unmatched entities those that are alone with their key; null for a key that several have.
std::unordered_map<std::string, const eid_chain_node *> found_once(const entity_records &known,
                                                                   const invctl::node_map &matched)
{
    std::unordered_map<std::string, const eid_chain_node *> by_key;
    for (const eid_chain_node *node : known.in_order) {
        if (matched.contains(node))
            continue;
        auto [place, is_new] = by_key.emplace(name_key(node, known), node);
        if (!is_new)
            place->second = nullptr;
    }
    return by_key;
}

void match_moved(size_t *done, matching *state)
{
    auto before = found_once(state->first, state->match.after);
    auto after = found_once(state->second, state->match.before);
    for (const eid_chain_node *node : state->first.in_order) {
        if (state->match.after.contains(node))
            continue;
        std::string key = name_key(node, state->first);
        auto found = after.find(key);
        bool alone = before.at(key) == node && found != after.end() && found->second != nullptr;
        if (!alone || state->match.before.contains(found->second))
            continue;
        add_pair(node, found->second, state);
        match_below(level_and_name_key, done, state);
    }
}

}  // namespace

namespace invctl
{

entity_match match_entities(const entity_records &first, const entity_records &second)
{
    matching state = {first, second, {}, {}};
    size_t by_name_done = 0;
    size_t by_level_done = 0;
    add_pair(first.in_order.front(), second.in_order.front(), &state);
    match_below(level_and_name_key, &by_name_done, &state);
    match_moved(&by_name_done, &state);
    // What a renamed entity holds may be known by name again.
    while (by_level_done < state.pairs.size()) {
        match_children(state.pairs[by_level_done++], level_key, &state);
        match_below(level_and_name_key, &by_name_done, &state);
    }
    return state.match;
}

bool is_moved(const entity_match &match, const eid_chain_node *before, const eid_chain_node *after)
{
    if (eid_level(*before->record) != eid_level(*after->record))
        return true;
    if (before->parent == nullptr || after->parent == nullptr)
        return before->parent != after->parent;
    auto parent = match.after.find(before->parent);
    return parent == match.after.end() || parent->second != after->parent;
}

}  // namespace invctl
