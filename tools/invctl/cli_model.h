// The command line as completion, manual and hints see it: read from the parser itself, so that what they
// say is what it takes.
#ifndef INVCTL_CLI_MODEL_H
#define INVCTL_CLI_MODEL_H

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace invctl
{

struct cli_option {
    std::vector<std::string> names;  // "-h", "--help"; empty for a positional argument
    std::string positional;          // its name, or empty
    std::string value;               // type name of its value; empty for a flag
    std::string description;
    bool required = false;
    bool repeated = false;  // a positional that takes several words
};

// Options first to last, those of option groups included.
std::vector<cli_option> options_of(const CLI::App &app);

std::vector<const CLI::App *> commands_of(const CLI::App &app);

}  // namespace invctl

#endif
