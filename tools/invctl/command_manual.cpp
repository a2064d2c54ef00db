#include "command_manual.h"

#include "cli_model.h"
#include "command_table.h"
#include "exit_codes.h"
#include "output.h"

namespace
{

using invctl::cli_option;

// Text that troff prints as it stands, hyphens as the minus signs that a shell takes.
std::string plain(const std::string &text)
{
    std::string result = text.starts_with(".") || text.starts_with("'") ? "\\&" : "";
    for (char letter : text) {
        if (letter == '\\')
            result += "\\e";
        else if (letter == '-')
            result += "\\-";
        else if (letter == '\'')
            result += "\\(aq";
        else
            result += letter;
    }
    return result;
}

// "--type TYPE" with the value in italics.
std::string option_heading(const cli_option &option)
{
    std::string text;
    for (const std::string &name : option.names)
        text += (text.empty() ? "\\fB" : ", \\fB") + plain(name) + "\\fR";
    if (option.names.empty())
        return "\\fI" + plain(option.positional) + "\\fR";
    return option.value.empty() ? text : text + " \\fI" + plain(option.value) + "\\fR";
}

std::string options_text(const CLI::App &app)
{
    std::string text;
    for (const cli_option &option : invctl::options_of(app))
        text += ".TP\n" + option_heading(option) + "\n" + plain(option.description) + ".\n";
    return text;
}

std::string synopsis_of(const CLI::App &command)
{
    std::string text = "\\fBinvctl " + plain(command.get_name()) + "\\fR";
    for (const cli_option &option : invctl::options_of(command)) {
        if (!option.names.empty())
            continue;
        std::string argument = "\\fI" + plain(option.positional) + "\\fR" + (option.repeated ? "..." : "");
        text += option.required ? " " + argument : " [" + argument + "]";
    }
    return text + " [\\fIoptions\\fR]";
}

std::string examples_text(std::span<const char *const> examples)
{
    std::string text = ".EX\n";
    for (const char *example : examples)
        text += plain(example) + "\n";
    return text + ".EE\n";
}

std::string command_text(const invctl::command &row, const CLI::App &command)
{
    return ".SS invctl " + plain(row.name) + "\n" + plain(row.summary) + ".\n" + options_text(command) +
           ".PP\nExit status: " + plain(row.exit_status) + "\n.PP\n" + examples_text(row.examples);
}

std::string page_of(const CLI::App &app)
{
    std::string text = ".\\\" Made by `invctl manual` from the command table.\n"
                       ".TH INVCTL 1 \"\" \"invctl " INVCTL_VERSION "\" \"User Commands\"\n"
                       ".SH NAME\ninvctl \\- " +
                       plain("look into hardware inventory documents") + "\n.SH SYNOPSIS\n.nf\n";
    for (const CLI::App *command : invctl::commands_of(app))
        text += synopsis_of(*command) + "\n";
    text += ".fi\n.SH DESCRIPTION\n" + plain(invctl::overall_summary()) +
            ": XML documents, each about one unit of a modular router. What they may hold is told in\n"
            ".BR inventory (5).\n.SH OPTIONS\n" +
            options_text(app) + ".SH COMMANDS\n";
    for (const invctl::command &row : invctl::all_commands())
        text += command_text(row, *app.get_subcommand(std::string(row.name)));
    return text + ".SH EXAMPLES\n" + examples_text(invctl::overall_examples()) +
           ".SH SEE ALSO\n.BR inventory (5)\n";
}

}  // namespace

namespace invctl
{

int run_manual(const CLI::App &app)
{
    write_out(page_of(app));
    return exit_ok;
}

}  // namespace invctl
