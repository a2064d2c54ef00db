#include "command_json.h"

#include "document.h"
#include "entity_records.h"
#include "exit_codes.h"
#include "json_schema.h"
#include "output.h"
#include "record_print.h"

namespace
{

using invctl::entity_records;
using json = nlohmann::ordered_json;

uint32_t depth_of(const eid_chain_node *node)
{
    uint32_t depth = 0;
    for (; node != nullptr; node = node->parent)
        ++depth;
    return depth;
}

json entity_json(const eid_chain_node *node, const entity_records &known)
{
    const invctl::record_table &table = known.table(node->record);
    json object;
    object["eid"] = invctl::eid_text(node);
    object["depth"] = depth_of(node);
    object["record"] = table.name;
    object["fields"] = invctl::record_json(table, node->record, known);
    return object;
}

// One entity a line: large documents compare well and need not be held in memory.
void print_document(const invctl::document &opened)
{
    entity_records known = find_entity_records(opened);
    json head;
    head["version"] = invctl::inventory_json_version;
    head["kind"] = opened.kind;
    std::string text = head.dump();
    text.pop_back();
    invctl::write_out(text + ",\"entities\":[\n");
    for (const eid_chain_node *node : known.in_order)
        invctl::write_out(entity_json(node, known).dump() + (node == known.in_order.back() ? "\n" : ",\n"));
    invctl::write_out("]}\n");
}

}  // namespace

namespace invctl
{

int run_json(const json_options &options)
{
    if (options.schema) {
        write_out(inventory_json_schema().dump(1) + "\n");
        return exit_ok;
    }
    document opened;
    int code = open_document(options.file, &opened);
    if (code != exit_ok)
        return code;
    print_document(opened);
    close_document(&opened);
    return exit_ok;
}

}  // namespace invctl
