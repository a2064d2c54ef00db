// Completion in fish: one `complete` line for each command and option.
#include "cli_model.h"
#include "command_completion.h"
#include "option_values.h"

namespace
{

using invctl::cli_option;

std::string in_quotes(const std::string &text)
{
    std::string result = "'";
    for (char letter : text) {
        if (letter == '\'' || letter == '\\')
            result += '\\';
        result += letter;
    }
    return result + "'";
}

// -x: a value and no files; -rF: a value that is a file.
std::string value_of(const std::string &value)
{
    if (invctl::names_file(value))
        return " -rF";
    std::string words;
    for (const std::string &word : invctl::words_of_value(value))
        words += (words.empty() ? "" : " ") + word;
    return words.empty() ? " -x" : " -xa " + in_quotes(words);
}

std::string line_of(const std::string &condition, const cli_option &option)
{
    std::string text = "complete -c invctl -n " + in_quotes(condition);
    for (const std::string &name : option.names)
        text += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    if (!option.names.empty())
        return text + (option.value.empty() ? "" : value_of(option.value)) + " -d " +
               in_quotes(option.description) + "\n";
    if (invctl::names_file(option.value))
        return text + " -F\n";
    std::string words = value_of(option.value);
    return words == " -x" ? "" : text + words + "\n";
}

}  // namespace

namespace invctl
{

std::string fish_completion(const CLI::App &app)
{
    std::string text =
        "# fish completion for invctl; made by `invctl completion fish`\ncomplete -c invctl -f\n";
    for (const cli_option &option : options_of(app))
        text += line_of("__fish_use_subcommand", option);
    for (const CLI::App *command : commands_of(app)) {
        text += "complete -c invctl -n __fish_use_subcommand -a " + command->get_name() + " -d " +
                in_quotes(command->get_description()) + "\n";
        for (const cli_option &option : options_of(*command))
            text += line_of("__fish_seen_subcommand_from " + command->get_name(), option);
    }
    return text;
}

}  // namespace invctl
