// invctl: looks into inventory documents through the library.
#include <csignal>
#include <cstdio>
#include <exception>
#include <map>

#include <CLI/CLI.hpp>

#include "command_path.h"
#include "command_show.h"
#include "command_tree.h"
#include "eid_text.h"
#include "entity_words.h"
#include "exit_codes.h"
#include "output.h"

namespace
{

// Adds `invctl tree` to the command line; options are filled when it is chosen.
CLI::App *add_tree(CLI::App &app, invctl::tree_options &options)
{
    CLI::App *tree = app.add_subcommand("tree", "Print the entity tree of a document");
    tree->add_option("FILE", options.file, "Inventory document")->required();
    tree->add_option("--depth", options.depth, "Levels to show; 1 is the top entity alone")
        ->check(CLI::Range(1u, 128u));
    tree->add_option_function<std::string>(
            "--type",
            [&options](const std::string &word) {
                options.type = invctl::type_of_word(word);
                if (!options.type)
                    throw CLI::ValidationError("--type", word + " is none of " + invctl::all_type_words());
            },
            "Only entities of this type and what leads to them, e.g. sensor")
        ->type_name("TYPE");
    tree->add_flag("--json", options.json, "Print JSON");
    tree->footer("Exit status: 0 done, 1 the document is at fault, 2 usage or input and output.\n"
                 "Example: invctl tree --type sensor --depth 3 line_card.xml");
    return tree;
}

// Adds `invctl show`.
CLI::App *add_show(CLI::App &app, invctl::show_options &options)
{
    CLI::App *show = app.add_subcommand("show", "Print the full record of an entity");
    show->add_option("FILE", options.file, "Inventory document")->required();
    CLI::Option_group *which = show->add_option_group("Entity");
    which
        ->add_option_function<std::string>(
            "EID",
            [&options](const std::string &text) {
                options.eid = invctl::parse_eid(text);
                if (!options.eid)
                    throw CLI::ValidationError("EID", text + " is not type.subtype.instance/...");
            },
            "Path from the top entity down, type.subtype.instance/..., in words or numbers")
        ->type_name("TEXT");
    which->add_option("--instance", options.xml_instance, "The entity with this xml instance");
    which->add_flag("--all", options.all, "Every entity, in the order of the tree");
    which->require_option(1);
    show->add_flag("--json", options.json, "Print JSON");
    show->footer(
        "Exit status: 0 done, 1 the document is at fault or has no such entity, 2 usage, several such\n"
        "entities, or input and output.\n"
        "Example: invctl show line_card.xml module.msc.0/sensor.temp_value.3");
    return show;
}

// The options of `invctl path` that belong to the form from a control card.
void add_card_options(CLI::App *path, invctl::path_options &options)
{
    CLI::Option *card = path->add_option("--from", options.card_file,
                                         "As seen from the control card that this document describes");
    CLI::Option *type =
        path->add_option_function<std::string>(
                "--node-type",
                [&options](const std::string &word) {
                    std::optional<uint32_t> found = invctl::node_type_of_word(word);
                    if (!found)
                        throw CLI::ValidationError("--node-type", word + " is no node type, e.g. linecard");
                    options.node_type = *found;
                },
                "What FILE's unit is to the control card, e.g. linecard")
            ->type_name("TYPE")
            ->needs(card);
    CLI::Option *position =
        path->add_option("--position", options.position, "Where it is plugged")->needs(card);
    path->add_option("--slot", options.slot, "Slot of the control card, 0 or 1; both without it")
        ->check(CLI::Range(0u, 1u))
        ->needs(card);
    card->needs(type)->needs(position);
}

// Adds `invctl path`.
CLI::App *add_path(CLI::App &app, invctl::path_options &options)
{
    CLI::App *path = app.add_subcommand("path", "Print the hops by which a device is reached");
    path->add_option("FILE", options.file, "Inventory document")->required();
    CLI::Option_group *which = path->add_option_group("Device");
    which->add_option("EID|NAME", options.target, "The device's EID, type.subtype.instance/..., or its name")
        ->type_name("TEXT");
    which->add_option("--instance", options.instance, "The device with this xml instance");
    CLI::Option *all =
        which->add_flag("--all", options.all, "Every device of the document, one line for each path");
    which->require_option(1);
    path->add_option("--bus", options.over, "i2c (default) or pcie")
        ->transform(CLI::CheckedTransformer(std::map<std::string, invctl::bus>{{"i2c", invctl::bus::i2c},
                                                                               {"pcie", invctl::bus::pcie}})
                        .description(""))
        ->type_name("BUS");
    add_card_options(path, options);
    path->add_flag("--behind", options.behind, "List everything that is reached through the device")
        ->excludes("--from")
        ->excludes(all);
    path->add_flag("--json", options.json, "Print JSON");
    path->footer(
        "Exit status: 0 done, 1 the document is at fault or has no such path, 2 usage, several devices of\n"
        "that name, or input and output.\n"
        "Example: invctl path line_card.xml --instance 20 --from route_processor.xml --slot 0\n"
        "         --node-type linecard --position 3");
    return path;
}

int run(int argc, char **argv)
{
    CLI::App app("Looks into hardware inventory documents.", "invctl");
    app.require_subcommand(1);
    invctl::tree_options tree_options;
    CLI::App *tree = add_tree(app, tree_options);
    invctl::show_options show_options;
    CLI::App *show = add_show(app, show_options);
    invctl::path_options path_options;
    CLI::App *path = add_path(app, path_options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? invctl::exit_ok : invctl::exit_trouble;
    }
    if (show->parsed())
        return invctl::run_show(show_options);
    if (path->parsed())
        return invctl::run_path(path_options);
    return tree->parsed() ? invctl::run_tree(tree_options) : invctl::exit_trouble;
}

}  // namespace

int main(int argc, char **argv)
{
    // A closed pipe is reported like a full disk.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return invctl::finish_output(run(argc, argv));
    } catch (const std::exception &error) {
        fprintf(stderr, "invctl: %s\n", error.what());
        return invctl::exit_trouble;
    }
}
