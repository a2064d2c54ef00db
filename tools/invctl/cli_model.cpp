#include "cli_model.h"

namespace
{

invctl::cli_option option_read(const CLI::Option &option)
{
    invctl::cli_option read;
    for (const std::string &name : option.get_snames())
        read.names.push_back("-" + name);
    for (const std::string &name : option.get_lnames())
        read.names.push_back("--" + name);
    if (option.get_positional())
        read.positional = option.get_name(true, false);
    // The parser adds what it checks behind a colon: "UINT:UINT in [0 - 1]".
    if (option.get_type_size_max() != 0)
        read.value = option.get_type_name().substr(0, option.get_type_name().find(':'));
    read.description = option.get_description();
    read.required = option.get_required();
    read.repeated = option.get_items_expected_max() > 1;
    return read;
}

// An option group is an app without a name among the subcommands, with a help option that says nothing new.
void add_options(const CLI::App &app, std::vector<invctl::cli_option> *options)
{
    for (const CLI::Option *option : app.get_options())
        if (!app.get_name().empty() || option != app.get_help_ptr())
            options->push_back(option_read(*option));
    for (const CLI::App *group : app.get_subcommands([](const CLI::App *) { return true; }))
        if (group->get_name().empty())
            add_options(*group, options);
}

}  // namespace

namespace invctl
{

std::vector<cli_option> options_of(const CLI::App &app)
{
    std::vector<cli_option> options;
    add_options(app, &options);
    return options;
}

std::vector<const CLI::App *> commands_of(const CLI::App &app)
{
    return app.get_subcommands([](const CLI::App *each) { return !each->get_name().empty(); });
}

}  // namespace invctl
