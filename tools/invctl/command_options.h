// The options of each command: they fill an options struct when the command line is read, and the runner
// that comes back runs the command with it.
#ifndef INVCTL_COMMAND_OPTIONS_H
#define INVCTL_COMMAND_OPTIONS_H

#include "command_table.h"

namespace invctl
{

runner declare_tree(CLI::App *tree);
runner declare_show(CLI::App *show);
runner declare_path(CLI::App *path);
runner declare_json(CLI::App *json);
runner declare_find(CLI::App *find);
runner declare_diff(CLI::App *diff);
runner declare_completion(CLI::App *completion);
runner declare_manual(CLI::App *manual);

// Adds an option whose values are words of words_of_value(type_name).
CLI::Option *add_word_option(CLI::App *app, const char *name, std::string &value, const char *description,
                             const char *type_name);

}  // namespace invctl

#endif
