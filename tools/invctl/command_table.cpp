#include "command_table.h"

#include "command_check.h"
#include "command_options.h"

namespace
{

using invctl::command;

constexpr const char *tree_examples[] = {
    "invctl tree line_card.xml",
    "invctl tree --type sensor --depth 3 line_card.xml",
};
constexpr const char *show_examples[] = {
    "invctl show line_card.xml module.msc.0/sensor.temp_value.3",
    "invctl show line_card.xml --instance 20 --json",
};
constexpr const char *path_examples[] = {
    "invctl path line_card.xml \"Inlet temperature\"",
    ("invctl path line_card.xml --instance 20 --from route_processor.xml --slot 0 --node-type linecard "
     "--position 3"),
    "invctl path line_card.xml --all --bus pcie",
};
constexpr const char *check_examples[] = {
    "invctl check line_card.xml",
    "invctl check --format sarif --severity warning inventories",
    "invctl check --catalog inventories/catalog.txt",
    "invctl check --code token-unknown,element-missing - <line_card.xml",
};
constexpr const char *json_examples[] = {
    "invctl json line_card.xml",
    "invctl json --schema",
};
constexpr const char *find_examples[] = {
    "invctl find line_card.xml --type sensor --name '*temp*'",
    "invctl find line_card.xml --subtype i2c_mux --owner shelf --json",
};
constexpr const char *diff_examples[] = {
    "invctl diff line_card.xml line_card_new.xml",
    "invctl diff --json line_card.xml line_card_new.xml",
};
constexpr const char *completion_examples[] = {
    "source <(invctl completion bash)",
    "invctl completion zsh >~/.zfunc/_invctl",
    "invctl completion fish >~/.config/fish/completions/invctl.fish",
};
constexpr const char *manual_examples[] = {
    "invctl manual | man -l -",
};
constexpr const char *examples_of_invctl[] = {
    "invctl tree line_card.xml",
    "invctl find line_card.xml --type sensor",
    "invctl diff line_card.xml line_card_new.xml",
};

constexpr command commands[] = {
    {"tree", "Print the entity tree of a document",
     "0 done, 1 the document is at fault, 2 usage or input and output.", tree_examples, invctl::declare_tree},
    {"show", "Print the full record of an entity",
     "0 done, 1 the document is at fault or has no such entity, 2 usage, several such entities, or input and "
     "output.",
     show_examples, invctl::declare_show},
    {"path", "Print the hops by which a device is reached",
     "0 done, 1 the document is at fault or has no such path, 2 usage, several devices of that name, or "
     "input "
     "and output.",
     path_examples, invctl::declare_path},
    {"find", "List the entities that meet all conditions",
     "0 found, 1 the document is at fault or no entity meets them, 2 usage or input and output.",
     find_examples, invctl::declare_find},
    {"check", "Find every mistake in documents and point at it",
     "0 nothing found, 1 findings, 2 usage or input and output.", check_examples, invctl::declare_check},
    {"json", "Print a whole document as JSON, the same bytes wherever it lies",
     "0 done, 1 the document is at fault, 2 usage or input and output.", json_examples, invctl::declare_json},
    {"diff", "Compare two documents entity by entity",
     "0 equal, 1 different, 2 usage, input and output, or a document at fault.", diff_examples,
     invctl::declare_diff},
    {"completion", "Print the script that completes invctl's command lines in a shell",
     "0 done, 2 usage or output.", completion_examples, invctl::declare_completion},
    {"manual", "Print the manual page invctl(1)", "0 done, 2 usage or output.", manual_examples,
     invctl::declare_manual},
};

}  // namespace

namespace invctl
{

std::span<const command> all_commands()
{
    return commands;
}

std::span<const char *const> overall_examples()
{
    return examples_of_invctl;
}

const char *overall_summary()
{
    return "Looks into hardware inventory documents";
}

}  // namespace invctl
