#include "command_options.h"

#include <map>
#include <memory>

#include "command_completion.h"
#include "command_diff.h"
#include "command_find.h"
#include "command_json.h"
#include "command_manual.h"
#include "command_path.h"
#include "command_show.h"
#include "command_tree.h"
#include "eid_text.h"
#include "entity_words.h"
#include "nearest.h"
#include "option_values.h"

namespace
{

// The options live as long as the command line that fills them.
template <class Options>
invctl::runner runs(int (*command)(const Options &), const std::shared_ptr<Options> &options)
{
    return [command, options] { return command(*options); };
}

CLI::Option *add_file(CLI::App *app, std::string &file, const char *name = "FILE",
                      const char *description = "Inventory document")
{
    return app->add_option(name, file, description)->required()->type_name("FILE")->option_text("(required)");
}

[[noreturn]] void refuse_word(const std::string &option, const std::string &word,
                              const std::vector<std::string> &words)
{
    std::string near = invctl::nearest_word(word, words);
    std::string list;
    // A long list helps nobody.
    for (size_t i = 0; i < words.size() && words.size() <= 20; ++i)
        list += (i == 0 ? ", which are " : ", ") + words[i];
    throw CLI::ValidationError(option, word + " is none of its words" + list +
                                           (near.empty() ? "" : "; did you mean " + near + "?"));
}

CLI::Option *add_type(CLI::App *app, std::optional<uint8_t> &type, const char *description)
{
    return app
        ->add_option_function<std::string>(
            "--type",
            [&type](const std::string &word) {
                type = invctl::type_of_word(word);
                if (!type)
                    refuse_word("--type", word, invctl::entity_types());
            },
            description)
        ->type_name("TYPE");
}

// The options of `invctl path` that belong to the form from a control card.
void add_card_options(CLI::App *path, invctl::path_options &options)
{
    CLI::Option *card = path->add_option("--from", options.card_file,
                                         "As seen from the control card that this document describes")
                            ->type_name("FILE");
    CLI::Option *type = path->add_option_function<std::string>(
                                "--node-type",
                                [&options](const std::string &word) {
                                    std::optional<uint32_t> found = invctl::node_type_of_word(word);
                                    if (!found)
                                        refuse_word("--node-type", word, invctl::node_types());
                                    options.node_type = *found;
                                },
                                "What FILE's unit is to the control card, e.g. linecard")
                            ->type_name("NODETYPE")
                            ->needs(card);
    CLI::Option *position =
        path->add_option("--position", options.position, "Where it is plugged")->needs(card);
    path->add_option("--slot", options.slot, "Slot of the control card, 0 or 1; both without it")
        ->check(CLI::Range(0u, 1u))
        ->needs(card);
    card->needs(type)->needs(position);
}

}  // namespace

namespace invctl
{

CLI::Option *add_word_option(CLI::App *app, const char *name, std::string &value, const char *description,
                             const char *type_name)
{
    std::string values = type_name;
    return app
        ->add_option_function<std::string>(
            name,
            [&value, values, name](const std::string &word) {
                std::vector<std::string> words = words_of_value(values);
                if (std::find(words.begin(), words.end(), word) == words.end())
                    refuse_word(name, word, words);
                value = word;
            },
            description)
        ->type_name(type_name);
}

runner declare_tree(CLI::App *tree)
{
    auto options = std::make_shared<tree_options>();
    add_file(tree, options->file);
    tree->add_option("--depth", options->depth, "Levels to show; 1 is the top entity alone")
        ->check(CLI::Range(1u, 128u));
    add_type(tree, options->type, "Only entities of this type and what leads to them, e.g. sensor");
    tree->add_flag("--json", options->json, "Print JSON");
    return runs(run_tree, options);
}

runner declare_show(CLI::App *show)
{
    auto options = std::make_shared<show_options>();
    add_file(show, options->file);
    CLI::Option_group *which = show->add_option_group("Entity");
    which
        ->add_option_function<std::string>(
            "EID",
            [options = options.get()](const std::string &text) {
                options->eid = parse_eid(text);
                if (!options->eid)
                    throw CLI::ValidationError("EID", text + " is not type.subtype.instance/...");
            },
            "Path from the top entity down, type.subtype.instance/..., in words or numbers")
        ->type_name("TEXT");
    which->add_option("--instance", options->xml_instance, "The entity with this xml instance");
    which->add_flag("--all", options->all, "Every entity, in the order of the tree");
    which->require_option(1);
    show->add_flag("--json", options->json, "Print JSON");
    return runs(run_show, options);
}

runner declare_path(CLI::App *path)
{
    auto options = std::make_shared<path_options>();
    add_file(path, options->file);
    CLI::Option_group *which = path->add_option_group("Device");
    which->add_option("EID|NAME", options->target, "The device's EID, type.subtype.instance/..., or its name")
        ->type_name("TEXT");
    which->add_option("--instance", options->instance, "The device with this xml instance");
    CLI::Option *all =
        which->add_flag("--all", options->all, "Every device of the document, one line for each path");
    which->require_option(1);
    path->add_option("--bus", options->over, "i2c (default) or pcie")
        ->transform(
            CLI::CheckedTransformer(std::map<std::string, bus>{{"i2c", bus::i2c}, {"pcie", bus::pcie}})
                .description(""))
        ->type_name("i2c|pcie");
    add_card_options(path, *options);
    path->add_flag("--behind", options->behind, "List everything that is reached through the device")
        ->excludes("--from")
        ->excludes(all);
    path->add_flag("--json", options->json, "Print JSON");
    return runs(run_path, options);
}

runner declare_json(CLI::App *json)
{
    auto options = std::make_shared<json_options>();
    CLI::Option *file = add_file(json, options->file)->required(false)->option_text("(or --schema)");
    json->add_flag("--schema", options->schema, "Print the JSON Schema of the output instead")
        ->excludes(file);
    json->callback([options = options.get()] {
        if (options->file.empty() && !options->schema)
            throw CLI::RequiredError("FILE");
    });
    return runs(run_json, options);
}

runner declare_find(CLI::App *find)
{
    auto options = std::make_shared<find_options>();
    add_file(find, options->file);
    add_type(find, options->type, "Only entities of this type, e.g. sensor");
    add_word_option(find, "--subtype", options->subtype, "Only entities of this subtype, e.g. temp_value",
                    "SUBTYPE");
    add_word_option(find, "--owner", options->owner, "Only entities with this owner, e.g. shelf", "OWNER");
    find->add_option("--name", options->name,
                     "Only entities whose name matches; * stands for any text, ? for one character")
        ->type_name("GLOB");
    find->add_flag("--json", options->json, "Print JSON");
    return runs(run_find, options);
}

runner declare_diff(CLI::App *diff)
{
    auto options = std::make_shared<diff_options>();
    add_file(diff, options->before, "A", "The document before");
    add_file(diff, options->after, "B", "The document after");
    diff->add_flag("--json", options->json, "Print JSON");
    return runs(run_diff, options);
}

runner declare_completion(CLI::App *completion)
{
    auto shell = std::make_shared<std::string>();
    add_word_option(completion, "SHELL", *shell, "The shell to complete in", "bash|zsh|fish")->required();
    return [completion, shell] { return run_completion(*completion->get_parent(), *shell); };
}

runner declare_manual(CLI::App *manual)
{
    return [manual] { return run_manual(*manual->get_parent()); };
}

}  // namespace invctl
