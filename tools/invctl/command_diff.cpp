#include "command_diff.h"

#include <cstdio>
#include <cstring>

#include "document_diff.h"
#include "entity_words.h"
#include "exit_codes.h"
#include "output.h"

namespace
{

using invctl::change_kind;
using invctl::document;
using invctl::entity_change;
using json = nlohmann::ordered_json;

// What the reader calls the change of a pair: a move may bring other fields along.
const char *word_of(const entity_change &change)
{
    switch (change.kind) {
    case change_kind::removed:
        return "removed";
    case change_kind::added:
        return "added";
    default:
        return change.moved ? "moved" : "changed";
    }
}

std::string text_of(const entity_change &change)
{
    char word[16];
    snprintf(word, sizeof word, "%-8s", word_of(change));
    std::string text = word + invctl::entity_heading(change.before != nullptr ? change.before : change.after);
    if (change.below != 0)
        text += "  and " + std::to_string(change.below) + " below";
    text += "\n";
    if (change.moved)
        text += "    to " + invctl::eid_text(change.after) + "\n";
    for (const invctl::field_change &field : change.fields)
        text += "    " + field.field + ": " + field.from.text + " -> " + field.to.text + "\n";
    return text;
}

json json_of(const entity_change &change)
{
    const eid_chain_node *node = change.before != nullptr ? change.before : change.after;
    json object;
    object["change"] = word_of(change);
    object["eid"] = invctl::eid_text(node);
    if (change.moved)
        object["to"] = invctl::eid_text(change.after);
    object["name"] = invctl::valid_utf8(node->record->name);
    object["xml_instance"] = node->record->xml_instance;
    if (change.kind != change_kind::changed) {
        object["below"] = change.below;
        return object;
    }
    object["fields"] = json::array();
    for (const invctl::field_change &field : change.fields)
        object["fields"].push_back(
            {{"field", field.field}, {"from", field.from.json}, {"to", field.to.json}});
    return object;
}

void print_json(const document &before, const document &after, const std::vector<entity_change> &changes)
{
    json object;
    object["before"] = {{"file", invctl::valid_utf8(before.path.c_str())}, {"kind", before.kind}};
    object["after"] = {{"file", invctl::valid_utf8(after.path.c_str())}, {"kind", after.kind}};
    object["equal"] = changes.empty() && strcmp(before.kind, after.kind) == 0;
    object["changes"] = json::array();
    for (const entity_change &change : changes)
        object["changes"].push_back(json_of(change));
    invctl::write_out(object.dump(2) + "\n");
}

// Units of two kinds have no entities in common: that they differ is all there is to say.
int compare(const document &before, const document &after, const invctl::diff_options &options)
{
    bool same_kind = strcmp(before.kind, after.kind) == 0;
    std::vector<entity_change> changes;
    invctl::entity_records records_before = find_entity_records(before);
    invctl::entity_records records_after = find_entity_records(after);
    if (same_kind)
        changes = diff_documents(records_before, records_after);
    if (options.json) {
        print_json(before, after, changes);
    } else {
        if (!same_kind)
            invctl::write_out(std::string("kind    ") + before.kind + " -> " + after.kind + "\n");
        for (const entity_change &change : changes)
            invctl::write_out(text_of(change));
    }
    return same_kind && changes.empty() ? invctl::exit_ok : invctl::exit_finding;
}

}  // namespace

namespace invctl
{

int run_diff(const diff_options &options)
{
    document before;
    document after;
    if (open_document(options.before, &before) != exit_ok)
        return exit_trouble;
    int code = exit_trouble;
    if (open_document(options.after, &after) == exit_ok)
        code = compare(before, after, options);
    close_document(&after);
    close_document(&before);
    return code;
}

}  // namespace invctl
