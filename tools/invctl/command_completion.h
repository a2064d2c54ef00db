// invctl completion: scripts that complete invctl's command lines.
#ifndef INVCTL_COMMAND_COMPLETION_H
#define INVCTL_COMMAND_COMPLETION_H

#include <string>

#include <CLI/CLI.hpp>

namespace invctl
{

// Prints the script for bash, zsh or fish, made from the command line itself; returns the exit code.
int run_completion(const CLI::App &app, const std::string &shell);

std::string bash_completion(const CLI::App &app);
std::string zsh_completion(const CLI::App &app);
std::string fish_completion(const CLI::App &app);

}  // namespace invctl

#endif
