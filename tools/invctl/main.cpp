// invctl: looks into inventory documents through the library.
#include <csignal>
#include <cstdio>
#include <exception>

#include <CLI/CLI.hpp>

#include "command_tree.h"
#include "entity_words.h"
#include "exit_codes.h"
#include "output.h"

namespace {

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

int run(int argc, char **argv)
{
    CLI::App app("Looks into hardware inventory documents.", "invctl");
    app.require_subcommand(1);
    invctl::tree_options tree_options;
    CLI::App *tree = add_tree(app, tree_options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? invctl::exit_ok : invctl::exit_trouble;
    }
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
