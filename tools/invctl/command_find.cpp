#include "command_find.h"

#include <fnmatch.h>

#include <nlohmann/json.hpp>

#include "document.h"
#include "entity_records.h"
#include "entity_words.h"
#include "exit_codes.h"
#include "output.h"
#include "path_walk.h"

namespace
{

using invctl::find_options;
using json = nlohmann::ordered_json;

bool meets_all(const sch_base_entity_type &entity, const find_options &options)
{
    return (!options.type || entity.type == *options.type) &&
           (options.subtype.empty() || invctl::has_subtype(entity, options.subtype)) &&
           (options.owner.empty() || invctl::owner_word(entity) == options.owner) &&
           (!options.name || fnmatch(options.name->c_str(), entity.name, 0) == 0);
}

std::string line_of(const eid_chain_node *node)
{
    return invctl::entity_heading(node) + "  owner " + invctl::owner_word(*node->record) + "\n";
}

json json_of(const eid_chain_node *node)
{
    const sch_base_entity_type &entity = *node->record;
    json object;
    object["eid"] = invctl::eid_text(node);
    object["name"] = invctl::valid_utf8(entity.name);
    object["xml_instance"] = entity.xml_instance;
    object["owner"] = invctl::owner_word(entity);
    return object;
}

void print_json(const invctl::document &opened, const std::vector<const eid_chain_node *> &found)
{
    json object;
    object["file"] = invctl::valid_utf8(opened.path.c_str());
    object["kind"] = opened.kind;
    object["found"] = json::array();
    for (const eid_chain_node *node : found)
        object["found"].push_back(json_of(node));
    invctl::write_out(object.dump(2) + "\n");
}

}  // namespace

namespace invctl
{

int run_find(const find_options &options)
{
    document opened;
    int code = open_document(options.file, &opened);
    if (code != exit_ok)
        return code;
    std::vector<const eid_chain_node *> found;
    for (const eid_chain_node *node : all_entities(opened))
        if (meets_all(*node->record, options))
            found.push_back(node);
    if (options.json)
        print_json(opened, found);
    else
        for (const eid_chain_node *node : found)
            write_out(line_of(node));
    close_document(&opened);
    return found.empty() ? exit_finding : exit_ok;
}

}  // namespace invctl
