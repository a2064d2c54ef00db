// invctl manual: the manual page invctl(1).
#ifndef INVCTL_COMMAND_MANUAL_H
#define INVCTL_COMMAND_MANUAL_H

#include <CLI/CLI.hpp>

namespace invctl
{

// Prints the page as source for man, made from the command line itself; returns the exit code.
int run_manual(const CLI::App &app);

}  // namespace invctl

#endif
