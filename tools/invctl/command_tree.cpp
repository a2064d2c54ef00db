#include "command_tree.h"

#include <vector>

#include <nlohmann/json.hpp>

#include "document.h"
#include "entity_words.h"
#include "exit_codes.h"
#include "output.h"

namespace
{

using invctl::tree_options;
using json = nlohmann::ordered_json;

// An entity that is to be shown, with its place. Trees of documents are at most 128 deep, so the
// walks below may recurse.
bool is_shown(const eid_chain_node *node, const tree_options &options, uint32_t level)
{
    if (options.depth != 0 && level > options.depth)
        return false;
    if (!options.type || node->record->type == *options.type)
        return true;
    for (const eid_chain_node *child = node->first_child; child != nullptr; child = child->next_sibling)
        if (is_shown(child, options, level + 1))
            return true;
    return false;
}

std::vector<const eid_chain_node *> shown_children(const eid_chain_node *node, const tree_options &options,
                                                   uint32_t level)
{
    std::vector<const eid_chain_node *> children;
    for (const eid_chain_node *child = node->first_child; child != nullptr; child = child->next_sibling)
        if (is_shown(child, options, level + 1))
            children.push_back(child);
    return children;
}

void print_node(const eid_chain_node *node, const tree_options &options, uint32_t level,
                const std::string &own_rule, const std::string &child_rule)
{
    const sch_base_entity_type &entity = *node->record;
    invctl::write_out(own_rule + invctl::eid_level(entity) + "  \"" + invctl::printable(entity.name) +
                      "\"  xml " + std::to_string(entity.xml_instance) + "  owner " +
                      invctl::owner_word(entity) + "\n");
    std::vector<const eid_chain_node *> children = shown_children(node, options, level);
    for (size_t i = 0; i < children.size(); ++i) {
        bool last = i + 1 == children.size();
        print_node(children[i], options, level + 1, child_rule + (last ? "`-- " : "|-- "),
                   child_rule + (last ? "    " : "|   "));
    }
}

json json_of_node(const eid_chain_node *node, const tree_options &options, uint32_t level)
{
    const sch_base_entity_type &entity = *node->record;
    json object;
    object["type"] = invctl::type_word(entity);
    object["subtype"] = invctl::subtype_word(entity);
    object["instance"] = entity.instance;
    object["name"] = invctl::valid_utf8(entity.name);
    object["xml_instance"] = entity.xml_instance;
    object["owner"] = invctl::owner_word(entity);
    json children = json::array();
    for (const eid_chain_node *child : shown_children(node, options, level))
        children.push_back(json_of_node(child, options, level + 1));
    object["children"] = std::move(children);
    return object;
}

void print_json(const invctl::document &opened, const tree_options &options)
{
    json object;
    object["file"] = invctl::valid_utf8(opened.path.c_str());
    object["kind"] = opened.kind;
    const eid_chain_node *root = opened.handle->root;
    object["tree"] = is_shown(root, options, 1) ? json_of_node(root, options, 1) : json(nullptr);
    invctl::write_out(object.dump(2) + "\n");
}

}  // namespace

namespace invctl
{

int run_tree(const tree_options &options)
{
    document opened;
    int code = open_document(options.file, &opened);
    if (code != exit_ok)
        return code;
    if (options.json)
        print_json(opened, options);
    else if (is_shown(opened.handle->root, options, 1))
        print_node(opened.handle->root, options, 1, "", "");
    close_document(&opened);
    return exit_ok;
}

}  // namespace invctl
