// Completion in bash, without help of other scripts.
#include "cli_model.h"
#include "command_completion.h"
#include "option_values.h"

namespace
{

using invctl::cli_option;

constexpr const char *head = R"sh(# bash completion for invctl; made by `invctl completion bash`
_invctl()
{
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= words= files= i
    COMPREPLY=()
    # bash parts --option=value at the sign
    if [[ $current == '=' ]]; then
        current=
    elif [[ $before == '=' ]]; then
        before=${COMP_WORDS[COMP_CWORD-2]}
    fi
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
)sh";

constexpr const char *tail = R"sh(    if [[ $files && $current != -* ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}
complete -F _invctl invctl
)sh";

std::string joined(const std::vector<std::string> &words, const char *between)
{
    std::string text;
    for (const std::string &word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

// The words of a value, files or, for free text, nothing.
std::string assignments_for(const std::string &value)
{
    if (invctl::names_file(value))
        return "files=yes";
    return "words='" + joined(invctl::words_of_value(value), " ") + "'";
}

// What may follow an option that takes a value.
std::string value_cases(const std::string &command, const CLI::App &app)
{
    std::string text;
    for (const cli_option &option : invctl::options_of(app)) {
        if (option.names.empty() || option.value.empty())
            continue;
        std::string patterns;
        for (const std::string &name : option.names)
            patterns += (patterns.empty() ? "'" : " | '") + command + " " + name + "'";
        text += "    " + patterns + ") " + assignments_for(option.value) + " ;;\n";
    }
    return text;
}

// What may stand anywhere else: options, the words of arguments, files.
std::string argument_case(const std::string &command, const CLI::App &app)
{
    std::vector<std::string> words;
    bool takes_files = false;
    for (const cli_option &option : invctl::options_of(app)) {
        words.insert(words.end(), option.names.begin(), option.names.end());
        if (option.positional.empty())
            continue;
        takes_files |= invctl::names_file(option.value);
        for (const std::string &word : invctl::words_of_value(option.value))
            words.push_back(word);
    }
    for (const CLI::App *each : invctl::commands_of(app))
        words.push_back(each->get_name());
    return "    '" + command + " '*) " + (takes_files ? "files=yes " : "") + "words='" + joined(words, " ") +
           "' ;;\n";
}

}  // namespace

namespace invctl
{

std::string bash_completion(const CLI::App &app)
{
    std::vector<std::string> names;
    for (const CLI::App *command : commands_of(app))
        names.push_back(command->get_name());
    std::string text = head;
    text += "        " + joined(names, " | ") +
            ")\n            command=${COMP_WORDS[i]}\n            break\n" +
            "            ;;\n        esac\n    done\n    case \"$command $before\" in\n";
    for (const CLI::App *command : commands_of(app))
        text += value_cases(command->get_name(), *command);
    text += argument_case("", app);
    for (const CLI::App *command : commands_of(app))
        text += argument_case(command->get_name(), *command);
    return text + "    esac\n" + tail;
}

}  // namespace invctl
