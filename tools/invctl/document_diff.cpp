#include "document_diff.h"

#include "entity_match.h"

namespace
{

using invctl::change_kind;
using invctl::entity_change;
using invctl::entity_records;
using invctl::node_map;

// Unmatched entities of one document, each subtree as its top with a count.
struct lone_entities {
    std::vector<const eid_chain_node *> tops;
    std::unordered_map<const eid_chain_node *, size_t> below;  // by top
};

lone_entities find_lone_entities(const entity_records &known, const node_map &matched)
{
    lone_entities lone;
    node_map top_of;
    for (const eid_chain_node *node : known.in_order) {
        if (matched.contains(node))
            continue;
        auto parent = top_of.find(node->parent);
        const eid_chain_node *top = parent == top_of.end() ? node : parent->second;
        top_of.emplace(node, top);
        if (top == node)
            lone.tops.push_back(node);
        else
            ++lone.below[top];
    }
    return lone;
}

void add_pair_change(const entity_records &known, const eid_chain_node *before, const eid_chain_node *after,
                     bool moved, std::vector<entity_change> *changes)
{
    entity_change change = {change_kind::changed, before, after, 0, moved, {}};
    change.fields = invctl::diff_records(known.table(before->record), before->record, after->record);
    if (change.moved || !change.fields.empty())
        changes->push_back(std::move(change));
}

}  // namespace

namespace invctl
{

std::vector<entity_change> diff_documents(const entity_records &before, const entity_records &after)
{
    entity_match match = match_entities(before, after);
    lone_entities removed = find_lone_entities(before, match.after);
    lone_entities added = find_lone_entities(after, match.before);
    std::vector<entity_change> changes;
    auto next_removed = removed.tops.begin();
    for (const eid_chain_node *node : before.in_order) {
        auto pair = match.after.find(node);
        if (pair != match.after.end()) {
            add_pair_change(before, node, pair->second, is_moved(match, node, pair->second), &changes);
        } else if (next_removed != removed.tops.end() && *next_removed == node) {
            changes.push_back({change_kind::removed, node, nullptr, removed.below[node], false, {}});
            ++next_removed;
        }
    }
    for (const eid_chain_node *node : added.tops)
        changes.push_back({change_kind::added, nullptr, node, added.below[node], false, {}});
    return changes;
}

}  // namespace invctl
