// The commands of invctl. Dispatch, help, hints, shell completion and the manual are all made from this one
// table and the options that its rows declare.
#ifndef INVCTL_COMMAND_TABLE_H
#define INVCTL_COMMAND_TABLE_H

#include <functional>
#include <span>

#include <CLI/CLI.hpp>

namespace invctl
{

using runner = std::function<int()>;

struct command {
    const char *name;
    const char *summary;                    // a sentence without its full stop
    const char *exit_status;                // continues "Exit status: "
    std::span<const char *const> examples;  // whole command lines; at least one
    runner (*declare)(CLI::App *options);   // adds the options; what it returns runs the command
};

std::span<const command> all_commands();

// What the help and the manual of invctl itself say beside its commands.
std::span<const char *const> overall_examples();
const char *overall_summary();

}  // namespace invctl

#endif
