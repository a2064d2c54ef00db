// invctl diff: two documents compared entity by entity.
#ifndef INVCTL_COMMAND_DIFF_H
#define INVCTL_COMMAND_DIFF_H

#include <string>

namespace invctl
{

struct diff_options {
    std::string before;
    std::string after;
    bool json = false;
};

// Prints what was removed, added, moved and changed and returns the exit code: 0 equal, 1 different; a
// document that cannot be opened for whatever reason is trouble here.
int run_diff(const diff_options &options);

}  // namespace invctl

#endif
