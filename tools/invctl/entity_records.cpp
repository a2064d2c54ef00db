#include "entity_records.h"

#include <array>
#include <cstring>

#include "entity_words.h"
#include "output.h"
#include "record_reader.h"

namespace
{

using invctl::entity_records;
using invctl::field_kind;
using invctl::record_field;
using invctl::record_table;

struct unit_table {
    const char *kind;  // root element's name
    const record_table &(*table)();
};

constexpr unit_table unit_tables[] = {
    {"module", invctl::table_of<sch_module_type>},
    {"chassis", invctl::table_of<sch_chassis_type>},
    {"powerShelf", invctl::table_of<sch_power_shelf_type>},
    {"pem", invctl::table_of<sch_pem_type>},
    {"fanTray", invctl::table_of<sch_fan_tray_type>},
    {"optics", invctl::table_of<sch_cxp_fixed_optics_type>},
};

struct found_record {
    const record_table *table;
    const void *record;
};

using found_records = std::vector<found_record>;

void add_linked(const record_field &field, const void *record, found_records *found)
{
    const record_table &table = field.record();
    for (const void *each = invctl::pointer_in(field, record); each != nullptr;
         each = invctl::next_in_list(table, each))
        found->push_back({&table, each});
}

// What hangs in a record: entities go to *entities, records that are none to *parts.
void add_fields(const found_record &from, found_records *entities, found_records *parts)
{
    for (const record_field &field : from.table->fields) {
        const void *at = invctl::field_address(field, from.record);
        if (field.kind == field_kind::nested)
            parts->push_back({&field.record(), at});
        else if (field.kind == field_kind::list)
            add_linked(field, from.record, parts);
        else if (field.kind == field_kind::child)
            entities->push_back({&field.record(), at});
        else if (field.kind == field_kind::children)
            add_linked(field, from.record, entities);
    }
}

// Walks without recursion: a back plane's modules hang one below the other, any number of them.
void add_reachable(const found_record &from, entity_records *known)
{
    found_records entities = {from};
    found_records parts;
    while (!entities.empty()) {
        found_record entity = entities.back();
        entities.pop_back();
        if (!known->tables.emplace(entity.record, entity.table).second)
            continue;
        parts.push_back(entity);
        while (!parts.empty()) {
            found_record part = parts.back();
            parts.pop_back();
            add_fields(part, &entities, &parts);
        }
    }
}

void add_nodes(const eid_chain_node *node, entity_records *known)
{
    known->in_order.push_back(node);
    known->nodes.emplace(node->record, node);
    for (const eid_chain_node *child = node->first_child; child != nullptr; child = child->next_sibling)
        add_nodes(child, known);
}

// A child module of a back plane's module loses its place in the list to the back plane's next module
// and stays in the tree: an entity below a module that no list leads to is such a one.
const record_table &table_of_unlisted(const eid_chain_node *node, const entity_records &known)
{
    const record_table &module = invctl::table_of<sch_module_type>();
    bool below_module = node->parent != nullptr && known.tables.at(node->parent->record) == &module;
    return below_module ? module : invctl::table_of<sch_base_entity_type>();
}

sch_eid_level_type level_of(const sch_base_entity_type &entity)
{
    return {entity.type, static_cast<uint8_t>(entity.subtype), entity.instance};
}

}  // namespace

namespace invctl
{

entity_records find_entity_records(const document &opened)
{
    entity_records known;
    for (const unit_table &unit : unit_tables)
        if (strcmp(unit.kind, opened.kind) == 0)
            add_reachable({&unit.table(), opened.handle->root->record}, &known);
    add_nodes(opened.handle->root, &known);
    for (const eid_chain_node *node : known.in_order)
        if (!known.tables.contains(node->record))
            add_reachable({&table_of_unlisted(node, known), node->record}, &known);
    return known;
}

std::string eid_text(const eid_chain_node *node)
{
    std::string text = eid_level(*node->record);
    for (uint32_t level = 1; level < INV_EID_MAX_DEPTH && node->parent != nullptr; ++level) {
        node = node->parent;
        text = eid_level(*node->record) + "/" + text;
    }
    return text;
}

std::string entity_heading(const eid_chain_node *node)
{
    return eid_text(node) + "  \"" + printable(node->record->name) + "\"  xml " +
           std::to_string(node->record->xml_instance);
}

std::span<const char *const> unit_kinds()
{
    static const auto kinds = [] {
        std::array<const char *, std::size(unit_tables)> names = {};
        for (size_t i = 0; i < names.size(); ++i)
            names[i] = unit_tables[i].kind;
        return names;
    }();
    return kinds;
}

bool has_eid(const eid_chain_node *node, const sch_eid_type &eid)
{
    for (uint32_t level = eid.depth; level-- > 0; node = node->parent) {
        if (node == nullptr)
            return false;
        sch_eid_level_type own = level_of(*node->record);
        if (memcmp(&own, &eid.levels[level], sizeof own) != 0)
            return false;
    }
    return node == nullptr || eid.depth == INV_EID_MAX_DEPTH;
}

}  // namespace invctl
