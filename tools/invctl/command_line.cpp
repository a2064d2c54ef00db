#include "command_line.h"

#include <cstdio>

#include "cli_model.h"
#include "command_table.h"
#include "exit_codes.h"
#include "nearest.h"
#include "output.h"

namespace
{

std::string footer_of(std::span<const char *const> examples, const std::string &exit_status)
{
    std::string footer = exit_status.empty() ? "" : "Exit status: " + exit_status + "\n";
    footer += examples.size() == 1 ? "Example:" : "Examples:";
    for (const char *example : examples)
        footer += std::string("\n  ") + example;
    return footer;
}

// Adds a command's options and help; what it runs.
invctl::runner add_command(CLI::App &app, const invctl::command &row)
{
    CLI::App *added = app.add_subcommand(row.name, row.summary);
    added->footer(footer_of(row.examples, row.exit_status));
    return row.declare(added);
}

// A word that the command line has no use for, and what may have been meant.
struct unknown_word {
    const char *what = nullptr;  // "option" or "command"; null: there is none
    std::string word;
    std::string meant;  // empty: nothing near
};

unknown_word unknown_option(const CLI::App &app, const std::string &word)
{
    std::string name = word.substr(0, word.find('='));
    std::vector<std::string> names;
    for (const invctl::cli_option &option : invctl::options_of(app))
        names.insert(names.end(), option.names.begin(), option.names.end());
    return {"option", name, invctl::nearest_word(name, names)};
}

unknown_word unknown_command(const CLI::App &app, const std::string &word)
{
    std::vector<std::string> names;
    for (const CLI::App *command : invctl::commands_of(app))
        names.push_back(command->get_name());
    return {"command", word, invctl::nearest_word(word, names)};
}

// The first such word. Without a known command all that follows is for a command that nobody knows.
unknown_word find_unknown_word(const CLI::App &app)
{
    const std::vector<CLI::App *> chosen = app.get_subcommands();
    for (const std::string &word : app.remaining(true)) {
        if (word.starts_with("-"))
            return unknown_option(chosen.empty() ? app : *chosen.front(), word);
        if (chosen.empty())
            return unknown_command(app, word);
    }
    return {};
}

// Help and version are exits as well, with status 0.
int report(const CLI::App &app, const CLI::ParseError &error)
{
    if (error.get_exit_code() == 0)
        return app.exit(error);
    const std::vector<CLI::App *> chosen = app.get_subcommands();
    unknown_word unknown = find_unknown_word(app);
    std::string message = error.what();
    if (unknown.what != nullptr)
        message = std::string("unknown ") + unknown.what + " " + invctl::printable(unknown.word.c_str()) +
                  (unknown.meant.empty() ? "" : "; did you mean " + unknown.meant + "?");
    else if (chosen.empty())
        message = "a command is required";
    fprintf(stderr, "invctl: %s\n", message.c_str());
    fprintf(stderr, "Run invctl %s--help for what it takes.\n",
            chosen.empty() ? "" : (chosen.front()->get_name() + " ").c_str());
    return invctl::exit_trouble;
}

}  // namespace

namespace invctl
{

int run_command_line(int argc, char **argv)
{
    CLI::App app(std::string(overall_summary()) + ".", "invctl");
    app.require_subcommand(1);
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.set_version_flag("--version", "invctl " INVCTL_VERSION, "Print the version and exit");
    app.footer(footer_of(overall_examples(), "") + "\nEach command has a --help of its own.");
    std::map<const CLI::App *, runner> runners;
    for (const command &row : all_commands()) {
        runner run = add_command(app, row);
        runners.emplace(app.get_subcommand(row.name), std::move(run));
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return report(app, error);
    }
    return runners.at(app.get_subcommands().front())();
}

}  // namespace invctl
