#include "command_show.h"

#include <cstdio>

#include <nlohmann/json.hpp>

#include "document.h"
#include "entity_records.h"
#include "exit_codes.h"
#include "output.h"
#include "record_print.h"

namespace
{

using invctl::entity_records;
using invctl::show_options;
using json = nlohmann::ordered_json;
using node_list = std::vector<const eid_chain_node *>;

node_list chosen_entities(const entity_records &known, const show_options &options)
{
    node_list chosen;
    for (const eid_chain_node *node : known.in_order)
        if (options.all || (options.eid && invctl::has_eid(node, *options.eid)) ||
            (options.xml_instance && node->record->xml_instance == *options.xml_instance))
            chosen.push_back(node);
    return chosen;
}

json entity_json(const eid_chain_node *node, const entity_records &known)
{
    const invctl::record_table &table = known.table(node->record);
    json object;
    object["eid"] = invctl::eid_text(node);
    object["record"] = table.name;
    object["fields"] = invctl::record_json(table, node->record, known);
    return object;
}

std::string entity_text(const eid_chain_node *node, const entity_records &known)
{
    const invctl::record_table &table = known.table(node->record);
    return invctl::entity_heading(node) + "\nrecord: " + table.name + "\n" +
           invctl::record_text(table, node->record, known, 0);
}

json document_json(const invctl::document &opened)
{
    json object;
    object["file"] = invctl::valid_utf8(opened.path.c_str());
    object["kind"] = opened.kind;
    return object;
}

void print_one(const invctl::document &opened, const eid_chain_node *node, const entity_records &known,
               bool as_json)
{
    if (!as_json) {
        invctl::write_out(entity_text(node, known));
        return;
    }
    json object = document_json(opened);
    object.update(entity_json(node, known));
    invctl::write_out(object.dump(2) + "\n");
}

// One entity a line, so that large documents compare well and need not be held in memory.
void print_all_json(const invctl::document &opened, const entity_records &known)
{
    std::string head = document_json(opened).dump();
    head.pop_back();
    invctl::write_out(head + ",\"entities\":[\n");
    for (const eid_chain_node *node : known.in_order)
        invctl::write_out(entity_json(node, known).dump() + (node == known.in_order.back() ? "\n" : ",\n"));
    invctl::write_out("]}\n");
}

void print_all_text(const entity_records &known)
{
    for (const eid_chain_node *node : known.in_order)
        invctl::write_out((node == known.in_order.front() ? "" : "\n") + entity_text(node, known));
}

int print_chosen(const invctl::document &opened, const entity_records &known, const show_options &options)
{
    node_list chosen = chosen_entities(known, options);
    if (chosen.empty()) {
        fprintf(stderr, "%s: no such entity\n", opened.path.c_str());
        return invctl::exit_finding;
    }
    if (options.all) {
        options.json ? print_all_json(opened, known) : print_all_text(known);
        return invctl::exit_ok;
    }
    if (chosen.size() > 1) {
        fprintf(stderr, "%s: %zu entities answer to that:\n", opened.path.c_str(), chosen.size());
        for (const eid_chain_node *node : chosen)
            fprintf(stderr, "  %s\n", invctl::entity_heading(node).c_str());
        return invctl::exit_trouble;
    }
    print_one(opened, chosen.front(), known, options.json);
    return invctl::exit_ok;
}

}  // namespace

namespace invctl
{

int run_show(const show_options &options)
{
    document opened;
    int code = open_document(options.file, &opened);
    if (code != exit_ok)
        return code;
    code = print_chosen(opened, find_entity_records(opened), options);
    close_document(&opened);
    return code;
}

}  // namespace invctl
