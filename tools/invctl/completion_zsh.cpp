// Completion in zsh by its own _arguments.
#include "cli_model.h"
#include "command_completion.h"
#include "option_values.h"

namespace
{

using invctl::cli_option;

constexpr const char *head = R"sh(#compdef invctl
# zsh completion for invctl; made by `invctl completion zsh`
_invctl()
{
    local curcontext=$curcontext state line
    typeset -A opt_args
    local -a commands
    commands=(
)sh";

constexpr const char *tail = R"sh(        esac
        ;;
    esac
}
if [[ $funcstack[1] == _invctl ]]; then
    _invctl "$@"
else
    compdef _invctl invctl
fi
)sh";

// Text inside single quotes with the characters escaped that mean something to _arguments.
std::string escaped(const std::string &text, const std::string &special)
{
    std::string result;
    for (char letter : text) {
        if (letter == '\'')
            result += "'\\'";
        else if (special.find(letter) != std::string::npos)
            result += '\\';
        result += letter;
    }
    return result;
}

std::string values_of(const std::string &value)
{
    if (invctl::names_file(value))
        return "_files";
    std::string words;
    for (const std::string &word : invctl::words_of_value(value))
        words += (words.empty() ? "(" : " ") + word;
    return words.empty() ? " " : words + ")";
}

// One argument of _arguments: '(-h --help)'{-h,--help}'[Print ...]:VALUE:values'
std::string specification(const cli_option &option)
{
    std::string action;
    if (!option.value.empty())
        action = ":" + escaped(option.value, ":") + ":" + values_of(option.value);
    if (option.names.empty())
        return std::string("'") +
               (option.repeated   ? "*"
                : option.required ? ""
                                  : ":") +
               ":" + escaped(option.positional, ":") + ":" + values_of(option.value) + "'";
    std::string text = "'[" + escaped(option.description, "[]:\\") + "]" + action + "'";
    if (option.names.size() == 1)
        return option.names.front() + text;
    std::string all, choice;
    for (const std::string &name : option.names) {
        all += (all.empty() ? "" : " ") + name;
        choice += (choice.empty() ? "" : ",") + name;
    }
    return "'(" + all + ")'{" + choice + "}" + text;
}

std::string arguments_of(const CLI::App &app, const std::string &indent)
{
    std::string text = "_arguments -C";
    for (const cli_option &option : invctl::options_of(app))
        text += " \\\n" + indent + specification(option);
    return text;
}

}  // namespace

namespace invctl
{

std::string zsh_completion(const CLI::App &app)
{
    std::string text = head;
    for (const CLI::App *command : commands_of(app))
        text += "        '" + command->get_name() + ":" + escaped(command->get_description(), ":") + "'\n";
    text +=
        "    )\n    " + arguments_of(app, "        ") +
        " \\\n        '1:command:->command' \\\n        '*::argument:->argument'\n" +
        "    case $state in\n    command)\n        _describe command commands\n        ;;\n    argument)\n" +
        "        case $words[1] in\n";
    for (const CLI::App *command : commands_of(app))
        text += "        " + command->get_name() + ")\n            " +
                arguments_of(*command, "                ") + "\n            ;;\n";
    return text + tail;
}

}  // namespace invctl
